#include "layout/skelegon_store.h"

#include <numeric>

namespace lwp::st {

SkelegonStore::SkelegonStore(std::size_t skelegons) : m_ends(skelegons + 2) { m_ends[0] = m_ends[1] = 0; }

void SkelegonStore::layOut() {
  std::uint32_t* ends = m_ends.data();
  std::partial_sum(ends, ends + m_ends.size(), ends);
  m_words = Block<std::byte>(m_ends[m_ends.size() - 1] * kBytesOfWord);
}

SkelegonRecord SkelegonStore::operator[](std::size_t at) const {
  const std::uint32_t begin = m_ends[at] & ~kHasTags;
  const std::uint32_t end = m_ends[at + 1] & ~kHasTags;
  const bool hasTags = (m_ends[at + 1] & kHasTags) != 0;

  const auto tagAt = [this](std::uint32_t word) {
    return reinterpret_cast<const PolygonTag*>(m_words.data() + word * kBytesOfWord);
  };
  const std::uint32_t points = hasTags ? tagAt(end - kWordsOfTag)->pointsOfSkelegon : end - begin;
  const auto* firstPoint = reinterpret_cast<const std::uint32_t*>(m_words.data() + begin * kBytesOfWord);
  return {{firstPoint, points}, {tagAt(begin + points), (end - begin - points) / kWordsOfTag}};
}

}  // namespace lwp::st
