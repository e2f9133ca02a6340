// The rigs that come with the program.
#pragma once

#include <string>
#include <vector>

#include "objectfile/whole_file.h"

namespace standin {

// Writes the rigs into a folder that exists; their paths. Throws Trouble: before anything is written when one of them is
// there and has to be kept.
std::vector<std::string> writeShippedRigs(const std::string& folder, Existing existing = Existing::Keep);

}  // namespace standin
