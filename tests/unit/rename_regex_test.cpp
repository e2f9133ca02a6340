// Replacement by regular expression under hostile patterns and names: whatever comes, it ends, soon and politely.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <regex>
#include <string>
#include <vector>

#include "modeler/renamer/deep_stack.h"
#include "modeler/renamer/regex_replace.h"
#include "texts/utf8.h"

namespace varnel::test {
namespace {

using mst::CRegexReplacement;
namespace code = std::regex_constants;

std::string repeated(std::string_view text, std::size_t times) {
  std::string result;
  for (std::size_t i = 0; i < times; ++i) result += text;
  return result;
}

std::string replaced(const std::string& pattern, const std::string& format, const std::string& text) {
  return CRegexReplacement(pattern, format).replaced(text);
}

// What is thrown; "none" where nothing is.
std::string thrownFor(const std::string& pattern, const std::string& format, const std::string& text,
                      mst::StepBudget budget = {}, std::size_t stack = mst::kDeepestMatch) {
  try {
    CRegexReplacement replacement(pattern, format, budget);
    replacement.useStack(stack);
    replacement.replaced(text);
  } catch (const std::regex_error& failure) {
    if (failure.code() == code::error_space) return "space";
    if (failure.code() == code::error_complexity) return "complexity";
    if (failure.code() == code::error_stack) return "stack";
    return "invalid";
  }
  return "none";
}
std::string thrownFor(const std::string& pattern, const std::string& text) { return thrownFor(pattern, "x", text); }

// The stack of the host's main thread on Windows.
constexpr std::size_t kHostStack = 1'048'576;
const std::string kLongText(mst::kLongestName, 'a');

// ---------------------------------------------------------------------------------------------------------------------
// What is replaced

TEST(RegexReplacement, IsThatOfTheStandardLibrary) {
  for (const char* pattern : {"a", "(a)(b)?", "b*", "^a", "a$", "\\bab", "[^a]+", "(?:a|b)c", "(?=b)", "(a)\\1", "a{2,3}"}) {
    for (const char* format : {"", "x", "<$&>", "$1$2", "$`.$'", "$$1", "$", "$9"}) {
      for (const char* text : {"", "a", "ab", "aab abc", "caab", "\xE8\x85\x95", "\xFF\xFE"}) {
        const std::string expected = std::regex_replace(std::string(text), std::regex(pattern), format);
        if (texts::isUtf8(text) && !texts::isUtf8(expected)) continue;  // refused
        EXPECT_EQ(replaced(pattern, format, text), expected) << pattern << " " << format << " " << text;
      }
    }
  }
}

TEST(RegexReplacement, TakesManyTexts) {
  CRegexReplacement replacement("_L", "_R");
  for (int i = 0; i < 1'000; ++i) EXPECT_EQ(replacement.replaced("Arm_L_01"), "Arm_R_01");
}

TEST(RegexReplacement, LooksThroughALongName) { EXPECT_EQ(replaced("_L", "_R", kLongText), kLongText); }

TEST(RegexReplacement, SaysWhatIsWrongInTheWordsOfTheLibrary) {
  std::string expected, actual;
  try {
    const std::regex invalid("(a");
  } catch (const std::regex_error& failure) {
    expected = failure.what();
  }
  try {
    replaced("(a", "", "a");
  } catch (const std::regex_error& failure) {
    actual = failure.what();
  }
  EXPECT_NE(expected, "");
  EXPECT_EQ(actual, expected);
}

class InvalidPattern : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(RegexReplacement, InvalidPattern,
                         testing::Values("(", ")", "(a", "a)", "[", "[a", "[z-a]", "a{2", "a{2,1}", "*", "+", "a**b(", "\\",
                                         "(?", "(?<a)", "[[:nothing:]]", "[[.nothing.]]", "\\1", "(a\\1)", "{1}", "a{,2}",
                                         "a{99999999999}", "[[:alpha]", "[[:alpha:]"));

TEST_P(InvalidPattern, IsThrown) { EXPECT_NE(thrownFor(GetParam(), "abc"), "none"); }

// ---------------------------------------------------------------------------------------------------------------------
// Limits

TEST(RegexLimits, OfTheTextsLength) {
  EXPECT_EQ(thrownFor("b", std::string(mst::kLongestName - 1, 'a')), "none");
  EXPECT_EQ(thrownFor("b", std::string(mst::kLongestName, 'a')), "none");
  EXPECT_EQ(thrownFor("b", std::string(mst::kLongestName + 1, 'a')), "space");
}

TEST(RegexLimits, OfTheResultsLength) {
  const std::string text(1'000, 'a');
  EXPECT_EQ(thrownFor("^a", std::string(mst::kLongestName - 1'000, 'x'), text), "none");
  EXPECT_EQ(thrownFor("^a", std::string(mst::kLongestName - 999, 'x'), text), "none");
  EXPECT_EQ(thrownFor("^a", std::string(mst::kLongestName - 998, 'x'), text), "space");
}

TEST(RegexLimits, OfThePatternsLength) {
  EXPECT_EQ(thrownFor(std::string(mst::kLongestPattern - 1, 'a'), "b"), "none");
  EXPECT_EQ(thrownFor(std::string(mst::kLongestPattern, 'a'), "b"), "none");
  EXPECT_EQ(thrownFor(std::string(mst::kLongestPattern + 1, 'a'), "b"), "space");
}

std::string groupsWithin(int depth) {
  const auto count = static_cast<std::size_t>(depth);
  return repeated("(", count) + "a" + repeated(")", count);
}

TEST(RegexLimits, OfGroupsWithinGroups) {
  EXPECT_EQ(thrownFor(groupsWithin(mst::kDeepestGroups - 1), "a"), "none");
  EXPECT_EQ(thrownFor(groupsWithin(mst::kDeepestGroups), "a"), "none");
  EXPECT_EQ(thrownFor(groupsWithin(mst::kDeepestGroups + 1), "a"), "stack");
}

TEST(RegexLimits, OfCopies) {
  // A copy of a character counts with the two states of its repetition.
  EXPECT_EQ(thrownFor("a{332}", "a"), "none");
  EXPECT_EQ(thrownFor("a{333}", "a"), "none");
  EXPECT_EQ(thrownFor("a{334}", "a"), "space");
}

TEST(RegexLimits, OfWaysToAReference) {
  EXPECT_EQ(thrownFor("(a)" + repeated("b?", mst::kMostChoicesBeforeReference - 1) + "\\1", "aa"), "none");
  EXPECT_EQ(thrownFor("(a)" + repeated("b?", mst::kMostChoicesBeforeReference) + "\\1", "aa"), "none");
  EXPECT_EQ(thrownFor("(a)" + repeated("b?", mst::kMostChoicesBeforeReference + 1) + "\\1", "aa"), "complexity");
}

TEST(RegexLimits, OfSteps) {
  CRegexReplacement replacement("b", "x", {.reserve = 0, .perText = 1'000, .perPairOfBytes = 0});
  EXPECT_EQ(replacement.replaced(std::string(100, 'a')).size(), 100U);
  EXPECT_THROW(replacement.replaced(std::string(400, 'a')), mst::CTextRefused);
}

TEST(RegexLimits, OfStepsGrowWithThePairsOfBytes) {
  CRegexReplacement replacement("b", "x", {.reserve = 0, .perText = 0, .perPairOfBytes = 1, .mostForPairs = 1'000});
  EXPECT_EQ(replacement.replaced(std::string(30, 'a')).size(), 30U);
  EXPECT_THROW(replacement.replaced(std::string(600, 'a')), mst::CTextRefused);
}

TEST(RegexLimits, OfStepsHaveAReserveThatIsUsedUpOnce) {
  CRegexReplacement replacement("b", "x", {.reserve = 1'500, .perText = 100, .perPairOfBytes = 0});
  EXPECT_EQ(replacement.replaced(std::string(100, 'a')).size(), 100U);
  EXPECT_EQ(replacement.replaced(std::string(100, 'a')).size(), 100U);
  EXPECT_THROW(for (int i = 0; i < 10; ++i) replacement.replaced(std::string(100, 'a')), mst::CTextRefused);
}

// What one text leaves of its own steps is not for others: a bad pattern would run on with what thousands of names have left.
TEST(RegexLimits, OfStepsAreNotSavedUp) {
  CRegexReplacement replacement("(a*)*b", "x", {.reserve = 0, .perText = 1'000, .perPairOfBytes = 0});
  for (int i = 0; i < 1'000; ++i) EXPECT_EQ(replacement.replaced("c"), "c");
  EXPECT_THROW(replacement.replaced(std::string(12, 'a')), mst::CTextRefused);
}

TEST(RegexLimits, OfThePatternAreNoneOfATexts) {
  try {
    replaced("a{50000}", "x", "a");
    ADD_FAILURE() << "nothing was thrown";
  } catch (const mst::CTextRefused&) {
    ADD_FAILURE() << "the text is to blame";
  } catch (const std::regex_error&) {
  }
}

TEST(RegexLimits, LetTheUsualPatternsThroughOnNamesThatAreLongAlready) {
  const std::string name = std::string(100, 'a') + "_L" + std::string(100, 'b');
  EXPECT_EQ(replaced("(.*)_L(.*)", "$1_R$2", name), std::string(100, 'a') + "_R" + std::string(100, 'b'));
}

// ---------------------------------------------------------------------------------------------------------------------
// Everyday patterns, which must do on any name

struct Everyday {
  std::string pattern;
  std::string format;
  std::string text;
  std::string expected;
};
void PrintTo(const Everyday& everyday, std::ostream* out) {
  *out << everyday.pattern << " on " << everyday.text.size() << " bytes";
}

std::vector<Everyday> everydayPatterns() {
  std::vector<Everyday> all;
  for (const std::size_t size : {120U, 1'000U}) {
    const std::string body = repeated("Bone", size / 4);
    const std::string left = body + "_L";
    const std::string numbered = body + "_01";
    const std::string right = body + "_R_Up";
    all.push_back({"(.*)_L(.*)", "$1_R$2", body, body});
    all.push_back({"(.*)_L(.*)", "$1_R$2", left, body + "_R"});
    all.push_back({"(.*)_L$", "$1_R", body, body});
    all.push_back({"(.*)_L$", "$1_R", left, body + "_R"});
    all.push_back({"^(\\w+)_(\\d+)$", "$2_$1", numbered, "01_" + body});
    all.push_back({"(\\D*)(\\d+)", "$2$1", body, body});
    all.push_back({"(\\D*)(\\d+)", "$2$1", numbered, "01" + body + "_"});
    all.push_back({"(.*?)_R(.*?)$", "$1_L$2", body, body});
    all.push_back({"(.*?)_R(.*?)$", "$1_L$2", right, body + "_L_Up"});
    all.push_back({"(a|b|_|[0-9])*$", "x", repeated("a1_b", size / 4), "xx"});
    all.push_back({"(.*)_L(.*)", "$1_R$2", repeated("腕", size / 3) + "_L", repeated("腕", size / 3) + "_R"});
  }
  return all;
}

class EverydayPattern : public testing::TestWithParam<Everyday> {};
INSTANTIATE_TEST_SUITE_P(RegexReplacement, EverydayPattern, testing::ValuesIn(everydayPatterns()));

constexpr std::size_t kLargeStack = 268'435'456;

TEST_P(EverydayPattern, DoesOnAStackOfItsOwn) {
  const auto& [pattern, format, text, expected] = GetParam();
  CRegexReplacement replacement(pattern, format);
  replacement.useStack(kLargeStack / 2);
  std::string result;
  ASSERT_TRUE(mst::runOnStack(kLargeStack, [&, &text = text] { result = replacement.replaced(text); }));
  EXPECT_EQ(result, expected);
}

TEST(StackOfItsOwn, HandsOnWhatIsThrown) {
  EXPECT_THROW(mst::runOnStack(kLargeStack, [] { throw mst::CTextRefused(texts::NameRefusal::Broken, code::error_ctype); }),
               mst::CTextRefused);
}

TEST(StackOfItsOwn, IsAsLargeAsItWasAskedFor) {
  const auto touch = [] {
    volatile char place[kLargeStack / 4];
    place[0] = 1;
    place[sizeof place - 1] = place[0];
  };
  EXPECT_TRUE(mst::runOnStack(kLargeStack, touch));
}

// ---------------------------------------------------------------------------------------------------------------------
// Bytes

TEST(RegexBytes, OfHalfALetterAreNoName) {
  EXPECT_THROW(replaced("^.", "x", "腕"), mst::CTextRefused);
  EXPECT_THROW(replaced("(.)$", "", "Arm腕"), mst::CTextRefused);
}

TEST(RegexBytes, OfWholeLettersAreReplaced) { EXPECT_EQ(replaced("^...", "x", "腕_L"), "x_L"); }

TEST(RegexBytes, OfATextThatIsNoUtf8StayFree) { EXPECT_EQ(replaced("^.", "x", "\x98\x72"), "x\x72"); }

// ---------------------------------------------------------------------------------------------------------------------
// Hostile patterns. Each would overflow the stack of the host or run for years.

struct Hostile {
  std::string what;
  std::string pattern;
  std::string text;
  std::string expected;  // what is thrown, or "one or other"
};
void PrintTo(const Hostile& hostile, std::ostream* out) { *out << hostile.what; }

const char* const kCopiesOfNothing = "(|){166}";  // as many as a pattern takes

std::vector<Hostile> hostilePatterns() {
  const std::string some(40, 'a');
  return {
      {"a star over a long name", ".*", kLongText, "stack"},
      {"the default pattern over a long name", "(.*)_L(.*)", kLongText, "stack"},
      {"a class over a long name", "[a-z]*b", kLongText, "stack"},
      {"a lazy star over a long name", "a*?b", kLongText, "stack"},
      {"a group that repeats over a long name", "(?:ab|a)*", kLongText, "stack"},
      {"a reference over a long name", "(a*)\\1b", kLongText, "stack"},
      {"a look ahead over a long name", "(?=.*b)a", kLongText, "stack"},
      {"a star in a star", "(a*)*b", some, "complexity"},
      {"a plus in a plus", "(a+)+$b", some, "complexity"},
      {"equal alternatives", "(a|a)*b", some, "complexity"},
      {"stars four deep", "((((a*)*)*)*)*b", some, "complexity"},
      {"a lazy star in a lazy star", "(a*?)*?b", some, "complexity"},
      {"a star in a star, looked ahead", "(?=(a*)*b)a", some, "complexity"},
      {"many optional characters", repeated("a?", 60) + repeated("a", 60), std::string(60, 'a'), "complexity"},
      {"optional copies", "(a?){60}a{60}", std::string(60, 'a'), "complexity"},
      {"empty alternatives", repeated("(|)", 200) + "b", "a", ""},
      {"empty alternatives before an end", repeated("(?:|)", 90) + "$", "ab", ""},
      {"empty alternatives before a word's end", repeated("(?:|)", 90) + "\\B", "a", ""},
      {"empty alternatives before nothing", repeated("(?:|)", 90) + "(?!)", "a", ""},
      {"empty alternatives before a reference", "(?:(x)|" + repeated("(?:|)", 60) + "\\1)", "a", "complexity"},
      {"empty copies before a reference", "(?:(x)|(?:|){60}\\1)", "a", "complexity"},
      {"optional copies before a reference", "(?:(x)|(){0,60}\\1)", "a", "complexity"},
      {"very many copies", "a{50000}", "a", "space"},
      {"copies of copies", "(a?){1000}{1000}", "a", "space"},
      {"copies of copies of groups", "(((a{100}){100}){100}){100}", "a", "space"},
      {"copies of nothing", "(){100000}", "a", "space"},
      {"at least very many", "a{100000,}", "a", "space"},
      {"none up to very many", "a{0,100000}", "a", "space"},
      {"copies that are never closed", "((a{1000}){1000}){1000}(", "a", "space"},
      {"copies behind a class that hides a parenthesis", "([)]{1000}){1000}", "a", "space"},
      {"copies behind a named class", "([[:alpha:])]{1000}){1000}", "a", "space"},
      {"copies behind an escaped parenthesis", "(\\){1000}){1000}", "a", "space"},
      {"a count beyond all numbers", "a{99999999999999999999}", "a", "space"},
      {"groups within groups", groupsWithin(480), "a", "stack"},
      {"open groups only", repeated("(", 900), "a", "stack"},
      {"look ahead within look ahead", repeated("(?=", 240) + repeated(")", 240), "a", "stack"},
      {"the longest pattern", std::string(mst::kLongestPattern, 'a'), "a", "none"},
      {"as many empty alternatives as a pattern takes", repeated("|", 499), "a", "none"},
      {"as many copies of nothing as a pattern takes", kCopiesOfNothing, "a", "complexity or stack"},
      {"as many open look aheads as a pattern takes", repeated("(?=", 100) + repeated(")", 100), "a", "none"},
      {"a deep match behind many empty alternatives", repeated("(|)", 150) + ".*b", kLongText, "stack"},
      {"a pattern without end", std::string(1'000'000, 'a'), "a", "space"},
      {"classes without end", repeated("[a-z]", 200), kLongText, "none"},
      {"references without end", "(a)" + repeated("\\1", 200), kLongText, "none"},
      {"look ahead at every place", "(?=a)a", kLongText, "none"},
  };
}

class HostilePattern : public testing::TestWithParam<Hostile> {};
INSTANTIATE_TEST_SUITE_P(RegexReplacement, HostilePattern, testing::ValuesIn(hostilePatterns()));

constexpr mst::StepBudget kSmallBudget = {200'000, 800'000, 0};  // the same sooner, for a test that is not optimised

TEST_P(HostilePattern, Ends) {
  std::string thrown;
  ASSERT_TRUE(
      mst::runOnStack(kHostStack, [&] { thrown = thrownFor(GetParam().pattern, "", GetParam().text, kSmallBudget); }));
  // Where the library itself may be quicker than its limit, or not, only the end counts.
  if (!GetParam().expected.empty()) {
    EXPECT_THAT(GetParam().expected, testing::HasSubstr(thrown));
  }
}

// Which runs out first on the host's stack, steps or stack, depends on the frames that the compiler makes.
TEST(HostilePatterns, OfCopiesOfNothingEndByTheirStepsWhereThereIsStackEnough) {
  std::string thrown;
  ASSERT_TRUE(
      mst::runOnStack(kLargeStack, [&] { thrown = thrownFor(kCopiesOfNothing, "", "a", kSmallBudget, kLargeStack / 2); }));
  EXPECT_EQ(thrown, "complexity");
}

TEST(HostilePatterns, EndAlsoWithTheWholeBudget) { EXPECT_EQ(thrownFor("(a*)*b", std::string(64, 'a')), "complexity"); }

TEST(HostileFormats, CannotMakeANameThatFillsTheMemory) {
  EXPECT_EQ(thrownFor("a", repeated("$'", 2'000), std::string(2'000, 'a')), "space");
  EXPECT_EQ(thrownFor("(a+)", repeated("$1", 2'000), std::string(100, 'a')), "space");
}

TEST(HostileFormats, WithOddDollarsAreTakenAsTheLibraryTakesThem) {
  EXPECT_EQ(replaced("(a)", "$", "a"), "$");
  EXPECT_EQ(replaced("(a)", "$x$", "a"), "$x$");
  EXPECT_EQ(replaced("(a)", "%s%n", "a"), "%s%n");
}

}  // namespace
}  // namespace varnel::test
