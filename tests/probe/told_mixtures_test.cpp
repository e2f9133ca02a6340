// Hosts that differ in everything by chance: told apart by the probe, and the same to it when its facts are played.
#include "standin/variants/variants.h"
#include "tests/probe/probe_fixture.h"

namespace standin {
namespace {

// A mixture without another plug-in: what that does to the scene, nobody could tell from what the host does.
HostChoice mixed(std::uint64_t seed) {
  HostChoice alone;
  EXPECT_TRUE(alone.choose("other-plugin", "none"));
  return HostChoice::mixture(seed, alone);
}

struct Mixtures : Probing, testing::WithParamInterface<std::uint64_t> {
  const HostChoice played = mixed(GetParam());
  const MeasuredHost modeler = inModeler(played.options());
  const MeasuredHost layout = inLayout(played.options());
};

// Some things cannot be told of some hosts: from where a press counts, where the mouse reaches nobody.
TEST_P(Mixtures, AreToldNothingWrong) {
  EXPECT_EQ(modeler.complaints + layout.complaints, "");
  HostChoice told = hostOf({modeler.facts, layout.facts});
  for (const std::string& word : played.words()) {
    if (told.settled(word.substr(0, word.find('='))) != nullptr) continue;
    EXPECT_EQ(told.take(word), "");
  }
  EXPECT_TRUE(told.options() == played.options()) << "played: " << played.text() << "\ntold: " << told.text();
}

TEST_P(Mixtures, GiveTheSameFilesWhenTheirFactsArePlayed) {
  const HostOptions told = hostOf({modeler.facts, layout.facts}).options();
  EXPECT_EQ(inModeler(told).facts, modeler.facts);
  EXPECT_EQ(inLayout(told).facts, layout.facts);
}

INSTANTIATE_TEST_SUITE_P(BySeed, Mixtures, testing::Range<std::uint64_t>(1, 21));

}  // namespace
}  // namespace standin
