#include "standin/core/wide_text.h"

#include <windows.h>

namespace standin {

std::wstring wide(std::string_view utf8) {
  const int bytes = static_cast<int>(utf8.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, text.data(), length);
  return text;
}

std::string utf8(std::wstring_view wide) {
  const int units = static_cast<int>(wide.size());
  const int length = WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, text.data(), length, nullptr, nullptr);
  return text;
}

}  // namespace standin
