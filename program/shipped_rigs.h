// The rigs that come with the program.
#pragma once

#include <string>
#include <vector>

namespace standin {

// Writes the rigs into a folder that exists; their paths. Throws Trouble.
std::vector<std::string> writeShippedRigs(const std::string& folder);

}  // namespace standin
