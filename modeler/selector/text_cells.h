// Characters of a UTF-8 text and how many cells of the tree each takes. The rows' width and their drawing count by it.
#pragma once

#include <string_view>

namespace mst {

struct TextCell {
  char32_t character;
  int cells;  // 2 for a full-width character, else 1
};

// Takes the first character off a text, which must not be empty. A byte that belongs to no valid character is one of its
// own: it comes as "?", alone.
TextCell takeCell(std::string_view& text);

int cellsOf(std::string_view text);

}  // namespace mst
