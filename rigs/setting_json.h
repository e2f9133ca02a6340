// One stored text as a JSON value that a person can read and change, and back. What comes back is the same text to the byte.
#pragma once

#include <string>
#include <string_view>

#include "rigs/json_text.h"
#include "rigs/settings.h"

namespace standin::rigs {

// Flags as true and false, choices by their English name, numbers as numbers (angles in radians), names and colours as
// strings. A text that is not in the form in which the panel writes its kind is {"text": "..."} or {"hex": "..."}.
Json valueOf(const Setting& setting, std::string_view text);

// Fails with what was expected.
Outcome<std::string> textOf(const Setting& setting, const Json& value);

}  // namespace standin::rigs
