#include "texts/whole_text.h"

#include <algorithm>

namespace texts {
namespace {

// How many bytes a character has by its first one; 0 for a byte that begins none.
std::size_t announcedLength(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return 2;
  if (first >= 0xE0 && first <= 0xEF) return 3;
  if (first >= 0xF0 && first <= 0xF4) return 4;
  return 0;
}

bool isFurtherByte(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

}  // namespace

std::string_view withoutCutCharacter(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = announcedLength(static_cast<unsigned char>(text[at]));
    const std::string_view character = text.substr(at, length);
    if (length == 0 || !std::all_of(character.begin() + 1, character.end(), isFurtherByte)) return text;
    if (character.size() < length) return text.substr(0, at);
    at += length;
  }
  return text;
}

std::string_view cutAtCharacter(std::string_view text, std::size_t most) {
  return text.size() <= most ? text : withoutCutCharacter(text.substr(0, most));
}

}  // namespace texts
