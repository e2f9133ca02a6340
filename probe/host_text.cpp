#include "probe/host_text.h"

#include <cstddef>

namespace probe {

std::optional<std::string> copied(const char* text) {
  constexpr std::size_t kLongest = 4096;
  if (text == nullptr) return std::nullopt;
  std::size_t length = 0;
  while (length < kLongest && text[length] != '\0') ++length;
  return std::string(text, length);
}

std::string shown(const std::optional<std::string>& text) { return text ? '"' + *text + '"' : "null"; }

}  // namespace probe
