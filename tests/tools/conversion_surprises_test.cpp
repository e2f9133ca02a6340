// What the manual warns of: rules of the conversion that are kept on purpose, seen in the bones and not in the commands.
#include "tests/tools/conversion_fixture.h"

namespace standin {
namespace {

class ConversionSurprises : public ConversionTest {
 protected:
  void convertAgain(const std::vector<Item*>& items) {
    host.select(items);
    run(/*makeBones=*/false);
  }
  // The switches of the bone: "only", "normalization", both or neither.
  std::string weightSwitches() {
    const BoneSettings& bone = item("Bone").bone;
    if (bone.weightMapOnly && bone.weightNormalization) return "both";
    return bone.weightMapOnly ? "only" : bone.weightNormalization ? "normalization" : "neither";
  }
  // After a first conversion and each of three more without making bones.
  std::vector<std::string> weightSwitchesRunByRun(const StoredSettings& settings) {
    const std::vector<Item*> items = load(twoBones(settings));
    convert(items);
    std::vector<std::string> found = {weightSwitches()};
    for (int more = 0; more < 3; ++more) {
      convertAgain(items);
      found.push_back(weightSwitches());
    }
    return found;
  }
};

using Runs = std::vector<std::string>;

TEST_F(ConversionSurprises, BothWeightSwitchesAreThereFromTheSecondRunOn) {
  EXPECT_EQ(weightSwitchesRunByRun({{28, "Map"}, {29, "1"}, {30, "1"}}), (Runs{"normalization", "both", "both", "both"}));
}

TEST_F(ConversionSurprises, TheWeightMapOnlyWithoutNormalizationGoesOnOffAndStaysOff) {
  EXPECT_EQ(weightSwitchesRunByRun({{28, "Map"}, {29, "1"}, {30, "0"}}),
            (Runs{"both", "normalization", "normalization", "normalization"}));
}

TEST_F(ConversionSurprises, NormalizationAloneIsNeverSwitchedOn) {
  EXPECT_EQ(weightSwitchesRunByRun({{28, "Map"}, {30, "1"}}), Runs(4, "neither"));
}

TEST_F(ConversionSurprises, WithoutAWeightMapNeitherSwitchIsSet) {
  EXPECT_EQ(weightSwitchesRunByRun({{29, "1"}, {30, "1"}}), Runs(4, "neither"));
}

TEST_F(ConversionSurprises, OfObjectWideSettingsThatDifferTheLastSkelegonsCount) {
  convert(load(twoBones({{16, "3"}, {17, "7"}}, {{16, "1"}, {17, "9"}})));
  EXPECT_EQ(item("rig").object.boneMode, 3);
  EXPECT_EQ(item("rig").object.limitedBones, 7);
}

// A skelegon that was drawn after the page was set.
TEST_F(ConversionSurprises, TheDefaultsOfALastSkelegonCountToo) {
  convert(load(twoBones({}, {{16, "3"}})));
  EXPECT_EQ(item("rig").object.boneMode, 2);
}

TEST_F(ConversionSurprises, AnEmptyObjectNameOfALastSkelegonDoesNotCount) {
  convert(load(twoBones({}, {{12, "rig"}})));
  EXPECT_EQ(item("rig").object.boneSource, &item("rig"));
}

TEST_F(ConversionSurprises, TwistIsNotSwitchedOffWithoutAJointEither) {
  const std::vector<Item*> items = load(twoBones({{48, "0"}}));
  convert(items);
  item("Bone").bone.twist = true;
  convertAgain(items);
  EXPECT_TRUE(item("Bone").bone.twist);
}

// 100 m in the panel for 1 m in Layout.
TEST_F(ConversionSurprises, TheLimitedRangeArrivesAsAHundredth) {
  convert(load(twoBones({{33, "1"}, {34, "50.000000"}, {35, "100.000000"}})));
  EXPECT_DOUBLE_EQ(item("Bone").bone.minRange, 0.5);
  EXPECT_DOUBLE_EQ(item("Bone").bone.maxRange, 1);
}

}  // namespace
}  // namespace standin
