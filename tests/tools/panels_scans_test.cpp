// How often the mesh is scanned for one thing that the user does, with all panels open. A scan goes through every polygon of
// a character, so that each further one is felt.
#include <algorithm>
#include <functional>

#include "tests/tools/property_panel_fixture.h"

namespace varnel::test {
namespace {

using Scans = std::vector<int>;  // layer choices, in order

// The renamer's controls, in order of creation.
enum RenamerControl { kMode = 0, kFirstText = 1, kTarget = 3, kBaseName = 8, kProperties = 30, kRun = 33 };
enum RenamerMode { kPrefix = 1, kAdvanced = 5 };
constexpr int kAllSkelegons = 3;  // target

class Scanned : public testing::Test, protected PropertySession {
 protected:
  Scanned() {
    host.select({"Hips", "Chest"});
    for (const char* const tool : {kRenamerTool, kSelectorTool, kPropertyTool}) runTool(tool);
  }

  Scans scansOf(const std::function<void()>& action) const {
    const std::size_t before = host.edits().size();
    action();
    Scans scans;
    for (std::size_t i = before; i < host.edits().size(); ++i) {
      scans.insert(scans.end(), host.edits()[i].scans.begin(), host.edits()[i].scans.end());
    }
    return scans;
  }
  static Control* renamer(RenamerControl control) { return standin::panels().find(kRenamerTool)->at(control); }
  static void clickRow(int row) {
    standin::Panel* const selector = standin::panels().find(kSelectorTool);
    standin::panels().paintWanted(*selector);
    EXPECT_TRUE(person::click(selector->find(standin::ControlKind::OpenGL, 0), 100, row * 14 + 7));
  }
  static void run() { EXPECT_TRUE(person::press(renamer(kRun))); }
  static void prepareSimpleRun() {
    EXPECT_TRUE(person::choose(renamer(kMode), kPrefix));
    EXPECT_TRUE(person::type(renamer(kFirstText), "New_"));
  }
  static void prepareRunOverAll() {
    EXPECT_TRUE(person::choose(renamer(kMode), kAdvanced));
    EXPECT_TRUE(person::choose(renamer(kTarget), kAllSkelegons));
  }
};

TEST_F(Scanned, OnceByAClickInTheSelector) {
  EXPECT_EQ(scansOf([] { clickRow(3); }), Scans({lw::kLayersForeground}));
  EXPECT_EQ(host.selectedNames().size(), 1U);
}

TEST_F(Scanned, OnceByFillingInWeightMaps) {
  showPage(kBonePage);
  EXPECT_EQ(scansOf([this] { pressBehind(Slot::WeightMap, 2); }), Scans({lw::kLayersForeground}));
  EXPECT_EQ(stored("Chest", Slot::BoneActive), "0");
}

TEST_F(Scanned, OnceByASimpleRename) {
  prepareSimpleRun();
  EXPECT_EQ(scansOf(run), Scans({lw::kLayersForeground}));
  EXPECT_NE(object->skelegon("New_Hips"), nullptr);
}

TEST_F(Scanned, OnceByASimpleRenameWithProperties) {
  prepareSimpleRun();
  EXPECT_TRUE(person::switchTo(renamer(kProperties), true));
  EXPECT_EQ(scansOf(run), Scans({lw::kLayersForeground}));
}

TEST_F(Scanned, OnceByARenameOfAll) {
  prepareRunOverAll();
  EXPECT_EQ(scansOf(run), Scans({lw::kLayersAll}));
}

// What the panels show is another choice of layers then.
TEST_F(Scanned, TwiceByARenameOfAllWhileALayerIsHidden) {
  host.showLayers({1});
  prepareRunOverAll();
  EXPECT_EQ(scansOf(run), Scans({lw::kLayersAll, lw::kLayersForeground}));
}

TEST_F(Scanned, TwiceByARenameOfAllWhileAnotherObjectIsLoaded) {
  host.add(panelRig(), "other.lwo");
  host.makeCurrent(*object);
  prepareRunOverAll();
  EXPECT_EQ(scansOf(run), Scans({lw::kLayersAll, lw::kLayersForeground}));
}

TEST_F(Scanned, OnceByOpeningAPanel) {
  EXPECT_TRUE(person::close(panel));
  EXPECT_EQ(scansOf([this] { runTool(kPropertyTool); }), Scans({lw::kLayersForeground}));
}

// With the property panel alone the only scan is the search for the skelegons that are written to.
TEST_F(Scanned, OnceByAChangeInThePropertyPanel) {
  for (const char* const tool : {kRenamerTool, kSelectorTool}) EXPECT_TRUE(person::close(standin::panels().find(tool)));
  EXPECT_EQ(scansOf([this] { enter(Slot::Strength, 40); }), Scans({lw::kLayersForeground}));
  EXPECT_EQ(stored("Chest", Slot::Strength), "40.000000");
}

TEST_F(Scanned, InAllLayersOnlyForWhatIsNotInTheForeground) {
  for (const char* const tool : {kRenamerTool, kSelectorTool}) EXPECT_TRUE(person::close(standin::panels().find(tool)));
  host.showLayers({1});
  EXPECT_EQ(scansOf([this] { enter(Slot::Strength, 40); }), Scans({lw::kLayersForeground, lw::kLayersAll}));
  EXPECT_EQ(stored("Hips", Slot::Strength), "40.000000");
}

TEST_F(Scanned, AfreshByEachEvent) {
  clickRow(3);
  host.deleteSkelegons({"Chest"});
  EXPECT_EQ(scansOf([] { clickRow(2); }).size(), 1U);
}

// The user may do anything while the question is there; what was found before it is forgotten.
TEST_F(Scanned, AfreshAfterAQuestion) {
  host.showMessagesTo([this](const standin::Message&) {
    clickRow(3);
    host.deleteSkelegons({"Head"});
    return standin::Answer::Yes;
  });
  EXPECT_EQ(scansOf([this] { press(mst::control::kResetAll); }).front(), lw::kLayersForeground);
  host.showMessagesTo(nullptr);
}

}  // namespace
}  // namespace varnel::test
