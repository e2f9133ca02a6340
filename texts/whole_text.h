// Texts that had to be cut: they end with a whole character. No host here.
#pragma once

#include <cstddef>
#include <string_view>

namespace texts {

// The text without a UTF-8 character of which only the beginning is there. A text that is no UTF-8 stays as it is: its bytes
// tell nothing of characters.
std::string_view withoutCutCharacter(std::string_view text);

// At most so many bytes of the text, in whole characters.
std::string_view cutAtCharacter(std::string_view text, std::size_t most);

}  // namespace texts
