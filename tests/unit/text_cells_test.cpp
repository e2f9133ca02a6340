// Characters and cells of texts, valid or not.
#include "modeler/selector/text_cells.h"

#include <gtest/gtest.h>

#include <string>

namespace mst {
namespace {

std::u32string charactersOf(std::string_view text) {
  std::u32string characters;
  while (!text.empty()) characters += takeCell(text).character;
  return characters;
}

TEST(TextCells, PlainTextIsOneCellEach) {
  EXPECT_EQ(charactersOf("Bone 1"), U"Bone 1");
  EXPECT_EQ(cellsOf("Bone 1"), 6);
  EXPECT_EQ(cellsOf(""), 0);
}

TEST(TextCells, JapaneseIsTwoCellsEach) {
  EXPECT_EQ(charactersOf("腰ボーン"), U"腰ボーン");
  EXPECT_EQ(cellsOf("腰ボーン"), 8);
}

TEST(TextCells, HalfWidthKanaAreOneCellEach) { EXPECT_EQ(cellsOf("ﾎﾞｰﾝ"), 4); }
TEST(TextCells, LettersBeyondAsciiAreOneCellEach) { EXPECT_EQ(cellsOf("Höftené"), 7); }
TEST(TextCells, SignsOfTheFontsCodePageAreTwoCellsEach) { EXPECT_EQ(cellsOf("①Ⅳ→★※"), 10); }
TEST(TextCells, GreekAndCyrillicAreTwoCellsEach) { EXPECT_EQ(cellsOf("αΩжЁ"), 8); }
TEST(TextCells, CharactersOfTheUsersOwnAreTwoCellsEach) { EXPECT_EQ(cellsOf("\xEE\x80\x80"), 2); }

TEST(TextCells, CharactersOfFourBytesAreOne) {
  EXPECT_EQ(charactersOf("\xF0\xA0\xAE\xB7"), U"\U00020BB7");
  EXPECT_EQ(cellsOf("\xF0\xA0\xAE\xB7"), 2);
}

TEST(TextCells, ZeroIsACharacterLikeAnyOther) {
  EXPECT_EQ(charactersOf(std::string_view("a\0b", 3)), std::u32string(U"a\0b", 3));
}

// One question mark for each byte: cut short, too long a form, surrogates, beyond the last character, bytes that begin
// nothing.
TEST(TextCells, BytesThatAreNoTextAreQuestionMarks) {
  for (const char* const broken : {"\xE8\x85", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF\xFE",
                                   "\x80\xBF", "\xF0\x80\x80\x80", "\xF8\x88\x80\x80\x80", "\xC3"}) {
    const std::string text = broken;
    EXPECT_EQ(charactersOf(text), std::u32string(text.size(), U'?')) << testing::PrintToString(text);
    EXPECT_EQ(cellsOf(text), static_cast<int>(text.size()));
  }
}

TEST(TextCells, AfterABrokenByteTheTextGoesOn) { EXPECT_EQ(charactersOf("a\xE8\x85z腰"), U"a??z腰"); }

TEST(TextCells, EveryCharacterComesBack) {
  for (char32_t character = 1; character <= 0x10FFFF; character += character < 0x3000 ? 1 : 37) {
    if (character >= 0xD800 && character <= 0xDFFF) continue;
    std::string bytes;
    const auto put = [&](char32_t value) { bytes += static_cast<char>(static_cast<unsigned char>(value)); };
    if (character < 0x80) {
      put(character);
    } else if (character < 0x800) {
      put(0xC0 | character >> 6), put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
      put(0xE0 | character >> 12), put(0x80 | (character >> 6 & 0x3F)), put(0x80 | (character & 0x3F));
    } else {
      put(0xF0 | character >> 18), put(0x80 | (character >> 12 & 0x3F)), put(0x80 | (character >> 6 & 0x3F)),
          put(0x80 | (character & 0x3F));
    }
    ASSERT_EQ(charactersOf(bytes), std::u32string(1, character));
  }
}

}  // namespace
}  // namespace mst
