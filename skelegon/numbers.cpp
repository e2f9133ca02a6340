#include "skelegon/numbers.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace skg {
namespace {

// The text from its number on: leading blanks and a plus sign are allowed, and the conversions know neither.
std::string_view fromNumberOn(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
  if (start == std::string_view::npos) return {};
  text.remove_prefix(start);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  return text;
}

}  // namespace

int leadingInteger(std::string_view text) {
  text = fromNumberOn(text);
  int value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  return text.front() == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

double leadingReal(std::string_view text) {
  text = fromNumberOn(text);
  // Words such as "inf" and "nan" are no decimal numbers.
  const auto first = std::find_if(text.begin(), text.end(), [](char c) { return c != '-'; });
  if (first == text.end() || !(isDigit(*first) || *first == '.')) return 0;
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

}  // namespace skg
