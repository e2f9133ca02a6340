#include "program/utf8_arguments.h"

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// After windows.h, which it needs.
#include <shellapi.h>

#include <cstdio>
#endif

namespace standin {

#if defined(_WIN32)

std::vector<std::string> utf8Arguments(int /*argc*/, char** /*argv*/) {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; wide != nullptr && i < count; ++i) {
    const int bytes = WideCharToMultiByte(CP_UTF8, 0, wide[i], -1, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(bytes > 0 ? bytes : 1), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide[i], -1, text.data(), bytes, nullptr, nullptr);
    text.pop_back();
    arguments.push_back(std::move(text));
  }
  LocalFree(wide);
  return arguments;
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
