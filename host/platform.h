// What only the operating system knows. Source files per system: platform_win32.cpp and platform_gl_win32.cpp,
// platform_posix.cpp and platform_gl_posix.cpp; OpenGL apart, so that tests can put a recorder in its place.
#pragma once

#include <optional>
#include <string>
#include <string_view>

struct GlCalls;

namespace platform {

// The text in the system's narrow code page, or nothing when it is no valid UTF-8 or has a character that the code page
// lacks.
std::optional<std::string> exactNarrow(std::string_view utf8);

// The same for text already in UTF-16; a character that the code page lacks comes out as the system's replacement.
std::string narrowFromUtf16(std::u16string_view text);

// UTF-8 to UTF-16; bytes that are no valid UTF-8 become U+FFFD.
std::u16string utf16FromUtf8(std::string_view utf8);

// OpenGL as it is in the host; null on systems on which the tree is not drawn.
const GlCalls* glCalls();

}  // namespace platform
