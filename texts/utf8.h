// Characters of UTF-8 texts, which may be any bytes. No host here.
#pragma once

#include <string_view>

namespace texts {

// What no character is.
inline constexpr char32_t kNoCharacter = 0xFFFFFFFF;

// Takes the first character off a text, which must not be empty. Where no valid one begins, it takes one byte and gives
// kNoCharacter: longer forms than needed, surrogates and what was cut are none.
char32_t takeCharacter(std::string_view& text);

// Whether the text is characters and nothing else.
bool isUtf8(std::string_view text);

}  // namespace texts
