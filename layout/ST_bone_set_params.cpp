#include "layout/ST_bone_set_params.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "layout/bone_commands.h"

namespace lwp {
namespace {

using lw::EvalF;
using skg::SkelegonProperties;
using skg::Slot;

constexpr const char* kSource = "ST_bone_set_params";

bool selectItem(lw::ItemId item) {
  const bool sent = EvalF("SelectItem 0x%x", lw::commandId(item));
  lw::RefreshInterfaceInfo();
  return sent;
}

// The state of one bone while its commands are sent: read once, then brought up to date by what is sent, so that a toggle
// goes out only when the wanted state differs.
class BoneRun {
 public:
  BoneRun(lw::CSceneItems& scene, lw::ItemId bone, const SkelegonProperties& properties)
      : scene_(scene), bone_(bone), properties_(properties) {
    const lw::LWItemInfo& items = lw::itemInfo();
    // The first item of the bone's name may be no bone. It gets its commands, which Layout then refuses one by one, but the
    // bone service must not be asked about it.
    if (items.type(bone) == lw::kItemBone) {
      flags_ = lw::boneInfo().flags(bone);
      const char* const map = lw::boneInfo().weightMap(bone);
      hasWeightMap_ = map != nullptr && *map != '\0';
    }
    itemFlags_ = items.flags(bone);
    for (std::size_t group = 0; group < limits_.size(); ++group) {
      double least[3] = {};
      double greatest[3] = {};
      limits_[group] = items.limits(bone, kMotionParams[group], least, greatest);
    }
    goal_ = items.goal(bone);
  }

  bool sendAll() {
    for (const BoneCommand& command : boneCommands()) {
      if (!isDue(command)) continue;
      if (!send(command)) {
        if (command.line != 0) lw::ReportError(kSource, command.line, "");
        return false;
      }
      if (command.slot == Slot::GoalObject) goal_ = lw::itemInfo().goal(bone_);
      // Read back, since the host may keep another objective than the one it was told.
      if (command.slot == Slot::Objective) objective_ = lw::itemInfo().goalObjective(bone_);
    }
    return true;
  }

 private:
  bool isDue(const BoneCommand& command) const;
  bool isReachableGoal() const { return goal_ != nullptr && objective_ == 0; }
  bool hasSoftIK() const;
  bool followsIKParent() const;
  bool alignsToPath() const;

  bool send(const BoneCommand& command);
  bool sendToggle(const BoneCommand& command);
  bool sendItem(const BoneCommand& command);
  bool sendWeightMap(const BoneCommand& command) const;
  bool sendColour(const BoneCommand& command) const;
  bool sendAxis(std::size_t index);

  unsigned& word(FlagWord which) { return which == FlagWord::Bone ? flags_ : itemFlags_; }
  const std::string& text(Slot slot) const { return properties_[slot]; }
  int integer(Slot slot) const { return properties_.integer(slot); }
  double real(Slot slot) const { return properties_.real(slot); }

  lw::CSceneItems& scene_;
  lw::ItemId bone_;
  const SkelegonProperties& properties_;

  unsigned flags_ = 0;
  unsigned itemFlags_ = 0;
  std::array<unsigned, std::size(kMotionParams)> limits_{};
  std::array<int, 9> controllers_{};  // as sent, by axis row
  lw::ItemId goal_ = nullptr;
  unsigned objective_ = 0;
  bool hasWeightMap_ = false;
};

bool BoneRun::isDue(const BoneCommand& command) const {
  const auto anyFlag = [this](unsigned bits) { return (flags_ & bits) != 0; };
  const auto hasSameItem = [this](int param) { return lw::itemInfo().sameItem(bone_, param) != nullptr; };
  switch (command.when) {
    case When::Always: return true;
    case When::TextGiven: return !text(command.slot).empty();
    case When::HasWeightMap: return hasWeightMap_;
    case When::HasWeightMapAndOnly: return hasWeightMap_ && anyFlag(lw::kBoneWeightMapOnly);
    case When::LimitedRangeOn: return anyFlag(lw::kBoneLimitedRange);
    case When::JointCompOn: return anyFlag(lw::kBoneJointComp | lw::kBoneJointCompParent);
    case When::MuscleFlexOn: return anyFlag(lw::kBoneMuscleFlex | lw::kBoneMuscleFlexParent);
    case When::BulgeOn: return anyFlag(lw::kBoneBulge);
    case When::BulgeParentOn: return anyFlag(lw::kBoneBulgeParent);
    case When::IsJoint: return properties_.isOn(Slot::BoneType);
    case When::IsTwistedJoint: return properties_.isOn(Slot::BoneType) && anyFlag(lw::kBoneTwist);
    case When::HasGoal: return goal_ != nullptr;
    case When::HasReachableGoal: return isReachableGoal();
    case When::HasSoftIK: return isReachableGoal() && hasSoftIK();
    case When::StartsAtFrame: return lw::itemInfo().ikInitialState(bone_) == 3;
    case When::FollowsIKParent: return followsIKParent();
    case When::HasPositionItem: return hasSameItem(lw::kParamPosition);
    case When::HasRotationItem: return hasSameItem(lw::kParamRotation);
    case When::HasScaleItem: return hasSameItem(lw::kParamScale);
    case When::AlignsToPath: return alignsToPath();
  }
  return false;
}

bool BoneRun::hasSoftIK() const {
  lw::RefreshTimeInfo();
  unsigned distance = 0;
  double least = 0;
  double greatest = 0;
  return lw::itemInfo().ikSoft(bone_, lw::timeInfo().time, &distance, &least, &greatest) != 0;
}

bool BoneRun::followsIKParent() const {
  const lw::ItemId parent = lw::itemInfo().parent(bone_);
  return parent != nullptr && lw::itemInfo().type(parent) == lw::kItemBone &&
         (lw::itemInfo().flags(parent) & lw::kItemUnaffectedByIK) == 0;
}

bool BoneRun::alignsToPath() const {
  constexpr int kAlignBit = 0x4;
  int kinds[3] = {};
  lw::itemInfo().controller(bone_, lw::kParamRotation, kinds);
  return ((kinds[0] | kinds[1] | kinds[2]) & kAlignBit) != 0;
}

bool BoneRun::send(const BoneCommand& command) {
  switch (command.sends) {
    case Sends::Integer: return EvalF("%s %d", command.name, integer(command.slot) + command.offset);
    case Sends::Switch: return EvalF("%s %d", command.name, properties_.isOn(command.slot) ? 1 : 0);
    case Sends::Real: return EvalF("%s %.10f", command.name, real(command.slot) * command.factor);
    case Sends::TwoReals:
      return EvalF("%s %.10f %.10f", command.name, real(command.slot) * command.factor,
                   real(command.second) * command.factor);
    case Sends::Toggle: return sendToggle(command);
    case Sends::WeightMap: return sendWeightMap(command);
    case Sends::FoundItem:
    case Sends::ItemOrNull:
    case Sends::ItemUnchecked: return sendItem(command);
    case Sends::AxisGroup: return sendAxis(command.axis);
    case Sends::Colour: return sendColour(command);
  }
  return false;
}

bool BoneRun::sendToggle(const BoneCommand& command) {
  const bool wanted = properties_.isOn(command.slot);
  unsigned& flags = word(command.word);
  if (wanted == ((flags & command.bit) != 0)) return true;
  if (!EvalF("%s", command.name)) return false;
  flags = wanted ? flags | command.updates : flags & ~command.updates;
  return true;
}

bool BoneRun::sendItem(const BoneCommand& command) {
  const std::string& name = text(command.slot);
  const lw::ItemId item = command.sends == Sends::FoundItem
                              ? scene_.FindItemByName(name)
                              : FindOrCreateNull(scene_, name, bone_, command.matchRotation, command.matchScale);
  if (item == nullptr && command.sends != Sends::ItemUnchecked) return false;
  return EvalF("%s 0x%x", command.name, lw::commandId(item));
}

bool BoneRun::sendWeightMap(const BoneCommand& command) const {
  const std::string& map = text(command.slot);
  return EvalF("%s %s", command.name, map.empty() ? "(none)" : map.c_str());
}

bool BoneRun::sendColour(const BoneCommand& command) const {
  const int index = skg::colourIndex(text(command.slot));
  return index == skg::kModelerColourIndex || EvalF("%s %d", command.name, index);
}

bool BoneRun::sendAxis(std::size_t index) {
  constexpr int kInverseKinematics = 3;
  constexpr int kSameAsItem = 6;
  const AxisRow& row = axisRows()[index];
  unsigned& limits = limits_[row.group];

  const int controller = integer(row.controller);
  controllers_[index] = controller;
  if (!EvalF("%sController %d", row.axis, controller)) return false;

  const bool wanted = properties_.isOn(row.limits);
  if (wanted != ((limits & row.limitBit) != 0)) {
    if (EvalF("Limit%s", row.axis)) {
      limits ^= row.limitBit;
    } else if (row.limitLine != 0) {
      lw::ReportError(kSource, row.limitLine, "");
    } else {
      return false;
    }
  }
  if ((limits & row.limitBit) != 0 &&
      !EvalF("%sLimits %.10f %.10f", row.axis, real(row.least) * row.limitFactor, real(row.greatest) * row.limitFactor)) {
    return false;
  }
  if (controllers_[row.followGate] == kSameAsItem &&
      !(EvalF("%sFollow %d", row.axis, integer(row.follow)) &&
        EvalF("%sTransform %.10f %.10f", row.axis, real(row.factor), real(row.offset)))) {
    return false;
  }
  const bool stiff = controller == kInverseKinematics || controller == kSameAsItem;
  return !stiff || EvalF("%sStiffness %.10f", row.axis, real(row.stiffness));
}

// ---------------------------------------------------------------------------------------------------------------------

struct ParentPair {
  Slot child;
  Slot parent;
  int line;
};

constexpr ParentPair kParents[] = {
    {Slot::Name, Slot::ParentItem, 1166},
    {Slot::TargetItem, Slot::TargetParent, 1173},
    {Slot::PoleItem, Slot::PoleParent, 1180},
    {Slot::GoalObject, Slot::GoalParent, 1187},
    {Slot::PositionItem, Slot::PositionParent, 1194},
    {Slot::RotationItem, Slot::RotationParent, 1201},
    {Slot::ScaleItem, Slot::ScaleParent, 1208},
    // The initial position item shares the position item's parent, deliberately: it has none of its own.
    {Slot::InitialPositionItem, Slot::PositionParent, 1217},
};

struct HelperItem {
  Slot name, visibility, colour, shape;
  int line;
};

constexpr HelperItem kHelpers[] = {
    {Slot::TargetItem, Slot::TargetVisibility, Slot::TargetColour, Slot::TargetShape, 1295},
    {Slot::PoleItem, Slot::PoleVisibility, Slot::PoleColour, Slot::PoleShape, 1307},
    {Slot::GoalObject, Slot::GoalVisibility, Slot::GoalColour, Slot::GoalShape, 1319},
    {Slot::PositionItem, Slot::PositionVisibility, Slot::PositionColour, Slot::PositionShape, 1331},
    {Slot::RotationItem, Slot::RotationVisibility, Slot::RotationColour, Slot::RotationShape, 1343},
    {Slot::ScaleItem, Slot::ScaleVisibility, Slot::ScaleColour, Slot::ScaleShape, 1355},
    {Slot::InitialPositionItem, Slot::InitialPositionVisibility, Slot::InitialPositionColour, Slot::InitialPositionShape,
     1367},
};

bool parentTo(lw::ItemId child, lw::ItemId parent) {
  return selectItem(child) && EvalF("RefreshNow") && EvalF("ParentItem 0x%x", lw::commandId(parent));
}

// Asks Layout for a null and gives back the item it selected for it; null when Layout refused or selected nothing new.
lw::ItemId addNull(const std::string& name, const lw::Selection& before) {
  // Eval, not EvalF: only a null that was really made may be moved. The name is a text, never a format.
  if (lw::Eval(lw::FormatString("AddNull %s", name.c_str()))) return nullptr;
  const lw::Selection after = lw::SaveSelection();
  if (after.empty()) return nullptr;
  const bool wasThere = std::find(before.begin(), before.end(), after.front()) != before.end();
  return wasThere ? nullptr : after.front();
}

}  // namespace

bool ApplyBoneParameters(lw::CSceneItems& scene, lw::ItemId bone, const SkelegonProperties& properties) {
  selectItem(bone);
  if (!BoneRun(scene, bone, properties).sendAll()) return false;
  const std::string& initialPosition = properties[Slot::InitialPositionItem];
  if (!initialPosition.empty()) FindOrCreateNull(scene, initialPosition, bone, true, false);
  return true;
}

bool ApplyItemParents(lw::CSceneItems& scene, const SkelegonProperties& properties) {
  for (const ParentPair& pair : kParents) {
    const std::string& childName = properties[pair.child];
    const std::string& parentName = properties[pair.parent];
    if (childName.empty() || parentName.empty()) continue;
    const lw::ItemId child = scene.FindItemByName(childName);
    const lw::ItemId parent = scene.FindItemByName(parentName);
    if (child == nullptr || parent == nullptr) continue;
    if (!parentTo(child, parent)) {
      lw::ReportError(kSource, pair.line, "");
      return false;
    }
  }
  return true;
}

bool ApplyItemShapes(lw::CSceneItems& scene, const SkelegonProperties& properties) {
  for (const HelperItem& helper : kHelpers) {
    const std::string& name = properties[helper.name];
    const lw::ItemId item = name.empty() ? nullptr : scene.FindItemByName(name);
    if (item == nullptr) continue;
    if (!SetItemLook(item, properties.isOn(helper.visibility), skg::colourIndex(properties[helper.colour]),
                     properties.isOn(helper.shape))) {
      lw::ReportError(kSource, helper.line, "");
      return false;
    }
  }
  return true;
}

lw::ItemId FindOrCreateNull(lw::CSceneItems& scene, const std::string& name, lw::ItemId reference, bool matchRotation,
                            bool matchScale) {
  if (!name.empty()) {
    const lw::ItemId found = scene.FindItemByName(name);
    if (found != nullptr) return found;
  }
  const lw::CSavedSelection selection;
  const std::string nullName(name.empty() ? std::string_view("Null") : name);
  const lw::ItemId made = addNull(nullName, selection.items());
  if (made == nullptr) {
    lw::ReportError(kSource, 273, "%s", "createNull() !");
    return nullptr;
  }
  scene.added(made, nullName);
  if (!MatchTransform(made, reference, matchRotation, matchScale)) lw::ReportError(kSource, 269, "%s", "matchTransform() !");
  return made;
}

bool SetItemLook(lw::ItemId item, bool visible, int colourIndex, bool addShape) {
  // Helper items are shown textured; a bone knows only shown and hidden, hence 7 here and 1 there.
  constexpr int kShown = 7;
  if (!selectItem(item)) return false;
  if (!EvalF("ItemVisibility %d", visible ? kShown : 0)) return false;
  if (colourIndex != skg::kModelerColourIndex && !EvalF("ItemColor %d", colourIndex)) return false;
  return !addShape || EnsureItemShape(item);
}

bool EnsureItemShape(lw::ItemId item) {
  constexpr const char* kClass = "CustomObjHandler";
  const std::string wanted = "LW_ItemShape";
  for (int index = 1;; ++index) {
    const char* const server = lw::itemInfo().server(item, kClass, index);
    if (server == nullptr) break;
    if (server == wanted) return true;
  }
  return EvalF("SelectItem 0x%x", lw::commandId(item)) && EvalF("ApplyServer %s %s", kClass, wanted.c_str());
}

}  // namespace lwp
