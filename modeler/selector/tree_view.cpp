#include "modeler/selector/tree_view.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <unordered_set>
#include <utility>

#include "modeler/selector/selector_colours.h"
#include "modeler/selector/text_cells.h"

namespace mst {
namespace {

constexpr int kTextFrom = 4;  // from a row's indent, where the drawing begins its text
constexpr int kWheelRows = 3;
constexpr int kGreatestView = std::numeric_limits<int>::max() / kUnitsPerPixel;

// Calls `visit` with a node and everything below it, shown or not, from top to bottom. Without recursion: a chain may be
// long.
template <class Nodes, class Visit>
void walk(Nodes& nodes, std::size_t from, Visit visit) {
  if (from >= nodes.size()) return;
  std::vector<std::size_t> waiting{from};
  while (!waiting.empty()) {
    auto& node = nodes[waiting.back()];
    waiting.pop_back();
    waiting.insert(waiting.end(), node.children.rbegin(), node.children.rend());
    visit(node);
  }
}

long long widthOf(int depth, std::string_view text) {
  return static_cast<long long>(kIndent) * depth + kTextFrom + static_cast<long long>(kCellWidth) * cellsOf(text);
}

int asLength(long long pixels) {
  return static_cast<int>(std::min<long long>(pixels, std::numeric_limits<int>::max() / kUnitsPerPixel));
}

}  // namespace

// ---------------------------------------------------------------------------------------------------------------------
// What there is and where

void CTreeView::setNodes(SelectorNodes nodes) {
  const skg::PolygonId anchored = anchor_ == kNoRow ? nullptr : nodeOf(anchor_).polygon;
  nodes_ = std::move(nodes);
  keepNothing();
  layOut();
  const auto isAnchored = [&](const TreeRow& row) { return nodes_[row.node].polygon == anchored; };
  const auto found = anchored == nullptr ? rows_.end() : std::find_if(rows_.begin(), rows_.end(), isAnchored);
  anchor_ = found == rows_.end() ? kNoRow : static_cast<std::size_t>(found - rows_.begin());
}

void CTreeView::setView(int width, int height) {
  width_ = std::clamp(width, 0, kGreatestView) * kUnitsPerPixel;
  height_ = std::clamp(height, 0, kGreatestView) * kUnitsPerPixel;
  anchor_ = clicked_ = kNoRow;
  drag_ = Drag::None;
  horizontal_.scrollTo(0);
  vertical_.scrollTo(0);
  fitScrolling();
}

void CTreeView::layOut() {
  struct Waiting {
    std::size_t node;
    int depth;
    std::size_t parent;
  };
  std::vector<TreeRow> rows;
  std::vector<Waiting> waiting;
  if (!nodes_.empty()) waiting.push_back({kRootNode, 0, kNoRow});
  long long width = 0;
  while (!waiting.empty()) {
    const Waiting next = waiting.back();
    waiting.pop_back();
    const std::size_t row = rows.size();
    const SelectorNode& node = nodes_[next.node];
    rows.push_back({next.node, next.depth, next.parent, kNoRow});
    width = std::max(width, widthOf(next.depth, node.text));
    if (next.parent != kNoRow) rows[next.parent].lastChild = row;
    if (!node.is(kStateExpanded)) continue;
    const auto first = static_cast<std::ptrdiff_t>(waiting.size());
    for (const std::size_t child : node.children) waiting.push_back({child, next.depth + 1, row});
    std::reverse(waiting.begin() + first, waiting.end());
  }
  rows_ = std::move(rows);
  contentWidth_ = asLength(width);
  fitScrolling();
}

// The bars cover what lies below them, so that much less is seen.
void CTreeView::fitScrolling() {
  horizontal_.setLengths(pixelWidth() - kScrollBarSize, contentWidth_);
  vertical_.setLengths(pixelHeight() - kScrollBarSize, asLength(static_cast<long long>(rows_.size()) * kRowHeight));
}

TreePicture CTreeView::picture() const {
  TreePicture picture;
  picture.width = pixelWidth();
  picture.height = pixelHeight();
  picture.scrollX = static_cast<double>(scrollX()) / kUnitsPerPixel;
  picture.scrollY = static_cast<double>(scrollY()) / kUnitsPerPixel;
  picture.contentWidth = contentWidth_;
  picture.horizontalThumb = horizontal_.thumb();
  picture.verticalThumb = vertical_.thumb();
  picture.rows = rows_;
  picture.owner = this;
  return picture;
}

std::optional<Rgba> CTreeView::colourOf(std::size_t node) const { return rowColour(nodes_[node].colour); }

std::vector<skg::PolygonId> CTreeView::selectedPolygons() const {
  std::vector<skg::PolygonId> polygons;
  std::unordered_set<skg::PolygonId> listed;
  walk(nodes_, kRootNode, [&](const SelectorNode& node) {
    if (!node.is(kStateSelected) || node.polygon == nullptr) return;
    if (listed.insert(node.polygon).second) polygons.push_back(node.polygon);
  });
  return polygons;
}

// ---------------------------------------------------------------------------------------------------------------------
// The mouse

TreeChange CTreeView::press(const TreePress& press) {
  const TreeHit hit = hitAt(press.x, press.y, window(), rows_);
  if (hit.part == TreePart::Outside) return {};
  TreeAction action = actionOf(press.bits);
  beginDrag(hit.part, press);
  pairClicks(hit, action, press.clicks);
  return use(hit, action);
}

// Makes the second of two quick clicks on one row a double-click. Hosts may count clicks by time alone, wherever they are,
// so the row is looked at too. With a qualifier it is a click like the first: two toggles are two toggles.
void CTreeView::pairClicks(const TreeHit& hit, TreeAction& action, int clicks) {
  const bool isPlainClick = hit.part == TreePart::Label && action.click && !action.isQualified();
  const bool isSecond = isPlainClick && clicks > 1 && hit.row == clicked_;
  clicked_ = isPlainClick && !isSecond ? hit.row : kNoRow;
  if (!isSecond) return;
  action.click = false;
  action.doubleClick = true;
}

void CTreeView::beginDrag(TreePart part, const TreePress& press) {
  switch (part) {
    case TreePart::HorizontalBar: drag_ = Drag::Horizontal; break;
    case TreePart::VerticalBar: drag_ = Drag::Vertical; break;
    default: drag_ = Drag::Tree; break;
  }
  pressX_ = press.x;
  pressY_ = press.y;
  pressScrollX_ = scrollX();
  pressScrollY_ = scrollY();
}

TreeChange CTreeView::drag(int x, int y) {
  switch (drag_) {
    case Drag::Horizontal: return {horizontal_.scrollTo(horizontal_.offsetAfterDrag(pressScrollX_, x - pressX_)), false};
    case Drag::Vertical: return {vertical_.scrollTo(vertical_.offsetAfterDrag(pressScrollY_, y - pressY_)), false};
    case Drag::None:
    case Drag::Tree: break;
  }
  return {};
}

bool CTreeView::isOnDraggedBar(int x, int y) const {
  const TreePart part = hitAt(x, y, window(), rows_).part;
  return (drag_ == Drag::Horizontal && part == TreePart::HorizontalBar) ||
         (drag_ == Drag::Vertical && part == TreePart::VerticalBar);
}

void CTreeView::keepForTakingBack() {
  if (kept_) return;
  kept_.emplace(Kept{{}, anchor_, clicked_});
  kept_->states.reserve(nodes_.size());
  for (const SelectorNode& node : nodes_) kept_->states.push_back(node.state);
}

TreeChange CTreeView::takeBack() {
  release();
  if (!kept_) return {};
  for (std::size_t i = 0; i < nodes_.size(); ++i) nodes_[i].state = kept_->states[i];
  layOut();
  anchor_ = kept_->anchor;
  clicked_ = kept_->clicked;
  kept_.reset();
  return {true, true};
}

TreeChange CTreeView::wheel(int clicks) {
  constexpr int kStep = kWheelRows * kRowHeight * kUnitsPerPixel;
  return {vertical_.scrollBy(-static_cast<long long>(kStep) * clicks), false};
}

TreeChange CTreeView::use(const TreeHit& hit, TreeAction action) {
  switch (hit.part) {
    case TreePart::Expander:
      if (!action.click) return {};
      flipExpanded(hit.row);
      return {true, false};
    case TreePart::Neither:
      if (!action.click && !action.doubleClick) return {};
      clearSelection();
      anchor_ = kNoRow;
      return {true, true};
    case TreePart::Label: return useLabel(hit.row, action);
    case TreePart::Outside:
    case TreePart::HorizontalBar:
    case TreePart::VerticalBar: break;
  }
  return {};
}

TreeChange CTreeView::useLabel(std::size_t row, TreeAction action) {
  if (!action.click) {
    if (action.doubleClick) flipExpanded(row);
    return {action.doubleClick, false};
  }
  if (action.toggle) {
    nodeOf(row).state ^= kStateSelected;
  } else if (action.extend) {
    selectRange(row);
  } else if (action.subtree) {
    selectSubtree(row);
  } else {
    clearSelection();
    nodeOf(row).state |= kStateSelected;
  }
  anchor_ = row;
  return {true, true};
}

void CTreeView::flipExpanded(std::size_t row) {
  nodeOf(row).state ^= kStateExpanded;
  anchor_ = kNoRow;
  layOut();
}

void CTreeView::clearSelection() {
  for (SelectorNode& node : nodes_) node.state &= ~static_cast<std::uint32_t>(kStateSelected);
}

// What is selected elsewhere stays so.
void CTreeView::selectRange(std::size_t row) {
  const auto [first, last] = std::minmax(row, anchor_ == kNoRow ? row : anchor_);
  for (std::size_t i = first; i <= last; ++i) nodeOf(i).state |= kStateSelected;
}

void CTreeView::selectSubtree(std::size_t row) {
  clearSelection();
  walk(nodes_, rows_[row].node, [](SelectorNode& node) { node.state |= kStateSelected; });
}

}  // namespace mst
