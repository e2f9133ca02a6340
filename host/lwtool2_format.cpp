#include "host/lwtool2_format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace lw {
namespace {

constexpr std::size_t kFormatBytes = 512;
constexpr int kUsualPrecision = 6;

// Between the percent sign and the letter, and the letter.
struct Conversion {
  bool zeros = false;  // fill the width
  std::size_t width = 0;
  std::optional<int> precision;
  char letter = 0;
};

// The values of a format, in order.
class CValues {
 public:
  explicit CValues(std::va_list values) { va_copy(values_, values); }
  ~CValues() { va_end(values_); }
  CValues(const CValues&) = delete;
  CValues& operator=(const CValues&) = delete;

  int integer() { return va_arg(values_, int); }
  unsigned natural() { return va_arg(values_, unsigned); }
  double real() { return va_arg(values_, double); }
  const char* text() {
    const char* const text = va_arg(values_, const char*);
    return text == nullptr ? "" : text;
  }

 private:
  std::va_list values_;
};

// What fits into the buffer. Once something did not, nothing does.
class CMessage {
 public:
  bool put(std::string_view piece) {
    if (piece.size() >= buffer_.size() - length_) return false;
    std::copy(piece.begin(), piece.end(), buffer_.begin() + static_cast<std::ptrdiff_t>(length_));
    length_ += piece.size();
    return true;
  }
  bool fill(char character, std::size_t count) {
    for (; count > 0; --count) {
      if (!put({&character, 1})) return false;
    }
    return true;
  }
  std::string text() const { return {buffer_.data(), length_}; }

 private:
  std::array<char, kFormatBytes> buffer_;
  std::size_t length_ = 0;
};

char takeCharacter(std::string_view& text) {
  if (text.empty()) return 0;
  const char character = text.front();
  text.remove_prefix(1);
  return character;
}

// The digits at the start; 0 without any.
unsigned takeNumber(std::string_view& text) {
  unsigned number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
  return number;
}

Conversion takeConversion(std::string_view& format) {
  Conversion conversion;
  conversion.zeros = format.starts_with('0');
  conversion.width = takeNumber(format);
  if (format.starts_with('.')) {
    format.remove_prefix(1);
    conversion.precision = static_cast<int>(takeNumber(format));
  }
  conversion.letter = takeCharacter(format);
  return conversion;
}

bool putPadded(CMessage& message, std::string_view piece, const Conversion& conversion) {
  const std::size_t padding = conversion.width > piece.size() ? conversion.width - piece.size() : 0;
  if (!conversion.zeros) return message.fill(' ', padding) && message.put(piece);
  const std::size_t sign = piece.starts_with('-') ? 1 : 0;
  return message.put(piece.substr(0, sign)) && message.fill('0', padding) && message.put(piece.substr(sign));
}

template <class Value, class... Form>
bool putNumber(CMessage& message, const Conversion& conversion, Value value, Form... form) {
  std::array<char, kFormatBytes> digits;
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value, form...);
  if (result.ec != std::errc()) return false;
  return putPadded(message, {digits.data(), static_cast<std::size_t>(result.ptr - digits.data())}, conversion);
}

bool put(CMessage& message, const Conversion& conversion, CValues& values) {
  constexpr int kHexadecimal = 16;
  if (conversion.precision && conversion.letter != 'f') return false;
  switch (conversion.letter) {
    case '%': return message.put("%");
    case 's': return putPadded(message, values.text(), conversion);
    case 'd': return putNumber(message, conversion, values.integer());
    case 'x': return putNumber(message, conversion, values.natural(), kHexadecimal);
    case 'f':
      return putNumber(message, conversion, values.real(), std::chars_format::fixed,
                       conversion.precision.value_or(kUsualPrecision));
    default: return false;
  }
}

}  // namespace

std::string formatList(const char* format, std::va_list values) {
  CValues ordered(values);
  CMessage message;
  for (std::string_view left = format; !left.empty();) {
    const std::size_t plain = std::min(left.find('%'), left.size());
    if (!message.put(left.substr(0, plain))) return {};
    left.remove_prefix(plain);
    if (takeCharacter(left) == 0) break;
    if (!put(message, takeConversion(left), ordered)) return {};
  }
  return message.text();
}

}  // namespace lw
