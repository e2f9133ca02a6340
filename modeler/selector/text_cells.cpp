#include "modeler/selector/text_cells.h"

#include <array>
#include <cstddef>

#include "modeler/selector/character_width.h"

namespace mst {
namespace {

constexpr char32_t kBrokenByte = U'?';

// What a first byte announces.
struct Form {
  unsigned char mask;  // bits of the byte that tell the form
  unsigned char lead;  // what they are
  std::size_t length;  // in bytes
  char32_t least;      // smaller numbers have a shorter form, which is the only valid one
};
constexpr std::array kForms = {
    Form{0x80, 0x00, 1, 0x0},
    Form{0xE0, 0xC0, 2, 0x80},
    Form{0xF0, 0xE0, 3, 0x800},
    Form{0xF8, 0xF0, 4, 0x10000},
};

constexpr char32_t kGreatest = 0x10FFFF;

bool isSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

// The character of that form at the beginning of the text; U+FFFFFFFF when there is none.
constexpr char32_t kNone = 0xFFFFFFFF;
char32_t decoded(std::string_view text, const Form& form) {
  if (text.size() < form.length) return kNone;
  char32_t character = static_cast<unsigned char>(text.front()) & static_cast<unsigned char>(~form.mask);
  for (std::size_t i = 1; i < form.length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80U) return kNone;
    character = (character << 6U) | (byte & 0x3FU);
  }
  const bool isValid = character >= form.least && character <= kGreatest && !isSurrogate(character);
  return isValid ? character : kNone;
}

}  // namespace

TextCell takeCell(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  for (const Form& form : kForms) {
    if ((first & form.mask) != form.lead) continue;
    const char32_t character = decoded(text, form);
    if (character == kNone) break;
    text.remove_prefix(form.length);
    return {character, isFullWidth(character) ? 2 : 1};
  }
  text.remove_prefix(1);
  return {kBrokenByte, 1};
}

int cellsOf(std::string_view text) {
  int cells = 0;
  while (!text.empty()) cells += takeCell(text).cells;
  return cells;
}

}  // namespace mst
