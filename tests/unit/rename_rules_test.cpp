// The name rule, as a table, and the simple modes.
#include "modeler/renamer/rename_rules.h"

#include <gtest/gtest.h>

#include <ostream>
#include <regex>
#include <vector>

namespace varnel::test {
namespace {

using mst::CNameRule;
using mst::CSimpleRule;
using mst::RenameMode;
using skg::Slot;

// Settings, written as a rigger would say them.
class Rule {
 public:
  Rule() = default;
  Rule& replace(const char* from, const char* to) {
    s.replaceOn = true;
    s.replaceFrom = from;
    s.replaceTo = to;
    return *this;
  }
  Rule& base(const char* name) {
    s.baseNameOn = true;
    s.baseName = name;
    return *this;
  }
  Rule& prefix(const char* text) {
    s.prefixOn = true;
    s.prefix = text;
    return *this;
  }
  Rule& suffix(const char* text) {
    s.suffixOn = true;
    s.suffix = text;
    return *this;
  }
  Rule& regex(const char* pattern, const char* format) {
    s.regexOn = true;
    s.regexPattern = pattern;
    s.regexFormat = format;
    return *this;
  }
  Rule& columns(int start) {
    s.columnOn = true;
    s.columnStart = start;
    return *this;
  }
  Rule& rows(int start, int digits) {
    s.rowOn = true;
    s.rowStart = start;
    s.rowDigits = digits;
    return *this;
  }

  mst::RenamerSettings s;
};

struct NameRow {
  Rule rule;
  std::string old;
  unsigned column;
  unsigned row;
  std::string expected;
};
void PrintTo(const NameRow& row, std::ostream* out) { *out << '"' << row.old << "\" to \"" << row.expected << '"'; }

constexpr const char* kArm = "Arm_L_01";
constexpr const char* kLeftToRight = "(.*)_L(.*)";
constexpr const char* kToRight = "$1_R$2";

// clang-format off
const std::vector<NameRow> kNameRows = {
    // settings                                            old name       column row  new name

    // nothing on
    {Rule(),                                               kArm,               0,  0, kArm},
    {Rule(),                                               "",                 0,  0, ""},
    {Rule(),                                               "[col]_[row]",      3,  4, "[col]_[row]"},
    {Rule(),                                               "腕_左",            0,  0, "腕_左"},

    // plain replacement
    {Rule().replace("_L_", "_R_"),                         kArm,               0,  0, "Arm_R_01"},
    {Rule().replace("_L_", ""),                            kArm,               0,  0, "Arm01"},
    {Rule().replace("_L_", "_R_"),                         "Leg",              0,  0, "Leg"},
    {Rule().replace("", "X"),                              kArm,               0,  0, kArm},
    {Rule().replace("a", "b"),                             "banana",           0,  0, "bbnbnb"},
    {Rule().replace("a", "aa"),                            "aaa",              0,  0, "aaaaaa"},
    {Rule().replace("aa", "a"),                            "aaaa",             0,  0, "aa"},
    {Rule().replace("aa", "b"),                            "aaa",              0,  0, "ba"},
    {Rule().replace("aba", "x"),                           "ababa",            0,  0, "xba"},
    {Rule().replace("ab", "ba"),                           "aabb",             0,  0, "abab"},
    {Rule().replace("A", "B"),                             "arm",              0,  0, "arm"},
    {Rule().replace(kArm, "Leg"),                          kArm,               0,  0, "Leg"},
    {Rule().replace(kArm, ""),                             kArm,               0,  0, ""},
    {Rule().replace("_L_", "_R_"),                         "",                 0,  0, ""},
    {Rule().replace(".", "-"),                             "a.b",              0,  0, "a-b"},
    {Rule().replace("(.*)", "x"),                          "a(.*)b",           0,  0, "axb"},
    {Rule().replace("%", "%s"),                            "50%",              0,  0, "50%s"},
    {Rule().replace("_", "$1"),                            "a_b",              0,  0, "a$1b"},
    {Rule().replace("左", "右"),                           "腕_左",            0,  0, "腕_右"},

    // base name
    {Rule().base("Bone"),                                  kArm,               0,  0, "Bone"},
    {Rule().base("Bone"),                                  "",                 0,  0, "Bone"},
    {Rule().base(""),                                      kArm,               0,  0, ""},
    {Rule().base("Bone01_[col]_[row]"),                    kArm,               0,  0, "Bone01_[col]_[row]"},
    {Rule().base("Bone").replace("_L_", "_R_"),            kArm,               0,  0, "Bone"},
    {Rule().base("B_L_").replace("_L_", "_R_"),            kArm,               0,  0, "B_L_"},
    {Rule().base("100%d"),                                 kArm,               0,  0, "100%d"},
    {Rule().base("骨"),                                    kArm,               0,  0, "骨"},

    // prefix and suffix
    {Rule().prefix("My"),                                  kArm,               0,  0, "MyArm_L_01"},
    {Rule().prefix("My"),                                  "",                 0,  0, ""},
    {Rule().prefix(""),                                    kArm,               0,  0, kArm},
    {Rule().suffix("_end"),                                kArm,               0,  0, "Arm_L_01_end"},
    {Rule().suffix("_end"),                                "",                 0,  0, ""},
    {Rule().suffix(""),                                    kArm,               0,  0, kArm},
    {Rule().prefix("<").suffix(">"),                       kArm,               0,  0, "<Arm_L_01>"},
    {Rule().prefix("<").suffix(">"),                       "",                 0,  0, ""},
    {Rule().prefix("<").base("Bone"),                      kArm,               0,  0, "<Bone"},
    {Rule().prefix("<").base("Bone"),                      "",                 0,  0, "<Bone"},
    {Rule().prefix("<").base(""),                          kArm,               0,  0, ""},
    {Rule().suffix(">").base("Bone"),                      "",                 0,  0, "Bone>"},
    {Rule().prefix("A").replace("A", "B"),                 "A",                0,  0, "AB"},
    {Rule().suffix("A").replace("A", "B"),                 "A",                0,  0, "BA"},
    {Rule().prefix("x").replace("Arm", ""),                "Arm",              0,  0, ""},
    {Rule().prefix("%s"),                                  "n",                0,  0, "%sn"},
    {Rule().suffix("%n"),                                  "n",                0,  0, "n%n"},

    // regular expression
    {Rule().regex(kLeftToRight, kToRight),                 kArm,               0,  0, "Arm_R_01"},
    {Rule().regex(kLeftToRight, kToRight),                 "Arm_R_01",         0,  0, "Arm_R_01"},
    {Rule().regex(kLeftToRight, kToRight),                 "",                 0,  0, ""},
    {Rule().regex(kLeftToRight, kToRight),                 "A_L_B_L_C",        0,  0, "A_L_B_R_C"},
    {Rule().regex("_L", "_R"),                             "A_L_B_L_C",        0,  0, "A_R_B_R_C"},
    {Rule().regex("", "x"),                                kArm,               0,  0, kArm},
    {Rule().regex("_L", ""),                               kArm,               0,  0, kArm},
    {Rule().regex("[0-9]+", "<$&>"),                       "a1b22",            0,  0, "a<1>b<22>"},
    {Rule().regex("b", "[$`|$']"),                         "abc",              0,  0, "a[a|c]c"},
    {Rule().regex("a", "$$"),                              "a",                0,  0, "$"},
    {Rule().regex("(a)(b)", "$2$1"),                       "abab",             0,  0, "baba"},
    {Rule().regex("(a)|(b)", "<$1$2>"),                    "ab",               0,  0, "<a><b>"},
    {Rule().regex("(a)", "$01"),                           "a",                0,  0, "a"},
    {Rule().regex("^", ">"),                               "ab",               0,  0, ">ab"},
    {Rule().regex("$", "<"),                               "ab",               0,  0, "ab<"},
    {Rule().regex("a*", "x"),                              "baac",             0,  0, "xbxxcx"},
    {Rule().regex("(\\w)\\1", "=$1"),                      "aabbc",            0,  0, "=a=bc"},
    {Rule().regex("A", "b"),                               "aA",               0,  0, "ab"},
    {Rule().regex("a.c", "-"),                             "abc a\nc",         0,  0, "- a\nc"},
    {Rule().regex("x(?=y)", "z"),                          "xyxx",             0,  0, "zyxx"},
    {Rule().regex("x(?!y)", "z"),                          "xyxx",             0,  0, "xyzz"},
    {Rule().regex("左", "右"),                             "腕_左",            0,  0, "腕_右"},
    {Rule().regex("_L(?=_|$)", "_R"),                      kArm,               0,  0, "Arm_R_01"},
    {Rule().regex("_L(?=_|$)", "_R"),                      "Arm_L",            0,  0, "Arm_R"},
    {Rule().regex("_L(?=_|$)", "_R"),                      "Arm_Lower",        0,  0, "Arm_Lower"},
    {Rule().regex(kLeftToRight, kToRight),                 "Arm_Lower",        0,  0, "Arm_Rower"},
    {Rule().regex("(.+)", "x_$1"),                         "Arm",              0,  0, "x_Arm"},
    {Rule().regex("(.*)", "x_$1"),                         "Arm",              0,  0, "x_Armx_"},
    {Rule().regex("(.+)", "$010"),                         "Arm",              0,  0, "Arm0"},
    {Rule().regex("(腕|脚)", "x"),                         "左脚",             0,  0, "左x"},
    {Rule().regex("[腕脚]", "x"),                          "左脚",             0,  0, "左xxx"},
    {Rule().regex("_L", "_R").base("B_L"),                 kArm,               0,  0, "B_R"},
    {Rule().regex("_L", "_R").prefix("P_L_"),              "x",                0,  0, "P_R_x"},
    {Rule().regex("_L", "_R").suffix("_L"),                "x",                0,  0, "x_R"},
    {Rule().regex("x+", "L").replace("L", "x"),            "aLb",              0,  0, "aLb"},

    // columns
    {Rule().columns(0),                                    "Arm",              0,  9, "Arm_A"},
    {Rule().columns(0),                                    "Arm",              1,  9, "Arm_B"},
    {Rule().columns(2),                                    "Arm",              1,  0, "Arm_D"},
    {Rule().columns(0),                                    "Arm",             23,  0, "Arm_X"},
    {Rule().columns(0),                                    "Arm",             24,  0, "Arm_A"},
    {Rule().columns(0),                                    "Arm",             25,  0, "Arm_B"},
    {Rule().columns(0),                                    "Arm",             48,  0, "Arm_A"},
    {Rule().columns(23),                                   "Arm",              0,  0, "Arm_X"},
    {Rule().columns(23),                                   "Arm",              1,  0, "Arm_A"},
    {Rule().columns(24),                                   "Arm",              0,  0, "Arm_A"},
    {Rule().columns(25),                                   "Arm",              0,  0, "Arm_B"},
    {Rule().columns(-1),                                   "Arm",              0,  0, "Arm_"},
    {Rule().columns(-1),                                   "Arm[col]",         0,  0, "Arm"},
    {Rule().columns(-1),                                   "Arm",              1,  0, "Arm_A"},
    {Rule().columns(0),                                    "[col]Arm[col]",    2,  0, "CArmC"},
    {Rule().columns(0),                                    "[Col]",            0,  0, "[Col]_A"},
    {Rule().columns(0),                                    "[[col]]",          0,  0, "[A]"},
    {Rule().columns(0),                                    "[co[col]l]",       0,  0, "[coAl]"},
    {Rule().columns(0),                                    "",                 0,  0, "_A"},
    {Rule().columns(0),                                    "[row]",            0,  7, "[row]_A"},
    {Rule().columns(0).base("Arm"),                        "",                 0,  0, "Arm_A"},
    {Rule().columns(0).suffix("_[col]_end"),               "Arm",              4,  0, "Arm_E_end"},
    {Rule().columns(0).regex("A", "B"),                    "Arm",              0,  0, "Brm_A"},

    // rows
    {Rule().rows(1, 2),                                    "Arm",              9,  0, "Arm_01"},
    {Rule().rows(1, 2),                                    "Arm",              9,  1, "Arm_02"},
    {Rule().rows(0, 1),                                    "Arm",              0,  0, "Arm_0"},
    {Rule().rows(0, 6),                                    "Arm",              0,  7, "Arm_000007"},
    {Rule().rows(99, 2),                                   "Arm",              0,  1, "Arm_100"},
    {Rule().rows(8, 1),                                    "Arm",              0,  2, "Arm_10"},
    {Rule().rows(-3, 3),                                   "Arm",              0,  0, "Arm_-03"},
    {Rule().rows(-3, 1),                                   "Arm",              0,  4, "Arm_1"},
    {Rule().rows(2147483647, 2),                           "Arm",              0,  1, "Arm_2147483648"},
    {Rule().rows(1, 0),                                    "Arm",              0,  0, "Arm_1"},
    {Rule().rows(1, 3),                                    "[row]Arm[row]",    0,  1, "002Arm002"},
    {Rule().rows(1, 2),                                    "",                 0,  0, "_01"},
    {Rule().rows(1, 2),                                    "[col]",            0,  0, "[col]_01"},
    {Rule().rows(1, 2),                                    "%d",               0,  0, "%d_01"},
    {Rule().rows(1, 2).base("%s[row]%n"),                  "",                 0,  0, "%s01%n"},
    {Rule().rows(1, 2).prefix("[row]"),                    "x",                0,  2, "03x"},

    // all together
    {Rule().columns(0).rows(1, 2).base("Bone01_[col]_[row]"), kArm,            0,  0, "Bone01_A_01"},
    {Rule().columns(0).rows(1, 2).base("Bone01_[col]_[row]"), kArm,            1,  2, "Bone01_B_03"},
    {Rule().columns(0).rows(0, 1).base("Arm"),             "",                 0,  0, "Arm_A_0"},
    {Rule().columns(0).rows(1, 2).base("[row]-[col]"),     "",                 1,  0, "01-B"},
    {Rule().columns(0).rows(1, 2),                         "",                 0,  0, "_A_01"},
    {Rule().columns(0).rows(1, 2).prefix("P"),             "",                 0,  0, "_A_01"},
    {Rule().columns(0).rows(1, 2),                         "x[row]",           0,  0, "x01_A"},
    {Rule().replace("L", "M").prefix("p").suffix("s").regex("M", "R"), "aLb",  0,  0, "paRbs"},
    {Rule().replace("L", "M").base("bM").prefix("p").suffix("s").regex("M", "R").columns(1).rows(5, 3),
                                                           "aLb",              2,  1, "pbRs_D_006"},
    {Rule().base("B").prefix("[col]").suffix("[row]").columns(0).rows(1, 2), "", 3, 8, "DB09"},
};
// clang-format on

class NameRule : public testing::TestWithParam<NameRow> {};
INSTANTIATE_TEST_SUITE_P(Table, NameRule, testing::ValuesIn(kNameRows));

TEST_P(NameRule, GivesTheNewName) {
  const NameRow& row = GetParam();
  CNameRule rule(row.rule.s);
  EXPECT_EQ(rule.newText(row.old, row.column, row.row), row.expected);
}

TEST(NameRuleTable, HasAHundredRows) { EXPECT_GE(kNameRows.size(), 100U); }

TEST(NameRuleTable, GivesTheSameWhateverCameBefore) {
  const Rule rule = Rule().regex(kLeftToRight, kToRight).columns(0);
  CNameRule names(rule.s);
  EXPECT_EQ(names.newText(kArm, 0, 0), "Arm_R_01_A");
  EXPECT_EQ(names.newText("Leg", 1, 0), "Leg_B");
  EXPECT_EQ(names.newText(kArm, 0, 0), "Arm_R_01_A");
}

TEST(NameRuleDefaults, AreThoseOfThePanel) {
  const mst::RenamerSettings settings;
  EXPECT_EQ(settings.baseName, "Bone01_[col]_[row]");
  EXPECT_EQ(settings.regexPattern, kLeftToRight);
  EXPECT_EQ(settings.regexFormat, kToRight);
}

TEST(NameRuleErrors, AnInvalidPatternIsThrownOnlyWhereItIsUsed) {
  const Rule rule = Rule().regex("(", "x");
  CNameRule names(rule.s);
  EXPECT_EQ(names.newText("", 0, 0), "");
  EXPECT_THROW(names.newText(kArm, 0, 0), std::regex_error);
}

TEST(NameRuleErrors, WhatOtherPatternLanguagesHaveIsThrown) {
  for (const char* pattern : {"(?i)arm", "(?<=_)L", "(?<!_)L"}) {
    const Rule rule = Rule().regex(pattern, "x");
    EXPECT_THROW(CNameRule(rule.s).newText(kArm, 0, 0), std::regex_error) << pattern;
  }
}

TEST(NameRuleErrors, APatternThatIsOffIsNotLookedAt) {
  Rule rule = Rule().regex("(", "x");
  rule.s.regexOn = false;
  CNameRule names(rule.s);
  EXPECT_EQ(names.newText(kArm, 0, 0), kArm);
}

// ---------------------------------------------------------------------------------------------------------------------
// How long a name can become

std::string longName(std::size_t bytes) { return std::string(bytes, 'a'); }

TEST(LongNames, GrowUpToTheLimit) {
  const Rule rule = Rule().suffix("s");
  CNameRule names(rule.s);
  EXPECT_EQ(names.newText(longName(mst::kLongestName - 2), 0, 0).size(), mst::kLongestName - 1);
  EXPECT_EQ(names.newText(longName(mst::kLongestName - 1), 0, 0).size(), mst::kLongestName);
  EXPECT_THROW(names.newText(longName(mst::kLongestName), 0, 0), std::regex_error);
}

TEST(LongNames, BeyondTheLimitStayAsTheyAreOrBecomeShorter) {
  const Rule rule = Rule().replace("b", "");
  CNameRule names(rule.s);
  EXPECT_EQ(names.newText(longName(mst::kLongestName + 10) + "b", 0, 0).size(), mst::kLongestName + 10);
}

TEST(LongNames, AReplacementThatExplodesIsRefused) {
  Rule rule;
  rule.replace("a", "");
  rule.s.replaceTo = longName(4'095);
  CNameRule names(rule.s);
  EXPECT_THROW(names.newText(longName(mst::kLongestName), 0, 0), std::regex_error);
}

TEST(LongNames, CountersThatExplodeAreRefused) {
  std::string name;
  while (name.size() + 5 <= mst::kLongestName) name += "[row]";
  const Rule rule = Rule().rows(100'000, 6);
  CNameRule names(rule.s);
  EXPECT_THROW(names.newText(name, 0, 0), std::regex_error);
}

TEST(LongNames, AreCountedQuickly) {
  const Rule rule = Rule().replace("aab", "x").columns(0).rows(1, 2);
  CNameRule names(rule.s);
  EXPECT_EQ(names.newText(longName(60'000), 0, 0).size(), 60'005U);
}

// ---------------------------------------------------------------------------------------------------------------------
// Simple modes

struct SimpleRow {
  RenameMode mode;
  const char* first;
  const char* second;
  const char* old;
  const char* expected;
};
void PrintTo(const SimpleRow& row, std::ostream* out) {
  *out << "mode " << static_cast<int>(row.mode) << ", \"" << row.old << "\" to \"" << row.expected << '"';
}

// clang-format off
const std::vector<SimpleRow> kSimpleRows = {
    // mode                         first          second    old          new
    {RenameMode::Change,            "Bone",        "x",      "Arm",       "Bone"},
    {RenameMode::Change,            "Bone",        "",       "",          "Bone"},
    {RenameMode::Change,            "",            "",       "Arm",       ""},
    {RenameMode::Change,            "[col]%d",     "",       "Arm",       "[col]%d"},
    {RenameMode::Prefix,            "My",          "x",      "Arm",       "MyArm"},
    {RenameMode::Prefix,            "My",          "",       "",          "My"},
    {RenameMode::Prefix,            "",            "",       "Arm",       "Arm"},
    {RenameMode::Suffix,            "_L",          "x",      "Arm",       "Arm_L"},
    {RenameMode::Suffix,            "_L",          "",       "",          "_L"},
    {RenameMode::Suffix,            "",            "",       "Arm",       "Arm"},
    {RenameMode::Replace,           "_L_",         "_R_",    "Arm_L_01",  "Arm_R_01"},
    {RenameMode::Replace,           "_L_",         "",       "Arm_L_01",  "Arm01"},
    {RenameMode::Replace,           "",            "x",      "Arm",       "Arm"},
    {RenameMode::Replace,           "a",           "aa",     "aba",       "aabaa"},
    {RenameMode::Replace,           ".",           "x",      "a.b",       "axb"},
    {RenameMode::RegularExpression, "(.*)_L(.*)",  "$1_R$2", "Arm_L_01",  "Arm_R_01"},
    {RenameMode::RegularExpression, "(.*)_L(.*)",  "$1_R$2", "Leg",       "Leg"},
    {RenameMode::RegularExpression, "_L",          "",       "Arm_L_01",  "Arm_01"},
    {RenameMode::RegularExpression, "",            "x",      "Arm",       "Arm"},
    {RenameMode::RegularExpression, "^$",          "x",      "",          "x"},
};
// clang-format on

class SimpleRule : public testing::TestWithParam<SimpleRow> {};
INSTANTIATE_TEST_SUITE_P(Table, SimpleRule, testing::ValuesIn(kSimpleRows));

TEST_P(SimpleRule, GivesTheNewText) {
  const SimpleRow& row = GetParam();
  CSimpleRule rule(row.mode, row.first, row.second);
  EXPECT_EQ(rule.newText(row.old), row.expected);
}

TEST(SimpleRuleErrors, AnInvalidPatternIsThrown) {
  CSimpleRule rule(RenameMode::RegularExpression, "[", "");
  EXPECT_THROW(rule.newText(kArm), std::regex_error);
}

TEST(SimpleRuleErrors, APatternOfAnotherModeIsNotLookedAt) {
  CSimpleRule rule(RenameMode::Prefix, "[", "");
  EXPECT_EQ(rule.newText("x"), "[x");
}

// The advanced layout has a rule of its own; this one leaves its texts alone.
TEST(SimpleRuleErrors, AModeThatIsNotSimpleChangesNothing) {
  CSimpleRule rule(RenameMode::Advanced, "x", "y");
  EXPECT_EQ(rule.newText(kArm), kArm);
}

TEST(SimpleModeSlots, AreEighteenInTheirOrder) {
  std::vector<std::size_t> numbers;
  numbers.reserve(mst::kSimpleModeSlots.size());
  for (const Slot slot : mst::kSimpleModeSlots) numbers.push_back(skg::indexOf(slot));
  EXPECT_EQ(numbers,
            (std::vector<std::size_t>{6, 12, 28, 51, 52, 130, 53, 131, 55, 132, 73, 133, 92, 134, 110, 135, 142, 144}));
}

}  // namespace
}  // namespace varnel::test
