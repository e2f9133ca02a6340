// The runs of the Modeler tools. Each answers non-zero for success, 0 for failure.
#pragma once

namespace mst {

int runSelector();
int runRenamer();
int runProperty();

}  // namespace mst
