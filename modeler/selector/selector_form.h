// The selector's host panel: the tree's control, the frame and the button below it, placed by the panel's size; and what the
// host tells of the mouse over it. It knows nothing of trees.
#pragma once

#include "host/lwtool2_panels.h"
#include "modeler/selector/mouse_merge.h"

namespace mst {

// Size of the panel in pixels when it is first opened. The user may make it larger or smaller, down to the least size.
inline constexpr int kSelectorWidth = 290;
inline constexpr int kSelectorHeight = 567;
inline constexpr int kSelectorLeastWidth = 250;
inline constexpr int kSelectorLeastHeight = 87;

// Whom the host calls, all with the same user pointer.
struct SelectorHooks {
  void* user;
  lw::ControlEvent treeUsed;
  lw::ControlDraw drawTree;
  lw::ControlEvent syncPressed;
  lw::PanelHook opened;
  lw::PanelHook closed;
  lw::PanelMouseHook mouseButton;
  lw::PanelMouseHook mouseMotion;
  lw::PanelMouseHook mouseWheel;
  lw::PanelResizeHook resized;
};

class CSelectorForm {
 public:
  // Makes the panel, not yet open. The title must outlive it. Throws CBaseEx when the host refuses something.
  CSelectorForm(const char* title, const SelectorHooks& hooks);

  int open() const;
  void close() const { panel_.close(); }
  bool is(lw::PanelId panel) const { return panel_.is(panel); }
  void bringToFront() const { panel_.bringToFront(); }
  // Leaves the host's panel to the host: for the module's end, when nothing of the host may be called any more.
  void abandon() { panel_.release(); }

  // Places everything for a panel of that size, or of the size that the panel has.
  void layOut(int width, int height) const;
  void layOut() const;

  bool isTree(const lw::LWControl* control) const { return tree_.is(control); }
  bool isSync(const lw::LWControl* control) const { return sync_.is(control); }

  // The tree's control.
  int treeWidth() const { return tree_.measure(lw::kControlHotWidth); }
  int treeHeight() const { return tree_.measure(lw::kControlHotHeight); }
  void redrawTree() const { tree_.refresh(); }
  void redraw() const { panel_.redraw(); }

  // The mouse as the host tells of it, from the tree's upper left corner: with what a hook got, and as the control has it.
  MouseReport mouseOfHook(int bits, int x, int y) const;
  MouseReport mouseOfControl();

 private:
  MouseReport fromTree(int bits, int x, int y) const;
  // Whether the control's mouse position counts from its own corner, as far as is known.
  bool countsFromControl(int x, int y, int left, int top);

  lw::CPanel panel_;
  lw::CControl tree_;
  lw::CControl frame_;
  lw::CControl sync_;
  bool countsFromControl_ = false;
};

}  // namespace mst
