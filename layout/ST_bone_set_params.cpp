#include "layout/ST_bone_set_params.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <string_view>

#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "layout/bone_commands.h"
#include "skelegon/setting_groups.h"

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

// The line to report of what failed; none when everything was sent.
using Failure = std::optional<int>;
constexpr int kNoReport = 0;

Failure unlessSent(bool sent, int line) { return sent ? Failure() : Failure(line); }

// The state of one bone while its commands are sent: read once, then brought up to date by what is sent, so that a toggle
// goes out only when the wanted state differs.
class CBoneRun {
 public:
  CBoneRun(lw::CSceneItems& scene, lw::ItemId bone, const SkelegonProperties& properties)
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
      if (const Failure failure = send(command)) {
        if (*failure != kNoReport) lw::ReportError(kSource, *failure, "");
        return false;
      }
      if (command.slot == Slot::GoalObject) goal_ = lw::itemInfo().goal(bone_);
      // What was sent counts from here on, also where the host keeps another objective: stored rigs get the same commands in
      // every host.
      if (command.slot == Slot::Objective) objective_ = integer(Slot::Objective);
    }
    return true;
  }

 private:
  bool isDue(const BoneCommand& command) const;
  bool isReachableGoal() const { return goal_ != nullptr && objective_ == 0; }
  bool hasSoftIK() const;
  bool followsIKParent() const;
  bool alignsToPath() const;

  Failure send(const BoneCommand& command);
  bool sendInteger(const BoneCommand& command) const;
  bool sendToggle(const BoneCommand& command);
  Failure sendItem(const BoneCommand& command);
  Failure sendWeightMap(const BoneCommand& command) const;
  bool sendColour(const BoneCommand& command) const;
  Failure sendAxis(skg::Axis axis);
  bool sendAxisLimit(const AxisRow& row);

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
  int objective_ = 0;
  bool hasWeightMap_ = false;
};

bool CBoneRun::isDue(const BoneCommand& command) const {
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

bool CBoneRun::hasSoftIK() const {
  lw::RefreshTimeInfo();
  unsigned distance = 0;
  double least = 0;
  double greatest = 0;
  return lw::itemInfo().ikSoft(bone_, lw::timeInfo().time, &distance, &least, &greatest) != 0;
}

bool CBoneRun::followsIKParent() const {
  const lw::ItemId parent = lw::itemInfo().parent(bone_);
  return parent != nullptr && lw::itemInfo().type(parent) == lw::kItemBone &&
         (lw::itemInfo().flags(parent) & lw::kItemUnaffectedByIK) == 0;
}

bool CBoneRun::alignsToPath() const {
  constexpr int kAlignBit = 0x4;
  int kinds[3] = {};
  lw::itemInfo().controller(bone_, lw::kParamRotation, kinds);
  return ((kinds[0] | kinds[1] | kinds[2]) & kAlignBit) != 0;
}

Failure CBoneRun::send(const BoneCommand& command) {
  const auto orLine = [&](bool sent) { return unlessSent(sent, command.line); };
  switch (command.sends) {
    case Sends::Integer: return orLine(sendInteger(command));
    case Sends::Switch: return orLine(EvalF("%s %d", command.name, properties_.isOn(command.slot) ? 1 : 0));
    case Sends::Real: return orLine(EvalF("%s %.10f", command.name, real(command.slot) * command.factor));
    case Sends::TwoReals:
      return orLine(
          EvalF("%s %.10f %.10f", command.name, real(command.slot) * command.factor, real(command.second) * command.factor));
    case Sends::Toggle: return orLine(sendToggle(command));
    case Sends::WeightMap: return sendWeightMap(command);
    case Sends::FoundItem:
    case Sends::ItemOrNull:
    case Sends::ItemUnchecked: return sendItem(command);
    case Sends::AxisGroup: return sendAxis(command.axis);
    case Sends::Colour: return orLine(sendColour(command));
  }
  return command.line;
}

// The sum stays at the end of its range as the number does when it is read: a text beyond 32 bits is the greatest number.
bool CBoneRun::sendInteger(const BoneCommand& command) const {
  constexpr std::int64_t kLeast = std::numeric_limits<int>::min();
  constexpr std::int64_t kGreatest = std::numeric_limits<int>::max();
  const std::int64_t sum = std::int64_t{integer(command.slot)} + command.offset;
  return EvalF("%s %d", command.name, static_cast<int>(std::clamp(sum, kLeast, kGreatest)));
}

bool CBoneRun::sendToggle(const BoneCommand& command) {
  const bool wanted = properties_.isOn(command.slot);
  unsigned& flags = word(command.word);
  if (wanted == ((flags & command.bit) != 0)) return true;
  if (!EvalF("%s", command.name)) return false;
  flags = wanted ? flags | command.updates : flags & ~command.updates;
  return true;
}

Failure CBoneRun::sendItem(const BoneCommand& command) {
  const std::string& name = text(command.slot);
  const lw::ItemId item = command.sends == Sends::FoundItem
                              ? scene_.FindItemByName(name)
                              : FindOrCreateNull(scene_, name, bone_, command.matchRotation, command.matchScale);
  if (item == nullptr && command.sends != Sends::ItemUnchecked) return command.line;
  return unlessSent(EvalF("%s 0x%x", command.name, lw::commandId(item)), command.secondLine);
}

Failure CBoneRun::sendWeightMap(const BoneCommand& command) const {
  const std::string& map = text(command.slot);
  if (map.empty()) return unlessSent(EvalF("%s (none)", command.name), command.line);
  return unlessSent(EvalF("%s %s", command.name, map.c_str()), command.secondLine);
}

bool CBoneRun::sendColour(const BoneCommand& command) const {
  const int index = skg::colourIndex(text(command.slot));
  return index == skg::kModelerColourIndex || EvalF("%s %d", command.name, index);
}

Failure CBoneRun::sendAxis(skg::Axis axis) {
  constexpr int kInverseKinematics = 3;
  constexpr int kSameAsItem = 6;
  const auto index = static_cast<std::size_t>(axis);
  const AxisRow& row = axisRows()[index];
  const skg::AxisSettings& set = row.settings();

  const int controller = integer(set.controller);
  controllers_[index] = controller;
  if (!EvalF("%sController %d", row.name, controller)) return row.lines[kController];

  if (!sendAxisLimit(row)) {
    if (!row.limitMayFail) return row.lines[kLimit];
    lw::ReportError(kSource, row.lines[kLimit], "");
  }
  if ((limits_[static_cast<std::size_t>(set.group)] & row.limitBit) != 0 &&
      !EvalF("%sLimits %.10f %.10f", row.name, real(set.least) * row.limitFactor, real(set.greatest) * row.limitFactor)) {
    return row.lines[kLimits];
  }
  if (controllers_[static_cast<std::size_t>(row.followGate)] == kSameAsItem) {
    if (!EvalF("%sFollow %d", row.name, integer(set.follow))) return row.lines[kFollow];
    if (!EvalF("%sTransform %.10f %.10f", row.name, real(set.factor), real(set.offset))) return row.lines[kTransform];
  }
  const bool stiff = controller == kInverseKinematics || controller == kSameAsItem;
  return unlessSent(!stiff || EvalF("%sStiffness %.10f", row.name, real(set.stiffness)), row.lines[kStiffness]);
}

// The switch of the limits, where it is not as wanted.
bool CBoneRun::sendAxisLimit(const AxisRow& row) {
  unsigned& limits = limits_[static_cast<std::size_t>(row.settings().group)];
  if (properties_.isOn(row.settings().limits) == ((limits & row.limitBit) != 0)) return true;
  if (!EvalF("Limit%s", row.name)) return false;
  limits ^= row.limitBit;
  return true;
}

// ---------------------------------------------------------------------------------------------------------------------

// The lines that are reported, in the order of the linked items; those of the bone's own parent come first.
constexpr int kBoneParentLine = 1166;
constexpr std::array<int, skg::kLinkedItems.size()> kParentLines = {1173, 1180, 1187, 1194, 1201, 1208, 1217};
constexpr std::array<int, skg::kLinkedItems.size()> kShapeLines = {1295, 1307, 1319, 1331, 1343, 1355, 1367};

bool parentTo(lw::ItemId child, lw::ItemId parent) {
  return selectItem(child) && EvalF("RefreshNow") && EvalF("ParentItem 0x%x", lw::commandId(parent));
}

// False when the host refused it. An item that is not named, or not there, is left as it is.
bool parentByName(lw::CSceneItems& scene, const std::string& childName, const std::string& parentName) {
  if (childName.empty() || parentName.empty()) return true;
  const lw::ItemId child = scene.FindItemByName(childName);
  const lw::ItemId parent = scene.FindItemByName(parentName);
  return child == nullptr || parent == nullptr || parentTo(child, parent);
}

// The null of that name among the new selected items, which need not all be ours: other plug-ins may add items, too. The
// host may have put a counter behind the name. Null when none is called so.
lw::ItemId namedSo(const lw::Selection& fresh, const std::string& name) {
  for (const bool exactly : {true, false}) {
    for (const lw::ItemId item : fresh) {
      const std::string called = lw::itemName(item);
      if (exactly ? called == name : called.starts_with(name + " (")) return item;
    }
  }
  return nullptr;
}

lw::Selection without(lw::Selection items, const lw::Selection& gone) {
  std::erase_if(items, [&](lw::ItemId item) { return std::find(gone.begin(), gone.end(), item) != gone.end(); });
  return items;
}

// Asks Layout for a null; of the name that the scene has no item of, or of any for an empty one. Null when Layout refused,
// or selects nothing.
lw::ItemId addNull(lw::CSceneItems& scene, const std::string& missingName, const lw::Selection& before) {
  const std::string name(missingName.empty() ? std::string_view("Null") : missingName);
  // Eval, not EvalF: only a null that was really made may be moved. The name is a text, never a format.
  const bool refused = lw::Eval(lw::FormatString("AddNull %s", name.c_str()));
  const lw::Selection after = refused ? lw::Selection() : lw::SaveSelection();
  const lw::Selection fresh = without(after, before);
  if (const lw::ItemId made = namedSo(fresh, name)) {
    scene.added(made, name);
    return made;
  }
  // What the scene holds now is not known.
  scene.forget();
  // A host that leaves the selection as it was does not show the null that it made: the first selected item is the bone
  // still, which must not be taken for it. It is the item of the name that was missing.
  const lw::ItemId found = after.empty() || missingName.empty() ? nullptr : scene.FindItemByName(name);
  if (found != nullptr || fresh.empty()) return found;
  return fresh.front();  // by whatever name
}

}  // namespace

bool ApplyBoneParameters(lw::CSceneItems& scene, lw::ItemId bone, const SkelegonProperties& properties) {
  selectItem(bone);
  if (!CBoneRun(scene, bone, properties).sendAll()) return false;
  const std::string& initialPosition = properties[Slot::InitialPositionItem];
  if (!initialPosition.empty()) FindOrCreateNull(scene, initialPosition, bone, true, false);
  return true;
}

bool ApplyItemParents(lw::CSceneItems& scene, const SkelegonProperties& properties) {
  const auto apply = [&](Slot child, Slot parent, int line) {
    const bool isParented = parentByName(scene, properties[child], properties[parent]);
    if (!isParented) lw::ReportError(kSource, line, "");
    return isParented;
  };
  if (!apply(Slot::Name, Slot::ParentItem, kBoneParentLine)) return false;
  for (std::size_t i = 0; i < skg::kLinkedItems.size(); ++i) {
    if (!apply(skg::kLinkedItems[i].name, skg::kLinkedItems[i].parent, kParentLines[i])) return false;
  }
  return true;
}

bool ApplyItemShapes(lw::CSceneItems& scene, const SkelegonProperties& properties) {
  for (std::size_t i = 0; i < skg::kLinkedItems.size(); ++i) {
    const skg::LinkedItem& linked = skg::kLinkedItems[i];
    const std::string& name = properties[linked.name];
    const lw::ItemId item = name.empty() ? nullptr : scene.FindItemByName(name);
    if (item == nullptr) continue;
    if (!SetItemLook(item, properties.isOn(linked.visibility), skg::colourIndex(properties[linked.colour]),
                     properties.isOn(linked.shape))) {
      lw::ReportError(kSource, kShapeLines[i], "");
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
  const lw::ItemId made = addNull(scene, name, selection.items());
  if (made == nullptr) {
    lw::ReportError(kSource, 273, "%s", "createNull() !");
    return nullptr;
  }
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
