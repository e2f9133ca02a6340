#include "program/system_language.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <cstdlib>
#endif

namespace standin {

#if defined(_WIN32)

std::string systemLanguage() { return PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_JAPANESE ? "ja" : "en"; }

#else

std::string systemLanguage() {
  for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    const std::string language = value;
    return language == "ja" || language.starts_with("ja_") || language.starts_with("ja.") ? "ja" : "en";
  }
  return "en";
}

#endif

}  // namespace standin
