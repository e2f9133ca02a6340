// Lines that fit on a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace standin {

// The columns that a text (UTF-8) takes on a terminal: letters of East Asian width take two.
std::size_t columnsOf(std::string_view text);

// The line, broken at spaces so that no part is wider than that; parts after the first begin with `indent` spaces. A word that
// is wider by itself stays whole, so that a name can be copied. No newline at the end.
std::string folded(const std::string& line, std::size_t columns, std::size_t indent);

}  // namespace standin
