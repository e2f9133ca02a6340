// Numbers in sentences and in the file: the same in any locale of the host's process.
#pragma once

#include <cstdint>
#include <string>

namespace probe {

// With "0x" before it.
std::string hexadecimal(std::uint32_t number);
// Rounded, for people to read.
std::string shown(double number);

}  // namespace probe
