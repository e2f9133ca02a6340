// Numbers as the stored texts hold them. Independent of the user's locale.
#pragma once

#include <string_view>

namespace skg {

// The decimal number that the text begins with (blanks before it and anything behind it are ignored); 0 where there is none.
// An integer beyond 32 bits gives the nearest one; a real that no double can hold gives 0.
int leadingInteger(std::string_view text);
double leadingReal(std::string_view text);

constexpr bool isDigit(char character) { return character >= '0' && character <= '9'; }

}  // namespace skg
