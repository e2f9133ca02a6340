#include "modeler/tools.h"

#include "modeler/MST_CSkgPropPanel.h"
#include "modeler/MST_CSkgSelPanel.h"
#include "modeler/MST_RenamerPanel.h"

namespace mst {

int runSelector() {
  static CSkgSelPanel panel;
  return panel.OpenSelectorPanel() ? 1 : 0;
}

int runRenamer() {
  static RenamerPanel panel;
  return panel.OpenRenamerPanel() ? 1 : 0;
}

int runProperty() {
  static CSkgPropPanel panel;
  return panel.OpenPropertyPanel() ? 1 : 0;
}

}  // namespace mst
