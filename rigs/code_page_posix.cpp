#include <iconv.h>

#include <cstddef>

#include "rigs/code_page.h"
#include "rigs/text.h"

namespace standin::rigs {

namespace {

class Converter {
 public:
  Converter(const std::string& to, const std::string& from) : handle_(iconv_open(to.c_str(), from.c_str())) {}
  ~Converter() {
    if (isOpen()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // The interface's way to say "none" is minus one in the place of an address.
  bool isOpen() const { return reinterpret_cast<std::ptrdiff_t>(handle_) != -1; }

  // Nothing when a character is invalid or has to be replaced.
  std::optional<std::string> converted(std::string_view text, std::size_t mostBytes) const {
    std::string from(text);
    std::string to(mostBytes, '\0');
    char* input = from.data();
    char* output = to.data();
    std::size_t left = from.size();
    std::size_t room = to.size();
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    if (iconv(handle_, &input, &left, &output, &room) != 0) return std::nullopt;
    to.resize(to.size() - room);
    return to;
  }

 private:
  iconv_t handle_;
};

std::string nameOf(int number) { return "CP" + std::to_string(number); }

}  // namespace

struct CodePage::Tables {
  explicit Tables(int number) : narrow(nameOf(number), "UTF-8"), wide("UTF-8", nameOf(number)) {}

  Converter narrow;
  Converter wide;
};

int CodePage::usual() { return 932; }

CodePage::CodePage(int number) : number_(number) {
  if (number != kUtf8CodePage) tables_ = std::make_unique<Tables>(number);
}
CodePage::~CodePage() = default;
CodePage::CodePage(CodePage&&) noexcept = default;
CodePage& CodePage::operator=(CodePage&&) noexcept = default;

bool CodePage::isKnown() const { return number_ == kUtf8CodePage || (tables_->narrow.isOpen() && tables_->wide.isOpen()); }

bool CodePage::holds(std::string_view utf8) const {
  if (!isUtf8(utf8)) return false;
  return number_ == kUtf8CodePage || !isKnown() || tables_->narrow.converted(utf8, utf8.size() * 2 + 1).has_value();
}

std::optional<std::string> CodePage::decoded(std::string_view text) const {
  std::optional<std::string> utf8;
  if (number_ == kUtf8CodePage) {
    if (isUtf8(text)) utf8 = text;
  } else if (isKnown()) {
    utf8 = tables_->wide.converted(text, text.size() * 4 + 1);
  }
  return utf8;
}

}  // namespace standin::rigs
