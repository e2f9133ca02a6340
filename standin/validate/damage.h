// Damage done to an object file that was sound.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace standin::validate {

struct Damage {
  const char* name;
  void (*damage)(const std::string& path, std::uint64_t seed);
};

// Twenty kinds and more.
std::span<const Damage> damages();

// Some random bytes changed, removed or doubled; the form's size is kept right, so that a reader does not stop there.
void mutate(const std::string& path, std::uint64_t seed);

}  // namespace standin::validate
