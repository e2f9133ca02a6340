#include <iconv.h>

#include <array>

#include "rigs/code_page.h"
#include "rigs/text.h"

namespace standin::rigs {

struct CodePage::Tables {
  explicit Tables(int number) : converter(iconv_open(("CP" + std::to_string(number)).c_str(), "UTF-8")) {}
  ~Tables() {
    if (isOpen()) iconv_close(converter);
  }
  Tables(const Tables&) = delete;
  Tables& operator=(const Tables&) = delete;

  // The interface's way to say "none" is minus one in the place of an address.
  bool isOpen() const { return reinterpret_cast<std::ptrdiff_t>(converter) != -1; }

  iconv_t converter;
};

int CodePage::usual() { return 932; }

CodePage::CodePage(int number) : number_(number) {
  if (number != kUtf8CodePage) tables_ = std::make_unique<Tables>(number);
}
CodePage::~CodePage() = default;
CodePage::CodePage(CodePage&&) noexcept = default;
CodePage& CodePage::operator=(CodePage&&) noexcept = default;

bool CodePage::isKnown() const { return number_ == kUtf8CodePage || tables_->isOpen(); }

bool CodePage::holds(std::string_view utf8) const {
  if (!isUtf8(utf8)) return false;
  if (number_ == kUtf8CodePage || !isKnown()) return true;
  std::string from(utf8);
  std::string to(utf8.size() * 2 + 1, '\0');
  char* input = from.data();
  char* output = to.data();
  std::size_t left = from.size();
  std::size_t room = to.size();
  iconv(tables_->converter, nullptr, nullptr, nullptr, nullptr);
  return iconv(tables_->converter, &input, &left, &output, &room) == 0;
}

}  // namespace standin::rigs
