// Objects of hosts that store their texts in the Japanese code page instead of UTF-8.
#pragma once

#include <string>

#include "objectfile/object_file.h"

namespace standin::rigs {

inline constexpr int kJapaneseCodePage = 932;

// Whether layers' names or texts of skelegons are no UTF-8, and all of these can be read in that code page. Never on a
// system that has no tables of it.
bool isInJapaneseCodePage(const ObjectFile& object);

// What is UTF-8 stays as it is, and so does what cannot be read in the code page.
std::string inUtf8(const std::string& text);

// The same of all these texts.
void putInUtf8(ObjectFile& object);

}  // namespace standin::rigs
