// One scroll bar of the tree: how far the content is moved in one direction, and the bar's thumb. Lengths are in pixels, the
// offset in eighths of a pixel.
#pragma once

#include "modeler/selector/tree_rows.h"

namespace mst {

inline constexpr int kLeastThumb = 12;

class CScrollAxis {
 public:
  // `seen` is the length of the content that the view shows, which is also the length of the bar's strip.
  void setLengths(int seen, int content);

  int offset() const { return offset_; }
  // Kept in range. True when that changed it.
  bool scrollTo(long long offset);
  bool scrollBy(long long distance) { return scrollTo(offset_ + distance); }

  // The part of the strip that the thumb takes: as long in proportion as the content that is seen, but no shorter than
  // kLeastThumb while the strip has room for it. All of the strip when everything is seen.
  ThumbExtent thumb() const;

  // The offset at which the thumb stands that far from where it stands at another offset; may be out of range.
  long long offsetAfterDrag(int offsetBefore, int distance) const;

 private:
  int greatestOffset() const;
  int thumbLength() const;
  // Pixels that the thumb can be moved.
  int room() const { return seen_ - thumbLength(); }

  int seen_ = 0;
  int content_ = 0;
  int offset_ = 0;
};

}  // namespace mst
