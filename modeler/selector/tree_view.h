// The selector's tree view: rows laid out, scrolled, hit and selected. It owns the nodes. What is drawn comes from
// picture(); what a press changed is told by the result, the owner then redraws or passes the selection on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "modeler/selector/selector_nodes.h"
#include "modeler/selector/tree_hits.h"
#include "modeler/selector/tree_rows.h"
#include "modeler/selector/tree_scroll.h"

namespace mst {

// A mouse button going down, in pixels from the view's upper left corner.
struct TreePress {
  int x = 0;
  int y = 0;
  int bits = 0;    // the host's mouse bits
  int clicks = 1;  // in quick succession, this one included, at whatever places
};

// What an input changed.
struct TreeChange {
  bool looks = false;      // to be drawn again
  bool selection = false;  // to be passed on, even when the same rows are selected as before

  bool operator==(const TreeChange&) const = default;
};

class CTreeView : private CTreeOwner {
 public:
  // Other nodes; without any the tree is empty. Offsets stay as far as they are in range, the anchor stays with its
  // skelegon.
  void setNodes(SelectorNodes nodes);
  // Another size in pixels; the view begins anew: no anchor, not scrolled.
  void setView(int width, int height);

  TreeChange press(const TreePress& press);
  // The pointer moves while the button is down.
  TreeChange drag(int x, int y);
  void release() { drag_ = Drag::None; }
  // Whether the point lies in the strip of the scroll bar that is being dragged.
  bool isBarDragged() const { return drag_ == Drag::Horizontal || drag_ == Drag::Vertical; }
  bool isOnDraggedBar(int x, int y) const;

  // A press that may prove to be none is coming: keeps what is selected and expanded, until a press that is certain.
  void keepForTakingBack();
  void keepNothing() { kept_.reset(); }
  // The presses since then were none.
  TreeChange takeBack();

  // Positive clicks are towards the top.
  TreeChange wheel(int clicks);

  // The polygons of the selected rows, shown or not, each once, from top to bottom.
  std::vector<skg::PolygonId> selectedPolygons() const;

  // For drawing. Good until the next change.
  TreePicture picture() const;

  const SelectorNodes& nodes() const { return nodes_; }
  const std::vector<TreeRow>& rows() const { return rows_; }
  // Row of the last click; kNoRow for none.
  std::size_t anchor() const { return anchor_; }
  // In eighths of a pixel.
  int viewWidth() const { return width_; }
  int scrollX() const { return horizontal_.offset(); }
  int scrollY() const { return vertical_.offset(); }

 private:
  enum class Drag { None, Tree, Horizontal, Vertical };

  std::uint32_t stateOf(std::size_t node) const override { return nodes_[node].state; }
  std::size_t childCountOf(std::size_t node) const override { return nodes_[node].children.size(); }
  std::string_view textOf(std::size_t node) const override { return nodes_[node].text; }
  bool givesColours() const override { return true; }
  std::optional<Rgba> colourOf(std::size_t node) const override;

  int pixelWidth() const { return width_ / kUnitsPerPixel; }
  int pixelHeight() const { return height_ / kUnitsPerPixel; }
  TreeWindow window() const { return {pixelWidth(), pixelHeight(), scrollX(), scrollY()}; }
  SelectorNode& nodeOf(std::size_t row) { return nodes_[rows_[row].node]; }

  void layOut();
  void fitScrolling();

  void beginDrag(TreePart part, const TreePress& press);
  void pairClicks(const TreeHit& hit, TreeAction& action, int clicks);
  TreeChange use(const TreeHit& hit, TreeAction action);
  TreeChange useLabel(std::size_t row, TreeAction action);
  void flipExpanded(std::size_t row);
  void clearSelection();
  void selectRange(std::size_t row);
  void selectSubtree(std::size_t row);

  SelectorNodes nodes_;
  std::vector<TreeRow> rows_;
  int contentWidth_ = 0;  // pixels
  int width_ = 0;         // eighths of a pixel
  int height_ = 0;
  CScrollAxis horizontal_;
  CScrollAxis vertical_;
  std::size_t anchor_ = kNoRow;

  // Row of the last press, if that was a plain click on a label.
  std::size_t clicked_ = kNoRow;

  struct Kept {
    std::vector<std::uint32_t> states;  // by node
    std::size_t anchor;
    std::size_t clicked;
  };
  std::optional<Kept> kept_;

  Drag drag_ = Drag::None;
  int pressX_ = 0;
  int pressY_ = 0;
  int pressScrollX_ = 0;
  int pressScrollY_ = 0;
};

}  // namespace mst
