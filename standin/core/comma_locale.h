// A locale with a decimal comma for the whole process, as a host or another plug-in may set it: what is formatted or read by
// the system's or the library's locale then has commas for points and points between thousands.
#pragma once

#include <locale>
#include <string>

namespace standin {

// Set while it lives; afterwards what was before.
class CommaLocale {
 public:
  // Throws std::runtime_error where the system has no such locale.
  CommaLocale();
  ~CommaLocale();
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

 private:
  std::string systemBefore_;
  std::locale libraryBefore_;
};

}  // namespace standin
