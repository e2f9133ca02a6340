#include "modeler/selector/tree_hits.h"

namespace mst {
namespace {

// The host's mouse bits.
constexpr int kToggleBit = 1;   // Ctrl
constexpr int kExtendBit = 2;   // Shift
constexpr int kSubtreeBit = 4;  // Alt
constexpr int kButtonBits = 32 + 64;
constexpr int kClickBits = 32;
constexpr int kDownBit = 128;

// Of a row, from its indent, in pixels.
constexpr int kGapFrom = -17;
constexpr int kExpanderFrom = -14;
constexpr int kLabelFrom = 10;

// Left of the gap it is the label again: a click on the guide lines selects, too.
TreePart partAt(int x, int depth) {
  const int fromIndent = x - kIndent * depth;
  if (fromIndent >= kExpanderFrom && fromIndent < kLabelFrom) return TreePart::Expander;
  if (fromIndent >= kGapFrom && fromIndent < kLabelFrom) return TreePart::Neither;
  return TreePart::Label;
}

}  // namespace

TreeHit hitAt(int x, int y, const TreeWindow& window, std::span<const TreeRow> rows) {
  if (x < 0 || y < 0 || x >= window.width || y >= window.height) return {TreePart::Outside, kNoRow};
  const bool isInRightStrip = x >= window.width - kScrollBarSize;
  const bool isInBottomStrip = y >= window.height - kScrollBarSize;
  if (isInBottomStrip && !isInRightStrip) return {TreePart::HorizontalBar, kNoRow};
  if (isInRightStrip && !isInBottomStrip) return {TreePart::VerticalBar, kNoRow};
  // The corner between the bars belongs to none of them: the row behind it is hit, as anywhere else.
  const auto row = static_cast<std::size_t>((y + window.scrollY / kUnitsPerPixel) / kRowHeight);
  if (row >= rows.size()) return {TreePart::Neither, kNoRow};
  return {partAt(x + window.scrollX / kUnitsPerPixel, rows[row].depth), row};
}

TreeAction actionOf(int bits) {
  if ((bits & kDownBit) == 0) return {};
  TreeAction action;
  action.toggle = (bits & kToggleBit) != 0;
  action.extend = (bits & kExtendBit) != 0;
  action.subtree = (bits & kSubtreeBit) != 0;
  action.click = (bits & kButtonBits) == kClickBits;
  // Both bits are also how the host tells of the right button: it acts as a double-click does.
  action.doubleClick = (bits & kButtonBits) == kButtonBits;
  return action;
}

}  // namespace mst
