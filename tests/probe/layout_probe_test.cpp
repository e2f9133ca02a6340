// What the probe tells of Layout, in each host that the stand-in can play.
#include "standin/variants/variants.h"
#include "tests/probe/probe_fixture.h"

namespace standin {
namespace {

// The facts of a file as a host to play.
HostChoice choiceIn(const std::string& facts) {
  HostChoice choice;
  const auto file = nlohmann::json::parse(facts);
  for (const auto& fact : file.at("facts")) {
    if (fact.at("value").is_string())
      (void)choice.choose(fact.at("name").get<std::string>(), fact.at("value").get<std::string>());
  }
  return choice;
}

std::string seenIn(const std::string& facts, const std::string& name) {
  const auto file = nlohmann::json::parse(facts);
  for (const auto& fact : file.at("facts")) {
    if (fact.at("name") == name) return fact.at("seen");
  }
  return "not asked";
}

class LayoutVariant : public Probing, public testing::WithParamInterface<HostChoice> {};

std::string testName(const testing::TestParamInfo<HostChoice>& info) {
  std::string name = info.param.text();
  for (char& c : name) {
    if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(Rows, LayoutVariant, testing::ValuesIn(singleChoices(layoutVariants())), testName);

TEST_P(LayoutVariant, IsTold) {
  const MeasuredHost measured = inLayout(GetParam().options());
  EXPECT_EQ(measured.complaints, "");
  const HostChoice told = choiceIn(measured.facts);
  EXPECT_TRUE(told.options().layout == GetParam().options().layout) << "told: " << told.text();
}

// What differs in the process is told elsewhere, and changes nothing here.
class LayoutProcess : public Probing, public testing::WithParamInterface<HostChoice> {};

INSTANTIATE_TEST_SUITE_P(Rows, LayoutProcess, testing::ValuesIn(singleChoices(programVariants())), testName);

TEST_P(LayoutProcess, ChangesNothingThatIsToldOfLayout) {
  EXPECT_TRUE(choiceIn(inLayout(GetParam().options()).facts).options().layout == LayoutOptions());
}

// A host by chance in all that is told of Layout. Where another plug-in acts, some of it cannot be told.
HostChoice layoutByChance(std::uint64_t seed) {
  const std::vector<std::string> words = HostChoice::mixture(seed).words();
  HostChoice choice;
  for (const HostVariant& row : layoutVariants()) {
    for (const std::string& word : words) {
      if (word.starts_with(std::string(row.name) + "=") && row.name != std::string("other-plugin")) (void)choice.take(word);
    }
  }
  return choice;
}

class LayoutMixture : public Probing, public testing::WithParamInterface<std::uint64_t> {};

INSTANTIATE_TEST_SUITE_P(Seeds, LayoutMixture, testing::Range(std::uint64_t{1}, std::uint64_t{41}));

TEST_P(LayoutMixture, IsTold) {
  const HostChoice played = layoutByChance(GetParam());
  const MeasuredHost measured = inLayout(played.options());
  EXPECT_EQ(measured.complaints, "");
  const HostChoice told = choiceIn(measured.facts);
  EXPECT_TRUE(told.options().layout == played.options().layout) << "played: " << played.text() << "\ntold: " << told.text();
}

TEST_F(Probing, TellsEachRowOfLayoutInTheDefaultHost) {
  const std::string facts = inLayout().facts;
  for (const HostVariant& row : layoutVariants()) {
    EXPECT_EQ(valueIn(facts, row.name), row.values.front().name) << row.name << ": " << seenIn(facts, row.name);
  }
}

}  // namespace
}  // namespace standin
