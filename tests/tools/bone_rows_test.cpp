// Every row of the bone command sequence: sent with the right text when its condition holds, and not sent when it does not.
// Written out apart from the module's table.
#include <algorithm>
#include <iomanip>
#include <sstream>

#include "tests/tools/conversion_fixture.h"

namespace standin {
namespace {

struct RowCase {
  std::string row;
  StoredSettings on;
  std::vector<std::string> sent;  // whole commands; an item's identifier is left out: "TargetItem 0x"
  StoredSettings off;
  std::vector<std::string> notSent;  // beginnings of commands
  StoredSettings ofRoot = {};
  friend std::ostream& operator<<(std::ostream& out, const RowCase& row) { return out << row.row; }
};

using Rows = std::vector<RowCase>;

Rows leadingRows() {
  return {
      // clang-format off
      {"01", {{12, "rig"}}, {"BoneSource 0x"}, {}, {"BoneSource"}},
      {"02", {{13, "0"}}, {"BoneFalloffType 1"}, {{13, "7"}}, {"BoneFalloffType 7"}},
      {"03", {{16, "3"}}, {"BoneMode 3"}, {}, {"BoneMode 3"}},
      {"04", {{17, "9"}}, {"NumLimitedBones 9"}, {}, {"NumLimitedBones 9"}},
      {"05", {{26, "1"}}, {"BoneType 1"}, {{26, "0"}}, {"BoneType 1"}},
      {"05two", {{26, "2"}}, {"BoneType 1"}, {{26, "2"}}, {"BoneType 2"}},
      {"06", {{27, "0"}}, {"BoneActive"}, {{27, "1"}}, {"BoneActive"}},
      {"07", {{28, "Map"}}, {"BoneWeightMapName Map"}, {}, {"BoneWeightMapName Map"}},
      {"07none", {}, {"BoneWeightMapName (none)"}, {{28, "Map"}}, {"BoneWeightMapName (none)"}},
      {"08", {{28, "Map"}, {29, "1"}}, {"BoneWeightMapOnly"}, {{29, "1"}}, {"BoneWeightMapOnly"}},
      {"10", {{31, "100.000000"}}, {"BoneStrength 1.0000000000"}, {{31, "50"}}, {"BoneStrength 1.0"}},
      {"11", {{32, "0"}}, {"BoneStrengthMultiply"}, {{32, "1"}}, {"BoneStrengthMultiply"}},
      {"12", {{33, "1"}}, {"BoneLimitedRange"}, {{33, "0"}}, {"BoneLimitedRange"}},
      {"13", {{33, "1"}, {34, "0.25"}, {35, "2.5"}}, {"BoneMinRange 0.0025000000", "BoneMaxRange 0.0250000000"},
       {{34, "0.25"}}, {"BoneMinRange", "BoneMaxRange"}},
      {"14", {{36, "1"}}, {"BoneJointComp"}, {}, {"BoneJointComp"}},
      {"15", {{38, "1"}}, {"BoneJointCompParent"}, {}, {"BoneJointCompParent"}},
      {"16self", {{36, "1"}, {37, "80.0"}, {39, "60"}}, {"BoneJointCompAmounts 0.8000000000 0.6000000000"}, {{37, "80"}},
       {"BoneJointCompAmounts"}},
      {"16parent", {{38, "1"}, {39, "60"}}, {"BoneJointCompAmounts 1.0000000000 0.6000000000"}, {{39, "60"}},
       {"BoneJointCompAmounts"}},
      {"17", {{40, "1"}}, {"BoneMuscleFlex"}, {}, {"BoneMuscleFlex"}},
      {"18", {{42, "1"}}, {"BoneMuscleFlexParent"}, {}, {"BoneMuscleFlexParent"}},
      {"19self", {{40, "1"}, {41, "30"}}, {"BoneMuscleFlexAmounts 0.3000000000 1.0000000000"}, {{41, "30"}},
       {"BoneMuscleFlexAmounts"}},
      {"19parent", {{42, "1"}, {43, "20"}}, {"BoneMuscleFlexAmounts 1.0000000000 0.2000000000"}, {{43, "20"}},
       {"BoneMuscleFlexAmounts"}},
      {"20", {{44, "1"}}, {"BoneBulge"}, {}, {"BoneBulge"}},
      {"21", {{44, "1"}, {45, "20"}}, {"BoneBulgeAmount 0.2000000000"}, {{45, "20"}}, {"BoneBulgeAmount"}},
      {"22", {{46, "1"}}, {"BoneBulgeParent"}, {}, {"BoneBulgeParent"}},
      {"23", {{46, "1"}, {47, "40"}}, {"BoneBulgeParentAmount 0.4000000000"}, {{47, "40"}}, {"BoneBulgeParentAmount"}},
      {"24", {{26, "1"}, {48, "1"}}, {"BoneTwist"}, {{26, "0"}, {48, "1"}}, {"BoneTwist"}},
      {"25", {{26, "1"}, {48, "1"}, {49, "75"}}, {"BoneTwistAmount 0.7500000000"}, {{26, "1"}, {49, "75"}},
       {"BoneTwistAmount"}},
      {"25type", {{26, "2"}, {48, "1"}, {49, "75"}}, {"BoneTwistAmount 0.7500000000"}, {{48, "1"}, {49, "75"}},
       {"BoneTwistAmount"}},
      {"26", {{50, "200"}}, {"ItemIconScale 2.0000000000"}, {}, {"ItemIconScale 2"}},
      {"27", {{52, "tar"}}, {"TargetItem 0x"}, {}, {"TargetItem", "AddNull"}},
      {"28", {{53, "pole"}}, {"PoleItem 0x"}, {}, {"PoleItem", "AddNull"}},
      {"29", {{186, "5"}}, {"RotationOrder 5"}, {}, {"RotationOrder 5"}},
      {"30", {{54, "1"}}, {"UnaffectedByIK"}, {}, {"UnaffectedByIK"}},
      // clang-format on
  };
}

Rows ikRows() {
  const StoredSettings goal = {{55, "goal"}};
  const auto withGoal = [&](StoredSettings settings) {
    settings.insert(settings.end(), goal.begin(), goal.end());
    return settings;
  };
  return {
      // clang-format off
      {"31", goal, {"GoalItem 0x"}, {}, {"GoalItem", "AddNull"}},
      {"32", withGoal({{56, "1"}}), {"GoalObjective 1"}, {{56, "1"}}, {"GoalObjective"}},
      {"33", {{57, "2"}}, {"IKInitialState 2"}, {}, {"IKInitialState 2"}},
      {"34", {{57, "3"}, {58, "12"}}, {"IKInitialStateFrame 12"}, {{57, "2"}, {58, "12"}}, {"IKInitialStateFrame"}},
      {"35", {{59, "0"}}, {"UseIKChainVals"}, {{59, "1"}}, {"UseIKChainVals"}},
      {"36", {{60, "50"}}, {"IKFKBlending 0.5000000000"}, {}, {"IKFKBlending 0.5"}},
      {"37", withGoal({{61, "100"}}), {"GoalStrength 100.0000000000"}, {{61, "100"}}, {"GoalStrength"}},
      {"38", withGoal({{62, "2"}}), {"SoftIK 2"}, {{62, "2"}}, {"SoftIK"}},
      {"38objective", withGoal({{56, "0"}, {62, "1"}}), {"SoftIK 1"}, withGoal({{56, "2"}, {62, "1"}}), {"SoftIK"}},
      {"39", withGoal({{62, "1"}, {63, "2"}, {64, "10"}, {65, "90"}}),
       {"SoftIKDistanceType 2", "SoftIKMin 0.1000000000", "SoftIKMax 0.9000000000"}, withGoal({{62, "0"}, {63, "2"}}),
       {"SoftIKDistanceType", "SoftIKMin", "SoftIKMax"}},
      {"39objective", withGoal({{62, "1"}, {63, "2"}}), {"SoftIKDistanceType 2"}, withGoal({{56, "1"}, {62, "1"}, {63, "2"}}),
       {"SoftIKDistanceType"}},
      {"40", withGoal({{66, "1"}}), {"MatchGoalOrientation"}, {{66, "1"}}, {"MatchGoalOrientation"}},
      {"41", withGoal({{67, "1"}}), {"KeepGoalWithinReach"}, {{67, "1"}}, {"KeepGoalWithinReach"}},
      {"42", withGoal({{68, "0"}}), {"FullTimeIK"}, {{68, "0"}}, {"FullTimeIK"}},
      // clang-format on
  };
}

Rows itemRows() {
  return {
      {"43", {{72, "1"}}, {"PositionItemWorld 1"}, {}, {"PositionItemWorld 1"}},
      {"44", {{73, "pos"}}, {"PositionItem 0x"}, {}, {"PositionItem 0x", "AddNull"}},
      {"45", {{74, "1"}}, {"PositionItemBlendMethod 1"}, {}, {"PositionItemBlendMethod 1"}},
      {"46", {{73, "pos"}, {75, "40"}}, {"PositionItemBlend 0.4000000000"}, {{75, "40"}}, {"PositionItemBlend "}},
      {"65", {{91, "1"}}, {"RotationItemWorld 1"}, {}, {"RotationItemWorld 1"}},
      {"66", {{92, "rot"}}, {"RotationItem 0x"}, {}, {"RotationItem 0x", "AddNull"}},
      {"67", {{93, "1"}}, {"RotationItemBlendMethod 1"}, {}, {"RotationItemBlendMethod 1"}},
      {"68", {{92, "rot"}, {94, "40"}}, {"RotationItemBlend 0.4000000000"}, {{94, "40"}}, {"RotationItemBlend "}},
      {"87", {{110, "scl"}}, {"ScaleItem 0x"}, {}, {"ScaleItem 0x", "AddNull"}},
      {"88", {{111, "1"}}, {"ScaleItemBlendMethod 1"}, {}, {"ScaleItemBlendMethod 1"}},
      {"89", {{110, "scl"}, {112, "40"}}, {"ScaleItemBlend 0.4000000000"}, {{112, "40"}}, {"ScaleItemBlend "}},
  };
}

Rows trailingRows() {
  Rows rows = {
      {"109", {{128, "2"}}, {"ItemVisibility 1"}, {{128, "0"}}, {"ItemVisibility 1"}},
      {"110", {{129, "Red"}}, {"ItemColor 11"}, {{129, "Modeler"}}, {"ItemColor"}},
      {"110unknown", {{129, "red"}}, {"ItemColor 13"}, {{129, "Modeler"}}, {"ItemColor"}},
  };
  // Each of the three rotation controllers, by each controller number whose bit 0x4 is set.
  for (const std::uint8_t controller : std::initializer_list<std::uint8_t>{95, 100, 105}) {
    for (const char* number : {"4", "5", "6"}) {
      rows.push_back(
          {"108of" + std::to_string(controller) + "as" + number,
           {{controller, number}, {69, "0.1"}, {70, "20"}, {71, "0.002"}},
           {"PathAlignLookAhead 0.1000000000", "PathAlignMaxLookSteps 20.0000000000", "PathAlignReliableDist 0.0020000000"},
           {{controller, "3"}, {69, "0.1"}},
           {"PathAlign"}});
    }
  }
  return rows;
}

// The six rows of one motion channel, and which controller slot decides about follow and transform.
struct AxisCase {
  const char* axis;
  int firstRow;
  std::uint8_t controller, follow, gate;
  double limitFactor;
};

constexpr AxisCase kAxes[] = {
    {"X", 47, 76, 159, 76, 1},    {"Y", 53, 81, 162, 81, 1},     {"Z", 59, 86, 165, 86, 1},
    {"H", 69, 95, 168, 95, 180},  {"P", 75, 100, 171, 100, 180}, {"B", 81, 105, 174, 105, 180},
    {"SX", 90, 113, 177, 113, 1}, {"SY", 96, 118, 180, 118, 1},  {"SZ", 102, 123, 183, 118, 1},  // by SY, deliberately
};

std::string tenDigits(double value) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(10) << value;
  return text.str();
}

Rows axisRows(const AxisCase& axis) {
  const std::string a = axis.axis;
  const auto slot = [&](int offset) { return static_cast<std::uint8_t>(axis.controller + offset); };
  const auto followSlot = [&](int offset) { return static_cast<std::uint8_t>(axis.follow + offset); };
  const auto row = [&](int offset) { return std::to_string(axis.firstRow + offset); };
  // 1.5707963267948966 radians are 90 degrees; plain numbers go as they are.
  const std::string limits = axis.limitFactor == 1 ? a + "Limits " + tenDigits(-0.25) + " " + tenDigits(1.5707963267948966)
                                                   : a + "Limits " + tenDigits(-14.32394487827058) + " " + tenDigits(90);
  return {
      // clang-format off
      {row(0), {{slot(0), "2"}}, {a + "Controller 2"}, {}, {a + "Controller 2"}},
      {row(1), {{slot(1), "1"}}, {"Limit" + a}, {{slot(1), "0"}}, {"Limit" + a}},
      {row(2), {{slot(1), "1"}, {slot(2), "-0.25"}, {slot(3), "1.5707963267948966"}}, {limits}, {{slot(2), "-0.25"}},
       {a + "Limits"}},
      {row(3), {{axis.gate, "6"}, {followSlot(0), "4"}}, {a + "Follow 4"}, {{axis.gate, "3"}, {followSlot(0), "4"}},
       {a + "Follow"}},
      {row(4), {{axis.gate, "6"}, {followSlot(1), "2"}, {followSlot(2), "-0.5"}},
       {a + "Transform " + tenDigits(2) + " " + tenDigits(-0.5)}, {{axis.gate, "5"}, {followSlot(1), "2"}}, {a + "Transform"}},
      {row(5) + "ik", {{slot(0), "3"}, {slot(4), "0.5"}}, {a + "Stiffness " + tenDigits(0.5)},
       {{slot(0), "2"}, {slot(4), "0.5"}}, {a + "Stiffness"}},
      {row(5) + "same", {{slot(0), "6"}, {slot(4), "0.5"}}, {a + "Stiffness " + tenDigits(0.5)}, {{slot(4), "0.5"}},
       {a + "Stiffness"}},
      // clang-format on
  };
}

Rows allRows() {
  Rows rows;
  const auto append = [&](Rows more) { rows.insert(rows.end(), more.begin(), more.end()); };
  append(leadingRows());
  append(ikRows());
  append(itemRows());
  for (const AxisCase& axis : kAxes) append(axisRows(axis));
  append(trailingRows());
  return rows;
}

bool isSent(const std::vector<std::string>& commands, const std::string& wanted) {
  const bool endsOpen = wanted.size() > 2 && wanted.substr(wanted.size() - 2) == "0x";
  return std::any_of(commands.begin(), commands.end(), [&](const std::string& command) {
    return endsOpen ? command.rfind(wanted, 0) == 0 && command.size() > wanted.size() : command == wanted;
  });
}

// A name without arguments is a toggle and means that command alone; with a blank or arguments it is a beginning.
bool isSentInAnyForm(const std::vector<std::string>& commands, const std::string& beginning) {
  return std::any_of(commands.begin(), commands.end(), [&](const std::string& command) {
    return command == beginning || command.rfind(beginning.back() == ' ' ? beginning : beginning + " ", 0) == 0 ||
           (beginning.find(' ') != std::string::npos && command.rfind(beginning, 0) == 0) ||
           (beginning == "PathAlign" && command.rfind(beginning, 0) == 0);
  });
}

class BoneRow : public ConversionTest, public testing::WithParamInterface<RowCase> {};

INSTANTIATE_TEST_SUITE_P(Rows, BoneRow, testing::ValuesIn(allRows()),
                         [](const testing::TestParamInfo<RowCase>& info) { return "Row" + info.param.row; });

TEST_P(BoneRow, IsSentWhenItsConditionHolds) {
  convert(load(twoBones(GetParam().on)));
  const std::vector<std::string> sent = commandsOfSkelegon(1);
  for (const std::string& command : GetParam().sent)
    EXPECT_TRUE(isSent(sent, command)) << command << "\n" << host.transcript().text();
}

TEST_P(BoneRow, IsNotSentWhenItsConditionDoesNotHold) {
  convert(load(twoBones(GetParam().off)));
  const std::vector<std::string> sent = commandsOfSkelegon(1);
  for (const std::string& command : GetParam().notSent)
    EXPECT_FALSE(isSentInAnyForm(sent, command)) << command << "\n" << host.transcript().text();
}

class BoneRows : public ConversionTest {
 protected:
  std::size_t weightSwitches() const {
    const std::vector<std::string> sent = commandsOfSkelegon(1);
    return static_cast<std::size_t>(std::count(sent.begin(), sent.end(), "BoneWeightMapOnly"));
  }
};

// Both switches go out under one name; a host with two commands would be told the second one here.
TEST_F(BoneRows, SendTheWeightSwitchTwiceWhenBothAreWanted) {
  convert(load(twoBones({{28, "Map"}, {29, "1"}, {30, "1"}})));
  EXPECT_EQ(weightSwitches(), 2u);
}

TEST_F(BoneRows, SendNoNormalizationWithoutTheWeightMapOnly) {
  convert(load(twoBones({{28, "Map"}, {30, "1"}})));
  EXPECT_EQ(weightSwitches(), 0u);
}

TEST_F(BoneRows, SendNoChainSwitchToABoneWhoseParentIsUnaffectedByIK) {
  convert(load(twoBones({{59, "0"}}, {{54, "1"}})));
  EXPECT_FALSE(isSent(commandsOfSkelegon(1), "UseIKChainVals"));
}

TEST_F(BoneRows, SendNoChainSwitchToATopmostBone) {
  convert(load(twoBones({}, {{59, "0"}})));
  EXPECT_FALSE(isSent(commandsOfSkelegon(0), "UseIKChainVals"));
}

TEST_F(BoneRows, LeaveOutFollowOfSZForItsOwnController) {
  convert(load(twoBones({{123, "6"}})));
  EXPECT_FALSE(isSentInAnyForm(commandsOfSkelegon(1), "SZFollow"));
  EXPECT_TRUE(isSent(commandsOfSkelegon(1), "SZStiffness 1.0000000000"));
}

TEST_F(BoneRows, SendIKInitialStateAndBlendingWithoutAGoal) {
  convert(load(twoBones({})));
  EXPECT_TRUE(isSent(commandsOfSkelegon(1), "IKInitialState 0"));
  EXPECT_TRUE(isSent(commandsOfSkelegon(1), "IKFKBlending 0.0000000000"));
}

TEST_F(BoneRows, ComeInTheirOrder) {
  convert(load(twoBones({{28, "Map"}, {36, "1"}, {33, "1"}, {77, "1"}, {55, "goal"}, {129, "Red"}, {95, "4"}})));
  const std::vector<std::string> names = {
      // clang-format off
      "SelectItem", "BoneFalloffType", "BoneMode", "NumLimitedBones", "BoneType", "BoneWeightMapName", "BoneStrength",
      "BoneLimitedRange", "BoneMinRange", "BoneMaxRange", "BoneJointComp", "BoneJointCompAmounts", "ItemIconScale",
      "RotationOrder", "GoalItem", "GoalObjective", "IKInitialState", "IKFKBlending", "GoalStrength", "SoftIK",
      "PositionItemWorld", "PositionItemBlendMethod", "XController", "LimitX", "XLimits", "YController", "ZController",
      "RotationItemWorld", "RotationItemBlendMethod", "HController", "PController", "BController", "ScaleItemBlendMethod",
      "SXController", "SYController", "SZController", "PathAlignLookAhead", "PathAlignMaxLookSteps", "PathAlignReliableDist",
      "ItemVisibility", "ItemColor",
      // clang-format on
  };
  std::size_t next = 0;
  for (const std::string& command : commandsOfSkelegon(1)) {
    if (next < names.size() && command.substr(0, command.find(' ')) == names[next]) ++next;
  }
  EXPECT_EQ(next, names.size()) << "missing or out of order: " << (next < names.size() ? names[next] : "") << "\n"
                                << host.transcript().text();
}

TEST_F(BoneRows, ToggleNothingOnABoneThatIsAsWanted) {
  convert(load(twoBones({{27, "1"}, {32, "1"}, {55, "goal"}, {59, "1"}, {68, "1"}})));
  for (const char* toggle :
       {"BoneActive", "BoneStrengthMultiply", "BoneLimitedRange", "BoneJointComp", "BoneMuscleFlex", "BoneBulge",
        "BoneTwist", "UnaffectedByIK", "UseIKChainVals", "MatchGoalOrientation", "KeepGoalWithinReach", "FullTimeIK"}) {
    EXPECT_FALSE(isSent(commandsOfSkelegon(1), toggle)) << toggle;
  }
}

// Deliberately the number that was sent: this host keeps objective 0, for it does not know 7.
TEST_F(BoneRows, JudgeSoftIKByTheObjectiveThatWasSent) {
  convert(load(twoBones({{55, "goal"}, {56, "7"}, {62, "1"}, {63, "2"}})));
  EXPECT_EQ(item("Bone").settings.ik.objective, 0);
  EXPECT_FALSE(isSentInAnyForm(commandsOfSkelegon(1), "SoftIK"));
  EXPECT_FALSE(isSentInAnyForm(commandsOfSkelegon(1), "SoftIKDistanceType"));
}

// The host refuses the controller, which has the bit, and keeps the one before.
TEST_F(BoneRows, AlignToThePathByTheControllersThatTheHostKept) {
  convert(load(twoBones({{95, "12"}})));
  EXPECT_TRUE(isSent(commandsOfSkelegon(1), "HController 12"));
  EXPECT_FALSE(isSentInAnyForm(commandsOfSkelegon(1), "PathAlign"));
}

TEST_F(BoneRows, SendTheGreatestNumberForOneBeyond32Bits) {
  convert(load(twoBones({{13, "99999999999"}, {16, "99999999999"}}, {{13, "-99999999999"}})));
  EXPECT_TRUE(isSent(commandsOfSkelegon(1), "BoneFalloffType 2147483647"));
  EXPECT_TRUE(isSent(commandsOfSkelegon(1), "BoneMode 2147483647"));
  EXPECT_TRUE(isSent(commandsOfSkelegon(0), "BoneFalloffType -2147483647"));
}

TEST_F(BoneRows, NeedTheSourceObjectToBeThere) {
  convert(load(twoBones({{12, "nowhere"}})));
  EXPECT_TRUE(statusSays("bone_set_params(): !(Bone)")) << host.transcript().text();
  EXPECT_EQ(countOf("AddNull"), 0u);
}

}  // namespace
}  // namespace standin
