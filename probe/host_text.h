// Texts of the host's, copied at once: they are good until the next call.
#pragma once

#include <optional>
#include <string>

namespace probe {

// Nothing for null. No more than a name or a path can be long, whatever stands there.
std::optional<std::string> copied(const char* text);

// For sentences: the text in quotes, or "null".
std::string shown(const std::optional<std::string>& text);

}  // namespace probe
