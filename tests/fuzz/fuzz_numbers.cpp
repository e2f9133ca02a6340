// Numbers and colours as settings store them, on any bytes. The C library reads plain numbers as well.
#include <algorithm>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "skelegon/numbers.h"
#include "skelegon/slots.h"
#include "tests/fuzz/fuzz_check.h"

namespace {

using varnel::test::require;

// Without what the C library takes for a number and a stored one is not: hexadecimal digits, words, a second sign.
bool isPlain(const std::string& text) {
  return text.find_first_not_of("0123456789+-. \teE") == std::string::npos && text.find("+-") == std::string::npos;
}

void checkInteger(const std::string& text) {
  const int value = skg::leadingInteger(text);
  if (!isPlain(text)) return;
  const long long expected = std::strtoll(text.c_str(), nullptr, 10);
  require(value == std::clamp<long long>(expected, INT_MIN, INT_MAX), "an integer is read as the C library reads it");
}

void checkReal(const std::string& text) {
  const double value = skg::leadingReal(text);
  require(std::isfinite(value), "a real is finite");
  if (!isPlain(text)) return;
  const double expected = std::strtod(text.c_str(), nullptr);
  const bool fits = std::isfinite(expected) && (expected == 0 || std::abs(expected) >= 2.3e-308);
  if (fits) require(value == expected, "a real is read as the C library reads it");
}

void checkColour(const std::string& text) {
  const int index = skg::colourIndex(text);
  require(index >= 0 && index < static_cast<int>(skg::BoneColourNames.size()), "a colour has one of the numbers");
  const bool isWord = skg::BoneColourNames[static_cast<std::size_t>(index)] == text;
  require(isWord || index == skg::kUnknownColourIndex, "any other word is the unknown colour");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(bytes), size);
  checkInteger(text);
  checkReal(text);
  checkColour(text);
  return 0;
}
