// What the selector's tree shows at one moment: its visible rows in order, and where everything is, in pixels. Computed by
// the tree view without OpenGL; the drawing and the hit test read it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace mst {

inline constexpr int kRowHeight = 14;
inline constexpr int kCellWidth = 6;  // of a character; full-width ones take two
inline constexpr int kCellHeight = 12;
inline constexpr int kIndent = 2 * kCellWidth;  // of a row below its parent
inline constexpr int kScrollBarSize = 12;
inline constexpr int kUnitsPerPixel = 8;  // of view sizes and scroll offsets, as the tree view keeps them

inline constexpr std::size_t kNoRow = static_cast<std::size_t>(-1);

// One visible row. Rows stand in depth-first order; row numbers count from 0 at the top of the content.
struct TreeRow {
  std::size_t node = 0;            // the owner's number for it
  int depth = 0;                   // of the root: 0
  std::size_t parent = kNoRow;     // row of its parent; none for the root
  std::size_t lastChild = kNoRow;  // row of its last visible child; none when it shows no children
};

// Bits of a node's state.
enum TreeState : std::uint32_t { kStateSet = 1, kStateExpanded = 2, kStateSelected = 4 };

using Rgba = std::array<std::uint8_t, 4>;

// Who owns the nodes that rows stand for.
class CTreeOwner {
 public:
  virtual ~CTreeOwner() = default;
  virtual std::uint32_t stateOf(std::size_t node) const = 0;
  virtual std::size_t childCountOf(std::size_t node) const = 0;  // visible or not
  virtual std::string_view textOf(std::size_t node) const = 0;   // UTF-8 as far as it is valid
  // An owner that gives colours at all may have none for a node.
  virtual bool givesColours() const = 0;
  virtual std::optional<Rgba> colourOf(std::size_t node) const = 0;
};

// A part of a scroll bar's strip, from the strip's beginning.
struct ThumbExtent {
  int from = 0;
  int to = 0;
};

struct TreePicture {
  int width = 0;  // of the view, scroll bars included
  int height = 0;
  double scrollX = 0;
  double scrollY = 0;
  int contentWidth = 0;
  ThumbExtent horizontalThumb;
  ThumbExtent verticalThumb;
  std::span<const TreeRow> rows;  // all of them, seen or not
  const CTreeOwner* owner = nullptr;
};

}  // namespace mst
