// Texts of object files as they can be shown: such a text may be any bytes.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "texts/utf8.h"

namespace standin::rigs {

using texts::isUtf8;

// The text with control characters and bytes that are no UTF-8 as \xNN, so that it fits on a line of a terminal.
std::string printable(std::string_view text);

// The same between quotation marks.
std::string inQuotes(std::string_view text);

// A pattern with what takes the places of its parts: {"{text}", "Root"}.
std::string filled(std::string_view pattern, std::initializer_list<std::pair<std::string_view, std::string_view>> parts);

// Pairs of lower case hexadecimal digits.
std::string hexOf(std::string_view bytes);

}  // namespace standin::rigs
