#include "standin/core/comma_locale.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdlib>
#include <stdexcept>

namespace standin {
namespace {

class CommaNumbers : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

bool setSystemLocale() {
  // Systems name it differently.
  constexpr std::array kNames{"de_DE.UTF-8", "de_DE.utf8", "German_Germany.1252", "German"};
  return std::any_of(kNames.begin(), kNames.end(), [](const char* name) {
    return std::setlocale(LC_ALL, name) != nullptr && *std::localeconv()->decimal_point == ',';
  });
}

// From the folder that the build made, for systems on which nobody installed one.
bool setLocaleOfTheBuild() {
#ifdef _WIN32
  return false;
#else
  if (std::getenv("LOCPATH") != nullptr) return false;
  setenv("LOCPATH", VARNEL_LOCALES, 0);
  const bool isSet = setSystemLocale();
  unsetenv("LOCPATH");
  return isSet;
#endif
}

}  // namespace

CommaLocale::CommaLocale() : systemBefore_(std::setlocale(LC_ALL, nullptr)) {
  if (!setSystemLocale() && !setLocaleOfTheBuild()) {
    std::setlocale(LC_ALL, systemBefore_.c_str());
    throw std::runtime_error("this system has no locale with a decimal comma: install de_DE.UTF-8");
  }
  // Without a name, so that it leaves the system's as it is.
  libraryBefore_ = std::locale::global(std::locale(std::locale::classic(), new CommaNumbers));
}

CommaLocale::~CommaLocale() {
  std::locale::global(libraryBefore_);
  std::setlocale(LC_ALL, systemBefore_.c_str());
}

}  // namespace standin
