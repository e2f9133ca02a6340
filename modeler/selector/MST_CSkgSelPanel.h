// The selector tool: a panel with a tree of the skelegons of the current layers and of the weight maps. What the user
// selects in the tree becomes Modeler's selection at once.
#pragma once

#include <optional>
#include <string>

#include "host/panel_life.h"
#include "modeler/selector/mouse_merge.h"
#include "modeler/selector/selector_form.h"
#include "modeler/selector/tree_drawing.h"
#include "modeler/selector/tree_view.h"
#include "modeler/shared/open_panels.h"

namespace mst {

// One object for the module's lifetime, and one host panel that each run opens again. It has no text that depends on the
// host's language, and so needs no other panel when that changes.
class CSkgSelPanel {
 public:
  CSkgSelPanel();
  // At the module's end: calls nothing of the host.
  ~CSkgSelPanel();
  CSkgSelPanel(const CSkgSelPanel&) = delete;
  CSkgSelPanel& operator=(const CSkgSelPanel&) = delete;

  // The tool's run: opens the panel without waiting for the user. A panel that is still open comes to the front and is
  // refreshed instead. False when it is not known to be open then. Throws CBaseEx.
  bool OpenSelectorPanel();

 private:
  // The host's and the other panels' way in.
  static void OnTreeUsed(lw::LWControl* control, void* user);
  static void OnDrawTree(lw::LWControl* control, void* user, int mode);
  static void OnSync(lw::LWControl* control, void* user);
  static void OnOpened(lw::PanelId panel, void* user);
  static void OnClosed(lw::PanelId panel, void* user);
  static void OnMouseButton(lw::PanelId panel, void* user, int bits, int x, int y);
  static void OnMouseMotion(lw::PanelId panel, void* user, int bits, int x, int y);
  static void OnMouseWheel(lw::PanelId panel, void* user, int clicks, int x, int y);
  static void OnResized(lw::PanelId panel, void* user, int width, int height);
  static void OnNews(void* user, PanelNews news);

  void build();
  void closed();
  void resized(int width, int height);
  void fitView();
  bool isPanel(lw::PanelId panel) const { return form_ && form_->is(panel); }

  // What the panel knows of the mesh.
  void rescan();
  void refresh();

  MouseReport placed(MouseReport report) const;
  void act(MouseStep step, const MouseReport& report);
  void press(const MouseReport& report);
  void draw() { drawing_.draw(tree_.picture()); }
  enum class Paint { Tree, Everything };
  void askToPaint(Paint what = Paint::Tree);
  void show(const TreeChange& change);
  void pushSelection();

  std::string title_;
  std::optional<CSelectorForm> form_;
  lw::CPanelLife life_;
  CTreeView tree_;
  CTreeDrawing drawing_;
  CMouseMerge mouse_;
  bool isAskingToPaint_ = false;  // the host may paint at once
};

}  // namespace mst
