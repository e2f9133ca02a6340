#include "modeler/MST_CSkgSelPanel.h"

#include <array>
#include <utility>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "host/lwtool2_mesh.h"
#include "modeler/tools.h"
#include "skelegon/slots.h"

namespace mst {
namespace {

constexpr lw::ReportSource kSelectorReport = {"MST_CSkgSelPanel", 573};

bool objectIsLoaded() { return lw::stateQuery().object() != nullptr; }

// Tags of a skelegon that the scan asks for, in this order.
constexpr std::array kScannedTags = {lw::kTagColour, skg::kColourCopyTag};

// Without an object there is nothing to scan, and the host begins no edit.
ScannedSkelegons scan() {
  ScannedSkelegons skelegons;
  if (!objectIsLoaded()) return skelegons;
  std::vector<lw::SkelegonInfo> scanned = lw::ScanSkelegons(lw::kLayersForeground, kSelectorReport, kScannedTags);
  skelegons.reserve(scanned.size());
  for (lw::SkelegonInfo& info : scanned) {
    skelegons.push_back({info.polygon, std::move(info.name), info.layer, info.head, info.tail, info.isSelected,
                         std::move(info.tags[0]), std::move(info.tags[1])});
  }
  return skelegons;
}

// Makes these the selected ones. Gives how many are selected then.
std::size_t select(const lw::PolygonIds& polygons) {
  if (!objectIsLoaded()) return 0;
  lw::SelectSkelegons(polygons);
  return lw::CollectSelectedSkelegons().size();
}

}  // namespace

CSkgSelPanel::CSkgSelPanel() { enterPanel(this, &OnNews); }

CSkgSelPanel::~CSkgSelPanel() {
  removePanel(this);
  if (form_) form_->abandon();
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
  mouse_.reset();
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
  tree_.release();
  tree_.setNodes({});
}

void CSkgSelPanel::resized(int width, int height) {
  form_->layOut(width, height);
  fitView();
  if (life_.mayBeOpen()) form_->redraw();  // the tree and what was moved with it
}

void CSkgSelPanel::fitView() { tree_.setView(form_->treeWidth(), form_->treeHeight()); }

// ---------------------------------------------------------------------------------------------------------------------
// What the panel knows of the mesh

void CSkgSelPanel::rescan() {
  ScannedSkelegons skelegons = scan();
  const lw::TagTexts layerNames = lw::LayerNames();
  tree_.setNodes(buildSelectorNodes(std::move(skelegons), layerNames, lw::WeightMapNames()));
}

void CSkgSelPanel::refresh() {
  rescan();
  form_->redrawTree();
}

// ---------------------------------------------------------------------------------------------------------------------
// What the user does

// False when it was nothing.
bool CSkgSelPanel::act(MouseStep step, const MouseReport& report) {
  switch (step) {
    case MouseStep::Press: show(tree_.press({report.x, report.y, report.bits, report.clicks})); return true;
    case MouseStep::Move: show(tree_.drag(report.x, report.y)); return true;
    case MouseStep::Release: tree_.release(); return true;
    case MouseStep::Nothing: break;
  }
  return false;
}

void CSkgSelPanel::show(const TreeChange& change) {
  if (change.looks) form_->redrawTree();
  if (change.selection) pushSelection();
}

// The host keeps what it can: of skelegons that are gone or not in the foreground any more it keeps none. The tree is then not
// that of the mesh any more.
void CSkgSelPanel::pushSelection() {
  const lw::PolygonIds wanted = tree_.selectedPolygons();
  if (select(wanted) != wanted.size()) refresh();
  NotifyPanels(this, PanelNews::SelectionChanged);
}

// ---------------------------------------------------------------------------------------------------------------------
// Called by the host and by other panels

namespace {

// Recovers the panel from the host's user pointer.
template <class Action>
void onPanel(void* user, Action&& action) {
  lw::guarded([&] {
    if (user != nullptr) std::forward<Action>(action)(*static_cast<CSkgSelPanel*>(user));
  });
}

}  // namespace

// Some hosts paint by the event too: one that tells nothing new of the mouse is taken for that.
void CSkgSelPanel::OnTreeUsed(lw::LWControl* control, void* user) {
  onPanel(user, [&](CSkgSelPanel& panel) {
    if (!panel.life_.mayBeOpen() || !panel.form_->isTree(control)) return;
    const MouseReport report = panel.form_->mouseOfEvent();
    const bool isNew = panel.act(panel.mouse_.any(MouseWay::ControlEvent, report), report);
    if (!isNew) panel.drawing_.draw(panel.tree_.picture());
  });
}

void CSkgSelPanel::OnDrawTree(lw::LWControl* control, void* user, int mode) {
  onPanel(user, [&](CSkgSelPanel& panel) {
    const bool isDrawn = mode != lw::kDrawErase && panel.form_ && panel.form_->isTree(control);
    if (isDrawn) panel.drawing_.draw(panel.tree_.picture());
  });
}

void CSkgSelPanel::OnSync(lw::LWControl* control, void* user) {
  onPanel(user, [&](CSkgSelPanel& panel) {
    if (panel.life_.mayBeOpen() && panel.form_->isSync(control)) panel.refresh();
  });
}

void CSkgSelPanel::OnOpened(lw::PanelId id, void* user) {
  onPanel(user, [&](CSkgSelPanel& panel) {
    if (panel.isPanel(id)) panel.life_.opened();
  });
}

void CSkgSelPanel::OnClosed(lw::PanelId id, void* user) {
  onPanel(user, [&](CSkgSelPanel& panel) {
    if (panel.isPanel(id)) panel.closed();
  });
}

void CSkgSelPanel::OnMouseButton(lw::PanelId /*panel*/, void* user, int bits, int x, int y) {
  onPanel(user, [&](CSkgSelPanel& panel) {
    if (!panel.life_.mayBeOpen()) return;
    const MouseReport report = panel.form_->mouseOfHook(bits, x, y);
    panel.act(panel.mouse_.button(MouseWay::Hooks, report), report);
  });
}

void CSkgSelPanel::OnMouseMotion(lw::PanelId /*panel*/, void* user, int bits, int x, int y) {
  onPanel(user, [&](CSkgSelPanel& panel) {
    if (!panel.life_.mayBeOpen()) return;
    const MouseReport report = panel.form_->mouseOfHook(bits, x, y);
    panel.act(panel.mouse_.motion(MouseWay::Hooks, report), report);
  });
}

void CSkgSelPanel::OnMouseWheel(lw::PanelId /*panel*/, void* user, int clicks, int /*x*/, int /*y*/) {
  onPanel(user, [&](CSkgSelPanel& panel) {
    if (panel.life_.mayBeOpen()) panel.show(panel.tree_.wheel(clicks));
  });
}

void CSkgSelPanel::OnResized(lw::PanelId /*panel*/, void* user, int width, int height) {
  onPanel(user, [&](CSkgSelPanel& panel) {
    if (panel.form_) panel.resized(width, height);
  });
}

void CSkgSelPanel::OnNews(void* user, PanelNews news) {
  onPanel(user, [&](CSkgSelPanel& panel) {
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
