// The proof of the probe: every host in which one thing differs from the default is told apart by it, but for what
// no program can tell.
#include <algorithm>
#include <vector>

#include "probe/not_tellable.h"
#include "tests/probe/probe_fixture.h"

namespace standin {
namespace {

struct Turned {
  const HostVariant* variant = nullptr;
  std::string value;
  bool isLayouts = false;
};

// Told where there is a drawing context, in real windows: see the tests of the front.
constexpr const char* kNeedsWindows = "context";

std::vector<Turned> everyValueTurned() {
  std::vector<Turned> all;
  for (const VariantArea& area : variantAreas()) {
    for (const HostVariant& row : area.rows()) {
      if (row.name == std::string(kNeedsWindows)) continue;
      const bool isLayouts = area.rows().data() == layoutVariants().data();
      for (std::size_t i = 1; i < row.values.size(); ++i) all.push_back({&row, row.values[i].name, isLayouts});
    }
  }
  return all;
}

std::string nameOf(const testing::TestParamInfo<Turned>& turned) {
  std::string name = turned.param.variant->name + std::string("_") + turned.param.value;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

const probe::NotTellable* notTellable(const Turned& turned) {
  for (const probe::NotTellable& row : probe::notTellable()) {
    if (turned.variant->name == std::string(row.name) && (row.value == nullptr || turned.value == row.value)) return &row;
  }
  return nullptr;
}

class ToldVariants : public Probing, public testing::WithParamInterface<Turned> {};

TEST_P(ToldVariants, AreWhatIsPlayed) {
  const Turned& turned = GetParam();
  HostChoice host;
  ASSERT_TRUE(host.choose(turned.variant->name, turned.value));
  const MeasuredHost measured = turned.isLayouts ? inLayout(host.options()) : inModeler(host.options());
  EXPECT_EQ(measured.complaints, "");
  ASSERT_NE(measured.facts, "") << measured.last;
  if (notTellable(turned) != nullptr) {
    const std::string value = valueIn(measured.facts, turned.variant->name);
    EXPECT_NE(value, turned.value) << "is told after all";
  } else {
    EXPECT_TRUE(hostOf({measured.facts}).options() == host.options())
        << "told is: " << hostOf({measured.facts}).text() << "\n"
        << measured.facts;
  }
}

INSTANTIATE_TEST_SUITE_P(EachValue, ToldVariants, testing::ValuesIn(everyValueTurned()), nameOf);

TEST_F(Probing, TellsTheDefaultHostInModeler) { EXPECT_EQ(hostOf({inModeler().facts}).text(), "the default host"); }
TEST_F(Probing, TellsTheDefaultHostInLayout) { EXPECT_EQ(hostOf({inLayout().facts}).text(), "the default host"); }

// In the default host each question is answered, or in the table of what cannot be.
void expectAllTold(const std::string& facts, std::span<const HostVariant> rows) {
  for (const HostVariant& row : rows) {
    if (row.name == std::string(kNeedsWindows)) continue;
    const Turned whole{&row, {}, false};
    const probe::NotTellable* const not_told = notTellable(whole);
    EXPECT_EQ(valueIn(facts, row.name), not_told != nullptr ? "" : row.values.front().name) << row.name;
  }
}

TEST_F(Probing, AnswersEachQuestionOfModelerAndItsPanels) {
  const std::string facts = inModeler().facts;
  for (const auto rows : {programVariants(), panelVariants(), mouseVariants(), modelerVariants()})
    expectAllTold(facts, rows);
}

TEST_F(Probing, AnswersEachQuestionOfLayoutAndItsPanels) {
  const std::string facts = inLayout().facts;
  for (const auto rows : {programVariants(), panelVariants(), mouseVariants(), layoutVariants()}) expectAllTold(facts, rows);
}

}  // namespace
}  // namespace standin
