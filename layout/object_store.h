// The flat storage behind ObjectFileData: one block for each kind of thing in the whole object, and numbers that say where
// in it the part of a layer, a polygon or a text begins. The reader fills it; everybody else looks at it through
// object_file_data.h.
//
// What is kept of a file takes at most twice the file's size, whatever is in it: a polygon without points costs two bytes
// there, and four here. That is why a skelegon has one start for its points and its tags, and why only every eighth text
// of the tag list has one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "layout/big_endian.h"

namespace lwp::st {

// One tag of a skelegon: its four-character type, and which text of the object's tag list it has. The file may name a text
// that the list does not have.
struct PolygonTag {
  std::uint32_t type;
  std::uint16_t index;
  // Used by the store, in the last tag of a skelegon: how many points the skelegon has.
  std::uint16_t pointsOfSkelegon;

  friend bool operator==(const PolygonTag& one, const PolygonTag& other) {
    return one.type == other.type && one.index == other.index;
  }
};

// A BONE polygon: the numbers of its points, head first, and its tags in the order of the file.
struct SkelegonRecord {
  std::span<const std::uint32_t> points;
  std::span<const PolygonTag> tags;
};

// Memory for a number of items known before, taken once and not cleared.
template <class Item>
class Block {
 public:
  Block() = default;
  explicit Block(std::size_t size) : m_items(std::make_unique_for_overwrite<Item[]>(size)), m_size(size) {}

  std::size_t size() const { return m_size; }
  Item* data() { return m_items.get(); }
  const Item* data() const { return m_items.get(); }
  Item& operator[](std::size_t at) { return m_items[at]; }
  const Item& operator[](std::size_t at) const { return m_items[at]; }

 private:
  std::unique_ptr<Item[]> m_items;
  std::size_t m_size = 0;
};

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

  std::size_t size() const { return m_count; }
  // 'at' is below size().
  std::string_view operator[](std::size_t at) const;

 private:
  // A text is found from the start of its group. Groups of eight keep the starts small beside texts of one letter.
  static constexpr std::size_t kGroup = 8;

  Block<char> m_texts;
  Block<std::uint32_t> m_groupStarts;
  std::size_t m_length = 0;
  std::size_t m_count = 0;
};

// The FACE polygons of the whole object. starts[i] is where the indices of face i begin; those of the next end it.
struct FaceStore {
  Block<std::uint32_t> starts;
  Block<std::uint32_t> indices;

  std::span<const std::uint32_t> operator[](std::size_t at) const {
    return {indices.data() + starts[at], indices.data() + starts[at + 1]};
  }
};

// The BONE polygons of the whole object: for each its points and then its tags, in one block of words.
//
// The block is taken once, so the reader comes by twice: first it counts (countSkelegon for each in ascending order,
// countTag for each tag in any order), then layOut, then the same again to put things in place.
class SkelegonStore {
 public:
  SkelegonStore() = default;
  explicit SkelegonStore(std::size_t skelegons);

  void countSkelegon(std::size_t skelegon, std::uint32_t points) { m_ends[skelegon + 2] = points; }
  void countTag(std::size_t skelegon) { m_ends[skelegon + 2] += kWordsOfTag; }

  void layOut();

  // The room for the points of a skelegon, as many as were counted, to be filled by the caller. Ascending, as before.
  std::uint32_t* placeSkelegon(std::size_t skelegon, std::uint32_t points);
  // Adds a tag behind those placed so far.
  void placeTag(std::size_t skelegon, std::uint32_t type, std::uint16_t index) {
    std::uint32_t& end = m_ends[skelegon + 1];
    PolygonTag& tag = *tagAt(end & ~kHasTags);
    tag.type = type;
    tag.index = index;
    end += kWordsOfTag;
  }

  SkelegonRecord operator[](std::size_t at) const;

 private:
  static constexpr std::size_t kBytesOfWord = sizeof(std::uint32_t);
  static constexpr std::uint32_t kWordsOfTag = sizeof(PolygonTag) / kBytesOfWord;
  // Set in the end of a skelegon. The bit is free: the words take at most twice the bytes of a file of 32-bit size.
  static constexpr std::uint32_t kHasTags = 0x80000000U;

  PolygonTag* tagAt(std::size_t word) { return reinterpret_cast<PolygonTag*>(m_words.data() + word * kBytesOfWord); }
  const PolygonTag* tagAt(std::size_t word) const {
    return reinterpret_cast<const PolygonTag*>(m_words.data() + word * kBytesOfWord);
  }

  // m_ends[i + 1] is where skelegon i ends and the next begins; m_ends[0] is 0. While tags are placed it is where the next
  // tag of i goes, which has come to the end when all are there. Counting needs one entry more, at the back.
  Block<std::uint32_t> m_ends;
  Block<std::byte> m_words;
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
