#include "standin/layout/number_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace standin {

std::string fixedText(double value, int decimals) {
  if (!std::isfinite(value)) return std::isnan(value) ? "not a number" : value > 0 ? "infinite" : "-infinite";
  std::array<char, 400> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
  return {buffer.data(), end.ptr};
}

std::string numberText(double value, int decimals) {
  std::string text = fixedText(value, decimals);
  if (text.find('.') != std::string::npos) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
  }
  return text == "-0" ? "0" : text;
}

}  // namespace standin
