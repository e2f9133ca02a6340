// What is measured of Layout's scene, commands and items.
#pragma once

#include "probe/facts.h"
#include "probe/host_access.h"

namespace probe {

// In an empty scene, which is empty again at the end, with selection and switches as they were. Where the host does not tell
// how they are, nothing is done, and each question is told to be unanswered for that.
void measureLayout(Host& host, Facts& facts);

}  // namespace probe
