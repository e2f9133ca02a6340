// Texts as the file of facts has them.
#pragma once

#include <string>
#include <string_view>

namespace probe {

// The text in quotes, as JSON. A host's texts can be any bytes, and one that is no UTF-8 must not spoil the whole file: what is
// no character comes out as \xNN.
std::string jsonText(std::string_view text);

}  // namespace probe
