// What a walk over the panels expects of the selector: the rows of the mesh's names, which of them are selected, and what a
// press does. Nothing of it can be seen but by what Modeler has selected after a press.
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "modeler/selector/tree_scroll.h"
#include "standin/panels/person.h"
#include "tests/tools/panels_walk_mesh.h"

namespace varnel::test::walk {

class Tree {
 public:
  struct Node {
    std::string text;
    std::size_t skelegon = kNone;  // none for groups and weight maps
    bool isExpanded = true;
    std::vector<std::size_t> children;
  };
  struct Row {
    std::size_t node;
    int depth;
  };
  // In pixels from the tree's corner.
  struct Press {
    int x = 0;
    int y = 0;
    standin::MouseButton button = standin::MouseButton::Left;
    int qualifiers = 0;
    int clicks = 1;  // in quick succession, wherever
  };

  // `maps` are the weight maps' names, `layers` the layers' by number.
  Tree(std::vector<std::string> layers, std::vector<std::string> maps);

  // Everything is expanded again, the selection is Modeler's; the anchor stays with its skelegon.
  void scan(const Mesh& mesh);
  // Another size: from the top, without an anchor.
  void setView(int width, int height);
  void forgetAnchor() { anchor_ = kNone; }

  // True when the selection is to be Modeler's now.
  bool press(const Press& press);
  void drag(int x, int y);
  void wheel(int notches) { vertical_.scrollBy(-notches * 3LL * 14 * 8); }

  const std::vector<Row>& rows() const { return rows_; }
  Places selected() const { return {selected_.begin(), selected_.end()}; }
  int width() const { return width_; }
  int height() const { return height_; }
  int scrollX() const { return horizontal_.offset() / 8; }
  int scrollY() const { return vertical_.offset() / 8; }

 private:
  enum class Drag { None, Horizontal, Vertical };

  std::size_t add(std::size_t parent, Node node);
  void addSkelegons(const Mesh& mesh, const Places& sorted, std::size_t below, std::size_t parent, int layer);
  void layOut();
  void addRows(std::size_t node, int depth);
  void flip(std::size_t row);
  bool pressLabel(std::size_t row, const Press& press, bool isSecond);
  void selectBelow(std::size_t node);

  std::vector<std::string> layers_;
  std::vector<std::string> maps_;
  std::vector<Node> nodes_;
  std::vector<Row> rows_;
  std::set<std::size_t> selected_;  // skelegons
  std::size_t anchor_ = kNone;      // node
  std::size_t clicked_ = kNone;     // row of the last press, if a plain click on a label

  int width_ = 0;
  int height_ = 0;
  mst::CScrollAxis horizontal_;
  mst::CScrollAxis vertical_;
  Drag drag_ = Drag::None;
  int pressX_ = 0;
  int pressY_ = 0;
  int pressScroll_ = 0;  // of the bar that is dragged
};

}  // namespace varnel::test::walk
