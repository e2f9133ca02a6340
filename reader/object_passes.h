// The three passes over an object file's chunks: counting, counting the tags of each skelegon, filling the store.
// The object reader runs them one after the other over the same bytes; each relies on what those before it made sure of.
#pragma once

#include <cstddef>
#include <cstdint>

#include "reader/CLWOFileStream.h"
#include "reader/object_store.h"
#include "reader/skelegon_tags.h"

namespace lwp::st {

// How much there is of everything in an object.
struct ObjectCounts {
  std::size_t tagTexts = 0;
  std::size_t tagTextBytes = 0;
  std::size_t layers = 0;
  std::size_t layerNameBytes = 0;
  std::size_t points = 0;
  PolygonCounter faces;
  PolygonCounter skelegons;
};

// Takes no memory. Refuses all that is not sound in itself; only the tags of skelegons it leaves to the next pass.
class CountingPass : public ObjectChunks {
 public:
  const ObjectCounts& counts() const { return counts_; }

  bool takeTagTexts(CFileStream body) override;
  bool takeLayer(CFileStream body) override;
  bool takePoints(CFileStream body) override;
  bool takeFaces(CFileStream body) override;
  bool takeSkelegons(CFileStream body) override;

 private:
  ObjectCounts counts_;
};

// Counts the points and tags of each skelegon. Refuses a tag whose skelegon the layer does not have, or not yet.
class TagCountingPass : public ObjectChunks {
 public:
  explicit TagCountingPass(SkelegonStore& store);

  // Whether no tag list names a lower skelegon after a higher one.
  bool listsAscend() const { return listsAscend_; }

  bool takeLayer(CFileStream body) override;
  bool takeSkelegons(CFileStream body) override;
  bool takeSkelegonTags(std::uint32_t type, CFileStream body) override;

 private:
  SkelegonStore* store_;
  SkelegonCounter skelegons_;
  std::uint32_t firstOfLayer_ = 0;
  bool listsAscend_ = true;
};

// Takes the memory and puts everything in place.
class FillingPass : public ObjectChunks {
 public:
  FillingPass(ObjectStore& store, const ObjectCounts& counts, bool tagListsAscend);

  bool takeTagTexts(CFileStream body) override;
  bool takeLayer(CFileStream body) override;
  bool takePoints(CFileStream body) override;
  bool takeFaces(CFileStream body) override;
  bool takeSkelegons(CFileStream body) override;
  bool takeSkelegonTags(std::uint32_t type, CFileStream body) override;

  // To be called when all chunks were taken.
  void finish();

 private:
  static FaceStore& roomFor(ObjectStore& store, const ObjectCounts& counts);

  ObjectStore* store_;
  TagPlacing tags_;
  FaceFiller faces_;
  SkelegonFiller skelegons_;
  // Where the next thing of each kind goes; the start of the next layer.
  LayerRecord next_{};
};

}  // namespace lwp::st
