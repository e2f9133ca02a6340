#include <windows.h>

#include "rigs/code_page.h"
#include "rigs/text.h"

namespace standin::rigs {

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
  const int bytes = static_cast<int>(utf8.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0)), L'\0');
  const int units = static_cast<int>(wide.size());
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), units);
  BOOL replaced = FALSE;
  const int narrow = WideCharToMultiByte(static_cast<UINT>(number_), WC_NO_BEST_FIT_CHARS, wide.data(), units, nullptr, 0,
                                         nullptr, &replaced);
  return narrow > 0 && replaced == FALSE;
}

}  // namespace standin::rigs
