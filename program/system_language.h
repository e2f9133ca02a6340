// The language in which the program speaks unless it is told another one.
#pragma once

#include <string>

namespace standin {

// "ja" on a Japanese system, else "en". Windows tells by the language of its own surface, other systems by LC_ALL,
// LC_MESSAGES and LANG, of which the first counts that says something.
std::string systemLanguage();

}  // namespace standin
