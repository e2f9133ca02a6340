// The table of what hosts may differ in: each row is well made, and each value makes a host of its own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <utility>

#include "objectfile/file_bytes.h"
#include "standin/variants/played_host.h"
#include "standin/variants/variants.h"

namespace standin {
namespace {

using testing::ElementsAre;
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
  EXPECT_EQ(choice.text(), "the default host");
  EXPECT_EQ(choice.options(), HostOptions());
}

TEST(HostChoices, KnowADefaultThatIsSettledFromOneThatIsAssumed) {
  const HostVariant& first = *allVariants().front();
  HostChoice choice;
  EXPECT_EQ(choice.settled(first.name), nullptr);
  EXPECT_TRUE(choice.choose(first.name, first.values.front().name));
  EXPECT_STREQ(choice.settled(first.name), first.values.front().name);
  EXPECT_THAT(choice.words(), ElementsAre(wordOf({first.name, first.values.front().name})));
  EXPECT_EQ(choice.settled("nonsense"), nullptr);
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

// What is known of a host is not asked again, be it the default.
TEST(SingleHosts, LeaveOutWhatIsSettled) {
  const auto rows = panelVariants();
  HostChoice base;
  ASSERT_TRUE(base.choose(rows[0].name, rows[0].values[0].name));
  ASSERT_TRUE(base.choose(rows[1].name, rows[1].values[1].name));
  const std::vector<HostChoice> choices = singleChoices(rows, base);
  EXPECT_EQ(choices.size(), singleChoices(rows.subspan(2)).size());
  for (const HostChoice& choice : choices) {
    EXPECT_STREQ(choice.settled(rows[0].name), rows[0].values[0].name);
    EXPECT_STREQ(choice.settled(rows[1].name), rows[1].values[1].name);
  }
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

// "silent-menu" sets what two other rows set.
HostChoice settledMenu() {
  HostChoice settled;
  EXPECT_EQ(settled.take("same-choice=fires"), "");
  EXPECT_EQ(settled.take("outside-index=clamped"), "");
  return settled;
}

TEST(SingleHosts, DoNotContradictWhatIsSettled) {
  for (const HostChoice& choice : singleChoices(panelVariants(), settledMenu())) {
    EXPECT_EQ(choice.settled("silent-menu"), nullptr) << choice.text();
  }
}

TEST(SingleHosts, HaveWhatSettledValuesAgreeWith) {
  HostChoice settled = settledMenu();
  ASSERT_EQ(settled.take("same-choice=silent"), "");
  const std::vector<HostChoice> choices = singleChoices(panelVariants(), settled);
  const auto isSo = [](const HostChoice& choice) { return choice.settled("silent-menu") != nullptr; };
  ASSERT_EQ(std::count_if(choices.begin(), choices.end(), isSo), 1);
  EXPECT_STREQ(std::find_if(choices.begin(), choices.end(), isSo)->settled("silent-menu"), "clamped-and-silent");
}

TEST(MixedHosts, DoNotContradictWhatIsSettled) {
  for (std::uint64_t seed = 0; seed < 20; ++seed) {
    const HostOptions options = HostChoice::mixture(seed, settledMenu()).options();
    EXPECT_TRUE(options.panels.repeatedChoiceFires);
    EXPECT_EQ(options.panels.outsideIndex, OutsideIndex::Clamped);
  }
}

TEST(MixedHosts, KeepDefaultsThatAreSettled) {
  HostChoice settled;
  for (const HostVariant* row : allVariants()) ASSERT_TRUE(settled.choose(row->name, row->values.front().name));
  for (std::uint64_t seed = 0; seed < 20; ++seed) EXPECT_EQ(HostChoice::mixture(seed, settled), settled);
}

// ---------------------------------------------------------------------------------------------------------------------

template <class Played>
void findsTablesCopied(const char* name) {
  HostOptions options;
  const auto twice = [&] {
    const Played host(options);
    return std::pair(Globals::lookup()(name, lw::kUseTransient), Globals::lookup()(name, lw::kUseTransient));
  };
  const auto [one, same] = twice();
  EXPECT_EQ(one, same) << name;
  options.program.copiedTables = true;
  const Played host(options);
  const void* const first = Globals::lookup()(name, lw::kUseTransient);
  const void* const second = Globals::lookup()(name, lw::kUseTransient);
  EXPECT_NE(first, second) << name;
  EXPECT_EQ(std::memcmp(first, second, 16), 0) << name;
}

TEST(CopiedTables, AreOthersAtEachLookup) {
  for (const char* name : {"Scene Objects 9", "Info Messages 4", "LWPanelServices 3", "Image Utility 6"}) {
    findsTablesCopied<PlayedModeler>(name);
    findsTablesCopied<PlayedLayout>(name);
  }
  findsTablesCopied<PlayedModeler>("LWM: State Query 5");
  findsTablesCopied<PlayedLayout>("LW Item Info 9");
}

TEST(CopiedTables, LeaveFunctionsAndNumbersAsTheyAre) {
  HostOptions options;
  options.program.copiedTables = true;
  const PlayedLayout host(options);
  for (const char* name : {"Product Info", "Locale Info", "LW Command Interface"}) {
    EXPECT_EQ(Globals::lookup()(name, lw::kUseTransient), Globals::lookup()(name, lw::kUseTransient)) << name;
  }
}

TEST(CopiedTables, TakeTheLookupFunctionInOneOfThem) {
  HostOptions options;
  options.program.copiedTables = true;
  const PlayedModeler host(options);
  const auto services = [] {
    return static_cast<lw::LWPanelFuncs*>(Globals::lookup()("LWPanelServices 3", lw::kUseTransient));
  };
  lw::LWPanelFuncs* const first = services();
  first->create("early", nullptr);
  EXPECT_THAT(witness().report(), HasSubstr("lookup function"));
  witness().reset();
  first->globalFun = Globals::lookup();
  EXPECT_EQ(services()->globalFun, nullptr);
  EXPECT_NE(first->create("in time", nullptr), nullptr);
  EXPECT_EQ(witness().report(), "");
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
