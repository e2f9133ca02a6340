// What the shells of other systems do before a program starts.
#pragma once

#include <string>
#include <vector>

namespace standin {

// Each word with "*" or "?" becomes the paths that fit, in their order by name; one that fits nothing, or an option, stays
// as it is. No file of this system bears such a sign, so that nothing else can be meant. Words are UTF-8.
std::vector<std::string> expandWildcards(const std::vector<std::string>& words);

}  // namespace standin
