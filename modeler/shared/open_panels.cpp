#include "modeler/shared/open_panels.h"

#include <algorithm>
#include <vector>

#include "host/lwtool2_errors.h"
#include "host/raised_flag.h"

namespace mst {
namespace {

struct OpenPanel {
  void* panel;
  PanelCallback callback;
};

struct OpenPanels {
  std::vector<OpenPanel> list;
  bool isWalking = false;
};

// The module-wide list and its busy flag.
OpenPanels& state() {
  static OpenPanels panels;
  return panels;
}

bool isOpen(const void* panel) {
  const auto& list = state().list;
  return std::any_of(list.begin(), list.end(), [panel](const OpenPanel& open) { return open.panel == panel; });
}

}  // namespace

void enterPanel(void* panel, PanelCallback callback) {
  if (!isOpen(panel)) state().list.push_back({panel, callback});
}

void removePanel(const void* panel) {
  std::erase_if(state().list, [panel](const OpenPanel& open) { return open.panel == panel; });
}

void NotifyPanels(const void* sender, PanelNews news) {
  if (state().isWalking) return;
  const lw::CRaisedFlag walking(state().isWalking);
  // A callback may change the list: the walk has its own, and passes over panels that are gone by their turn.
  const std::vector<OpenPanel> walk = state().list;
  for (const OpenPanel& open : walk) {
    if (open.panel == sender || !isOpen(open.panel)) continue;
    lw::guarded([&] { open.callback(open.panel, news); });
  }
}

}  // namespace mst
