// The sequences of commands of the conversion, with an evaluator that tells what Layout refused.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <new>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/lwtool2_globals.h"
#include "layout/ST_bone_set_params.h"
#include "layout/conversion.h"
#include "objectfile/file_bytes.h"
#include "skelegon/setting_groups.h"
#include "standin/core/globals.h"
#include "tests/tools/conversion_fixture.h"
#include "tests/tools/reporting_evaluator.h"

namespace varnel::test {
namespace {

using skg::Slot;
using Settings = std::vector<std::pair<Slot, std::string>>;

bool beginsWith(const std::string& text, std::string_view beginning) { return text.rfind(beginning, 0) == 0; }

skg::SkelegonProperties propertiesWith(const Settings& settings) {
  skg::SkelegonProperties properties = skg::propertiesFromFile({});
  for (const auto& [slot, text] : settings) properties[slot] = text;
  return properties;
}

// An object with the bone "Bone" below "Root", and the host layer acquired as an activation does. The evaluator begins anew.
class Scene {
 public:
  Scene() {
    object = &host.scene().addNull("Object");
    root = &host.scene().addBone(*object, "Root");
    bone = &host.scene().addBone(*object, "Bone", root);
    bone->bone.weightMap = "Map before";
    lw::resetHostState();
    EXPECT_TRUE(lw::AcquireHostGlobals(lw::Program::Layout, standin::Globals::lookup(), nullptr));
    evaluator().reset();
  }
  ~Scene() { EXPECT_EQ(standin::witness().report(), ""); }
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  bool applyBone(const Settings& settings) {
    return lwp::ApplyBoneParameters(items, host.scene().idOf(bone), propertiesWith(settings));
  }
  bool applyParents(const Settings& settings) { return lwp::ApplyItemParents(items, propertiesWith(settings)); }
  bool applyShapes(const Settings& settings) { return lwp::ApplyItemShapes(items, propertiesWith(settings)); }
  bool has(const std::string& name) const { return host.scene().find(name) != nullptr; }

  standin::LayoutHost host;
  standin::Item* object;
  standin::Item* root;
  standin::Item* bone;
  lw::CSceneItems items;
};

// Settings by which every row of the table is sent.
Settings everything() {
  Settings settings = {
      // clang-format off
      {Slot::Name, "Bone"}, {Slot::UseBonesFromObject, "Object"}, {Slot::BoneType, "1"}, {Slot::BoneActive, "0"},
      {Slot::WeightMap, "Map"}, {Slot::WeightMapOnly, "1"}, {Slot::WeightNormalization, "1"}, {Slot::StrengthMultiply, "0"},
      {Slot::LimitedRange, "1"}, {Slot::JointComp, "1"}, {Slot::JointCompParent, "1"}, {Slot::MuscleFlex, "1"},
      {Slot::MuscleFlexParent, "1"}, {Slot::Bulge, "1"}, {Slot::BulgeParent, "1"}, {Slot::Twist, "1"},
      {Slot::TargetItem, "target"}, {Slot::PoleItem, "Root"}, {Slot::UnaffectedByIK, "1"}, {Slot::GoalObject, "goal"},
      {Slot::IKInitialState, "3"}, {Slot::Chain, "0"}, {Slot::SoftIK, "1"}, {Slot::MatchGoalOrientation, "1"},
      {Slot::KeepGoalInReach, "1"}, {Slot::FullTimeIK, "0"}, {Slot::PositionItem, "position"},
      {Slot::RotationItem, "rotation"}, {Slot::ScaleItem, "scale"}, {Slot::InitialPositionItem, "initial"},
      {Slot::Colour, "Red"},
      // clang-format on
  };
  for (const skg::AxisSettings& axis : skg::kAxes) {
    settings.emplace_back(axis.controller, "6");
    settings.emplace_back(axis.limits, "1");
  }
  return settings;
}

// Refuses the first, the second, ... command of an action, each time in a scene of its own, until none was refused. Gives
// how many commands there were.
std::size_t refuseEach(const std::function<bool(Scene&)>& act,
                       const std::function<void(Scene&, bool result, const std::string& refused)>& look) {
  for (std::size_t n = 1;; ++n) {
    Scene scene;
    evaluator().refuseCommand(n);
    const bool result = act(scene);
    if (evaluator().refused().empty()) {
      EXPECT_TRUE(result);
      return n - 1;
    }
    const std::string refused = evaluator().refused().front();
    SCOPED_TRACE("command " + std::to_string(n) + ": " + refused);
    look(scene, result, refused);
  }
}

void expectOneReport(int line, const std::string& message = {}) {
  ASSERT_EQ(evaluator().reports().size(), 1U);
  EXPECT_EQ(evaluator().reports()[0].source, "ST_bone_set_params");
  EXPECT_EQ(evaluator().reports()[0].message, message);
  EXPECT_EQ(evaluator().reports()[0].line, line);
}

// ---------------------------------------------------------------------------------------------------------------------
// A bone

// What a selection is answered with is of no interest.
bool isSelecting(const std::string& command) {
  return beginsWith(command, "SelectItem") || beginsWith(command, "AddToSelection");
}

// Those that end nothing, deliberately.
bool isPassedOver(const std::string& command) { return isSelecting(command) || command == "LimitY"; }

// The failure is that of the null, not of the row.
bool isOfANull(const std::string& command) { return beginsWith(command, "AddNull"); }

TEST(RefusedBoneCommands, EndTheBoneAtOnceWithOneReport) {
  const std::size_t count = refuseEach([](Scene& scene) { return scene.applyBone(everything()); },
                                       [](Scene&, bool result, const std::string& refused) {
                                         if (isPassedOver(refused) || isOfANull(refused)) return;
                                         EXPECT_FALSE(result);
                                         EXPECT_EQ(evaluator().sent().back(), refused);
                                         // One switch ends the bone without a word, deliberately.
                                         EXPECT_EQ(evaluator().reports().size(), refused == "BoneMuscleFlex" ? 0U : 1U);
                                       });
  EXPECT_GT(count, 120U);
}

// What is sent next fails by itself where the bone is not the selected item.
TEST(RefusedBoneCommands, OfASelectionAreOfNoInterest) {
  refuseEach([](Scene& scene) { return scene.applyBone(everything()); },
             [](Scene&, bool result, const std::string& refused) {
               if (!isSelecting(refused)) return;
               EXPECT_TRUE(result || evaluator().sent().back() != refused);
               EXPECT_TRUE(result || evaluator().reports().size() == 1);
             });
}

// The other eight channels end the bone there.
TEST(RefusedBoneCommands, OfTheLimitSwitchOfYAreReportedAndPassedOver) {
  Scene scene;
  evaluator().refuse([](const std::string& command) { return command == "LimitY"; });
  EXPECT_TRUE(scene.applyBone(everything()));
  expectOneReport(770);
  const std::vector<std::string>& sent = evaluator().sent();
  const auto isYLimits = [](const std::string& command) { return beginsWith(command, "YLimits"); };
  EXPECT_TRUE(std::none_of(sent.begin(), sent.end(), isYLimits));  // the limits are off as they were
  EXPECT_NE(std::find(sent.begin(), sent.end(), "LimitZ"), sent.end());
}

TEST(RefusedBoneCommands, OfAToggleLeaveTheStateThatWasRead) {
  Scene scene;
  evaluator().refuse([](const std::string& command) { return command == "BoneLimitedRange"; });
  EXPECT_FALSE(scene.applyBone(everything()));
  evaluator().reset();
  EXPECT_TRUE(scene.applyBone({{Slot::LimitedRange, "1"}}));  // the next run sends it again
  const std::vector<std::string>& sent = evaluator().sent();
  EXPECT_EQ(std::count(sent.begin(), sent.end(), "BoneLimitedRange"), 1);
}

// The line of each command, written out apart from the module's table. Of the commands inside an axis group other than X
// only the first and the last line are laid down, and that of LimitY: what lies between has to ascend.
struct LineOfCommand {
  const char* command;
  int line;
};

constexpr LineOfCommand kLines[] = {
    // clang-format off
    {"BoneSource", 343}, {"BoneFalloffType", 349}, {"BoneMode", 353}, {"NumLimitedBones", 357}, {"BoneType", 382},
    {"BoneActive", 389}, {"BoneWeightMapName", 401}, {"BoneWeightMapOnly", 410}, {"BoneStrength", 430},
    {"BoneStrengthMultiply", 436}, {"BoneLimitedRange", 445}, {"BoneMinRange", 455}, {"BoneMaxRange", 456},
    {"BoneJointComp", 463}, {"BoneJointCompParent", 472}, {"BoneJointCompAmounts", 483}, {"BoneMuscleFlexParent", 499},
    {"BoneMuscleFlexAmounts", 510}, {"BoneBulge", 517}, {"BoneBulgeAmount", 525}, {"BoneBulgeParent", 532},
    {"BoneBulgeParentAmount", 540}, {"BoneTwist", 548}, {"BoneTwistAmount", 557}, {"ItemIconScale", 562}, {"TargetItem", 569},
    {"PoleItem", 578}, {"RotationOrder", 585}, {"UnaffectedByIK", 592}, {"GoalItem", 602}, {"GoalObjective", 609},
    {"IKInitialState", 615}, {"IKInitialStateFrame", 621}, {"UseIKChainVals", 633}, {"IKFKBlending", 642},
    {"GoalStrength", 647}, {"SoftIK", 653}, {"SoftIKDistanceType", 665}, {"SoftIKMin", 666}, {"SoftIKMax", 667},
    {"MatchGoalOrientation", 675}, {"KeepGoalWithinReach", 685}, {"FullTimeIK", 695}, {"PositionItemWorld", 702},
    {"PositionItem", 709}, {"PositionItemBlendMethod", 715}, {"PositionItemBlend", 720}, {"XController", 725}, {"LimitX", 731},
    {"XLimits", 741}, {"XFollow", 747}, {"XTransform", 752}, {"XStiffness", 758}, {"YController", 763}, {"YStiffness", 798},
    {"ZController", 803}, {"ZStiffness", 836}, {"RotationItemWorld", 841}, {"RotationItem", 848},
    {"RotationItemBlendMethod", 854}, {"RotationItemBlend", 859}, {"HController", 864}, {"HStiffness", 899},
    {"PController", 904}, {"PStiffness", 939}, {"BController", 944}, {"BStiffness", 979}, {"ScaleItem", 986},
    {"ScaleItemBlendMethod", 992}, {"ScaleItemBlend", 997}, {"SXController", 1002}, {"SXStiffness", 1035},
    {"SYController", 1040}, {"SYStiffness", 1073}, {"SZController", 1078}, {"SZStiffness", 1111}, {"PathAlignLookAhead", 1123},
    {"PathAlignMaxLookSteps", 1125}, {"PathAlignReliableDist", 1127}, {"ItemVisibility", 1132}, {"ItemColor", 1137},
    // clang-format on
};

std::string nameOf(const std::string& command) { return command.substr(0, command.find(' ')); }

const LineOfCommand* lineOf(const std::string& command) {
  const auto found = std::find_if(std::begin(kLines), std::end(kLines),
                                  [&](const LineOfCommand& row) { return row.command == nameOf(command); });
  return found == std::end(kLines) ? nullptr : found;
}

// Those that stand for themselves: the switch that goes without a word, the one that is sent twice, and LimitY.
bool isToldElsewhere(const std::string& command) {
  return command == "BoneMuscleFlex" || command == "BoneWeightMapOnly" || isPassedOver(command) || isOfANull(command);
}

TEST(RefusedBoneCommands, AreReportedWithTheLineOfTheirRow) {
  int before = 0;
  refuseEach([](Scene& scene) { return scene.applyBone(everything()); },
             [&](Scene&, bool, const std::string& refused) {
               if (isToldElsewhere(refused)) return;
               ASSERT_EQ(evaluator().reports().size(), 1U);
               const int line = evaluator().reports()[0].line;
               EXPECT_GT(line, before);
               before = line;
               const LineOfCommand* const row = lineOf(refused);
               EXPECT_EQ(line, row == nullptr ? line : row->line);
             });
  EXPECT_EQ(before, 1137);
}

TEST(RefusedBoneCommands, IncludeEveryCommandThatHasALine) {
  std::set<std::string> refused;
  refuseEach([](Scene& scene) { return scene.applyBone(everything()); },
             [&](Scene&, bool, const std::string& command) { refused.insert(nameOf(command)); });
  for (const LineOfCommand& row : kLines) EXPECT_EQ(refused.count(row.command), 1U) << row.command;
}

// A command that is sent under two lines, by what it is sent for.
struct SecondLine {
  const char* name;
  Settings settings;
  const char* refused;
  int which;  // the first or the second of these commands
  int line;
};

class RefusedBoneCommand : public testing::TestWithParam<SecondLine> {};

INSTANTIATE_TEST_SUITE_P(
    Lines, RefusedBoneCommand,
    testing::Values(
        SecondLine{"WeightMapWithoutAName", {}, "BoneWeightMapName (none)", 1, 398},
        SecondLine{"WeightMapWithAName", {{Slot::WeightMap, "Map"}}, "BoneWeightMapName Map", 1, 401},
        SecondLine{
            "WeightMapOnly", {{Slot::WeightMapOnly, "1"}, {Slot::WeightNormalization, "1"}}, "BoneWeightMapOnly", 1, 410},
        SecondLine{
            "Normalization", {{Slot::WeightMapOnly, "1"}, {Slot::WeightNormalization, "1"}}, "BoneWeightMapOnly", 2, 422},
        SecondLine{"NullOfTheTarget", {{Slot::TargetItem, "target"}}, "AddNull target", 1, 568},
        SecondLine{"NullOfThePole", {{Slot::PoleItem, "pole"}}, "AddNull pole", 1, 577},
        SecondLine{"NullOfTheGoal", {{Slot::GoalObject, "goal"}}, "AddNull goal", 1, 601},
        SecondLine{"NullOfThePosition", {{Slot::PositionItem, "position"}}, "AddNull position", 1, 708},
        SecondLine{"NullOfTheRotation", {{Slot::RotationItem, "rotation"}}, "AddNull rotation", 1, 847}),
    [](const testing::TestParamInfo<SecondLine>& info) { return std::string(info.param.name); });

TEST_P(RefusedBoneCommand, IsReportedWithTheLineOfWhatItIsSentFor) {
  Scene scene;
  evaluator().refuse([left = GetParam().which](const std::string& command) mutable {
    return command == GetParam().refused && --left == 0;
  });
  EXPECT_FALSE(scene.applyBone(GetParam().settings));
  ASSERT_FALSE(evaluator().reports().empty());
  EXPECT_EQ(evaluator().reports().back().line, GetParam().line);
}

TEST(RefusedBoneCommands, OfASourceThatIsNotThereHaveALineOfTheirOwn) {
  Scene scene;
  EXPECT_FALSE(scene.applyBone({{Slot::UseBonesFromObject, "nowhere"}}));
  expectOneReport(342);
}

// ---------------------------------------------------------------------------------------------------------------------
// Helper items

TEST(RefusedNull, EndsTheBoneThatNeedsIt) {
  for (const char* const name : {"target", "goal", "position", "rotation"}) {
    Scene scene;
    evaluator().refuse([&](const std::string& command) { return command == std::string("AddNull ") + name; });
    EXPECT_FALSE(scene.applyBone(everything())) << name;
    ASSERT_EQ(evaluator().reports().size(), 2U) << name;
    EXPECT_EQ(evaluator().reports()[0].message, "createNull() !");
    EXPECT_EQ(evaluator().reports()[0].line, 273);
  }
}

// Deliberately: what came of it is sent whatever it is.
TEST(RefusedNull, OfTheScaleItemIsSentAsNoItem) {
  Scene scene;
  evaluator().refuse([](const std::string& command) { return command == "AddNull scale"; });
  EXPECT_FALSE(scene.applyBone(everything()));
  EXPECT_EQ(evaluator().sent().back(), "ScaleItem 0x0");
}

TEST(RefusedNull, OfTheInitialPositionIsReportedOnly) {
  Scene scene;
  evaluator().refuse([](const std::string& command) { return command == "AddNull initial"; });
  EXPECT_TRUE(scene.applyBone(everything()));
  expectOneReport(273, "createNull() !");
}

// ---------------------------------------------------------------------------------------------------------------------
// Parents and looks

// Each has three commands: the child is selected, the interface refreshed, the parent told.
const Settings kParents = {
    {Slot::Name, "Bone"},           {Slot::ParentItem, "Root"},       {Slot::TargetItem, "target"},
    {Slot::TargetParent, "Root"},   {Slot::PoleItem, "pole"},         {Slot::PoleParent, "Root"},
    {Slot::GoalObject, "goal"},     {Slot::GoalParent, "Root"},       {Slot::PositionItem, "position"},
    {Slot::PositionParent, "Root"}, {Slot::RotationItem, "rotation"}, {Slot::RotationParent, "Root"},
    {Slot::ScaleItem, "scale"},     {Slot::ScaleParent, "Root"},      {Slot::InitialPositionItem, "initial"}};

void addHelpers(Scene& scene) {
  for (const char* const name : {"target", "pole", "goal", "position", "rotation", "scale", "initial"}) {
    scene.host.scene().addNull(name);
  }
}

TEST(RefusedParents, EndTheParentingWithTheLineOfThePair) {
  constexpr int kLines[] = {1166, 1173, 1180, 1187, 1194, 1201, 1208, 1217};
  std::size_t at = 0;
  const std::size_t count = refuseEach(
      [](Scene& scene) {
        addHelpers(scene);
        return scene.applyParents(kParents);
      },
      [&](Scene&, bool result, const std::string& refused) {
        EXPECT_FALSE(result);
        EXPECT_EQ(evaluator().sent().back(), refused);
        expectOneReport(kLines[at / 3]);
        ++at;
      });
  EXPECT_EQ(count, std::size(kLines) * 3);
}

TEST(RefusedParents, AreNotTriedForItemsThatAreNotThere) {
  Scene scene;
  EXPECT_TRUE(scene.applyParents({{Slot::TargetItem, "nowhere"}, {Slot::TargetParent, "Root"}}));
  EXPECT_TRUE(scene.applyParents({{Slot::TargetItem, "Bone"}, {Slot::TargetParent, "nowhere"}}));
  EXPECT_TRUE(evaluator().sent().empty());
}

const Settings kLooks = {{Slot::TargetItem, "target"},
                         {Slot::TargetVisibility, "1"},
                         {Slot::TargetColour, "Red"},
                         {Slot::TargetShape, "1"},
                         {Slot::InitialPositionItem, "initial"},
                         {Slot::InitialPositionVisibility, "0"},
                         {Slot::InitialPositionColour, "Modeler"},
                         {Slot::InitialPositionShape, "0"}};

TEST(RefusedLooks, EndTheRestOfTheHelpersWithTheLineOfTheItem) {
  // The target: selection, visibility, colour, selection again and shape. The initial position: selection and visibility.
  constexpr int kLines[] = {1295, 1295, 1295, 1295, 1295, 1367, 1367};
  std::size_t at = 0;
  const std::size_t count = refuseEach(
      [](Scene& scene) {
        addHelpers(scene);
        return scene.applyShapes(kLooks);
      },
      [&](Scene&, bool result, const std::string& refused) {
        EXPECT_FALSE(result);
        EXPECT_EQ(evaluator().sent().back(), refused);
        expectOneReport(kLines[at++]);
      });
  EXPECT_EQ(count, std::size(kLines));
}

// ---------------------------------------------------------------------------------------------------------------------
// The run

// Two objects, "first" and "second", of a chain each; the settings are those of the first bone of each.
class RefusedRun : public testing::Test {
 protected:
  void load(const standin::StoredSettings& settings) {
    for (const char* const name : {"first", "second"}) {
      standin::RigBuilder rig = standin::oneLayer();
      const auto upper = rig.root(std::string(name) + "Upper", {0, 0, 0}, {0, 1, 0});
      rig.child(upper, std::string(name) + "Lower", {0, 2, 0});
      standin::store(rig, upper, settings);
      ASSERT_FALSE(standin::writeObject(rig.take(), folder.file(std::string(name) + ".lwo")).has_value());
    }
    begin();
  }
  // A new session with both objects selected.
  void begin() {
    objects.clear();
    session.reset();  // one Layout at a time
    session.emplace();
    for (const char* const name : {"first.lwo", "second.lwo"})
      objects.push_back(host().loadObject(folder.file(name)).front());
    host().select(objects);
    lw::resetHostState();
    ASSERT_TRUE(lw::AcquireHostGlobals(lw::Program::Layout, standin::Globals::lookup(), nullptr));
    evaluator().reset();
  }
  void TearDown() override { EXPECT_EQ(standin::witness().report(), ""); }

  standin::LayoutHost& host() { return *session; }
  static void run() { lwp::convertSelection(true, true); }

  // Lets the first command that begins so fail; the others go.
  static void refuseFirst(const std::string& beginning) {
    evaluator().refuse([beginning, done = false](const std::string& command) mutable {
      const bool isIt = !done && beginsWith(command, beginning);
      done = done || isIt;
      return isIt;
    });
  }
  static bool wasSent(const std::string& beginning) {
    const std::vector<std::string>& sent = evaluator().sent();
    return std::any_of(sent.begin(), sent.end(), [&](const std::string& command) { return beginsWith(command, beginning); });
  }
  static bool statusSays(const std::string& text) {
    const std::vector<std::string>& texts = evaluator().statusTexts();
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }
  bool has(const std::string& name) { return host().scene().find(name) != nullptr; }

  // Whatever was refused: what follows a run.
  void expectTheEnd() {
    EXPECT_EQ(evaluator().statusTexts().back(), "Orlo:SkelegonOptimize done.");
    EXPECT_TRUE(host().state().ikEnabled);
    EXPECT_TRUE(host().state().motionControllersEnabled);
    EXPECT_TRUE(host().state().deformationsEnabled);
    // Restored from the last to the first, which the host then lists in that order.
    EXPECT_EQ(host().scene().selection(), (std::vector<standin::Item*>{objects[1], objects[0]}));
  }

  standin::TemporaryFolder folder;
  std::optional<standin::LayoutHost> session;
  std::vector<standin::Item*> objects;
};

TEST_F(RefusedRun, OfTheCommandsThatMakeBonesEndsWithTheObject) {
  load({});
  refuseFirst("SkelegonsToBones");
  run();
  ASSERT_EQ(evaluator().reports().size(), 1U);
  EXPECT_EQ(evaluator().reports()[0].source, "ST_CSkgConvPanel");
  EXPECT_EQ(evaluator().reports()[0].line, 454);
  EXPECT_FALSE(has("secondUpper"));
  expectTheEnd();
}

TEST_F(RefusedRun, OfAFileThatCannotBeReadHasALineOfItsOwn) {
  load({});
  std::filesystem::resize_file(standin::pathFromUtf8(folder.file("first.lwo")), 40);
  run();
  ASSERT_EQ(evaluator().reports().size(), 1U);
  EXPECT_EQ(evaluator().reports()[0].source, "ST_CSkgConvPanel");
  EXPECT_EQ(evaluator().reports()[0].line, 457);
  EXPECT_FALSE(has("secondUpper"));
  expectTheEnd();
}

// Deliberately: the chain stops at the first failure, and nothing repairs what it left.
TEST_F(RefusedRun, OfTheCommandThatMakesBonesLeavesAutoConfirmOn) {
  load({});
  refuseFirst("SkelegonsToBones");
  run();
  EXPECT_FALSE(wasSent("AutoConfirm 0"));
  EXPECT_EQ(host().state().autoConfirm, 1);
}

TEST_F(RefusedRun, OfAnyCommandBeforeTheBonesMakesNone) {
  load({});
  for (const char* const command : {"AutoConfirm 1", "RefreshNow"}) {
    begin();
    refuseFirst(command);
    run();
    EXPECT_FALSE(has("firstUpper")) << command;
    EXPECT_FALSE(wasSent("SkelegonsToBones")) << command;
    expectTheEnd();
  }
}

TEST_F(RefusedRun, OfTheCommandsBehindTheBonesEndsWithTheObjectToo) {
  load({});
  refuseFirst("AutoConfirm 0");
  run();
  EXPECT_TRUE(has("firstUpper"));
  EXPECT_FALSE(has("secondUpper"));
  expectTheEnd();
}

TEST_F(RefusedRun, OfABoneSaysSoAndGoesOnWithTheNextObject) {
  load({{13, "2"}});
  refuseFirst("BoneFalloffType");
  run();
  EXPECT_TRUE(statusSays("bone_set_params(): !(firstUpper)"));
  EXPECT_EQ(host().scene().find("secondUpper")->bone.falloff, 2);
  expectTheEnd();
}

TEST_F(RefusedRun, OfAParentSaysSo) {
  load({{51, "second"}});
  refuseFirst("ParentItem");
  run();
  EXPECT_TRUE(statusSays("set_item_parent(): !(firstUpper)"));
  EXPECT_FALSE(statusSays("set_item_parent(): !(secondUpper)"));
  expectTheEnd();
}

TEST_F(RefusedRun, OfAShapeSaysSo) {
  load({{52, "target"}, {136, "1"}});
  refuseFirst("ApplyServer");
  run();
  EXPECT_TRUE(statusSays("set_item_shape(): !(firstUpper)"));
  expectTheEnd();
}

TEST_F(RefusedRun, OfTheRecordingSaysSoAndLeavesTheRotation) {
  load({});
  refuseFirst("RecordPivotRotation");
  run();
  EXPECT_TRUE(statusSays("RecordPivotRotation(): !(firstUpper)"));
  EXPECT_FALSE(statusSays("RecordPivotRotation(): !(secondUpper)"));
  expectTheEnd();
}

// What is thrown in between, want of memory for instance, is another matter than a refusal.
TEST_F(RefusedRun, ThatThrowsWhileBonesAreMadeSwitchesAutoConfirmOff) {
  load({});
  evaluator().refuse([](const std::string& command) {
    if (command == "SkelegonsToBones") throw std::bad_alloc();
    return false;
  });
  EXPECT_THROW(run(), std::bad_alloc);
  EXPECT_EQ(host().state().autoConfirm, 0);
  EXPECT_TRUE(host().state().ikEnabled);
  EXPECT_TRUE(host().state().motionControllersEnabled);
  EXPECT_TRUE(host().state().deformationsEnabled);
}

// Every command of a run once. Only a switch whose own command is refused stays off.
TEST_F(RefusedRun, EndsAsEveryRunWhateverIsRefused) {
  load({{52, "target"}, {136, "1"}, {130, "firstLower"}, {13, "2"}});
  std::size_t n = 1;
  for (;; ++n) {
    begin();
    evaluator().refuseCommand(n);
    run();
    if (evaluator().refused().empty()) break;
    const std::string refused = evaluator().refused().front();
    SCOPED_TRACE("command " + std::to_string(n) + ": " + refused);
    EXPECT_EQ(evaluator().statusTexts().back(), "Orlo:SkelegonOptimize done.");
    EXPECT_EQ(host().state().ikEnabled, refused != "EnableIK 1");
    EXPECT_EQ(host().state().motionControllersEnabled, refused != "EnableMC 1");
    EXPECT_EQ(host().state().deformationsEnabled, refused != "EnableDeformations 1");
  }
  EXPECT_TRUE(evaluator().reports().empty());  // of the last run, in which nothing was refused
  EXPECT_TRUE(has("secondLower"));
  EXPECT_GT(n, 100U);
}

}  // namespace
}  // namespace varnel::test
