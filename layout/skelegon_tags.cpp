#include "layout/skelegon_tags.h"

#include <algorithm>

namespace lwp::st {

void TagPlacing::add(std::uint32_t type, std::span<const std::byte> list, std::uint32_t first, std::uint32_t count) {
  if (m_listCount == kListsAtOnce) finish();
  m_first = first;
  m_count = count;
  m_lists[m_listCount++] = {type, TagPairs(list)};
}

void TagPlacing::finish() {
  if (m_listCount == 0) return;
  const std::span lists = std::span(m_lists).first(m_listCount);
  const std::uint32_t step = isWorthInterleaving() ? kSkelegonsAtOnce : m_count;
  for (std::uint32_t done = 0; done < m_count; done += step) {
    const std::uint32_t limit = done + std::min(step, m_count - done);
    for (List& list : lists) place(list, limit);
  }
  m_listCount = 0;
}

// Only when the lists have something for most of the skelegons: going round short lists would cost more than it saves.
bool TagPlacing::isWorthInterleaving() const {
  std::size_t bytes = 0;
  for (std::size_t i = 0; i < m_listCount; ++i) bytes += m_lists[i].pairs.left();
  return m_listsAscend && bytes >= m_listCount * m_count;
}

void TagPlacing::place(List& list, std::uint32_t limit) {
  const TagFiller filler(*m_skelegons, m_first);
  list.pairs.readBelow(
      limit, [filler, type = list.type](std::uint32_t skelegon, std::uint16_t text) { filler.add(skelegon, type, text); });
}

}  // namespace lwp::st
