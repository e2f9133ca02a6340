// The weight maps that Modeler lists.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "probe/host_access.h"

namespace probe {

using MapNames = std::vector<std::optional<std::string>>;  // nothing for null

MapNames weightMapNames(const Host& host);

}  // namespace probe
