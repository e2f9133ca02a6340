// JSON as this library reads and writes it.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "objectfile/outcome.h"

namespace standin::rigs {

using Json = nlohmann::ordered_json;

// Of UTF-8, or of UTF-16 behind a byte order mark. Stricter than JSON: a key that an object has twice is refused, and so are more than a few levels. The sentence says where.
Outcome<Json> parseJson(std::string_view bytes);

// Two blanks for each level, and a line end. Bytes that are no UTF-8 come out as U+FFFD.
std::string dumpJson(const Json& json);

// A text as a JSON string, or {"hex": "..."} where it is no UTF-8. Nothing when it is neither, or holds a zero character.
Json jsonOfText(std::string_view text);
std::optional<std::string> textOfJson(const Json& json);

}  // namespace standin::rigs
