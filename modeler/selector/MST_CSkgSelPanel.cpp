#include "modeler/selector/MST_CSkgSelPanel.h"

#include <utility>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "host/lwtool2_mesh.h"
#include "host/raised_flag.h"
#include "modeler/shared/tool_names.h"
#include "skelegon/slots.h"

namespace mst {
namespace {

constexpr lw::ReportSource kSelectorReport = {"MST_CSkgSelPanel", 573};

// Without an object there is nothing to scan, and the host begins no edit.
SkelegonInfos scan() {
  return lw::objectIsLoaded() ? lw::ScanSkelegons(lw::kLayersForeground, kSelectorReport, kScannedTags) : SkelegonInfos();
}

// Makes these the selected ones. Gives how many are selected then.
std::size_t select(const lw::PolygonIds& polygons) {
  if (!lw::objectIsLoaded()) return 0;
  lw::SelectSkelegons(polygons);
  return lw::CollectSelectedSkelegons().size();
}

}  // namespace

CSkgSelPanel::CSkgSelPanel() { enterPanel(this, &OnNews); }

CSkgSelPanel::~CSkgSelPanel() {
  removePanel(this);
  if (form_) form_->release();
}

// ---------------------------------------------------------------------------------------------------------------------
// Opening and closing

bool CSkgSelPanel::OpenSelectorPanel() {
  if (life_.isOpen()) {
    form_->bringToFront();
    refresh();
    return true;
  }
  if (life_.mayBeOpen()) {
    form_->close();
    closed();
  }
  if (!form_) build();
  mouse_.reset(form_->mouseOfControl());
  form_->layOut();
  fitView();
  rescan();
  life_.open([&] { return form_->open(); });
  return life_.isOpen();
}

void CSkgSelPanel::build() {
  title_ = lw::FormatString("%s(%d.%d)%s", kSelectorName, VARNEL_VERSION_MAJOR, VARNEL_VERSION_MINOR, " ");
  form_.emplace(title_.c_str(), SelectorHooks{this, &OnTreeUsed, &OnDrawTree, &OnSync, &OnOpened, &OnClosed, &OnMouseButton,
                                              &OnMouseMotion, &OnMouseWheel, &OnResized});
}

void CSkgSelPanel::closed() {
  life_.closed();
  drawing_.giveFontBack();
  tree_.release();
  tree_.setNodes({});
}

void CSkgSelPanel::resized(int width, int height) {
  form_->layOut(width, height);
  fitView();
  if (life_.mayBeOpen()) askToPaint(Paint::Everything);  // the tree and what was moved with it
}

void CSkgSelPanel::fitView() { tree_.setView(form_->treeWidth(), form_->treeHeight()); }

// ---------------------------------------------------------------------------------------------------------------------
// What the panel knows of the mesh

void CSkgSelPanel::rescan() {
  SkelegonInfos skelegons = scan();
  const lw::TagTexts layerNames = lw::LayerNames();
  tree_.setNodes(buildSelectorNodes(std::move(skelegons), layerNames, lw::WeightMapNames()));
}

void CSkgSelPanel::refresh() {
  rescan();
  askToPaint();
}

// ---------------------------------------------------------------------------------------------------------------------
// What the user does

MouseReport CSkgSelPanel::placed(MouseReport report) const {
  report.isBarDragged = tree_.isBarDragged();
  report.isOnDraggedBar = tree_.isOnDraggedBar(report.x, report.y);
  return report;
}

void CSkgSelPanel::act(MouseStep step, const MouseReport& report) {
  switch (step) {
    case MouseStep::Press:
      tree_.keepNothing();
      press(report);
      break;
    case MouseStep::Guess:
      tree_.keepForTakingBack();
      press(report);
      break;
    case MouseStep::Move: show(tree_.drag(report.x, report.y)); break;
    case MouseStep::Release:  // the only thing that some hosts tell of a drag
      show(tree_.drag(report.x, report.y));
      tree_.release();
      break;
    case MouseStep::LateRelease: tree_.release(); break;
    case MouseStep::TakeBack: show(tree_.takeBack()); break;
    case MouseStep::Nothing: break;
  }
}

void CSkgSelPanel::press(const MouseReport& report) { show(tree_.press({report.x, report.y, report.bits, report.clicks})); }

void CSkgSelPanel::show(const TreeChange& change) {
  if (change.looks) askToPaint();
  if (change.selection) pushSelection();
}

// A host may paint within this call, by the event too: that tells nothing of the mouse then.
void CSkgSelPanel::askToPaint(Paint what) {
  mouse_.askedToPaint();
  const lw::CRaisedFlag asking(isAskingToPaint_);
  if (what == Paint::Everything) {
    form_->redraw();
  } else {
    form_->redrawTree();
  }
}

// The host keeps what it can: of skelegons that are gone or not in the foreground any more it keeps none. The tree is then
// not that of the mesh any more.
void CSkgSelPanel::pushSelection() {
  const lw::PolygonIds wanted = tree_.selectedPolygons();
  if (select(wanted) != wanted.size()) refresh();
  NotifyPanels(this, PanelNews::SelectionChanged);
}

// ---------------------------------------------------------------------------------------------------------------------
// Called by the host and by other panels

// Some hosts paint by the event. Which calls do is not told, so each one draws, after it has done what the mouse asks for;
// the drawing context is current in all of them.
void CSkgSelPanel::OnTreeUsed(lw::LWControl* control, void* user) {
  lw::onTool<CSkgSelPanel>(user, [&](CSkgSelPanel& panel) {
    if (!panel.form_ || !panel.form_->isTree(control)) return;
    if (panel.isAskingToPaint_) {
      panel.mouse_.paintedByEvent();
    } else if (panel.life_.mayBeOpen()) {
      const MouseReport report = panel.placed(panel.form_->mouseOfControl());
      panel.act(panel.mouse_.event(report), report);
    }
    panel.draw();
  });
}

void CSkgSelPanel::OnDrawTree(lw::LWControl* control, void* user, int mode) {
  lw::onTool<CSkgSelPanel>(user, [&](CSkgSelPanel& panel) {
    if (mode == lw::kDrawErase || !panel.form_ || !panel.form_->isTree(control)) return;
    panel.mouse_.painted();
    panel.draw();
  });
}

void CSkgSelPanel::OnSync(lw::LWControl* control, void* user) {
  lw::onTool<CSkgSelPanel>(user, [&](CSkgSelPanel& panel) {
    if (panel.life_.mayBeOpen() && panel.form_->isSync(control)) panel.refresh();
  });
}

void CSkgSelPanel::OnOpened(lw::PanelId id, void* user) {
  lw::onTool<CSkgSelPanel>(user, [&](CSkgSelPanel& panel) {
    if (panel.isPanel(id)) panel.life_.opened();
  });
}

void CSkgSelPanel::OnClosed(lw::PanelId id, void* user) {
  lw::onTool<CSkgSelPanel>(user, [&](CSkgSelPanel& panel) {
    if (panel.isPanel(id)) panel.closed();
  });
}

void CSkgSelPanel::OnMouseButton(lw::PanelId /*panel*/, void* user, int bits, int x, int y) {
  lw::onTool<CSkgSelPanel>(user, [&](CSkgSelPanel& panel) {
    if (!panel.life_.mayBeOpen()) return;
    const MouseReport report = panel.placed(panel.form_->mouseOfHook(bits, x, y));
    panel.act(panel.mouse_.button(report), report);
  });
}

void CSkgSelPanel::OnMouseMotion(lw::PanelId /*panel*/, void* user, int bits, int x, int y) {
  lw::onTool<CSkgSelPanel>(user, [&](CSkgSelPanel& panel) {
    if (!panel.life_.mayBeOpen()) return;
    const MouseReport report = panel.placed(panel.form_->mouseOfHook(bits, x, y));
    panel.act(panel.mouse_.motion(report), report);
  });
}

void CSkgSelPanel::OnMouseWheel(lw::PanelId /*panel*/, void* user, int clicks, int /*x*/, int /*y*/) {
  lw::onTool<CSkgSelPanel>(user, [&](CSkgSelPanel& panel) {
    if (panel.life_.mayBeOpen()) panel.show(panel.tree_.wheel(clicks));
  });
}

void CSkgSelPanel::OnResized(lw::PanelId /*panel*/, void* user, int width, int height) {
  lw::onTool<CSkgSelPanel>(user, [&](CSkgSelPanel& panel) {
    if (panel.form_) panel.resized(width, height);
  });
}

void CSkgSelPanel::OnNews(void* user, PanelNews news) {
  lw::onTool<CSkgSelPanel>(user, [&](CSkgSelPanel& panel) {
    if (!panel.life_.mayBeOpen()) return;
    switch (news) {
      case PanelNews::Refresh:
      case PanelNews::NamesChanged:
      case PanelNews::PropertiesChanged:
      case PanelNews::SelectionChanged: panel.refresh(); break;
    }
  });
}

}  // namespace mst
