// How wide the tree's font draws a character. Its code page is 932, and what takes two bytes there fills two cells.
#pragma once

namespace mst {

bool isFullWidth(char32_t character);

}  // namespace mst
