// Splits the text that a user gave with a command into words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mst {

// Words are separated by runs of blanks; a word that begins with a double quote runs to the next double quote, or to the
// end where there is none. The quotes are no part of the word.
std::vector<std::string> splitArguments(std::string_view argument);

}  // namespace mst
