#include "rigs/text.h"

#include <cstddef>

namespace standin::rigs {
namespace {

constexpr char kDigits[] = "0123456789abcdef";

unsigned byteOf(char c) { return static_cast<unsigned char>(c); }

// The length of the UTF-8 character at the front; 0 when there is none.
std::size_t characterLength(std::string_view text) {
  const unsigned lead = byteOf(text[0]);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >> 5 == 0x6 ? 2 : lead >> 4 == 0xE ? 3 : lead >> 3 == 0x1E ? 4 : 0;
  if (length == 0 || length > text.size()) return 0;
  unsigned value = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if (byteOf(text[i]) >> 6 != 0x2) return 0;
    value = value << 6 | (byteOf(text[i]) & 0x3FU);
  }
  constexpr unsigned kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  return value < kLeast[length] || value > 0x10FFFF || surrogate ? 0 : length;
}

bool isControl(std::string_view character) {
  const unsigned lead = byteOf(character[0]);
  if (character.size() == 1) return lead < 0x20 || lead == 0x7F;
  return lead == 0xC2 && byteOf(character[1]) < 0xA0;
}

}  // namespace

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = characterLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::string printable(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const std::size_t length = characterLength(text);
    const std::string_view character = text.substr(0, length == 0 ? 1 : length);
    if (length == 0 || isControl(character)) {
      for (const char c : character) shown.append("\\x").append(hexOf({&c, 1}));
    } else {
      shown.append(character);
    }
    text.remove_prefix(character.size());
  }
  return shown;
}

std::string inQuotes(std::string_view text) { return '"' + printable(text) + '"'; }

std::string hexOf(std::string_view bytes) {
  std::string hex;
  for (const char c : bytes) {
    hex += kDigits[byteOf(c) >> 4];
    hex += kDigits[byteOf(c) & 0xF];
  }
  return hex;
}

}  // namespace standin::rigs
