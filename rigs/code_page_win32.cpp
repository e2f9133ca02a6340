#include <windows.h>

#include "rigs/code_page.h"
#include "rigs/text.h"

namespace standin::rigs {

namespace {

// Empty when the text is none of the code page.
std::wstring wideOf(UINT codePage, std::string_view text) {
  const int bytes = static_cast<int>(text.size());
  const int units = MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, text.data(), bytes, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(units), L'\0');
  MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, text.data(), bytes, wide.data(), units);
  return wide;
}

}  // namespace

struct CodePage::Tables {};  // the system's

int CodePage::usual() { return static_cast<int>(GetACP()); }

CodePage::CodePage(int number) : number_(number) {}
CodePage::~CodePage() = default;
CodePage::CodePage(CodePage&&) noexcept = default;
CodePage& CodePage::operator=(CodePage&&) noexcept = default;

bool CodePage::isKnown() const { return IsValidCodePage(static_cast<UINT>(number_)) != FALSE; }

bool CodePage::holds(std::string_view utf8) const {
  if (!isUtf8(utf8)) return false;
  if (number_ == kUtf8CodePage || !isKnown() || utf8.empty()) return true;
  const std::wstring wide = wideOf(CP_UTF8, utf8);
  BOOL replaced = FALSE;
  const int narrow = WideCharToMultiByte(static_cast<UINT>(number_), WC_NO_BEST_FIT_CHARS, wide.data(),
                                         static_cast<int>(wide.size()), nullptr, 0, nullptr, &replaced);
  return narrow > 0 && replaced == FALSE;
}

std::optional<std::string> CodePage::decoded(std::string_view text) const {
  if (text.empty()) return std::string();
  const std::wstring wide = isKnown() ? wideOf(static_cast<UINT>(number_), text) : std::wstring();
  if (wide.empty()) return std::nullopt;
  const int units = static_cast<int>(wide.size());
  std::string utf8(
      static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr)), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, utf8.data(), static_cast<int>(utf8.size()), nullptr, nullptr);
  return utf8;
}

}  // namespace standin::rigs
