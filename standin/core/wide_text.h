// Texts on their way to the system's wide functions and back.
#pragma once

#include <string>
#include <string_view>

namespace standin {

// UTF-16 of a UTF-8 text; bytes that are no UTF-8 become replacement characters.
std::wstring wide(std::string_view utf8);
std::string utf8(std::wstring_view wide);

}  // namespace standin
