// All questions about Modeler's objects, edits and scans.
#pragma once

#include "probe/facts.h"
#include "probe/host_access.h"

namespace probe {

// Only with nothing loaded. Loads the probe's rig and closes it again.
void measureModeler(Host& host, Facts& facts);

}  // namespace probe
