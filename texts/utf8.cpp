#include "texts/utf8.h"

#include <cstddef>

namespace texts {

char32_t takeCharacter(std::string_view& text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  const std::size_t length = lead < 0x80 ? 1 : lead >> 5 == 0x6 ? 2 : lead >> 4 == 0xE ? 3 : lead >> 3 == 0x1E ? 4 : 0;
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  char32_t value = length <= 1 ? lead : lead & (0x7Fu >> length);
  bool valid = length != 0 && length <= text.size();
  for (std::size_t i = 1; valid && i < length; ++i) {
    valid = byte(i) >> 6 == 0x2;
    value = value << 6 | (byte(i) & 0x3Fu);
  }
  valid = valid && value >= kLeast[length] && value <= 0x10FFFF && !(value >= 0xD800 && value <= 0xDFFF);
  text.remove_prefix(valid ? length : 1);
  return valid ? value : kNoCharacter;
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    if (takeCharacter(text) == kNoCharacter) return false;
  }
  return true;
}

}  // namespace texts
