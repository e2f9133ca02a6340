#include "probe/number_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace probe {
namespace {

template <class... Form>
std::string digits(Form... form) {
  std::array<char, 64> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), form...).ptr};
}

}  // namespace

std::string hexadecimal(std::uint32_t number) { return "0x" + digits(number, 16); }

std::string shown(double number) {
  constexpr int kDigits = 7;
  constexpr double kNothing = 1e-9;
  return digits(std::abs(number) < kNothing ? 0 : number, std::chars_format::general, kDigits);
}

}  // namespace probe
