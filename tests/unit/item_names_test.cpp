// The hand-written matchers against the patterns that they stand for.
#include "skelegon/item_names.h"

#include <gtest/gtest.h>

#include <random>
#include <regex>
#include <span>
#include <string>
#include <vector>

namespace skg {
namespace {

const std::regex& objectFilePattern() {
  static const std::regex pattern("^.*\\.lwo$");
  return pattern;
}

const std::regex& itemPattern() {
  static const std::regex pattern("^([^:]+):([^ ]+)( \\([0-9]+\\))?$");
  return pattern;
}

std::string groupByPattern(const std::string& name, int group) {
  std::smatch match;
  return std::regex_match(name, match, itemPattern()) ? match[static_cast<std::size_t>(group)].str() : std::string();
}

// A text of pieces that come close to matching, in any order.
std::string randomText(std::minstd_rand& random, std::span<const std::string> pieces) {
  std::string text;
  for (auto count = random() % 9; count > 0; --count) text += pieces[random() % pieces.size()];
  return text;
}

std::string shown(const std::string& text) { return testing::PrintToString(text); }

constexpr std::size_t kLong = 65536;

TEST(IsObjectFileName, IsJustWhatThePatternMatches) {
  const std::vector<std::string> pieces{
      // clang-format off
      ".lwo", ".lwo", ".lwo", "lwo", ".", ".LWO", "a", "/", "\\", "\n", "\r", " ", "", "\t", ":", ".lw", "\x83", "o",
      std::string(1, '\0'),
      // clang-format on
  };
  std::minstd_rand random(1);
  int matches = 0;
  for (int run = 0; run < 20000; ++run) {
    const std::string name = randomText(random, pieces);
    const bool expected = std::regex_match(name, objectFilePattern());
    ASSERT_EQ(isObjectFileName(name), expected) << shown(name);
    matches += expected ? 1 : 0;
  }
  EXPECT_GT(matches, 1000);
}

TEST(IsObjectFileName, DoesNotTakeUpperCaseOrAFurtherExtension) {
  EXPECT_TRUE(isObjectFileName("C:\\Objects\\Robot.lwo"));
  EXPECT_TRUE(isObjectFileName(".lwo"));
  EXPECT_FALSE(isObjectFileName("Robot.LWO"));
  EXPECT_FALSE(isObjectFileName("Robot.lwo.bak"));
  EXPECT_FALSE(isObjectFileName(""));
}

TEST(IsObjectFileName, AnswersForLongTexts) {
  EXPECT_TRUE(isObjectFileName(std::string(kLong, 'a') + ".lwo"));
  EXPECT_FALSE(isObjectFileName(std::string(kLong, '.')));
}

TEST(SplitItemName, GivesJustTheGroupsOfThePattern) {
  const std::vector<std::string> pieces{"a",    "b",  ":",  ":", " ",  "(",    ")", " (1)", " (23)", " ()",
                                        " (x)", "()", "\n", "2", "\t", "\x81", ")", "(1)",  "\r",    std::string(1, '\0')};
  std::minstd_rand random(2);
  int matches = 0;
  for (int run = 0; run < 40000; ++run) {
    const std::string name = randomText(random, pieces);
    ASSERT_EQ(splitItemName(name, 1), groupByPattern(name, 1)) << shown(name);
    ASSERT_EQ(splitItemName(name, 2), groupByPattern(name, 2)) << shown(name);
    matches += groupByPattern(name, 1).empty() ? 0 : 1;
  }
  EXPECT_GT(matches, 1000);
}

TEST(SplitItemName, DropsTheCounterOfADuplicate) {
  EXPECT_EQ(splitItemName("Robot:Arm (2)", 1), "Robot");
  EXPECT_EQ(splitItemName("Robot:Arm (2)", 2), "Arm");
}

TEST(SplitItemName, GivesNothingForANameWithoutAColon) {
  EXPECT_EQ(splitItemName("Arm", 1), "");
  EXPECT_EQ(splitItemName("Arm", 2), "");
}

TEST(SplitItemName, SplitsAtTheFirstColon) {
  EXPECT_EQ(splitItemName("a:b:c", 1), "a");
  EXPECT_EQ(splitItemName("a:b:c", 2), "b:c");
}

TEST(SplitItemName, AnswersForLongTexts) {
  const std::string part(kLong, 'a');
  EXPECT_EQ(splitItemName(part + ":" + part + " (" + std::string(kLong, '1') + ")", 2), part);
  EXPECT_EQ(splitItemName(std::string(kLong, ':'), 1), "");
  EXPECT_EQ(splitItemName("a:" + std::string(kLong, ' '), 2), "");
}

TEST(FileBaseName, IsWhatStandsBehindTheFolderAndBeforeTheLastDot) {
  EXPECT_EQ(fileBaseName("C:\\Objects\\Robot.v2.lwo"), "Robot.v2");
  EXPECT_EQ(fileBaseName("/home/rigger/objects.d/Robot.lwo"), "Robot");
  EXPECT_EQ(fileBaseName("Robot.lwo"), "Robot");
  EXPECT_EQ(fileBaseName("objects.d\\Robot"), "Robot");
  EXPECT_EQ(fileBaseName(".lwo"), "");
  EXPECT_EQ(fileBaseName("C:\\"), "");
  EXPECT_EQ(fileBaseName(""), "");
}

TEST(FileBaseName, AnswersForLongTexts) {
  const std::string name(kLong, 'a');
  EXPECT_EQ(fileBaseName(std::string(kLong, '\\') + name + ".lwo"), name);
}

}  // namespace
}  // namespace skg
