#include "modeler/selector/tree_scroll.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace mst {
namespace {

constexpr int kGreatestLength = std::numeric_limits<int>::max() / kUnitsPerPixel;

}  // namespace

void CScrollAxis::setLengths(int seen, int content) {
  seen_ = std::clamp(seen, 0, kGreatestLength);
  content_ = std::clamp(content, 0, kGreatestLength);
  scrollTo(offset_);
}

int CScrollAxis::greatestOffset() const { return std::max(0, content_ - seen_) * kUnitsPerPixel; }

bool CScrollAxis::scrollTo(long long offset) {
  const auto kept = static_cast<int>(std::clamp<long long>(offset, 0, greatestOffset()));
  const bool changes = kept != offset_;
  offset_ = kept;
  return changes;
}

int CScrollAxis::thumbLength() const {
  if (content_ <= seen_) return seen_;
  const long long proportional = static_cast<long long>(seen_) * seen_ / content_;
  return std::min(seen_, std::max(kLeastThumb, static_cast<int>(proportional)));
}

ThumbExtent CScrollAxis::thumb() const {
  const int length = thumbLength();
  const int greatest = greatestOffset();
  if (greatest == 0) return {0, length};
  const int from = static_cast<int>(std::lround(static_cast<double>(offset_) * room() / greatest));
  return {from, from + length};
}

long long CScrollAxis::offsetAfterDrag(int offsetBefore, int distance) const {
  if (room() <= 0) return offsetBefore;
  return offsetBefore + std::llround(static_cast<double>(distance) * greatestOffset() / room());
}

}  // namespace mst
