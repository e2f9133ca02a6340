// What a walk over the panels expects of the selector: the rows of the mesh, which of them are selected, and what a press
// does. Nothing of it can be seen but by what Modeler has selected after a press.
#pragma once

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "modeler/selector/selector_nodes.h"
#include "modeler/selector/text_cells.h"
#include "modeler/selector/tree_hits.h"
#include "modeler/selector/tree_scroll.h"
#include "standin/panels/person.h"
#include "tests/tools/panels_walk_mesh.h"

namespace varnel::test::walk {

class Tree {
 public:
  // In pixels from the tree's corner.
  struct Press {
    int x = 0;
    int y = 0;
    standin::MouseButton button = standin::MouseButton::Left;
    int qualifiers = 0;
    int clicks = 1;  // in quick succession, wherever
  };

  Tree(std::vector<std::string> layers, std::vector<std::string> maps)
      : layers_(std::move(layers)), maps_(std::move(maps)) {}

  // Everything is expanded again, the selection is Modeler's; the anchor stays with its skelegon.
  void scan(const Mesh& mesh) {
    const skg::PolygonId anchored = anchor_ == mst::kNoRow ? nullptr : nodes_[anchor_].polygon;
    nodes_ = mst::buildSelectorNodes(mesh.infos(), layers_, maps_);
    anchor_ = mst::kNoRow;
    selected_.clear();
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
      if (nodes_[i].isSelected) selected_.insert(nodes_[i].polygon);
      if (anchored != nullptr && nodes_[i].polygon == anchored) anchor_ = i;
    }
    layOut();
  }
  // Another size: from the top, without an anchor.
  void setView(int width, int height) {
    window_ = {width, height, 0, 0};
    anchor_ = clicked_ = mst::kNoRow;
    drag_ = mst::TreePart::Outside;
    horizontal_.scrollTo(0);
    vertical_.scrollTo(0);
    layOut();
  }
  void forgetAnchor() { anchor_ = mst::kNoRow; }

  // True when the selection is to be Modeler's now.
  bool press(const Press& press) {
    const std::size_t clickedBefore = std::exchange(clicked_, mst::kNoRow);
    const mst::TreeHit hit = mst::hitAt(press.x, press.y, window(), rows_);
    drag_ = hit.part;
    pressed_ = press;
    pressScroll_ = drag_ == mst::TreePart::VerticalBar ? vertical_.offset() : horizontal_.offset();
    if (hit.part == mst::TreePart::Label) return pressLabel(hit.row, press, hit.row == clickedBefore);
    if (hit.part == mst::TreePart::Expander && press.button == standin::MouseButton::Left) flip(hit.row);
    if (hit.part != mst::TreePart::Neither || press.button == standin::MouseButton::Middle) return false;
    selected_.clear();
    forgetAnchor();
    return true;
  }
  void drag(int x, int y) {
    if (drag_ == mst::TreePart::HorizontalBar) drag(horizontal_, x - pressed_.x);
    if (drag_ == mst::TreePart::VerticalBar) drag(vertical_, y - pressed_.y);
  }
  void wheel(int notches) { vertical_.scrollBy(-notches * 3LL * 14 * 8); }

  const std::vector<mst::TreeRow>& rows() const { return rows_; }
  const std::set<skg::PolygonId>& selected() const { return selected_; }
  mst::TreeWindow window() const { return {window_.width, window_.height, horizontal_.offset(), vertical_.offset()}; }

 private:
  void layOut() {
    rows_.clear();
    if (!nodes_.empty()) addRows(mst::kRootNode, 0);
    int content = 0;
    for (const auto& row : rows_) content = std::max(content, 12 * row.depth + 4 + 6 * mst::cellsOf(nodes_[row.node].text));
    horizontal_.setLengths(window_.width - 12, content);
    vertical_.setLengths(window_.height - 12, 14 * static_cast<int>(rows_.size()));
  }
  void addRows(std::size_t node, int depth) {
    rows_.push_back({.node = node, .depth = depth});
    if (!nodes_[node].is(mst::kStateExpanded)) return;
    for (const std::size_t child : nodes_[node].children) addRows(child, depth + 1);
  }
  void flip(std::size_t row) {
    nodes_[rows_[row].node].state ^= mst::kStateExpanded;
    forgetAnchor();
    layOut();
  }

  bool pressLabel(std::size_t row, const Press& press, bool isSecond) {
    if (press.button == standin::MouseButton::Middle) return false;
    const bool isPlain = press.button == standin::MouseButton::Left && press.qualifiers == 0;
    const bool isDouble = isPlain && isSecond && press.clicks > 1;
    if (isPlain && !isDouble) clicked_ = row;
    if (press.button == standin::MouseButton::Right || isDouble) {
      flip(row);
      return false;
    }
    const std::size_t node = rows_[row].node;
    if ((press.qualifiers & lw::kMouseCtrl) != 0) {
      if (selected_.erase(nodes_[node].polygon) == 0) add(node);
    } else if ((press.qualifiers & lw::kMouseShift) != 0) {
      const auto anchored = std::find_if(rows_.begin(), rows_.end(), [&](const auto& r) { return r.node == anchor_; });
      const std::size_t from = anchored == rows_.end() ? row : static_cast<std::size_t>(anchored - rows_.begin());
      for (std::size_t i = std::min(from, row); i <= std::max(from, row); ++i) add(rows_[i].node);
    } else {
      selected_.clear();
      add(node, (press.qualifiers & lw::kMouseAlt) != 0);
    }
    anchor_ = node;
    return true;
  }
  void add(std::size_t node, bool withAllBelow = false) {
    if (nodes_[node].polygon != nullptr) selected_.insert(nodes_[node].polygon);
    if (!withAllBelow) return;
    for (const std::size_t child : nodes_[node].children) add(child, true);
  }
  void drag(mst::CScrollAxis& axis, int distance) const { axis.scrollTo(axis.offsetAfterDrag(pressScroll_, distance)); }

  std::vector<std::string> layers_;
  std::vector<std::string> maps_;
  mst::SelectorNodes nodes_;
  std::vector<mst::TreeRow> rows_;
  std::set<skg::PolygonId> selected_;
  std::size_t anchor_ = mst::kNoRow;   // node
  std::size_t clicked_ = mst::kNoRow;  // row of the last press, if a plain click on a label

  mst::TreeWindow window_;  // its size
  mst::CScrollAxis horizontal_;
  mst::CScrollAxis vertical_;
  mst::TreePart drag_ = mst::TreePart::Outside;  // what was pressed
  Press pressed_;
  int pressScroll_ = 0;  // of the bar that is dragged
};

}  // namespace varnel::test::walk
