// What the probe tells of the panel services, for each answer that the table of open questions has.
#include <vector>

#include "standin/variants/variants.h"
#include "tests/probe/probe_fixture.h"

namespace standin {
namespace {

// What the file tells, as a host that can be played.
HostChoice hostIn(const std::string& facts) {
  HostChoice choice;
  const auto file = nlohmann::json::parse(facts);
  for (const auto& fact : file.at("facts")) {
    const bool isTold = fact.at("value").is_string() && fact.at("value") != "other";
    if (isTold && !choice.choose(fact.at("name").get<std::string>(), fact.at("value").get<std::string>()))
      ADD_FAILURE() << fact << " is not in the table";
  }
  return choice;
}

std::string factOf(const std::string& facts, const std::string& name) {
  const auto file = nlohmann::json::parse(facts);
  for (const auto& fact : file.at("facts")) {
    if (fact.at("name") == name) return fact.dump();
  }
  return name + " is not in the file";
}

struct Played {
  std::string name;
  std::string value;
};

void PrintTo(const Played& played, std::ostream* out) { *out << played.name << "=" << played.value; }

// Of these only eyes can tell; and without OpenGL nothing can be told of its context.
bool isTellable(const HostVariant& row) {
  for (const char* const name : {"erasing", "moving", "setting", "context"}) {
    if (row.name == std::string(name)) return false;
  }
  return true;
}

std::vector<Played> allPlayed() {
  std::vector<Played> all;
  for (const auto rows : {panelVariants(), mouseVariants()}) {
    for (const HostVariant& row : rows) {
      for (const VariantValue& value : row.values) {
        if (isTellable(row)) all.push_back({row.name, value.name});
      }
    }
  }
  return all;
}

struct ProbedPanels : Probing, testing::WithParamInterface<Played> {};

TEST_P(ProbedPanels, AreToldAsTheyArePlayed) {
  HostChoice host;
  ASSERT_TRUE(host.choose(GetParam().name, GetParam().value));
  const MeasuredHost measured = inModeler(host.options());
  EXPECT_EQ(measured.complaints, "");
  EXPECT_EQ(hostIn(measured.facts).options().panels, host.options().panels) << factOf(measured.facts, GetParam().name);
  EXPECT_NE(valueIn(measured.facts, GetParam().name), "") << factOf(measured.facts, GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(Variants, ProbedPanels, testing::ValuesIn(allPlayed()));

// What was played, as far as the file does not tell it, and what the file tells.
HostChoice completed(const std::string& facts, const HostChoice& played) {
  HostChoice choice = hostIn(facts);
  for (const std::string& word : played.words()) {
    const std::string name = word.substr(0, word.find('='));
    if (valueIn(facts, name).empty() && choice.take(word) != "") ADD_FAILURE() << word;
  }
  return choice;
}

struct ProbedMixtures : Probing, testing::WithParamInterface<int> {};

TEST_P(ProbedMixtures, AreToldNothingWrong) {
  const HostChoice host = HostChoice::mixture(static_cast<std::uint64_t>(GetParam()));
  const MeasuredHost measured = inModeler(host.options());
  EXPECT_EQ(measured.complaints, "");
  EXPECT_EQ(completed(measured.facts, host).options().panels, host.options().panels) << host.text() << measured.facts;
}

TEST_P(ProbedMixtures, GiveTheSameFactsWhenTheyArePlayedAgain) {
  const MeasuredHost first = inModeler(HostChoice::mixture(static_cast<std::uint64_t>(GetParam())).options());
  EXPECT_EQ(inModeler(hostIn(first.facts).options()).facts, first.facts);
}

INSTANTIATE_TEST_SUITE_P(Seeds, ProbedMixtures, testing::Range(1, 31));

TEST_F(Probing, TellsThePanelsOfLayoutAsThoseOfModeler) {
  const MeasuredHost measured = inLayout();
  EXPECT_EQ(measured.complaints, "");
  for (const Played& played : allPlayed())
    EXPECT_NE(valueIn(measured.facts, played.name), "") << factOf(measured.facts, played.name);
}

}  // namespace
}  // namespace standin
