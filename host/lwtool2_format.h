// The texts of commands and messages, formatted for the host.
#pragma once

#include <cstdarg>
#include <string>

#include "host/lwtool2_errors.h"

namespace lw {

// As printf formats, into 512 bytes with the closing zero, but with a decimal point whatever the locale of the host's
// process is: the host reads numbers so. Knows %s, %d, %x, %f and %%, the width and the flag 0 of each, and the precision of
// %f. Empty when the result is longer or the format asks for anything else.
VARNEL_PRINTF(1, 0)
std::string formatList(const char* format, std::va_list values);

}  // namespace lw
