// What a saved rig holds.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "probe/loaded_rig.h"

namespace probe {

// Saves the rig over its file. The skelegon's tag there; nothing when it has none. Throws Trouble when the host refuses, or
// when what it wrote cannot be read.
std::optional<std::string> savedTag(LoadedRig& rig, const std::string& skelegon, std::uint32_t type);

}  // namespace probe
