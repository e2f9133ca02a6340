#include "reader/skelegon_tags.h"

#include <algorithm>

namespace lwp::st {

void TagPlacing::add(std::uint32_t type, std::span<const std::byte> list, std::uint32_t first, std::uint32_t count) {
  if (listCount_ == kListsAtOnce) finish();
  first_ = first;
  count_ = count;
  lists_[listCount_++] = {type, TagPairs(list)};
}

void TagPlacing::finish() {
  if (listCount_ == 0) return;
  const std::span lists = std::span(lists_).first(listCount_);
  const std::uint32_t step = isWorthInterleaving() ? kSkelegonsAtOnce : count_;
  for (std::uint32_t done = 0; done < count_; done += step) {
    const std::uint32_t limit = done + std::min(step, count_ - done);
    for (List& list : lists) place(list, limit);
  }
  listCount_ = 0;
}

// Only when the lists have something for most of the skelegons: going round short lists would cost more than it saves.
bool TagPlacing::isWorthInterleaving() const {
  std::size_t bytes = 0;
  for (std::size_t i = 0; i < listCount_; ++i) bytes += lists_[i].pairs.left();
  return listsAscend_ && bytes >= listCount_ * count_;
}

void TagPlacing::place(List& list, std::uint32_t limit) {
  const TagFiller filler(*skelegons_, first_);
  list.pairs.readBelow(
      limit, [filler, type = list.type](std::uint32_t skelegon, std::uint16_t text) { filler.add(skelegon, type, text); });
}

}  // namespace lwp::st
