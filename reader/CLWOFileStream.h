// An object file as a run of chunks. It alone knows where a chunk begins and ends: it hands the body of each to whoever
// collects them, in a window of its own, and goes on by the chunk's header.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "reader/CFileStream.h"

namespace lwp::st {

// The four characters of an identifier as the number that the file holds.
constexpr std::uint32_t chunkId(const char (&text)[5]) {
  std::uint32_t id = 0;
  for (std::size_t i = 0; i < 4; ++i) id = (id << 8U) | static_cast<unsigned char>(text[i]);
  return id;
}

// Takes the chunks of an object that are of use; what a member is not overridden for is passed over. Each gets the whole body
// of one chunk (of polygons and their tags: what follows the type) and answers whether it is sound; the walk ends when not.
// Points, polygons and tags belong to the layer that came last; there is one.
class ObjectChunks {
 public:
  virtual ~ObjectChunks() = default;
  virtual bool takeTagTexts(CFileStream /*body*/) { return true; }
  virtual bool takeLayer(CFileStream /*body*/) { return true; }
  virtual bool takePoints(CFileStream /*body*/) { return true; }
  virtual bool takeFaces(CFileStream /*body*/) { return true; }
  virtual bool takeSkelegons(CFileStream /*body*/) { return true; }
  // Tags of the skelegons that the layer has so far.
  virtual bool takeSkelegonTags(std::uint32_t /*type*/, CFileStream /*body*/) { return true; }
};

class CLWOFileStream : public CFileStream {
 public:
  using CFileStream::CFileStream;

  // Goes into the form that the file consists of and stands at its first chunk. False when the file is no object of a
  // kind that is read, or is not just as long as it says.
  bool enterForm();

  // [inside the form] Hands every chunk to 'chunks', in the order of the file. True when all were sound and the last ended
  // at the end of the form.
  bool readChunks(ObjectChunks& chunks);

 private:
  // What the POLS chunk that came last in this layer held; tags refer to it.
  enum class Polygons { None, Faces, Skelegons, Others };
  struct Place {
    bool isInLayer = false;
    Polygons polygons = Polygons::None;
  };

  static bool readChunk(std::uint32_t id, CFileStream body, Place& place, ObjectChunks& chunks);
  static bool readPolygons(CFileStream body, Place& place, ObjectChunks& chunks);
  static bool readPolygonTags(CFileStream body, const Place& place, ObjectChunks& chunks);
};

}  // namespace lwp::st
