// The host's narrow encoding, which only its command texts are in.
#pragma once

#include <string>
#include <string_view>

namespace standin {

// To UTF-8: from the system's code page on Windows, as it is elsewhere.
std::string fromNarrow(std::string_view text);

}  // namespace standin
