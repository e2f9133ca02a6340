// The bodies of PTAG chunks: pairs of a skelegon's number, of two or four bytes, and the number of a tag text. Writers put
// one such list for each type of tag behind the skelegons, so the tags of one skelegon lie far apart in the file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "reader/big_endian.h"
#include "reader/skelegon_store.h"

namespace lwp::st {

// A list of pairs that is being read.
class TagPairs {
 public:
  TagPairs() = default;
  explicit TagPairs(std::span<const std::byte> list) : at_(list.data()), end_(list.data() + list.size()) {}

  // Calls take(skelegon, text) for the next pairs, as long as their skelegon is below 'limit'. Stops in front of a pair that
  // is not complete.
  template <class Take>
  void readBelow(std::uint32_t limit, Take take);

  bool atEnd() const { return at_ == end_; }
  std::size_t left() const { return static_cast<std::size_t>(end_ - at_); }

 private:
  static constexpr std::size_t kBytesOfShortPair = kBytesOfShortIndex + kBytesOfU2;
  static constexpr std::size_t kBytesOfLongPair = kBytesOfLongIndex + kBytesOfU2;

  const std::byte* at_ = nullptr;
  const std::byte* end_ = nullptr;
};

// Puts the tags of a layer's skelegons in place, those of each skelegon in the order of the lists.
//
// One list after the other would mean a walk through the whole store for each of them. Where the lists ascend, some
// skelegons are done at a time instead: their pairs from all lists, while their part of the store is in the cache.
class TagPlacing {
 public:
  // 'listsAscend': no pair of any list names a lower skelegon than the one before.
  TagPlacing(SkelegonStore& skelegons, bool listsAscend) : skelegons_(&skelegons), listsAscend_(listsAscend) {}

  // A sound list of the layer whose skelegons are 'first' and the 'count' - 1 behind it. It may be kept until 'finish'.
  void add(std::uint32_t type, std::span<const std::byte> list, std::uint32_t first, std::uint32_t count);

  // Places what was kept: to be called at the end of a layer.
  void finish();

 private:
  // So many lists are kept; a further one has them placed first.
  static constexpr std::size_t kListsAtOnce = 64;
  // So many skelegons are done at a time: with some dozens of tags they fit into the smallest cache.
  static constexpr std::uint32_t kSkelegonsAtOnce = 128;

  struct List {
    std::uint32_t type = 0;
    TagPairs pairs;
  };

  bool isWorthInterleaving() const;
  void place(List& list, std::uint32_t limit);

  SkelegonStore* skelegons_;
  bool listsAscend_;
  std::uint32_t first_ = 0;
  std::uint32_t count_ = 0;
  std::array<List, kListsAtOnce> lists_;
  std::size_t listCount_ = 0;
};

template <class Take>
void TagPairs::readBelow(std::uint32_t limit, Take take) {
  const std::byte* at = at_;
  const std::byte* const end = end_;
  const std::byte* before = nullptr;
  // Pairs of one width mostly follow each other, so each width has a loop of its own.
  while (at != before) {
    before = at;
    while (static_cast<std::size_t>(end - at) >= kBytesOfShortPair && *at != kLongIndexMark) {
      const std::uint32_t skelegon = loadU2(at);
      if (skelegon >= limit) break;
      take(skelegon, loadU2(at + kBytesOfShortIndex));
      at += kBytesOfShortPair;
    }
    while (static_cast<std::size_t>(end - at) >= kBytesOfLongPair && *at == kLongIndexMark) {
      const std::uint32_t skelegon = loadLongIndex(at);
      if (skelegon >= limit) break;
      take(skelegon, loadU2(at + kBytesOfLongIndex));
      at += kBytesOfLongPair;
    }
  }
  at_ = at;
}

}  // namespace lwp::st
