// A run of the probe: from the user's start to the file.
#pragma once

#include <functional>
#include <string>

#include "probe/facts.h"
#include "probe/host_access.h"

namespace probe {

// Told before each step of a run, one line.
using Progress = std::function<void(const std::string&)>;

// Why the probe must not run here: something is loaded. Empty when it may. Throws Trouble when the host does not tell.
std::string refusal(const Host& host);

// Asks all that needs no hands, and leaves the program as it was. Throws nothing: what fails is not told.
void measureAlone(Host& host, Facts& facts, const Progress& progress);

}  // namespace probe
