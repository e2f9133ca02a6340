#include "modeler/selector/selector_form.h"

#include <algorithm>

namespace mst {
namespace {

using forms::HostControl;

constexpr int kMargin = 5;  // left of tree and frame, and above the tree
constexpr int kFrameHeight = 30;
constexpr int kFrameFromBottom = 40;
constexpr const char* kLabels[] = {"Sync"};
constexpr int kSyncWidth = 80;
constexpr int kSyncRightEdge = 90;
constexpr int kSyncFromBottom = 35;
constexpr int kBelowTree = 55;  // with what is above it

// No buttons of the host's own, and the user may resize. Mouse input for the panel's hooks is not asked for: the
// control's event tells of it, and a host may serve the hooks all the same.
constexpr int kOpenFlags = lw::kOpenNoButtons | lw::kOpenResizable;
static_assert(kOpenFlags == 192);

// The button that the host names by number, as mouse bits.
int bitsOfButton(int button) {
  switch (button) {
    case 1: return lw::kMouseLeft;
    case 2: return lw::kMouseMiddle;
    case 3: return lw::kMouseRight;
    default: return 0;
  }
}

}  // namespace

CSelectorForm::CSelectorForm(const char* title, const SelectorHooks& hooks) : CPanel(title) {
  tree_ = add({.kind = HostControl::OpenGL, .width = 340, .height = 240});
  frame_ = add({.kind = HostControl::Border, .width = 360, .height = kFrameHeight});
  sync_ = add({.kind = HostControl::Button, .label = 0, .width = kSyncWidth}, {.labels = kLabels});
  for (const lw::CControl& control : {tree_, frame_, sync_}) control.setUser(hooks.user);
  tree_.onEvent(hooks.treeUsed);
  tree_.onDraw(hooks.drawTree);
  sync_.onEvent(hooks.syncPressed);

  setHooks(hooks.user, hooks.opened, hooks.closed);
  onMouse(hooks.mouseButton, hooks.mouseMotion, hooks.mouseWheel);
  onResize(hooks.resized);
  setLeastSize(kSelectorLeastWidth, kSelectorLeastHeight);
  setSize(kSelectorWidth, kSelectorHeight);
  layOut(kSelectorWidth, kSelectorHeight);
}

int CSelectorForm::open() const { return CPanel::open(kOpenFlags); }

// A host may ignore the least size, but no control has less than a pixel.
void CSelectorForm::layOut(int width, int height) const {
  const int inner = std::max(1, width - 2 * kMargin);
  tree_.moveTo({kMargin, kMargin});
  tree_.setHotWidth(inner);
  tree_.setHotHeight(std::max(1, height - kBelowTree));
  frame_.moveTo({kMargin, height - kFrameFromBottom});
  frame_.setHotWidth(inner);
  sync_.moveTo({kSyncRightEdge - sync_.measure(lw::kControlWidth), height - kSyncFromBottom});
}

void CSelectorForm::layOut() const {
  const int width = measure(lw::kPanelWidth);
  const int height = measure(lw::kPanelHeight);
  if (width > 0 && height > 0) layOut(width, height);
}

MouseReport CSelectorForm::fromTree(int bits, int x, int y) const {
  MouseReport report;
  report.x = x;
  report.y = y;
  report.bits = bits;
  report.clicks = tree_.measure(lw::kControlClickCount);
  report.isInside = x >= 0 && y >= 0 && x < treeWidth() && y < treeHeight();
  return report;
}

MouseReport CSelectorForm::mouseOfHook(int bits, int x, int y) const {
  return fromTree(bits, x - tree_.measure(lw::kControlHotX), y - tree_.measure(lw::kControlHotY));
}

MouseReport CSelectorForm::mouseOfControl() {
  int bits = measure(lw::kPanelQualifiers);
  const bool namesNoButton = (bits & lw::kMouseRight) == 0;
  if ((bits & lw::kMouseDown) != 0 && namesNoButton) bits |= bitsOfButton(tree_.measure(lw::kControlMouseButton));
  const int x = tree_.measure(lw::kControlMouseX);
  const int y = tree_.measure(lw::kControlMouseY);
  const int left = tree_.measure(lw::kControlHotX);
  const int top = tree_.measure(lw::kControlHotY);
  return countsFromControl(x, y, left, top) ? fromTree(bits, x, y) : fromTree(bits, x - left, y - top);
}

// It counts from the panel's corner. The panel's own position, which does so too, shows a host that counts from the
// control's.
bool CSelectorForm::countsFromControl(int x, int y, int left, int top) {
  const int panelX = measure(lw::kPanelMouseX);
  const int panelY = measure(lw::kPanelMouseY);
  if (panelX == x && panelY == y) countsFromControl_ = false;
  if (panelX == x + left && panelY == y + top) countsFromControl_ = true;
  return countsFromControl_;
}

}  // namespace mst
