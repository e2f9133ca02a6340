#include "standin/layout/command_table.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

#include "standin/layout/scene_commands.h"

namespace standin {
namespace {

using Rows = std::vector<CommandRow>;

constexpr int kAnyInt = std::numeric_limits<int>::max();

// ---------------------------------------------------------------------------------------------------------------------
// Kinds of rows

ArgumentRule whole(int least, int greatest) { return {ArgumentKind::Integer, least, greatest}; }
constexpr ArgumentRule kReal{ArgumentKind::Real, 0, 0};
constexpr ArgumentRule kItem{ArgumentKind::Item, 0, 0};

// A part of an item that a row sets: from the item to a reference.
template <class T>
using Part = T& (*)(Item&);

CommandRow toggle(std::string name, CommandTarget target, Part<bool> part) {
  return {std::move(name), target, {}, [part](LayoutState&, Item* item, const Arguments&) -> Rejection {
            part(*item) = !part(*item);
            return {};
          }};
}

CommandRow number(std::string name, CommandTarget target, int least, int greatest, Part<int> part, int base = 0) {
  return {std::move(name),
          target,
          {whole(least, greatest)},
          [part, base](LayoutState&, Item* item, const Arguments& arguments) -> Rejection {
            part(*item) = arguments[0].integer - base;
            return {};
          }};
}

CommandRow flag(std::string name, CommandTarget target, Part<bool> part) {
  return {std::move(name), target, {whole(0, 1)}, [part](LayoutState&, Item* item, const Arguments& arguments) -> Rejection {
            part(*item) = arguments[0].integer != 0;
            return {};
          }};
}

CommandRow real(std::string name, CommandTarget target, Part<double> part) {
  return {std::move(name), target, {kReal}, [part](LayoutState&, Item* item, const Arguments& arguments) -> Rejection {
            part(*item) = arguments[0].real;
            return {};
          }};
}

CommandRow twoReals(std::string name, CommandTarget target, Part<std::array<double, 2>> part) {
  return {
      std::move(name), target, {kReal, kReal}, [part](LayoutState&, Item* item, const Arguments& arguments) -> Rejection {
        part(*item) = {arguments[0].real, arguments[1].real};
        return {};
      }};
}

CommandRow link(std::string name, Part<Item*> part) {
  return {std::move(name),
          CommandTarget::Item,
          {kItem},
          [part](LayoutState&, Item* item, const Arguments& arguments) -> Rejection {
            if (arguments[0].item == item) return "an item cannot point to itself";
            part(*item) = arguments[0].item;
            return {};
          }};
}

// A switch of the whole program. The command page knows it as a plain toggle; with 0 or 1 it is set.
CommandRow programSwitch(std::string name, bool LayoutState::*member) {
  return {std::move(name),
          CommandTarget::None,
          {{ArgumentKind::OptionalInteger, 0, 1}},
          [member](LayoutState& state, Item*, const Arguments& arguments) -> Rejection {
            const SwitchArgument habit = state.scene.options().switchArgument;
            if (arguments[0].given && habit == SwitchArgument::Refused) return "it takes no argument";
            const bool isTaken = arguments[0].given && habit == SwitchArgument::Taken;
            state.*member = isTaken ? arguments[0].integer != 0 : !(state.*member);
            return {};
          }};
}

// ---------------------------------------------------------------------------------------------------------------------
// Actions

Rejection statusMessage(LayoutState& state, Item*, const Arguments& arguments) {
  const std::string& text = arguments[0].text;
  Event event{EventKind::Status, text, {}, std::nullopt};
  const std::size_t close = text.find('}');
  if (text.starts_with('{') && close != std::string::npos) {
    double fraction = 0;
    const auto [end, error] = std::from_chars(text.data() + 1, text.data() + close, fraction, std::chars_format::fixed);
    if (error == std::errc() && end == text.data() + close && fraction >= 0 && fraction <= 1) {
      event.progress = fraction;
      event.text = text.substr(close + 1);
    }
  }
  state.transcript.add(std::move(event));
  return {};
}

Rejection parentItem(LayoutState& state, Item* item, const Arguments& arguments) {
  Scene& scene = state.scene;
  Item* const parent = arguments[0].item;
  const Placement before = scene.placement(*item, state.time);
  if (!scene.setParent(*item, parent)) return "an item cannot come to stand below itself";
  if (scene.options().parentInPlace) scene.placeAt(*item, before, state.time);
  if (scene.options().parentingReorders && item->kind == parent->kind && item->owner == parent->owner) {
    scene.moveInList(*item, parent->placeInList + (item->placeInList > parent->placeInList ? 1 : 0));
  }
  return {};
}

Rejection rotationOrder(LayoutState& state, Item* item, const Arguments& arguments) {
  item->settings.order = static_cast<RotationOrder>(arguments[0].integer);
  state.scene.moved(*item);
  return {};
}

Rejection recordPivotRotation(LayoutState& state, Item* item, const Arguments&) {
  state.scene.recordPivotRotation(*item, state.time);
  return {};
}

Rejection applyServer(LayoutState& state, Item* item, const Arguments& arguments) {
  const AppliedServer wanted{arguments[0].text, arguments[1].text};
  const auto same = [&](const AppliedServer& known) {
    return known.className == wanted.className && known.name == wanted.name;
  };
  if (std::none_of(state.knownServers.begin(), state.knownServers.end(), same)) return "no such server";
  item->settings.servers.push_back(wanted);
  return {};
}

Rejection itemVisibility(LayoutState&, Item* item, const Arguments& arguments) {
  const int greatest = item->kind == ItemKind::Object ? 13 : 1;
  if (arguments[0].integer > greatest) return "visibility " + std::to_string(arguments[0].integer) + " is for objects only";
  item->settings.visibility = arguments[0].integer;
  return {};
}

// Switching it on switches normalisation on too; switching it off leaves normalisation alone.
Rejection weightMapOnly(LayoutState&, Item* item, const Arguments&) {
  item->bone.weightMapOnly = !item->bone.weightMapOnly;
  if (item->bone.weightMapOnly) item->bone.weightNormalization = true;
  return {};
}

Rejection weightMapName(LayoutState&, Item* item, const Arguments& arguments) {
  item->bone.weightMap = arguments[0].text == "(none)" ? std::string() : arguments[0].text;
  return {};
}

Rejection boneSource(LayoutState&, Item* item, const Arguments& arguments) {
  if (arguments[0].item->kind != ItemKind::Object) return "bones come from an object";
  item->owner->object.boneSource = arguments[0].item;
  return {};
}

// Documented with a state; without one it switches over.
Rejection useIkChain(LayoutState&, Item* item, const Arguments& arguments) {
  bool& on = item->settings.ik.useChain;
  on = arguments[0].given ? arguments[0].integer != 0 : !on;
  return {};
}

// ---------------------------------------------------------------------------------------------------------------------
// The rows

constexpr CommandTarget kNoTarget = CommandTarget::None;
constexpr CommandTarget kToItem = CommandTarget::Item;
constexpr CommandTarget kToBone = CommandTarget::Bone;
constexpr CommandTarget kToObject = CommandTarget::Object;

void addProgramRows(Rows& rows) {
  rows.push_back(
      {"AutoConfirm", kNoTarget, {whole(-1, 1)}, [](LayoutState& state, Item*, const Arguments& arguments) -> Rejection {
         state.autoConfirm = arguments[0].integer;
         return {};
       }});
  rows.push_back({"RefreshNow", kNoTarget, {}, [](LayoutState& state, Item*, const Arguments&) -> Rejection {
                    ++state.refreshes;
                    return {};
                  }});
  rows.push_back({"StatusMsg", kNoTarget, {{ArgumentKind::OptionalRest, 0, 0}}, statusMessage});
  rows.push_back(programSwitch("EnableIK", &LayoutState::ikEnabled));
  rows.push_back(programSwitch("EnableMC", &LayoutState::motionControllersEnabled));
  rows.push_back(programSwitch("EnableDeformations", &LayoutState::deformationsEnabled));
}

void addItemRows(Rows& rows) {
  rows.push_back({"ParentItem", kToItem, {kItem}, parentItem});
  rows.push_back(link("TargetItem", [](Item& i) -> Item*& { return i.settings.target; }));
  rows.push_back(link("PoleItem", [](Item& i) -> Item*& { return i.settings.pole; }));
  rows.push_back(link("GoalItem", [](Item& i) -> Item*& { return i.settings.ik.goal; }));
  rows.push_back({"RotationOrder", kToItem, {whole(0, 5)}, rotationOrder});
  rows.push_back({"RecordPivotRotation", kToItem, {}, recordPivotRotation});
  rows.push_back({"ApplyServer", kToObject, {{ArgumentKind::Word, 0, 0}, {ArgumentKind::Rest, 0, 0}}, applyServer});
  rows.push_back({"ItemVisibility", kToItem, {whole(0, 13)}, itemVisibility});
  rows.push_back(number("ItemColor", kToItem, 0, 14, [](Item& i) -> int& { return i.settings.colour; }));
  rows.push_back(real("ItemIconScale", kToItem, [](Item& i) -> double& { return i.settings.iconScale; }));
  rows.push_back(real("PathAlignLookAhead", kToItem, [](Item& i) -> double& { return i.settings.pathAlign.lookAhead; }));
  rows.push_back({"PathAlignMaxLookSteps",
                  kToItem,
                  {{ArgumentKind::WholeReal, 0, 0}},
                  [](LayoutState&, Item* i, const Arguments& arguments) -> Rejection {
                    i->settings.pathAlign.maxSteps = arguments[0].integer;
                    return {};
                  }});
  rows.push_back(
      real("PathAlignReliableDist", kToItem, [](Item& i) -> double& { return i.settings.pathAlign.reliableDistance; }));
}

void addIkRows(Rows& rows) {
  rows.push_back(toggle("UnaffectedByIK", kToItem, [](Item& i) -> bool& { return i.settings.ik.unaffected; }));
  rows.push_back(toggle("FullTimeIK", kToItem, [](Item& i) -> bool& { return i.settings.ik.fullTime; }));
  rows.push_back(
      toggle("MatchGoalOrientation", kToItem, [](Item& i) -> bool& { return i.settings.ik.matchGoalOrientation; }));
  rows.push_back(toggle("KeepGoalWithinReach", kToItem, [](Item& i) -> bool& { return i.settings.ik.keepGoalInReach; }));
  rows.push_back({"UseIKChainVals", kToItem, {{ArgumentKind::OptionalInteger, 0, 1}}, useIkChain});
  rows.push_back(number("GoalObjective", kToItem, 0, 2, [](Item& i) -> int& { return i.settings.ik.objective; }));
  rows.push_back(real("GoalStrength", kToItem, [](Item& i) -> double& { return i.settings.ik.goalStrength; }));
  rows.push_back(number("IKInitialState", kToItem, 0, 3, [](Item& i) -> int& { return i.settings.ik.initialState; }));
  rows.push_back(number("IKInitialStateFrame", kToItem, -kAnyInt, kAnyInt,
                        [](Item& i) -> int& { return i.settings.ik.initialStateFrame; }));
  rows.push_back(real("IKFKBlending", kToItem, [](Item& i) -> double& { return i.settings.ik.blending; }));
  rows.push_back(number("SoftIK", kToItem, 0, 3, [](Item& i) -> int& { return i.settings.ik.softKind; }));
  rows.push_back(number("SoftIKDistanceType", kToItem, 0, 2, [](Item& i) -> int& { return i.settings.ik.softDistance; }));
  rows.push_back(real("SoftIKMin", kToItem, [](Item& i) -> double& { return i.settings.ik.softLeast; }));
  rows.push_back(real("SoftIKMax", kToItem, [](Item& i) -> double& { return i.settings.ik.softGreatest; }));
}

template <std::size_t Which>
SameItemSettings& same(Item& item) {
  return item.settings.same[Which];
}

template <std::size_t Which>
void addSameItemRows(Rows& rows, const std::string& name) {
  rows.push_back(link(name, [](Item& i) -> Item*& { return same<Which>(i).item; }));
  rows.push_back(number(name + "BlendMethod", kToItem, 0, 1, [](Item& i) -> int& { return same<Which>(i).blendMethod; }));
  rows.push_back(real(name + "Blend", kToItem, [](Item& i) -> double& { return same<Which>(i).blend; }));
  // Scale has no world switch.
  if (Which != 2) rows.push_back(flag(name + "World", kToItem, [](Item& i) -> bool& { return same<Which>(i).world; }));
}

template <std::size_t Which>
AxisSettings& axis(Item& item) {
  return item.settings.axes[Which];
}

template <std::size_t Which>
void addAxisRows(Rows& rows) {
  const std::string name = kAxisNames[Which];
  rows.push_back(number(name + "Controller", kToItem, 0, 7, [](Item& i) -> int& { return axis<Which>(i).controller; }));
  rows.push_back(toggle("Limit" + name, kToItem, [](Item& i) -> bool& { return axis<Which>(i).limited; }));
  rows.push_back(
      {name + "Limits", kToItem, {kReal, kReal}, [](LayoutState&, Item* i, const Arguments& arguments) -> Rejection {
         axis<Which>(*i).least = arguments[0].real;
         axis<Which>(*i).greatest = arguments[1].real;
         return {};
       }});
  rows.push_back(real(name + "Stiffness", kToItem, [](Item& i) -> double& { return axis<Which>(i).stiffness; }));
  rows.push_back(number(name + "Follow", kToItem, 0, 8, [](Item& i) -> int& { return axis<Which>(i).follow; }));
  rows.push_back(
      {name + "Transform", kToItem, {kReal, kReal}, [](LayoutState&, Item* i, const Arguments& arguments) -> Rejection {
         axis<Which>(*i).factor = arguments[0].real;
         axis<Which>(*i).offset = arguments[1].real;
         return {};
       }});
}

template <std::size_t... Which>
void addAllAxisRows(Rows& rows, std::index_sequence<Which...>) {
  (addAxisRows<Which>(rows), ...);
}

void addBoneRows(Rows& rows) {
  rows.push_back({"BoneSource", kToBone, {kItem}, boneSource});
  // The command counts from 1, the query from 0.
  rows.push_back(number(
      "BoneFalloffType", kToBone, 1, 9, [](Item& i) -> int& { return i.bone.falloff; }, 1));
  // Of the bone's object, for all its bones.
  rows.push_back(number("BoneMode", kToBone, 0, 3, [](Item& i) -> int& { return i.owner->object.boneMode; }));
  rows.push_back(
      number("NumLimitedBones", kToBone, 0, kAnyInt, [](Item& i) -> int& { return i.owner->object.limitedBones; }));
  rows.push_back(number("BoneType", kToBone, 0, 1, [](Item& i) -> int& { return i.bone.type; }));
  rows.push_back(toggle("BoneActive", kToBone, [](Item& i) -> bool& { return i.bone.active; }));
  rows.push_back({"BoneWeightMapName", kToBone, {{ArgumentKind::Rest, 0, 0}}, weightMapName});
  rows.push_back({"BoneWeightMapOnly", kToBone, {}, weightMapOnly});
  rows.push_back(toggle("BoneNormalization", kToBone, [](Item& i) -> bool& { return i.bone.weightNormalization; }));
  rows.push_back(real("BoneStrength", kToBone, [](Item& i) -> double& { return i.bone.strength; }));
  rows.push_back(toggle("BoneStrengthMultiply", kToBone, [](Item& i) -> bool& { return i.bone.strengthMultiply; }));
  rows.push_back(toggle("BoneLimitedRange", kToBone, [](Item& i) -> bool& { return i.bone.limitedRange; }));
  rows.push_back(real("BoneMinRange", kToBone, [](Item& i) -> double& { return i.bone.minRange; }));
  rows.push_back(real("BoneMaxRange", kToBone, [](Item& i) -> double& { return i.bone.maxRange; }));
}

void addBoneFormRows(Rows& rows) {
  rows.push_back(toggle("BoneJointComp", kToBone, [](Item& i) -> bool& { return i.bone.jointComp; }));
  rows.push_back(toggle("BoneJointCompParent", kToBone, [](Item& i) -> bool& { return i.bone.jointCompParent; }));
  rows.push_back(twoReals(
      "BoneJointCompAmounts", kToBone, [](Item & i) -> auto& { return i.bone.jointCompAmounts; }));
  rows.push_back(toggle("BoneMuscleFlex", kToBone, [](Item& i) -> bool& { return i.bone.muscleFlex; }));
  rows.push_back(toggle("BoneMuscleFlexParent", kToBone, [](Item& i) -> bool& { return i.bone.muscleFlexParent; }));
  rows.push_back(twoReals(
      "BoneMuscleFlexAmounts", kToBone, [](Item & i) -> auto& { return i.bone.muscleFlexAmounts; }));
  rows.push_back(toggle("BoneBulge", kToBone, [](Item& i) -> bool& { return i.bone.bulge; }));
  rows.push_back(real("BoneBulgeAmount", kToBone, [](Item& i) -> double& { return i.bone.bulgeAmount; }));
  rows.push_back(toggle("BoneBulgeParent", kToBone, [](Item& i) -> bool& { return i.bone.bulgeParent; }));
  rows.push_back(real("BoneBulgeParentAmount", kToBone, [](Item& i) -> double& { return i.bone.bulgeParentAmount; }));
  rows.push_back(toggle("BoneTwist", kToBone, [](Item& i) -> bool& { return i.bone.twist; }));
  rows.push_back(real("BoneTwistAmount", kToBone, [](Item& i) -> double& { return i.bone.twistAmount; }));
}

Rows allRows() {
  Rows rows;
  addSceneRows(rows);
  addProgramRows(rows);
  addItemRows(rows);
  addIkRows(rows);
  addSameItemRows<0>(rows, "PositionItem");
  addSameItemRows<1>(rows, "RotationItem");
  addSameItemRows<2>(rows, "ScaleItem");
  addAllAxisRows(rows, std::make_index_sequence<kAxisCount>());
  addBoneRows(rows);
  addBoneFormRows(rows);
  return rows;
}

}  // namespace

const std::unordered_map<std::string_view, const CommandRow*>& commandTable() {
  static const Rows rows = allRows();
  static const auto table = [] {
    std::unordered_map<std::string_view, const CommandRow*> byName;
    for (const CommandRow& row : rows) byName.emplace(row.name, &row);
    return byName;
  }();
  return table;
}

}  // namespace standin
