// "LW Object Info 14" and "LW Bone Info 7".
#include <array>

#include "standin/core/gap_slots.h"
#include "standin/layout/services.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWObjectInfo> = "LWObjectInfo";
template <>
inline constexpr const char* kTableName<lw::LWBoneInfo> = "LWBoneInfo";

namespace {

Item* checkedObject(const HostCall& call, lw::ItemId id) { return checkedItem(call, id, lw::kItemObject); }
Item* checkedBone(const HostCall& call, lw::ItemId id) { return checkedItem(call, id, lw::kItemBone); }

// ---------------------------------------------------------------------------------------------------------------------
// Object info

const char* fileNameOfNull(const Item& null) {
  switch (currentScene().options().nullFileName) {
    case NoFileName::Empty: return giveText("");
    case NoFileName::Blank: return giveText(" ");
    case NoFileName::OwnName: return giveText(currentScene().nameOf(null));
    default: return nullptr;
  }
}

const char* fileName(lw::ItemId id) {
  const HostCall call("LWObjectInfo::filename");
  const Item* object = checkedObject(call, id);
  if (object == nullptr || call.refused()) return nullptr;
  if (object->isNull()) return fileNameOfNull(*object);
  return giveText(object->source->path);
}

lw::ItemId boneSource(lw::ItemId id) {
  const HostCall call("LWObjectInfo::boneSource");
  const Item* object = checkedObject(call, id);
  return object == nullptr || call.refused() ? nullptr : currentScene().idOf(object->object.boneSource);
}

// The command knows four modes, the query three: whether bones act after morphing is a flag of its own.
unsigned boneMode(lw::ItemId id) {
  constexpr std::array<unsigned, 4> kModeOfCommand{0, 0, 1, 2};
  const HostCall call("LWObjectInfo::boneMode");
  const Item* object = checkedObject(call, id);
  if (object == nullptr || call.refused()) return 0;
  return kModeOfCommand.at(static_cast<std::size_t>(object->object.boneMode));
}

unsigned numLimitedBones(lw::ItemId id) {
  const HostCall call("LWObjectInfo::numLimitedBones");
  const Item* object = checkedObject(call, id);
  return object == nullptr || call.refused() ? 0 : static_cast<unsigned>(object->object.limitedBones);
}

int layerLoaded(lw::ItemId id) {
  const HostCall call("LWObjectInfo::layerLoaded");
  const Item* object = checkedObject(call, id);
  if (object == nullptr || call.refused()) return 0;
  return (object->source ? object->source->layer : 0) + currentScene().options().layerBase;
}

// ---------------------------------------------------------------------------------------------------------------------
// Bone info

unsigned boneFlags(lw::ItemId id) {
  const HostCall call("LWBoneInfo::flags");
  const Item* item = checkedBone(call, id);
  if (item == nullptr || call.refused()) return 0;
  const BoneSettings& bone = item->bone;
  unsigned flags = 0;
  const auto add = [&](bool on, unsigned bit) { flags |= on ? bit : 0U; };
  add(bone.active, lw::kBoneActive);
  add(bone.limitedRange, lw::kBoneLimitedRange);
  add(bone.strengthMultiply, lw::kBoneStrengthMultiply);
  add(bone.weightMapOnly, lw::kBoneWeightMapOnly);
  add(bone.weightNormalization, lw::kBoneWeightNormalization);
  add(bone.jointComp, lw::kBoneJointComp);
  add(bone.jointCompParent, lw::kBoneJointCompParent);
  add(bone.muscleFlex, lw::kBoneMuscleFlex);
  add(bone.muscleFlexParent, lw::kBoneMuscleFlexParent);
  add(bone.twist, lw::kBoneTwist);
  add(bone.bulge, lw::kBoneBulge);
  add(bone.bulgeParent, lw::kBoneBulgeParent);
  return flags;
}

double strength(lw::ItemId id) {
  const HostCall call("LWBoneInfo::strength");
  const Item* bone = checkedBone(call, id);
  return bone == nullptr || call.refused() ? 0 : bone->bone.strength;
}

int falloff(lw::ItemId id) {
  const HostCall call("LWBoneInfo::falloff");
  const Item* bone = checkedBone(call, id);
  return bone == nullptr || call.refused() ? 0 : bone->bone.falloff;
}

int boneType(lw::ItemId id) {
  const HostCall call("LWBoneInfo::type");
  const Item* bone = checkedBone(call, id);
  return bone == nullptr || call.refused() ? 0 : bone->bone.type;
}

const char* weightMap(lw::ItemId id) {
  const HostCall call("LWBoneInfo::weightMap");
  const Item* bone = checkedBone(call, id);
  if (bone == nullptr || call.refused()) return nullptr;
  if (bone->bone.weightMap.empty() && !currentScene().options().noWeightMapIsEmpty) return nullptr;
  return giveText(bone->bone.weightMap);
}

}  // namespace

lw::LWObjectInfo* objectInfoTable() {
  static lw::LWObjectInfo table = [] {
    lw::LWObjectInfo t{};
    t.filename = &fileName;
    t.boneSource = &boneSource;
    t.layerLoaded = &layerLoaded;
    t.boneMode = &boneMode;
    t.numLimitedBones = &numLimitedBones;
    STANDIN_FILL_GAP(t, 8);
    STANDIN_FILL_GAP(t, 104);
    STANDIN_FILL_GAP(t, 288);
    STANDIN_FILL_GAP(t, 392);
    return t;
  }();
  return &table;
}

lw::LWBoneInfo* boneInfoTable() {
  static lw::LWBoneInfo table = [] {
    lw::LWBoneInfo t{};
    t.flags = &boneFlags;
    t.weightMap = &weightMap;
    t.strength = &strength;
    t.falloff = &falloff;
    t.type = &boneType;
    STANDIN_FILL_GAP(t, 8);
    STANDIN_FILL_GAP(t, 56);
    STANDIN_FILL_GAP(t, 80);
    return t;
  }();
  return &table;
}

}  // namespace standin
