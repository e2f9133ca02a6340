// The file that the probe leaves: facts and figures as JSON.
#pragma once

#include <string>

#include "probe/facts.h"
#include "probe/host_access.h"

namespace probe {

// The whole text. The same facts of the same host give the same text on one day.
std::string factsText(const Host& host, const Facts& facts);

// Writes it to a file, UTF-8 path, as a whole or not at all. Throws Trouble.
void writeFacts(const std::string& path, const std::string& text);

}  // namespace probe
