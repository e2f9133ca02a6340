// The narrow encoding of these systems is UTF-8 itself.
#include "host/platform.h"
#include "texts/utf8.h"

namespace platform {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

void appendUtf8(std::string& to, char32_t c) {
  const auto put = [&](char32_t bits) { to.push_back(static_cast<char>(bits)); };
  if (c < 0x80) return put(c);
  if (c < 0x800) {
    put(0xC0 | c >> 6);
  } else if (c < 0x10000) {
    put(0xE0 | c >> 12);
    put(0x80 | (c >> 6 & 0x3F));
  } else {
    put(0xF0 | c >> 18);
    put(0x80 | (c >> 12 & 0x3F));
    put(0x80 | (c >> 6 & 0x3F));
  }
  put(0x80 | (c & 0x3F));
}

}  // namespace

std::optional<std::string> exactNarrow(std::string_view utf8) {
  std::string narrow = narrowFromUtf16(utf16FromUtf8(utf8));
  if (narrow != utf8) return std::nullopt;
  return narrow;
}

std::u16string utf16FromUtf8(std::string_view utf8) {
  std::u16string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    const char32_t taken = texts::takeCharacter(utf8);
    const char32_t c = taken == texts::kNoCharacter ? kReplacement : taken;
    if (c >= 0x10000) text.push_back(static_cast<char16_t>(0xD7C0 + (c >> 10)));
    text.push_back(static_cast<char16_t>(c >= 0x10000 ? 0xDC00 | (c & 0x3FF) : c));
  }
  return text;
}

std::string narrowFromUtf16(std::u16string_view text) {
  std::string narrow;
  narrow.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char32_t unit = text[i];
    const bool pair = unit >= 0xD800 && unit < 0xDC00 && i + 1 < text.size() && text[i + 1] >> 10 == 0x37;
    appendUtf8(narrow, pair ? 0x10000 + ((unit & 0x3FF) << 10 | (text[i + 1] & 0x3FFu)) : unit);
    if (pair) ++i;
  }
  return narrow;
}

}  // namespace platform
