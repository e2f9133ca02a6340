#include "program/utf8_arguments.h"

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// After windows.h, which it needs.
#include <shellapi.h>

#include <cstdio>

#include "program/wildcards.h"
#include "standin/core/wide_text.h"
#endif

namespace standin {

#if defined(_WIN32)

std::vector<std::string> utf8Arguments(int /*argc*/, char** /*argv*/) {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; wide != nullptr && i < count; ++i) arguments.push_back(utf8(wide[i]));
  LocalFree(wide);
  return expandWildcards(arguments);
}

void useUtf8Streams() {
  SetConsoleOutputCP(CP_UTF8);
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
}

#else

std::vector<std::string> utf8Arguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

void useUtf8Streams() {}

#endif

}  // namespace standin
