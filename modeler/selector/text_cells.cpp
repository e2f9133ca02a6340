#include "modeler/selector/text_cells.h"

#include "modeler/selector/character_width.h"
#include "texts/utf8.h"

namespace mst {

TextCell takeCell(std::string_view& text) {
  // Nearly all there is, in a hurry.
  if (const auto byte = static_cast<unsigned char>(text.front()); byte < 0x80) {
    text.remove_prefix(1);
    return {byte, 1};
  }
  const char32_t character = texts::takeCharacter(text);
  if (character == texts::kNoCharacter) return {U'?', 1};
  return {character, isFullWidth(character) ? 2 : 1};
}

int cellsOf(std::string_view text) {
  int cells = 0;
  while (!text.empty()) cells += takeCell(text).cells;
  return cells;
}

}  // namespace mst
