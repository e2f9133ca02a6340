// The user's own folder, where the probe's file goes unless another place is named.
#pragma once

#include <filesystem>

namespace probe {

// The present folder where the system names none.
std::filesystem::path userFolder();

}  // namespace probe
