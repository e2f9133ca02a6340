// The table of what hosts may differ in: each row is well made, and each value makes a host of its own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <set>

#include "objectfile/file_bytes.h"
#include "standin/variants/variants.h"

namespace standin {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

// As a word of the command line: "open-answer".
bool isWord(const std::string& name) {
  return !name.empty() && name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-") == std::string::npos;
}

// As a cell of the page's tables.
bool isCell(const std::string& text) { return !text.empty() && text.find_first_of("|\n\r\t") == std::string::npos; }

HostOptions optionsOf(const VariantValue& value) {
  HostOptions options;
  value.set(options);
  return options;
}

// A row and a value of it that is not the default.
struct Single {
  const char* variant;
  const char* value;
};
Single firstSingle() {
  const HostVariant& row = *allVariants().front();
  return {row.name, row.values[1].name};
}
std::string wordOf(const Single& single) { return std::string(single.variant) + "=" + single.value; }

TEST(Variants, HaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const HostVariant* row : allVariants()) EXPECT_TRUE(names.insert(row->name).second) << row->name;
}

TEST(Variants, AreNamedInOneWord) {
  for (const HostVariant* row : allVariants()) {
    EXPECT_TRUE(isWord(row->name)) << row->name;
    for (const VariantValue& value : row->values) EXPECT_TRUE(isWord(value.name)) << row->name << ": " << value.name;
  }
}

TEST(Variants, HaveTwoValuesOrMore) {
  for (const HostVariant* row : allVariants()) EXPECT_GE(row->values.size(), 2U) << row->name;
}

TEST(Variants, HaveValuesWithNamesOfTheirOwn) {
  for (const HostVariant* row : allVariants()) {
    std::set<std::string> names;
    for (const VariantValue& value : row->values)
      EXPECT_TRUE(names.insert(value.name).second) << row->name << ": " << value.name;
  }
}

TEST(Variants, SetNothingByTheirDefaults) {
  for (const HostVariant* row : allVariants()) EXPECT_EQ(optionsOf(row->values.front()), HostOptions()) << row->name;
}

TEST(Variants, MakeAHostOfItsOwnByEachOtherValue) {
  for (const HostVariant* row : allVariants()) {
    for (std::size_t i = 0; i < row->values.size(); ++i) {
      for (std::size_t other = 0; other < i; ++other) {
        EXPECT_NE(optionsOf(row->values[i]), optionsOf(row->values[other]))
            << row->name << ": " << row->values[i].name << " and " << row->values[other].name;
      }
    }
  }
}

TEST(Variants, HaveTextsThatFitATable) {
  for (const HostVariant* row : allVariants()) {
    for (const char* text : {row->question, row->why, row->module}) EXPECT_TRUE(isCell(text)) << row->name << ": " << text;
  }
}

// ---------------------------------------------------------------------------------------------------------------------

TEST(HostChoices, BeginWithTheDefaultHost) {
  EXPECT_EQ(HostChoice().options(), HostOptions());
  EXPECT_EQ(HostChoice().text(), "the default host");
}

TEST(HostChoices, RefuseUnknownNames) {
  HostChoice choice;
  EXPECT_FALSE(choice.choose("nonsense", "fire"));
  EXPECT_FALSE(choice.choose(firstSingle().variant, "nonsense"));
  EXPECT_EQ(choice, HostChoice());
}

TEST(HostChoices, NameWhatThereIsWhenTheyRefuseAVariant) {
  HostChoice choice;
  EXPECT_THAT(choice.take("nonsense=fire"), HasSubstr("hosts do not differ in \"nonsense\""));
  EXPECT_THAT(choice.take("nonsense=fire"), HasSubstr(allVariants().back()->name));
}

TEST(HostChoices, NameWhatThereIsWhenTheyRefuseAValue) {
  HostChoice choice;
  EXPECT_THAT(choice.take(std::string(firstSingle().variant) + "=nonsense"), HasSubstr(firstSingle().value));
}

TEST(HostChoices, RefuseWhatIsNoNameAndValue) {
  HostChoice choice;
  for (const char* word : {"", "=", "nonsense", "=fire", firstSingle().variant}) {
    EXPECT_NE(choice.take(word), "") << word;
    EXPECT_EQ(choice, HostChoice()) << word;
  }
}

TEST(HostChoices, AreMadeAgainFromTheirWords) {
  for (std::uint64_t seed = 0; seed < 20; ++seed) {
    const HostChoice choice = HostChoice::mixture(seed);
    HostChoice again;
    for (const std::string& word : choice.words()) EXPECT_EQ(again.take(word), "");
    EXPECT_EQ(again, choice) << choice.text();
  }
}

TEST(HostChoices, TakeTheLastOfSeveralValues) {
  HostChoice choice;
  EXPECT_EQ(choice.take(wordOf(firstSingle())), "");
  EXPECT_EQ(choice.text(), wordOf(firstSingle()));
  EXPECT_TRUE(choice.choose(firstSingle().variant, allVariants().front()->values.front().name));
  EXPECT_EQ(choice, HostChoice());
}

// ---------------------------------------------------------------------------------------------------------------------

TEST(SingleHosts, AreEachVariantWithEachValueButItsDefault) {
  std::vector<std::string> expected;
  std::vector<std::string> got;
  for (const VariantArea& area : variantAreas()) {
    for (const HostVariant& row : area.rows()) {
      for (const VariantValue& value : row.values.subspan(1)) expected.push_back(wordOf({row.name, value.name}));
    }
    for (const HostChoice& choice : singleChoices(area.rows())) got.push_back(choice.text());
  }
  EXPECT_EQ(got, expected);
}

TEST(SingleHosts, KeepWhatTheirBaseHas) {
  HostChoice base;
  ASSERT_EQ(base.take(wordOf(firstSingle())), "");
  const std::vector<HostChoice> choices = singleChoices(variantAreas().back().rows(), base);
  ASSERT_FALSE(choices.empty());
  for (const HostChoice& choice : choices) EXPECT_THAT(choice.text(), HasSubstr(wordOf(firstSingle())));
}

TEST(SingleHosts, LeaveOutTheirBase) {
  HostChoice base;
  ASSERT_EQ(base.take(wordOf(firstSingle())), "");
  for (const HostChoice& choice : singleChoices(variantAreas().front().rows(), base)) EXPECT_NE(choice, base);
}

TEST(MixedHosts, AreTheSameForTheSameSeed) {
  for (std::uint64_t seed = 0; seed < 20; ++seed) EXPECT_EQ(HostChoice::mixture(seed), HostChoice::mixture(seed));
}

TEST(MixedHosts, DifferByTheirSeed) {
  std::set<std::string> texts;
  for (std::uint64_t seed = 0; seed < 50; ++seed) texts.insert(HostChoice::mixture(seed).text());
  EXPECT_GT(texts.size(), 5U);
}

TEST(MixedHosts, HaveEachValueAmongThem) {
  std::set<std::string> missing;
  for (const VariantArea& area : variantAreas()) {
    for (const HostChoice& single : singleChoices(area.rows())) missing.insert(single.words().front());
  }
  for (std::uint64_t seed = 0; seed < 200; ++seed) {
    for (const std::string& word : HostChoice::mixture(seed).words()) missing.erase(word);
  }
  EXPECT_THAT(missing, IsEmpty());
}

TEST(MixedHosts, KeepWhatIsSettled) {
  HostChoice settled;
  ASSERT_EQ(settled.take(wordOf(firstSingle())), "");
  for (std::uint64_t seed = 0; seed < 20; ++seed) {
    EXPECT_THAT(HostChoice::mixture(seed, settled).words(), testing::Contains(wordOf(firstSingle())));
  }
}

// ---------------------------------------------------------------------------------------------------------------------

TEST(VariantsText, NamesEveryVariantWithItsValues) {
  const std::string text = variantsText();
  for (const HostVariant* row : allVariants()) {
    EXPECT_THAT(text, HasSubstr(std::string("  ") + row->name + "  " + row->values.front().name + ", "));
    EXPECT_THAT(text, HasSubstr(row->question));
  }
}

// The page tells how its tables are renewed.
TEST(VariantsPage, StandsInTheDocuments) {
  const Outcome<std::string> bytes = readFileBytes(std::string(VARNEL_REPOSITORY) + "/docs/stand-in.md");
  ASSERT_TRUE(bytes) << bytes.why();
  const std::string begin = "<!-- variants -->\n";
  const std::size_t from = bytes->find(begin);
  const std::size_t to = bytes->find("<!-- end -->\n");
  ASSERT_NE(from, std::string::npos);
  ASSERT_LT(from, to);
  EXPECT_EQ(bytes->substr(from + begin.size(), to - from - begin.size()), variantsPage());
}

TEST(VariantsPage, HasARowForEachVariant) {
  const std::string page = variantsPage();
  for (const HostVariant* row : allVariants()) EXPECT_THAT(page, HasSubstr(std::string("\n| `") + row->name + "` | "));
}

}  // namespace
}  // namespace standin
