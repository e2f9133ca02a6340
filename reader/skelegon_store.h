// The BONE polygons of a whole object with their tags, and how they get there.
//
// For each skelegon its points and then its tags, in one block of words. The block is taken once, so the reader comes by
// twice: first it counts (SkelegonCounter, TagCounter), then layOut, then it puts the same in place (SkelegonFiller,
// TagFiller). These four are small, to be copied: a compiler keeps their members in registers where it sees that nothing
// refers to them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "reader/face_store.h"
#include "reader/memory_block.h"

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

// The numbers of a skelegon's points, head first, and its tags in the order of the file.
struct SkelegonRecord {
  std::span<const std::uint32_t> points;
  std::span<const PolygonTag> tags;
};

class SkelegonStore {
 public:
  SkelegonStore() = default;
  explicit SkelegonStore(std::size_t skelegons);

  // Takes the block, when all was counted.
  void layOut();

  // [filled]
  SkelegonRecord operator[](std::size_t at) const;

 private:
  friend struct SkelegonCounter;
  friend struct TagCounter;
  friend class SkelegonFiller;
  friend class TagFiller;

  static constexpr std::size_t kBytesOfWord = sizeof(std::uint32_t);
  static constexpr std::uint32_t kWordsOfTag = sizeof(PolygonTag) / kBytesOfWord;
  // Set in the end of a skelegon. The bit is free: the words take at most twice the bytes of a file of 32-bit size.
  static constexpr std::uint32_t kHasTags = 0x80000000U;

  // ends_[i + 1] is where skelegon i ends and the next begins; ends_[0] is 0. While tags are put in place it is where the
  // next tag of i goes, which has come to the end when all are there. Counting needs one entry more, at the back.
  Block<std::uint32_t> ends_;
  Block<std::byte> words_;
};

// [before layOut] Counts skelegons in ascending order. A sink of polygon lists.
struct SkelegonCounter {
  explicit SkelegonCounter(SkelegonStore& store) : count_(store.ends_.data() + 2) {}

  void startPolygon(std::uint32_t points) { count_[skelegons++] = points; }
  void addIndex(std::uint32_t /*point*/) {}

  std::uint32_t skelegons = 0;

 private:
  std::uint32_t* count_;
};

// [before layOut] Counts a tag of a skelegon that was counted; numbers are those of a layer whose first one is 'first'.
struct TagCounter {
  TagCounter(SkelegonStore& store, std::uint32_t first) : count_(store.ends_.data() + 2 + first) {}

  void count(std::uint32_t skelegon) const { count_[skelegon] += SkelegonStore::kWordsOfTag; }

 private:
  std::uint32_t* count_;
};

// [laid out] Puts skelegons in place, in the same order as they were counted. A sink of polygon lists.
class SkelegonFiller {
 public:
  explicit SkelegonFiller(SkelegonStore& store) : ends_(store.ends_.data() + 1), words_(store.words_.data()) {}

  void startPolygon(std::uint32_t points) {
    // The next entry is still as it was laid out.
    std::uint32_t& begin = ends_[skelegons_++];
    const std::uint32_t end = ends_[skelegons_];
    point_ = reinterpret_cast<std::uint32_t*>(words_ + begin * SkelegonStore::kBytesOfWord);
    const bool hasTags = end - begin > points;
    begin += points;
    if (!hasTags) return;
    begin |= SkelegonStore::kHasTags;
    std::byte* last = words_ + (end - SkelegonStore::kWordsOfTag) * SkelegonStore::kBytesOfWord;
    reinterpret_cast<PolygonTag*>(last)->pointsOfSkelegon = static_cast<std::uint16_t>(points);
  }
  void addIndex(std::uint32_t point) { *point_++ = point; }

  // How many skelegons there are so far.
  std::uint32_t skelegons() const { return skelegons_; }

 private:
  std::uint32_t* ends_;
  std::byte* words_;
  std::uint32_t* point_ = nullptr;
  std::uint32_t skelegons_ = 0;
};

// [laid out] Puts a tag behind those that a skelegon has so far; numbers are those of a layer whose first one is 'first'.
class TagFiller {
 public:
  TagFiller(SkelegonStore& store, std::uint32_t first)
      : ends_(store.ends_.data() + 1 + first), words_(store.words_.data()) {}

  void add(std::uint32_t skelegon, std::uint32_t type, std::uint16_t index) const {
    const std::uint32_t end = ends_[skelegon];
    ends_[skelegon] = end + SkelegonStore::kWordsOfTag;
    std::byte* at = words_ + (end & ~SkelegonStore::kHasTags) * SkelegonStore::kBytesOfWord;
    auto* tag = reinterpret_cast<PolygonTag*>(at);
    tag->type = type;
    tag->index = index;
  }

 private:
  std::uint32_t* ends_;
  std::byte* words_;
};

}  // namespace lwp::st
