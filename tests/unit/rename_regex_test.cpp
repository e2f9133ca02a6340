// Replacement by regular expression under hostile patterns and names: whatever comes, it ends, soon and politely.
#include <gtest/gtest.h>

#if defined(_WIN32)
#include <windows.h>
#else
#include <pthread.h>
#endif

#include <functional>
#include <ostream>
#include <regex>
#include <string>
#include <vector>

#include "modeler/renamer/regex_replace.h"

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
                      mst::StepBudget budget = {}) {
  try {
    CRegexReplacement(pattern, format, budget).replaced(text);
  } catch (const std::regex_error& failure) {
    if (failure.code() == code::error_space) return "space";
    if (failure.code() == code::error_complexity) return "complexity";
    if (failure.code() == code::error_stack) return "stack";
    return "invalid";
  }
  return "none";
}
std::string thrownFor(const std::string& pattern, const std::string& text) { return thrownFor(pattern, "x", text); }

// Runs an action on a stack as small as that of the host's main thread on Windows.
constexpr std::size_t kHostStack = 1'048'576;
using Action = std::function<void()>;
#if defined(_WIN32)
DWORD WINAPI act(void* action) {
  (*static_cast<Action*>(action))();
  return 0;
}
void onTheHostsStack(Action action) {
  const HANDLE thread = CreateThread(nullptr, kHostStack, act, &action, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
  ASSERT_NE(thread, nullptr);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
}
#else
void* act(void* action) {
  (*static_cast<Action*>(action))();
  return nullptr;
}
void onTheHostsStack(Action action) {
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, kHostStack);
  pthread_t thread;
  ASSERT_EQ(pthread_create(&thread, &attributes, act, &action), 0);
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}
#endif

const std::string kLongText(mst::kLongestName, 'a');

// ---------------------------------------------------------------------------------------------------------------------
// What is replaced

TEST(RegexReplacement, IsThatOfTheStandardLibrary) {
  for (const char* pattern : {"a", "(a)(b)?", "b*", "^a", "a$", "\\bab", "[^a]+", "(?:a|b)c", "(?=b)", "(a)\\1", "a{2,3}"}) {
    for (const char* format : {"", "x", "<$&>", "$1$2", "$`.$'", "$$1", "$", "$9"}) {
      for (const char* text : {"", "a", "ab", "aab abc", "caab", "\xE8\x85\x95", "\xFF\xFE"}) {
        EXPECT_EQ(replaced(pattern, format, text), std::regex_replace(std::string(text), std::regex(pattern), format))
            << pattern << " " << format << " " << text;
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
  // Two texts of 100: what the first leaves, the second may take.
  CRegexReplacement replacement("b", "x", {1'000, 100});
  EXPECT_EQ(replacement.replaced(std::string(100, 'a')).size(), 100U);
  EXPECT_THROW(replacement.replaced(std::string(400, 'a')), std::regex_error);
}

TEST(RegexLimits, LetTheUsualPatternsThroughOnNamesThatAreLongAlready) {
  const std::string name = std::string(100, 'a') + "_L" + std::string(100, 'b');
  EXPECT_EQ(replaced("(.*)_L(.*)", "$1_R$2", name), std::string(100, 'a') + "_R" + std::string(100, 'b'));
}

// ---------------------------------------------------------------------------------------------------------------------
// Hostile patterns. Each would overflow the stack of the host or run for years.

struct Hostile {
  std::string what;
  std::string pattern;
  std::string text;
  std::string expected;  // what is thrown
};
void PrintTo(const Hostile& hostile, std::ostream* out) { *out << hostile.what; }

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
      {"as many copies of nothing as a pattern takes", "(|){166}", "a", "complexity"},
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

TEST_P(HostilePattern, Ends) {
  constexpr mst::StepBudget kSmall = {200'000, 800'000};  // the same sooner, for a test that is not optimised
  std::string thrown;
  onTheHostsStack([&] { thrown = thrownFor(GetParam().pattern, "", GetParam().text, kSmall); });
  // Where the library itself may be quicker than its limit, or not, only the end counts.
  if (!GetParam().expected.empty()) {
    EXPECT_EQ(thrown, GetParam().expected);
  }
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
