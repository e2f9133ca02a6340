#include <windows.h>

#include <algorithm>

#include "host/platform.h"

namespace platform {
namespace {

// wchar_t is UTF-16 here.
std::wstring wideFromUtf8(std::string_view utf8, DWORD flags) {
  const int bytes = static_cast<int>(utf8.size());
  const int units = MultiByteToWideChar(CP_UTF8, flags, utf8.data(), bytes, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(std::max(units, 0)), L'\0');
  if (units > 0) MultiByteToWideChar(CP_UTF8, flags, utf8.data(), bytes, wide.data(), units);
  return wide;
}

std::string narrowFromWide(const std::wstring& wide, DWORD flags, BOOL* replaced) {
  const int units = static_cast<int>(wide.size());
  const int bytes = WideCharToMultiByte(CP_ACP, flags, wide.data(), units, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(std::max(bytes, 0)), '\0');
  if (bytes > 0) WideCharToMultiByte(CP_ACP, flags, wide.data(), units, narrow.data(), bytes, nullptr, replaced);
  return narrow;
}

bool isPlainAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::optional<std::string> exactNarrow(std::string_view utf8) {
  if (isPlainAscii(utf8)) return std::string(utf8);
  const std::wstring wide = wideFromUtf8(utf8, MB_ERR_INVALID_CHARS);
  if (wide.empty()) return std::nullopt;
  BOOL replaced = FALSE;
  std::string narrow = narrowFromWide(wide, WC_NO_BEST_FIT_CHARS, &replaced);
  if (narrow.empty() || replaced != FALSE) return std::nullopt;
  return narrow;
}

std::u16string utf16FromUtf8(std::string_view utf8) {
  const std::wstring wide = wideFromUtf8(utf8, 0);
  return std::u16string(wide.begin(), wide.end());
}

std::string narrowFromUtf16(std::u16string_view text) {
  return narrowFromWide(std::wstring(text.begin(), text.end()), 0, nullptr);
}

}  // namespace platform
