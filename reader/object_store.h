// The flat storage behind ObjectFileData: one block for each kind of thing in the whole object, and numbers that say where
// in it the part of a layer, a polygon or a text begins. The reader fills it; everybody else looks at it through
// object_file_data.h.
//
// What is kept of a file takes at most twice the file's size, whatever is in it: a polygon without points costs two bytes
// there, and four here. That is why a skelegon has one start for its points and its tags, and why only every second text
// of the tag list has one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "reader/big_endian.h"
#include "reader/face_store.h"
#include "reader/memory_block.h"
#include "reader/skelegon_store.h"

namespace lwp::st {

// A layer's own values, and where its part of the blocks begins; it ends where the next layer's begins.
struct LayerRecord {
  Vec12 pivot;
  std::uint16_t number;
  std::uint16_t flags;
  std::uint16_t parent;
  std::uint32_t nameStart;
  std::uint32_t nameLength;
  std::uint32_t firstPoint;
  std::uint32_t firstFace;
  std::uint32_t firstSkelegon;
};

// The texts of the TAGS chunks, just as they stand there: each with its zero, and one more where that makes it even.
class TagTexts {
 public:
  TagTexts() = default;
  // Room for 'count' texts that take 'bytes' bytes in the file.
  TagTexts(std::size_t count, std::size_t bytes);

  // The next texts of the list: the body of a TAGS chunk, which ends with the end of a text.
  void append(std::span<const std::byte> body);

  std::size_t size() const { return count_; }
  // 'at' is below size().
  std::string_view operator[](std::size_t at) const;

 private:
  // A text is found from the start of its group. A start for each would be too much beside texts of one letter.
  static constexpr std::size_t kGroup = 2;

  Block<char> texts_;
  Block<std::uint32_t> groupStarts_;
  std::size_t length_ = 0;
  std::size_t count_ = 0;
};

struct ObjectStore {
  TagTexts tags;
  std::string layerNames;
  // One more than there are layers; the last tells where the last layer ends.
  std::vector<LayerRecord> layers;
  Block<Vec12> points;
  FaceStore faces;
  SkelegonStore skelegons;
};

}  // namespace lwp::st
