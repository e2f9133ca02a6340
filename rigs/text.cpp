#include "rigs/text.h"

#include <algorithm>

namespace standin::rigs {
namespace {

constexpr char kDigits[] = "0123456789abcdef";

unsigned byteOf(char c) { return static_cast<unsigned char>(c); }

// Those that turn the direction of writing too: a name with one would turn the sentence that it stands in.
bool isControl(char32_t character) {
  const bool isOfDirection = (character >= 0x202A && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069);
  return character < 0x20 || (character >= 0x7F && character < 0xA0) || isOfDirection;
}

}  // namespace

std::string printable(std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    std::string_view rest = text;
    const char32_t character = texts::takeCharacter(rest);
    const std::string_view bytes = text.substr(0, text.size() - rest.size());
    if (character == texts::kNoCharacter || isControl(character)) {
      for (const char c : bytes) shown.append("\\x").append(hexOf({&c, 1}));
    } else {
      shown.append(bytes);
    }
    text = rest;
  }
  return shown;
}

std::string inQuotes(std::string_view text) { return '"' + printable(text) + '"'; }

std::string filled(std::string_view pattern, std::initializer_list<std::pair<std::string_view, std::string_view>> parts) {
  std::string text;
  while (!pattern.empty()) {
    const auto part = std::find_if(parts.begin(), parts.end(), [&](const auto& p) { return pattern.starts_with(p.first); });
    const bool isPart = part != parts.end();
    text += isPart ? part->second : pattern.substr(0, 1);
    pattern.remove_prefix(isPart ? part->first.size() : 1);
  }
  return text;
}

std::string hexOf(std::string_view bytes) {
  std::string hex;
  for (const char c : bytes) {
    hex += kDigits[byteOf(c) >> 4];
    hex += kDigits[byteOf(c) & 0xF];
  }
  return hex;
}

}  // namespace standin::rigs
