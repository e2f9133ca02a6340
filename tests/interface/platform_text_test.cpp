// Texts between UTF-8, UTF-16 and the narrow encoding of the system.
#include <gtest/gtest.h>

#include <string>

#include "host/platform.h"

namespace platform {
namespace {

TEST(Utf16, HoldsCharactersOfEveryLength) {
  EXPECT_EQ(utf16FromUtf8("a\xC3\xA9\xE7\x9B\xAE\xF0\x9F\xA6\x8E"), u"a\u00E9\u76EE\U0001F98E");
  EXPECT_EQ(utf16FromUtf8(""), u"");
}

#if !defined(_WIN32)
// Windows counts the bytes of a broken sequence in its own way.
struct BrokenText {
  const char* name;
  const char* utf8;
  const char16_t* utf16;
};

class BrokenUtf8 : public testing::TestWithParam<BrokenText> {};

INSTANTIATE_TEST_SUITE_P(Forms, BrokenUtf8,
                         testing::Values(BrokenText{"LoneContinuation", "\x80z", u"\uFFFDz"},
                                         BrokenText{"NoLead", "\xFFz", u"\uFFFDz"},
                                         BrokenText{"CutShort", "\xE7\x9B", u"\uFFFD\uFFFD"},
                                         BrokenText{"WrongContinuation", "\xE7zz", u"\uFFFDzz"},
                                         BrokenText{"LongerThanNeeded", "\xC0\x80", u"\uFFFD\uFFFD"},
                                         BrokenText{"HalfOfAPair", "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
                                         BrokenText{"OtherHalfOfAPair", "\xED\xBF\xBF", u"\uFFFD\uFFFD\uFFFD"},
                                         BrokenText{"BeforeThePairs", "\xED\x9F\xBF", u"\uD7FF"},
                                         BrokenText{"BehindThePairs", "\xEE\x80\x80", u"\uE000"},
                                         BrokenText{"BeyondUnicode", "\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}),
                         [](const testing::TestParamInfo<BrokenText>& info) { return std::string(info.param.name); });

TEST_P(BrokenUtf8, HasAReplacementForEachByteThatBelongsToNoCharacter) {
  EXPECT_EQ(utf16FromUtf8(GetParam().utf8), GetParam().utf16);
}

TEST(Narrow, IsUtf8OfEveryLength) {
  EXPECT_EQ(narrowFromUtf16(u"a\u00E9\u76EE\U0001F98E"), "a\xC3\xA9\xE7\x9B\xAE\xF0\x9F\xA6\x8E");
}

TEST(Narrow, TakesHalfAPairForACharacter) {
  const std::u16string high(1, 0xD83E);
  const std::u16string low(1, 0xDD8E);
  EXPECT_EQ(narrowFromUtf16(high), "\xED\xA0\xBE");
  EXPECT_EQ(narrowFromUtf16(high + u"z"), "\xED\xA0\xBEz");
  EXPECT_EQ(narrowFromUtf16(low + u"z"), "\xED\xB6\x8Ez");
  EXPECT_EQ(narrowFromUtf16(high + high), "\xED\xA0\xBE\xED\xA0\xBE");
}
#endif

TEST(ExactNarrow, IsNothingForWhatIsNoText) {
  EXPECT_EQ(exactNarrow("plain"), "plain");
  EXPECT_EQ(exactNarrow("broken\xFF"), std::nullopt);
  EXPECT_EQ(exactNarrow("half\xED\xA0\x80"), std::nullopt);
}

}  // namespace
}  // namespace platform
