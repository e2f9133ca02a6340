#include <cstdlib>

#include "probe/user_folder.h"

namespace probe {

// Asked for in UTF-16: the name of a user may have characters that the code page lacks.
std::filesystem::path userFolder() {
  const wchar_t* const folder = _wgetenv(L"USERPROFILE");
  return folder == nullptr ? L"." : folder;
}

}  // namespace probe
