// Texts that are cut end with a whole character.
#include "texts/whole_text.h"

#include <gtest/gtest.h>

#include <string>

namespace varnel::test {
namespace {

// One to four bytes.
const std::string kText = "aß骨𠮷";

TEST(WholeText, EndsWithAWholeCharacterWhereverItIsCut) {
  const std::size_t ends[] = {0, 1, 1, 3, 3, 3, 6, 6, 6, 6, 10, 10};
  for (std::size_t most = 0; most < std::size(ends); ++most) {
    EXPECT_EQ(texts::cutAtCharacter(kText, most), kText.substr(0, ends[most])) << most;
  }
}

TEST(WholeText, LosesACharacterThatWasCut) {
  EXPECT_EQ(texts::withoutCutCharacter(kText.substr(0, 9)), "aß骨");
  EXPECT_EQ(texts::withoutCutCharacter(kText.substr(0, 5)), "aß");
  EXPECT_EQ(texts::withoutCutCharacter("\xE9"), "");
}

TEST(WholeText, StaysAsItIsWhenWhole) {
  EXPECT_EQ(texts::withoutCutCharacter(kText), kText);
  EXPECT_EQ(texts::withoutCutCharacter(""), "");
}

// Names in another encoding: what looks like the beginning of a character at their end is none.
TEST(WholeText, StaysAsItIsWhenItIsNoUtf8) {
  for (const std::string text : {"\x8D\x98\xE3", "\xFF\xFE", "a\x80\xE9", "\xC0\xE9", "\xE9z\xE9"}) {
    EXPECT_EQ(texts::withoutCutCharacter(text), text);
  }
}

TEST(WholeText, IsCutAtItsBytesWhenItIsNoUtf8) { EXPECT_EQ(texts::cutAtCharacter("\x8D\x98\x8D\x98", 3), "\x8D\x98\x8D"); }

}  // namespace
}  // namespace varnel::test
