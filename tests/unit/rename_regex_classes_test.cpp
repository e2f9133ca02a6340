// Patterns with classes of characters and counted repetitions, in all their forms: the walk over a pattern that judges its
// size must neither stop at a sound one nor run past the end of a broken one.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <locale>
#include <ostream>
#include <regex>
#include <string>

#include "modeler/renamer/regex_replace.h"

namespace varnel::test {
namespace {

struct ClassRow {
  const char* pattern;
  const char* text;
  const char* expected;  // every match replaced by "-"
};
void PrintTo(const ClassRow& row, std::ostream* out) { *out << row.pattern; }

class PatternClass : public testing::TestWithParam<ClassRow> {};

INSTANTIATE_TEST_SUITE_P(Forms, PatternClass,
                         testing::Values(ClassRow{R"([\]b])", "a]bc", "a--c"}, ClassRow{"[^b]", "abc", "-b-"},
                                         ClassRow{"[[:digit:]]", "a1b22", "a-b--"}, ClassRow{"[[:alpha:]_]", "a_1", "--1"},
                                         ClassRow{"[[.a.]]", "abc", "-bc"}, ClassRow{"[[=a=]]", "abc", "-bc"},
                                         ClassRow{"[[a]", "[ab", "--b"}, ClassRow{"a{2}", "aaa", "-a"},
                                         ClassRow{"a{2,}b", "aaab", "-"}, ClassRow{"a{1,2}", "aaa", "--"}));

TEST_P(PatternClass, MatchesAsTheLibraryMatches) {
  EXPECT_EQ(mst::CRegexReplacement(GetParam().pattern, "-").replaced(GetParam().text), GetParam().expected);
  EXPECT_EQ(std::regex_replace(GetParam().text, std::regex(GetParam().pattern), "-"), GetParam().expected);
}

// Counts the bytes of a Japanese letter among the letters, as locales of one byte for each character do.
class WideLetters : public std::ctype<char> {
 public:
  WideLetters() : std::ctype<char>(table().data()) {}

 private:
  static std::array<mask, table_size>& table() {
    static std::array<mask, table_size> masks = [] {
      std::array<mask, table_size> made{};
      std::copy_n(classic_table(), table_size, made.begin());
      for (const std::size_t letter : {0xE3U, 0x81U, 0x82U}) made[letter] = static_cast<mask>(made[letter] | alpha);
      return made;
    }();
    return masks;
  }
};

TEST(PatternClassInAnotherLocale, HoldsTheSameCharacters) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new WideLetters));
  const std::string renamed = mst::CRegexReplacement("[[:alpha:]]", "-").replaced("aあ1");
  std::locale::global(before);
  EXPECT_EQ(renamed, "-あ1");
}

class BrokenPatternClass : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Forms, BrokenPatternClass,
                         testing::Values("[", "[a", "[a\\", "[[:digit", "[[:digit:", "[[:digit:x]", "[[:nothing:]]", "[[.a",
                                         "[[.a.", "[[=a", "[[=a=x]", "a{", "a{2", "a{2,", "a{2,3", "a{2x}", "a{2,x}"));

TEST_P(BrokenPatternClass, IsRefusedAsTheLibraryRefusesIt) {
  EXPECT_THROW(std::regex{GetParam()}, std::regex_error);
  EXPECT_THROW(mst::CRegexReplacement(GetParam(), "-").replaced("abc"), std::regex_error);
}

}  // namespace
}  // namespace varnel::test
