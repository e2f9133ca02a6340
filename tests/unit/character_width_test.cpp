// The widths of characters, compared with the system's own tables of the font's code page.
#include "modeler/selector/character_width.h"

#include <gtest/gtest.h>

#include <string>

#if defined(_WIN32)
#include <windows.h>
#else
#include <iconv.h>

#include <stdexcept>
#endif

namespace mst {
namespace {

#if defined(_WIN32)

constexpr UINT kJapanese = 932;

class CodePage932 {
 public:
  // Bytes that stand for exactly this character; 0 where there are none. Lookalikes do not count.
  static std::size_t bytesOf(char16_t character) {
    const auto unit = static_cast<wchar_t>(character);
    char bytes[4] = {};
    BOOL replaced = FALSE;
    const int count = WideCharToMultiByte(kJapanese, WC_NO_BEST_FIT_CHARS, &unit, 1, bytes, 4, nullptr, &replaced);
    return replaced != FALSE ? 0 : static_cast<std::size_t>(count);
  }
};

#else

class CodePage932 {
 public:
  ~CodePage932() {
    iconv_close(to_);
    iconv_close(from_);
  }
  CodePage932() = default;
  CodePage932(const CodePage932&) = delete;
  CodePage932& operator=(const CodePage932&) = delete;

  // Bytes that stand for exactly this character; 0 where there are none. Lookalikes do not come back as themselves.
  std::size_t bytesOf(char16_t character) const {
    const std::string unit{static_cast<char>(character & 0xFF), static_cast<char>(character >> 8)};
    const std::string bytes = converted(to_, unit);
    return converted(from_, bytes) == unit ? bytes.size() : 0;
  }

 private:
  static iconv_t opened(const char* to, const char* from) {
    const iconv_t converter = iconv_open(to, from);
    if (reinterpret_cast<std::ptrdiff_t>(converter) == -1) throw std::runtime_error("no tables of code page 932");
    return converter;
  }
  static std::string converted(iconv_t converter, std::string text) {
    std::string result(8, '\0');
    char* in = text.data();
    char* out = result.data();
    std::size_t left = text.size();
    std::size_t room = result.size();
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    if (iconv(converter, &in, &left, &out, &room) == static_cast<std::size_t>(-1)) return {};
    result.resize(result.size() - room);
    return result;
  }

  iconv_t to_ = opened("CP932", "UTF-16LE");
  iconv_t from_ = opened("UTF-16LE", "CP932");
};

#endif

bool isSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

TEST(CharacterWidth, WhatTakesTwoBytesInTheFontsCodePageIsFullWidth) {
  const CodePage932 page;
  int signs = 0;
  for (char32_t character = 0x80; character < 0x10000; ++character) {
    if (isSurrogate(character)) continue;
    const std::size_t bytes = page.bytesOf(static_cast<char16_t>(character));
    if (bytes == 0) continue;
    EXPECT_EQ(isFullWidth(character), bytes == 2) << std::hex << static_cast<unsigned>(character);
    signs += bytes == 2 && character < 0x2E80 ? 1 : 0;
  }
  EXPECT_EQ(signs, 274);  // the tables were there
}

// Nothing else below the East Asian blocks is: their neighbours are half as wide.
TEST(CharacterWidth, WhatTheCodePageLacksIsHalfWidthAmongSignsAndLetters) {
  const CodePage932 page;
  for (char32_t character = 0x80; character < 0x2E80; ++character) {
    const bool isKorean = character >= 0x1100 && character <= 0x115F;
    if (isKorean || page.bytesOf(static_cast<char16_t>(character)) != 0) continue;
    EXPECT_FALSE(isFullWidth(character)) << std::hex << static_cast<unsigned>(character);
  }
}

TEST(CharacterWidth, HalfWidthKanaAndAsciiAreHalfWidth) {
  for (char32_t kana = 0xFF61; kana <= 0xFF9F; ++kana) EXPECT_FALSE(isFullWidth(kana)) << static_cast<unsigned>(kana);
  for (char32_t letter = 0; letter < 0x80; ++letter) EXPECT_FALSE(isFullWidth(letter)) << static_cast<unsigned>(letter);
}

}  // namespace
}  // namespace mst
