// What somebody may have meant who typed a name that there is none of.
#pragma once

#include <string>
#include <vector>

namespace standin {

// The name that is the fewest letters away from the word, or that the word begins; empty when none is near.
std::string nearestName(const std::string& word, const std::vector<std::string>& names);

}  // namespace standin
