#include <cstdlib>

#include "probe/user_folder.h"

namespace probe {

std::filesystem::path userFolder() {
  const char* const folder = std::getenv("HOME");
  return folder == nullptr ? "." : folder;
}

}  // namespace probe
