// What item and file names tell, as plain text rules: no host, and no regular-expression library, whose matcher would
// overflow the stack on long names.
#pragma once

#include <string>
#include <string_view>

namespace skg {

// True when the whole name matches ^.*\.lwo$, case-sensitive; as there, '.' stands for no line end.
bool isObjectFileName(std::string_view name);

// The whole name matched against ^([^:]+):([^ ]+)( \([0-9]+\))?$: group 1, the object, or group 2, the layer without the
// counter of a duplicate. Empty where the name has another form.
std::string splitItemName(std::string_view name, int group);

// The text after the last separator of the path, cut before the last full stop.
std::string fileBaseName(std::string_view path);

}  // namespace skg
