// Questions about the process that the probe is loaded into, whichever program it is.
#pragma once

#include "probe/facts.h"
#include "probe/host_access.h"

namespace probe {

void measureProcess(Host& host, Facts& facts);

}  // namespace probe
