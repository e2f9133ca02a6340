#include "reader/skelegon_store.h"

#include <numeric>

namespace lwp::st {

SkelegonStore::SkelegonStore(std::size_t skelegons) : ends_(skelegons + 2) { ends_[0] = ends_[1] = 0; }

void SkelegonStore::layOut() {
  std::uint32_t* ends = ends_.data();
  std::partial_sum(ends, ends + ends_.size(), ends);
  words_ = Block<std::byte>(ends_[ends_.size() - 1] * kBytesOfWord);
}

SkelegonRecord SkelegonStore::operator[](std::size_t at) const {
  const std::uint32_t begin = ends_[at] & ~kHasTags;
  const std::uint32_t end = ends_[at + 1] & ~kHasTags;
  const bool hasTags = (ends_[at + 1] & kHasTags) != 0;

  const auto tagAt = [this](std::uint32_t word) {
    return reinterpret_cast<const PolygonTag*>(words_.data() + word * kBytesOfWord);
  };
  const std::uint32_t points = hasTags ? tagAt(end - kWordsOfTag)->pointsOfSkelegon : end - begin;
  const auto* firstPoint = reinterpret_cast<const std::uint32_t*>(words_.data() + begin * kBytesOfWord);
  return {{firstPoint, points}, {tagAt(begin + points), (end - begin - points) / kWordsOfTag}};
}

}  // namespace lwp::st
