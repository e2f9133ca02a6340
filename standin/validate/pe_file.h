// What a Windows module exports and imports, read from the tables of its file. Every offset is checked before it is
// followed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "objectfile/outcome.h"

namespace standin::validate {

struct PeFile {
  bool is64Bit = false;
  bool isLibrary = false;
  std::vector<std::string> exports;    // by name
  std::vector<std::string> libraries;  // that it imports from
};

// True for a file that begins as Windows programs and libraries do.
bool looksLikePe(std::string_view bytes);
Outcome<PeFile> readPe(std::string_view bytes);

}  // namespace standin::validate
