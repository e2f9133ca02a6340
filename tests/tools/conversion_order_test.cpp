// The order in which a conversion does things, which is what other plug-ins see of it, and what is still done when something
// has failed.
#include <algorithm>
#include <cstdio>

#include "tests/tools/conversion_fixture.h"

namespace standin {
namespace {

using Commands = std::vector<std::string>;

class ConversionOrder : public ConversionTest {
 protected:
  explicit ConversionOrder(const LayoutOptions& options = {}) : ConversionTest(options) {}

  static std::string selecting(const Item& item) {
    char text[32];
    std::snprintf(text, sizeof text, "SelectItem 0x%x", item.number);
    return text;
  }
  // As many commands, from the first that is this one on.
  Commands commandsFrom(const std::string& first, std::size_t count) const {
    const Commands all = commands();
    const auto from = std::find(all.begin(), all.end(), first);
    const auto left = static_cast<std::size_t>(all.end() - from);
    return {from, from + static_cast<std::ptrdiff_t>(std::min(count, left))};
  }
  // Where the first command that begins so stands among those of the second skelegon.
  std::size_t placeOf(const std::string& beginning) const {
    const Commands sent = commandsOfSkelegon(1);
    const auto isIt = [&](const std::string& command) { return command.rfind(beginning, 0) == 0; };
    return static_cast<std::size_t>(std::find_if(sent.begin(), sent.end(), isIt) - sent.begin());
  }
};

TEST_F(ConversionOrder, SwitchesOffBeforeAllElse) {
  const std::vector<Item*> items = load(twoBones({}));
  convert(items);
  EXPECT_EQ(commandsFrom("StatusMsg Orlo:SkelegonOptimize start...", 5),
            (Commands{"StatusMsg Orlo:SkelegonOptimize start...", "EnableIK 0", "EnableMC 0", "EnableDeformations 0",
                      selecting(*items[0])}));
}

TEST_F(ConversionOrder, SwitchesOnAgainOnceTheSelectionIsRestored) {
  const std::vector<Item*> items = load(twoBones({}));
  convert(items);
  const Commands all = commands();
  ASSERT_GT(all.size(), 5U);
  EXPECT_EQ(Commands(all.end() - 5, all.end()), (Commands{selecting(*items[0]), "EnableIK 1", "EnableMC 1",
                                                          "EnableDeformations 1", "StatusMsg Orlo:SkelegonOptimize done."}));
}

TEST_F(ConversionOrder, RefreshesLayoutBeforeAndAfterBonesAreMade) {
  convert(load(twoBones({})));
  EXPECT_EQ(commandsFrom("AutoConfirm 1", 5),
            (Commands{"AutoConfirm 1", "RefreshNow", "SkelegonsToBones", "AutoConfirm 0", "RefreshNow"}));
}

// Another plug-in may select something else in answer to a switch: that is what is selected when the run begins.
class SelectionOfAnotherPlugin : public ConversionOrder {
 protected:
  static LayoutOptions selectingSecond() {
    LayoutOptions options;
    options.otherPlugin = [](Scene& scene, std::string_view command) {
      if (command != "EnableDeformations 0") return;
      scene.deselectAll();
      scene.addToSelection(*scene.find("second"));
    };
    return options;
  }
  SelectionOfAnotherPlugin() : ConversionOrder(selectingSecond()) {}
};

TEST_F(SelectionOfAnotherPlugin, IsConvertedWhereASwitchChangedIt) {
  RigBuilder rig = oneLayer();
  rig.root("Other", {0, 0, 0}, {0, 1, 0});
  const std::vector<Item*> first = load(twoBones({}), "first.lwo");
  load(rig.take(), "second.lwo");
  convert(first);
  EXPECT_TRUE(has("Other"));
  EXPECT_FALSE(has("Bone"));
}

// The last thing that was selected before is a helper item.
TEST_F(ConversionOrder, SelectsTheBoneWhosePivotRotationIsRecorded) {
  convert(load(twoBones({{52, "tar"}})));
  const Commands sent = commandsOfSkelegon(1);
  const auto recording = std::find(sent.begin(), sent.end(), "RecordPivotRotation");
  ASSERT_NE(recording, sent.end());
  EXPECT_EQ(*(recording - 1), selecting(item("Bone")));
}

TEST_F(ConversionOrder, MakesTheInitialPositionBehindTheLastCommandOfTheBone) {
  convert(load(twoBones({{129, "Red"}, {142, "init"}})));
  ASSERT_LT(placeOf("AddNull init"), commandsOfSkelegon(1).size());
  EXPECT_LT(placeOf("ItemColor 11"), placeOf("AddNull init"));
}

TEST_F(ConversionOrder, TellsTheEndOfAnObjectAlsoWhenABoneFailed) {
  convert(load(twoBones({}, {{12, "nowhere"}})));
  ASSERT_TRUE(statusSays("bone_set_params(): !(Root)"));
  EXPECT_EQ(countOf("StatusMsg {1.00}Now setting bone properties...done."), 1U);
}

// ---------------------------------------------------------------------------------------------------------------------
// Which layer of the file is the object's

// Two layers of one bone each, "A" and "B".
ObjectFile twoLayers(const std::string& first, const std::string& second) {
  RigBuilder rig;
  rig.layer(0, first);
  store(rig, rig.root("A", {0, 0, 0}, {0, 1, 0}), {{13, "2"}});
  rig.layer(1, second);
  store(rig, rig.root("B", {0, 0, 0}, {0, 1, 0}), {{13, "3"}});
  return rig.take();
}

// Their items are called by the name and a counter, which tells nothing of the file.
TEST_F(ConversionOrder, TakesTheFirstOfTwoLayersOfOneNameForBoth) {
  convert(load(twoLayers("Arm", "Arm"), "Robot.lwo"));
  EXPECT_EQ(countOf("BoneFalloffType 3"), 2U);
  EXPECT_EQ(item("A").bone.falloff, 2);
  EXPECT_EQ(item("B").bone.falloff, BoneSettings().falloff);
}

TEST_F(ConversionOrder, TakesNoLayerForALaterItemWhoseNameHasNoColon) {
  const std::vector<Item*> items = load(twoLayers("Arm", "Leg"), "Robot.lwo");
  host.scene().rename(*items[1], "Leg");
  convert({items[1]});
  ASSERT_TRUE(has("B"));
  EXPECT_EQ(item("B").bone.falloff, BoneSettings().falloff);
}

TEST_F(ConversionOrder, AsksForTheLoadedLayerOnlyWhereTheNameTellsNone) {
  host.select({load(twoLayers("Arm", "Leg"), "Robot.lwo")[1]});
  witness().refuseNext("LWObjectInfo::layerLoaded");
  run();
  EXPECT_EQ(item("B").bone.falloff, 3);
  EXPECT_FALSE(witness().refusalHappened());
  witness().refuseNext("");
}

}  // namespace
}  // namespace standin
