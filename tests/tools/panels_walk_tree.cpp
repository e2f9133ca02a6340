#include "tests/tools/panels_walk_tree.h"

#include <algorithm>
#include <utility>

#include "modeler/selector/text_cells.h"

namespace varnel::test::walk {
namespace {

// A text whose plain order is the order of names: a number becomes its length and its digits. Numbers stand where digits stand
// among the characters.
std::string orderText(const std::string& name) {
  const auto isDigit = [&](std::size_t at) { return at < name.size() && name[at] >= '0' && name[at] <= '9'; };
  std::string text;
  for (std::size_t i = 0; i < name.size();) {
    if (!isDigit(i)) {
      text += name[i++];
      continue;
    }
    std::string digits;
    for (; isDigit(i); ++i) {
      if (!digits.empty() || name[i] != '0') digits += name[i];
    }
    text += '0';
    text += static_cast<char>(digits.size());
    text += digits;
  }
  return text;
}

}  // namespace

Tree::Tree(std::vector<std::string> layers, std::vector<std::string> maps)
    : layers_(std::move(layers)), maps_(std::move(maps)) {
  std::sort(maps_.begin(), maps_.end());
}

std::size_t Tree::add(std::size_t parent, Node node) {
  nodes_.push_back(std::move(node));
  if (parent != kNone) nodes_[parent].children.push_back(nodes_.size() - 1);
  return nodes_.size() - 1;
}

void Tree::scan(const Mesh& mesh) {
  const std::size_t anchored = anchor_ == kNone ? kNone : nodes_[anchor_].skelegon;
  nodes_.clear();
  selected_.clear();
  for (const std::size_t place : mesh.selected()) selected_.insert(place);

  Places sorted = mesh.inFront();
  std::stable_sort(sorted.begin(), sorted.end(),
                   [&](std::size_t a, std::size_t b) { return orderText(mesh[a].name()) < orderText(mesh[b].name()); });
  const std::size_t top = add(kNone, {"[Top]", kNone, true, {}});
  for (std::size_t i = 0; i < layers_.size(); ++i) {
    const int layer = static_cast<int>(i);
    const auto isInLayer = [&](std::size_t place) { return mesh[place].polygon->layer == layer; };
    if (std::none_of(sorted.begin(), sorted.end(), isInLayer)) continue;
    const std::size_t row = add(top, {"[Layer" + std::to_string(layer + 1) + "]:" + layers_[i], kNone, true, {}});
    addSkelegons(mesh, sorted, row, kNone, layer);
  }
  const std::size_t maps = add(top, {"[WMaps]", kNone, false, {}});
  for (const std::string& map : maps_) add(maps, {map, kNone, true, {}});
  layOut();

  anchor_ = kNone;
  for (std::size_t i = 0; i < nodes_.size(); ++i) {
    if (anchored != kNone && nodes_[i].skelegon == anchored) anchor_ = i;
  }
}

// Those whose parent it is; kNone is the parent of what begins a chain.
void Tree::addSkelegons(const Mesh& mesh, const Places& sorted, std::size_t below, std::size_t parent, int layer) {
  for (const std::size_t place : sorted) {
    if (mesh[place].polygon->layer != layer) continue;
    const std::size_t own = mesh[place].parent;
    if ((own == kNone || !mesh[own].isThere ? kNone : own) != parent) continue;
    const std::size_t node = add(below, {mesh[place].name(), place, true, {}});
    addSkelegons(mesh, sorted, node, place, layer);
  }
}

void Tree::setView(int width, int height) {
  width_ = width;
  height_ = height;
  anchor_ = clicked_ = kNone;
  drag_ = Drag::None;
  horizontal_.scrollTo(0);
  vertical_.scrollTo(0);
  layOut();
}

void Tree::layOut() {
  rows_.clear();
  if (!nodes_.empty()) addRows(0, 0);
  int content = 0;
  for (const Row& row : rows_) content = std::max(content, 12 * row.depth + 4 + 6 * mst::cellsOf(nodes_[row.node].text));
  horizontal_.setLengths(width_ - 12, content);
  vertical_.setLengths(height_ - 12, 14 * static_cast<int>(rows_.size()));
}

void Tree::addRows(std::size_t node, int depth) {
  rows_.push_back({node, depth});
  if (!nodes_[node].isExpanded) return;
  for (const std::size_t child : nodes_[node].children) addRows(child, depth + 1);
}

void Tree::flip(std::size_t row) {
  Node& node = nodes_[rows_[row].node];
  node.isExpanded = !node.isExpanded;
  anchor_ = kNone;
  layOut();
}

// ---------------------------------------------------------------------------------------------------------------------
// The mouse

bool Tree::press(const Press& press) {
  const std::size_t clickedBefore = std::exchange(clicked_, kNone);
  const bool isRight = press.x >= width_ - 12;
  const bool isBottom = press.y >= height_ - 12;
  pressX_ = press.x;
  pressY_ = press.y;
  drag_ = isRight == isBottom ? Drag::None : isRight ? Drag::Vertical : Drag::Horizontal;
  pressScroll_ = drag_ == Drag::Vertical ? vertical_.offset() : horizontal_.offset();
  if (drag_ != Drag::None) return false;

  const auto row = static_cast<std::size_t>((press.y + scrollY()) / 14);
  const bool isNone = row >= rows_.size();
  const int fromIndent = isNone ? -17 : press.x + scrollX() - 12 * rows_[row].depth;
  if (fromIndent >= -14 && fromIndent < 10) {
    if (press.button == standin::MouseButton::Left) flip(row);
    return false;
  }
  if (fromIndent < -17 || fromIndent >= 10) return pressLabel(row, press, row == clickedBefore);
  if (press.button == standin::MouseButton::Middle) return false;
  selected_.clear();
  anchor_ = kNone;
  return true;
}

bool Tree::pressLabel(std::size_t row, const Press& press, bool isSecond) {
  if (press.button == standin::MouseButton::Middle) return false;
  const bool isPlain = press.button == standin::MouseButton::Left && press.qualifiers == 0;
  const bool isDouble = isPlain && isSecond && press.clicks > 1;
  if (isPlain && !isDouble) clicked_ = row;
  if (press.button == standin::MouseButton::Right || isDouble) {
    flip(row);
    return false;
  }
  const std::size_t skelegon = nodes_[rows_[row].node].skelegon;
  if ((press.qualifiers & lw::kMouseCtrl) != 0) {
    if (skelegon != kNone && selected_.erase(skelegon) == 0) selected_.insert(skelegon);
  } else if ((press.qualifiers & lw::kMouseShift) != 0) {
    std::size_t from = row;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      if (anchor_ != kNone && rows_[i].node == anchor_) from = i;
    }
    for (std::size_t i = std::min(from, row); i <= std::max(from, row); ++i) {
      if (nodes_[rows_[i].node].skelegon != kNone) selected_.insert(nodes_[rows_[i].node].skelegon);
    }
  } else {
    selected_.clear();
    if ((press.qualifiers & lw::kMouseAlt) != 0) selectBelow(rows_[row].node);
    if (skelegon != kNone) selected_.insert(skelegon);
  }
  anchor_ = rows_[row].node;
  return true;
}

void Tree::selectBelow(std::size_t node) {
  if (nodes_[node].skelegon != kNone) selected_.insert(nodes_[node].skelegon);
  for (const std::size_t child : nodes_[node].children) selectBelow(child);
}

void Tree::drag(int x, int y) {
  if (drag_ == Drag::Horizontal) horizontal_.scrollTo(horizontal_.offsetAfterDrag(pressScroll_, x - pressX_));
  if (drag_ == Drag::Vertical) vertical_.scrollTo(vertical_.offsetAfterDrag(pressScroll_, y - pressY_));
}

}  // namespace varnel::test::walk
