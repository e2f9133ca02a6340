// Numbers as texts that are the same on every machine.
#pragma once

#include <string>

namespace standin {

// With at most so many decimals, without needless zeros; never "-0".
std::string numberText(double value, int decimals = 4);
// With exactly so many decimals.
std::string fixedText(double value, int decimals);

}  // namespace standin
