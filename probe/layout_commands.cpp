// What the commands for a bone do: each is sent once, or twice where it is a toggle, and a query is asked before and after.
//
// The commands are those that the product sends, in the forms in which it sends them. Where the host has no query that shows
// the effect, what the host answers is told alone.
#include <array>

#include "probe/layout_site.h"

namespace probe::layout {
namespace {

// What the commands are sent to, and the items that they name.
struct Target {
  lw::ItemId bone = nullptr;
  lw::ItemId object = nullptr;
  lw::ItemId null = nullptr;
};

using Query = std::string (*)(const LayoutScene&, const Target&);

enum class Names { Nothing, Null, Object };

struct CommandTrial {
  const char* command;
  Query query = nullptr;  // null: no query of the host's shows it
  bool isToggle = false;
  Names names = Names::Nothing;
};

std::string bits(unsigned flags) { return hexadecimal(flags); }
std::string nameOrNone(const LayoutScene& scene, lw::ItemId item) {
  return item == nullptr ? "none" : "\"" + scene.nameOf(item) + "\"";
}

// ---------------------------------------------------------------------------------------------------------------------
// Queries

std::string boneFlags(const LayoutScene& s, const Target& t) { return "flags " + bits(s.boneInfo().flags(t.bone)); }
std::string itemFlags(const LayoutScene& s, const Target& t) { return "flags " + bits(s.items().flags(t.bone)); }
std::string falloff(const LayoutScene& s, const Target& t) { return std::to_string(s.boneInfo().falloff(t.bone)); }
std::string boneType(const LayoutScene& s, const Target& t) { return std::to_string(s.boneInfo().type(t.bone)); }
std::string strength(const LayoutScene& s, const Target& t) { return shown(s.boneInfo().strength(t.bone)); }
std::string weightMap(const LayoutScene& s, const Target& t) {
  const char* const map = s.boneInfo().weightMap(t.bone);
  return map == nullptr ? "null" : "\"" + textOfHost(map) + "\"";
}
std::string boneSource(const LayoutScene& s, const Target& t) { return nameOrNone(s, s.objectInfo().boneSource(t.object)); }
std::string boneMode(const LayoutScene& s, const Target& t) { return std::to_string(s.objectInfo().boneMode(t.object)); }
std::string limitedBones(const LayoutScene& s, const Target& t) {
  return std::to_string(s.objectInfo().numLimitedBones(t.object));
}
std::string target(const LayoutScene& s, const Target& t) { return nameOrNone(s, s.items().target(t.bone)); }
std::string pole(const LayoutScene& s, const Target& t) { return nameOrNone(s, s.items().pole(t.bone)); }
std::string goal(const LayoutScene& s, const Target& t) { return nameOrNone(s, s.items().goal(t.bone)); }
std::string rotationOrder(const LayoutScene& s, const Target& t) { return std::to_string(s.items().rotationOrder(t.bone)); }
std::string objective(const LayoutScene& s, const Target& t) { return std::to_string(s.items().goalObjective(t.bone)); }
std::string initialState(const LayoutScene& s, const Target& t) { return std::to_string(s.items().ikInitialState(t.bone)); }

std::string softIk(const LayoutScene& s, const Target& t) {
  unsigned distance = 0;
  double least = 0;
  double greatest = 0;
  const unsigned kind = s.items().ikSoft(t.bone, s.time(), &distance, &least, &greatest);
  if (kind == 0) return "off";
  return "kind " + std::to_string(kind) + ", distance " + std::to_string(distance) + ", from " + shown(least) + " to " +
         shown(greatest);
}

template <lw::ItemParam Param>
std::string same(const LayoutScene& s, const Target& t) {
  return nameOrNone(s, s.items().sameItem(t.bone, Param));
}

template <lw::ItemParam Param, std::size_t Axis>
std::string controller(const LayoutScene& s, const Target& t) {
  int kinds[3] = {};
  s.items().controller(t.bone, Param, kinds);
  return std::to_string(kinds[Axis]);
}

template <lw::ItemParam Param, std::size_t Axis>
std::string limits(const LayoutScene& s, const Target& t) {
  Vector low{};
  Vector high{};
  const unsigned axes = s.items().limits(t.bone, Param, low.data(), high.data());
  return ((axes >> Axis & 1U) != 0 ? "on" : "off") + (" from " + shown(low.at(Axis)) + " to " + shown(high.at(Axis)));
}

std::string visibility(const LayoutScene& s, const Target& t) { return std::to_string(s.interfaceInfo().itemVis(t.bone)); }
std::string colour(const LayoutScene& s, const Target& t) { return std::to_string(s.interfaceInfo().itemColor(t.bone)); }

// ---------------------------------------------------------------------------------------------------------------------
// The commands

constexpr CommandTrial toggle(const char* command, Query query) { return {command, query, true}; }
constexpr CommandTrial naming(const char* command, Query query, Names names = Names::Null) {
  return {command, query, false, names};
}

constexpr lw::ItemParam kPosition = lw::kParamPosition;
constexpr lw::ItemParam kRotation = lw::kParamRotation;
constexpr lw::ItemParam kScale = lw::kParamScale;

constexpr CommandTrial kBoneTrials[] = {
    {"BoneFalloffType 3", falloff},
    {"BoneMode 3", boneMode},
    {"NumLimitedBones 7", limitedBones},
    {"BoneType 1", boneType},
    toggle("BoneActive", boneFlags),
    {"BoneWeightMapName ProbeWeight", weightMap},
    {"BoneWeightMapName (none)", weightMap},
    toggle("BoneWeightMapOnly", boneFlags),
    {"BoneStrength 0.5000000000", strength},
    {"BoneStrength 0,2500000000", strength},  // as a host's numbers may be written in its user's country
    toggle("BoneStrengthMultiply", boneFlags),
    toggle("BoneLimitedRange", boneFlags),
    {"BoneMinRange 0.2500000000"},
    {"BoneMaxRange 2.5000000000"},
    toggle("BoneJointComp", boneFlags),
    toggle("BoneJointCompParent", boneFlags),
    {"BoneJointCompAmounts 0.8000000000 0.6000000000"},
    toggle("BoneMuscleFlex", boneFlags),
    toggle("BoneMuscleFlexParent", boneFlags),
    {"BoneMuscleFlexAmounts 0.3000000000 0.4000000000"},
    toggle("BoneBulge", boneFlags),
    {"BoneBulgeAmount 0.2000000000"},
    toggle("BoneBulgeParent", boneFlags),
    {"BoneBulgeParentAmount 0.1000000000"},
    toggle("BoneTwist", boneFlags),
    {"BoneTwistAmount 0.7500000000"},
    naming("BoneSource", boneSource, Names::Object),
};

constexpr CommandTrial kItemTrials[] = {
    {"ItemIconScale 2.0000000000"},
    naming("TargetItem", target),
    naming("PoleItem", pole),
    {"RotationOrder 5", rotationOrder},
    {"RotationOrder 3", rotationOrder},
    toggle("UnaffectedByIK", itemFlags),
    naming("GoalItem", goal),
    {"GoalObjective 2", objective},
    {"IKInitialState 3", initialState},
    {"IKInitialStateFrame 12"},
    {"IKFKBlending 0.5000000000"},
    {"GoalStrength 50.0000000000"},
    {"SoftIK 1", softIk},
    {"SoftIKDistanceType 2", softIk},
    {"SoftIKMin 0.1000000000", softIk},
    {"SoftIKMax 0.9000000000", softIk},
    toggle("MatchGoalOrientation", itemFlags),
    toggle("KeepGoalWithinReach", itemFlags),
    toggle("FullTimeIK", itemFlags),
    {"PositionItemWorld 1"},
    naming("PositionItem", same<kPosition>),
    {"PositionItemBlendMethod 1"},
    {"PositionItemBlend 0.4000000000"},
    {"RotationItemWorld 1"},
    naming("RotationItem", same<kRotation>),
    {"RotationItemBlendMethod 1"},
    {"RotationItemBlend 0.4000000000"},
    naming("ScaleItem", same<kScale>),
    {"ScaleItemBlendMethod 1"},
    {"ScaleItemBlend 0.4000000000"},
    {"PathAlignLookAhead 0.1000000000"},
    {"PathAlignMaxLookSteps 20.0000000000"},
    {"PathAlignMaxLookSteps 20"},
    {"PathAlignReliableDist 0.0020000000"},
    {"ItemVisibility 0", visibility},
    {"ItemVisibility 1", visibility},
    {"ItemColor 0", colour},
    {"ItemColor 1", colour},
    {"ItemColor 14", colour},
    {"ItemColor 15", colour},
    {"UseIKChainVals 0", itemFlags},
    {"UseIKChainVals 1", itemFlags},
};

struct AxisTrials {
  const char* axis;
  Query controller;
  Query limits;
};

template <lw::ItemParam Param, std::size_t Axis>
constexpr AxisTrials axisTrials(const char* name) {
  return {name, controller<Param, Axis>, limits<Param, Axis>};
}

constexpr AxisTrials kAxes[] = {
    axisTrials<kPosition, 0>("X"), axisTrials<kPosition, 1>("Y"), axisTrials<kPosition, 2>("Z"),
    axisTrials<kRotation, 0>("H"), axisTrials<kRotation, 1>("P"), axisTrials<kRotation, 2>("B"),
    axisTrials<kScale, 0>("SX"),   axisTrials<kScale, 1>("SY"),   axisTrials<kScale, 2>("SZ"),
};

// The product sends this one bare, where an argument is documented: a host may ask the user for it, so it comes last.
constexpr CommandTrial kBareTrials[] = {{"UseIKChainVals", itemFlags}};

// ---------------------------------------------------------------------------------------------------------------------
// Trying them

std::string once(const LayoutScene& scene, const Target& target, const std::string& command, Query query) {
  const std::string answered = "answered " + std::to_string(scene.host().command(command));
  return query == nullptr ? answered : answered + ", then " + query(scene, target);
}

std::string tried(const LayoutScene& scene, const Target& target, const CommandTrial& trial, const std::string& command) {
  std::string seen = trial.query == nullptr ? "" : "before " + trial.query(scene, target) + "; ";
  seen += once(scene, target, command, trial.query);
  if (trial.isToggle) seen += "; again: " + once(scene, target, command, trial.query);
  return seen;
}

std::string textOf(const LayoutScene& scene, const Target& target, const CommandTrial& trial) {
  if (trial.names == Names::Null) return scene.withItem(trial.command, target.null);
  return trial.names == Names::Object ? scene.withItem(trial.command, target.object) : trial.command;
}

// Only while the item that is meant, and nothing of the user's, is selected: a command before may have changed that.
void tell(const LayoutScene& scene, const Target& target, lw::ItemId item, const CommandTrial& trial, Facts& facts) {
  const std::string command = textOf(scene, target, trial);
  facts.figure(command, sentenceOf([&] {
                 if (scene.selection() != Items{item}) scene.select({item});
                 return tried(scene, target, trial, command);
               }));
}

void tellAxis(const LayoutScene& scene, const Target& target, const AxisTrials& row, Facts& facts) {
  const std::string axis = row.axis;
  const auto tellOne = [&](const std::string& command, Query query, bool isToggle = false) {
    tell(scene, target, target.bone, {command.c_str(), query, isToggle}, facts);
  };
  tellOne(axis + "Controller 6", row.controller);
  tellOne("Limit" + axis, row.limits, true);
  tellOne(axis + "Limits -0.5000000000 45.0000000000", row.limits);
  tellOne(axis + "Stiffness 3.0000000000", nullptr);
  tellOne(axis + "Follow 1", nullptr);
  tellOne(axis + "Transform 2.0000000000 0.2500000000", nullptr);
}

// Sent to a null: the shape of an item that a rig points to, and the look of objects.
void tellOfNull(const LayoutScene& scene, const Target& target, Facts& facts) {
  scene.select({target.null});
  const auto server = [](const LayoutScene& s, const Target& t) {
    const char* const name = s.items().server(t.null, "CustomObjHandler", 1);
    return name == nullptr ? std::string("none") : "\"" + textOfHost(name) + "\"";
  };
  const auto look = [](const LayoutScene& s, const Target& t) { return std::to_string(s.interfaceInfo().itemVis(t.null)); };
  tell(scene, target, target.null, {"ApplyServer CustomObjHandler LW_ItemShape", server}, facts);
  tell(scene, target, target.null, {"ItemVisibility 7", look}, facts);
}

}  // namespace

void tellCommandFigures(LayoutSite& site, Facts& facts) {
  const LayoutScene& scene = site.scene;
  const Target target{site.rig().bone(kRigRight), site.rig().first(), site.nulls().first().null};
  tellOfNull(scene, target, facts);
  scene.select({target.bone});
  for (const CommandTrial& trial : kBoneTrials) tell(scene, target, target.bone, trial, facts);
  for (const CommandTrial& trial : kItemTrials) tell(scene, target, target.bone, trial, facts);
  for (const AxisTrials& row : kAxes) tellAxis(scene, target, row, facts);
  for (const CommandTrial& trial : kBareTrials) tell(scene, target, target.bone, trial, facts);
}

}  // namespace probe::layout
