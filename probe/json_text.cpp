#include "probe/json_text.h"

#include "texts/utf8.h"

namespace probe {
namespace {

std::string twoDigits(char byte) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  const auto value = static_cast<unsigned char>(byte);
  return {kDigits[value >> 4], kDigits[value & 0xF]};
}

}  // namespace

std::string jsonText(std::string_view text) {
  std::string result = "\"";
  while (!text.empty()) {
    const std::string_view before = text;
    const char32_t character = texts::takeCharacter(text);
    const std::string_view bytes = before.substr(0, before.size() - text.size());
    if (character == texts::kNoCharacter) {
      result.append("\\\\x").append(twoDigits(bytes[0]));
    } else if (character < 0x20) {
      result.append("\\u00").append(twoDigits(bytes[0]));
    } else {
      if (character == '"' || character == '\\') result += '\\';
      result.append(bytes);
    }
  }
  return result + "\"";
}

}  // namespace probe
