// The text of the file that the probe leaves: facts and figures as JSON.
#pragma once

#include <string>

#include "probe/facts.h"
#include "probe/host_access.h"

namespace probe {

// The whole text. The same facts of the same host give the same text on one day.
std::string factsText(const Host& host, const Facts& facts);

}  // namespace probe
