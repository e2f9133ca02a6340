// "LW Object Info 14", "LW Bone Info 7" and "Scene Objects 9".
#include "standin/core/gap_slots.h"
#include "standin/layout/services.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWObjectInfo> = "LWObjectInfo";
template <>
inline constexpr const char* kTableName<lw::LWBoneInfo> = "LWBoneInfo";
template <>
inline constexpr const char* kTableName<lw::LWObjectFuncs> = "LWObjectFuncs";

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
  return giveText(currentScene().files()[object->source->file].path);
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

const char* weightMap(lw::ItemId id) {
  const HostCall call("LWBoneInfo::weightMap");
  const Item* bone = checkedBone(call, id);
  if (bone == nullptr || call.refused()) return nullptr;
  if (bone->bone.weightMap.empty() && !currentScene().options().noWeightMapIsEmpty) return nullptr;
  return giveText(bone->bone.weightMap);
}

// ---------------------------------------------------------------------------------------------------------------------
// Scene objects: the loaded files. Layers count from 0 here.

const LoadedFile* checkedFile(const HostCall& call, int index) {
  const auto& files = currentScene().files();
  if (index >= 0 && static_cast<std::size_t>(index) < files.size()) return &files[static_cast<std::size_t>(index)];
  call.fault("there is no object " + std::to_string(index));
  return nullptr;
}

const LoadedFile::Layer* layerOf(const LoadedFile& file, int number) {
  for (const LoadedFile::Layer& layer : file.layers) {
    if (layer.number == number) return &layer;
  }
  return nullptr;
}

int numObjects() {
  const HostCall call("LWObjectFuncs::numObjects");
  return call.refused() ? 0 : static_cast<int>(currentScene().files().size());
}

const char* sceneFileName(int object) {
  const HostCall call("LWObjectFuncs::filename");
  const LoadedFile* file = checkedFile(call, object);
  return file == nullptr || call.refused() ? nullptr : giveText(file->path);
}

int maxLayers(int object) {
  const HostCall call("LWObjectFuncs::maxLayers");
  const LoadedFile* file = checkedFile(call, object);
  int greatest = 0;
  if (file == nullptr || call.refused()) return greatest;
  for (const LoadedFile::Layer& layer : file->layers) greatest = std::max(greatest, layer.number + 1);
  return greatest;
}

int layerExists(int object, int layer) {
  const HostCall call("LWObjectFuncs::layerExists");
  const LoadedFile* file = checkedFile(call, object);
  return file != nullptr && !call.refused() && layerOf(*file, layer) != nullptr ? 1 : 0;
}

int numVMaps(std::uint32_t type) {
  const HostCall call("LWObjectFuncs::numVMaps");
  return call.refused() ? 0 : static_cast<int>(currentScene().vertexMaps(type).size());
}

const char* vmapName(std::uint32_t type, int index) {
  const HostCall call("LWObjectFuncs::vmapName");
  const std::vector<std::string> names = currentScene().vertexMaps(type);
  if (index < 0 || static_cast<std::size_t>(index) >= names.size()) {
    call.fault("there is no vertex map " + std::to_string(index));
    return nullptr;
  }
  return call.refused() ? nullptr : giveText(names[static_cast<std::size_t>(index)]);
}

const char* layerName(int object, int number) {
  const HostCall call("LWObjectFuncs::layerName");
  const LoadedFile* file = checkedFile(call, object);
  const LoadedFile::Layer* layer = file == nullptr ? nullptr : layerOf(*file, number);
  return layer == nullptr || layer->name.empty() || call.refused() ? nullptr : giveText(layer->name);
}

}  // namespace

lw::LWObjectInfo* objectInfoTable() {
  static lw::LWObjectInfo table = [] {
    lw::LWObjectInfo t{};
    t.filename = &fileName;
    t.layerLoaded = &layerLoaded;
    STANDIN_FILL_GAP(t, 8);
    STANDIN_FILL_GAP(t, 288);
    return t;
  }();
  return &table;
}

lw::LWBoneInfo* boneInfoTable() {
  static lw::LWBoneInfo table = [] {
    lw::LWBoneInfo t{};
    t.flags = &boneFlags;
    t.weightMap = &weightMap;
    STANDIN_FILL_GAP(t, 8);
    STANDIN_FILL_GAP(t, 40);
    return t;
  }();
  return &table;
}

lw::LWObjectFuncs* sceneObjectsTable() {
  static lw::LWObjectFuncs table = [] {
    lw::LWObjectFuncs t{};
    t.numObjects = &numObjects;
    t.filename = &sceneFileName;
    t.maxLayers = &maxLayers;
    t.layerExists = &layerExists;
    t.numVMaps = &numVMaps;
    t.vmapName = &vmapName;
    t.layerName = &layerName;
    STANDIN_FILL_GAP(t, 32);
    STANDIN_FILL_GAP(t, 64);
    STANDIN_FILL_GAP(t, 88);
    return t;
  }();
  return &table;
}

}  // namespace standin
