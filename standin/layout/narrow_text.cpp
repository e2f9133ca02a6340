#include "standin/layout/narrow_text.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace standin {

#ifdef _WIN32

std::string fromNarrow(std::string_view text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0)), L'\0');
  const int length = static_cast<int>(wide.size());
  MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), length);
  std::string utf8(
      static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr)), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr);
  return utf8;
}

#else

std::string fromNarrow(std::string_view text) { return std::string(text); }

#endif

}  // namespace standin
