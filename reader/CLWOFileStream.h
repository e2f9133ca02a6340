// An object file as a run of chunks. It alone knows where a chunk begins and ends: it hands the body of each to whoever
// reads them, in a window of its own, and goes on by the chunk's header.
#pragma once

#include <cstdint>
#include <functional>

#include "reader/CFileStream.h"

namespace lwp::st {

// The chunks that are of use. Points, polygons and tags belong to the layer that came last; there is one.
enum ChunkKind : std::size_t { kTagTexts, kLayer, kPoints, kFaces, kSkelegons, kSkelegonTags, kOther };

// The body of one chunk: of polygons and their tags, what follows the type. Tags are of 'tagType'.
struct Chunk {
  ChunkKind kind;
  std::span<const std::byte> body;
  std::uint32_t tagType = 0;
};

class CLWOFileStream : public CFileStream {
 public:
  using CFileStream::CFileStream;

  // Goes into the form that the file consists of and stands at its first chunk. False when the file is no object of a
  // kind that is read, or is not just as long as it says.
  bool enterForm();

  // [inside the form] Hands every chunk of use to 'take', in the order of the file; it answers whether the chunk is sound. True
  // when all were and the last ended at the end of the form.
  bool readChunks(const std::function<bool(const Chunk& chunk)>& take);
};

}  // namespace lwp::st
