#include "modeler/tools.h"

#include "modeler/MST_CSkgPropPanel.h"

namespace mst {

// These tools are not there yet: their runs fail, which the host's user is told where the host can tell it.
int runSelector() { return 0; }
int runRenamer() { return 0; }

int runProperty() {
  static CSkgPropPanel panel;
  return panel.OpenPropertyPanel() ? 1 : 0;
}

}  // namespace mst
