#include "modeler/tools.h"

#include "modeler/property/MST_CSkgPropPanel.h"
#include "modeler/renamer/MST_RenamerPanel.h"
#include "modeler/selector/MST_CSkgSelPanel.h"

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
