#include <array>
#include <cstddef>
#include <utility>

#include "standin/layout/number_text.h"
#include "standin/layout/scene_report.h"
#include "standin/layout/skelegon_bones.h"

namespace standin {
namespace {

constexpr std::array<const char*, 9> kFalloffs{"inverse distance",    "inverse distance^2",   "inverse distance^4",
                                               "inverse distance^8",  "inverse distance^16",  "inverse distance^32",
                                               "inverse distance^64", "inverse distance^128", "falloff 8"};
constexpr std::array<const char*, 4> kBoneModes{"all bones", "all bones after morphing", "faster bones", "limited bones"};
constexpr std::array<const char*, 2> kBoneTypes{"Z axis", "joint"};
constexpr std::array<const char*, 3> kObjectives{"go to goal", "point at goal", "YZ plane through goal"};
constexpr std::array<const char*, 4> kInitialStates{"first key", "most recent key", "current time", "frame"};
constexpr std::array<const char*, 4> kSoftKinds{"off", "exponential", "linear", "clamp"};
constexpr std::array<const char*, 3> kSoftDistances{"chain chord", "chain length", "given lengths"};
constexpr std::array<const char*, 2> kBlendMethods{"interpolate", "compensate"};
constexpr std::array<const char*, 8> kControllers{"key frames",         "point at target", "align to velocity",
                                                  "inverse kinematics", "align to path",   "align to pole",
                                                  "same as item",       "spline"};
constexpr std::array<const char*, 6> kOrders{"XYZ / PHB", "YZX / HBP", "ZXY / BPH", "YXZ / HPB", "XZY / PBH", "ZYX / BHP"};
constexpr std::array<const char*, 14> kVisibilities{
    "hidden",     "box",        "vertices",           "wireframe", "front face wireframe",
    "shaded",     "textured",   "textured with wire", "visible 8", "visible 9",
    "visible 10", "visible 11", "visible 12",         "visible 13"};
constexpr std::array<const char*, 3> kSameNames{"position item", "rotation item", "scale item"};

template <std::size_t Size>
std::string choice(const std::array<const char*, Size>& names, int index) {
  if (index >= 0 && static_cast<std::size_t>(index) < Size) return names[static_cast<std::size_t>(index)];
  return std::to_string(index);
}

// A list of settings in the making.
class Lister {
 public:
  explicit Lister(const Scene& scene) : scene_(scene) {}

  void text(std::string name, std::string value) { settings_.push_back({std::move(name), std::move(value)}); }
  void flag(std::string name, bool on) { text(std::move(name), on ? "on" : "off"); }
  void whole(std::string name, int value) { text(std::move(name), std::to_string(value)); }
  void real(std::string name, double value) { text(std::move(name), numberText(value)); }
  void percent(std::string name, double value) { text(std::move(name), numberText(value * 100) + " %"); }
  void link(std::string name, const Item* item) { text(std::move(name), item == nullptr ? "none" : scene_.nameOf(*item)); }
  void pair(const std::string& name, double a, double b, const std::string& unit = {}) {
    text(name, numberText(a) + unit + ", " + numberText(b) + unit);
  }
  template <std::size_t Size>
  void named(const std::string& name, const std::array<const char*, Size>& names, int index) {
    text(name, choice(names, index));
  }

  std::vector<Setting> take() { return std::move(settings_); }

 private:
  const Scene& scene_;
  std::vector<Setting> settings_;
};

void listObject(Lister& list, const ObjectSettings& object) {
  list.link("bones from object", object.boneSource);
  list.named("bone calculation", kBoneModes, object.boneMode);
  list.whole("limited bones", object.limitedBones);
}

void listBone(Lister& list, const BoneSettings& bone) {
  list.flag("bone active", bone.active);
  list.named("bone type", kBoneTypes, bone.type);
  list.named("falloff", kFalloffs, bone.falloff);
  list.text("weight map", bone.weightMap.empty() ? "none" : bone.weightMap);
  list.flag("weight map only", bone.weightMapOnly);
  list.flag("weight normalization", bone.weightNormalization);
  list.percent("strength", bone.strength);
  list.flag("strength times rest length", bone.strengthMultiply);
  list.flag("limited range", bone.limitedRange);
  list.real("range min", bone.minRange);
  list.real("range max", bone.maxRange);
  list.flag("joint compensation", bone.jointComp);
  list.flag("joint compensation for parent", bone.jointCompParent);
  list.pair("joint compensation amounts", bone.jointCompAmounts[0] * 100, bone.jointCompAmounts[1] * 100, " %");
  list.flag("muscle flexing", bone.muscleFlex);
  list.flag("muscle flexing for parent", bone.muscleFlexParent);
  list.pair("muscle flexing amounts", bone.muscleFlexAmounts[0] * 100, bone.muscleFlexAmounts[1] * 100, " %");
  list.flag("bulge", bone.bulge);
  list.percent("bulge amount", bone.bulgeAmount);
  list.flag("bulge for parent", bone.bulgeParent);
  list.percent("bulge amount for parent", bone.bulgeParentAmount);
  list.flag("twist", bone.twist);
  list.percent("twist amount", bone.twistAmount);
}

void listIk(Lister& list, const IkSettings& ik) {
  list.flag("unaffected by IK", ik.unaffected);
  list.link("goal", ik.goal);
  list.named("goal objective", kObjectives, ik.objective);
  list.real("goal strength", ik.goalStrength);
  list.named("IK initial state", kInitialStates, ik.initialState);
  list.whole("IK initial state frame", ik.initialStateFrame);
  list.flag("IK chain values", ik.useChain);
  list.percent("IK/FK blending", ik.blending);
  list.named("soft IK", kSoftKinds, ik.softKind);
  list.named("soft IK distance", kSoftDistances, ik.softDistance);
  list.percent("soft IK min", ik.softLeast);
  list.percent("soft IK max", ik.softGreatest);
  list.flag("match goal orientation", ik.matchGoalOrientation);
  list.flag("keep goal within reach", ik.keepGoalInReach);
  list.flag("full-time IK", ik.fullTime);
}

void listMotion(Lister& list, const ItemSettings& item) {
  for (std::size_t i = 0; i < item.same.size(); ++i) {
    const std::string name = kSameNames[i];
    list.link(name, item.same[i].item);
    if (i < 2) list.flag(name + " world", item.same[i].world);
    list.named(name + " blend method", kBlendMethods, item.same[i].blendMethod);
    list.percent(name + " blend", item.same[i].blend);
  }
  for (std::size_t i = 0; i < kAxisCount; ++i) {
    const std::string name = kAxisNames[i];
    const AxisSettings& axis = item.axes[i];
    list.named(name + " controller", kControllers, axis.controller);
    list.flag(name + " limited", axis.limited);
    list.pair(name + " limits", axis.least, axis.greatest, i >= kAxisH && i <= kAxisB ? " deg" : "");
    list.named(name + " follow", kAxisNames, axis.follow);
    list.pair(name + " transform", axis.factor, axis.offset);
    list.real(name + " stiffness", axis.stiffness);
  }
  list.real("path look-ahead", item.pathAlign.lookAhead);
  list.whole("path look steps", item.pathAlign.maxSteps);
  list.real("path reliable distance", item.pathAlign.reliableDistance);
}

std::string serversText(const std::vector<AppliedServer>& servers) {
  std::string text;
  for (const AppliedServer& server : servers) text += (text.empty() ? "" : ", ") + server.name;
  return text.empty() ? "none" : text;
}

void listLook(Lister& list, const Item& item) {
  const ItemSettings& settings = item.settings;
  if (item.kind == ItemKind::Object) {
    list.named("visibility", kVisibilities, settings.visibility);
  } else {
    list.text("visibility", settings.visibility == 0 ? "hidden" : "visible");
  }
  list.named("colour", kColourNames, settings.colour);
  list.percent("icon size", settings.iconScale);
  list.text("custom objects", serversText(settings.servers));
}

std::string degrees(const Vec3& angles) {
  const auto degree = [](double radians) { return numberText(radians * 180 / kPi, 2); };
  return degree(angles[0]) + " " + degree(angles[1]) + " " + degree(angles[2]);
}

}  // namespace

std::vector<Setting> settingsOf(const Scene& scene, const Item& item) {
  Lister list(scene);
  if (item.kind == ItemKind::Object) listObject(list, item.object);
  if (item.kind == ItemKind::Bone) listBone(list, item.bone);
  list.link("target", item.settings.target);
  list.link("pole", item.settings.pole);
  list.named("rotation order", kOrders, static_cast<int>(item.settings.order));
  listIk(list, item.settings.ik);
  listMotion(list, item.settings);
  listLook(list, item);
  list.text("pivot rotation", degrees(item.pivotRotation));
  return list.take();
}

namespace {

// A fresh item points to nothing, so its texts do not depend on the scene.
std::vector<Setting> freshSettings(const Scene& scene, ItemKind kind) {
  Item fresh;
  fresh.kind = kind;
  fresh.settings.visibility = Scene::freshVisibility(kind);
  fresh.settings.colour = Scene::freshColour(kind);
  return settingsOf(scene, fresh);
}

}  // namespace

std::vector<Setting> changedSettings(const Scene& scene, const Item& item) {
  static const std::array<std::vector<Setting>, 4> fresh{
      freshSettings(scene, ItemKind::Object), freshSettings(scene, ItemKind::Light), freshSettings(scene, ItemKind::Camera),
      freshSettings(scene, ItemKind::Bone)};
  const std::vector<Setting>& before = fresh[static_cast<std::size_t>(item.kind)];
  std::vector<Setting> now = settingsOf(scene, item);
  std::vector<Setting> changed;
  for (std::size_t i = 0; i < now.size(); ++i) {
    if (now[i] != before[i]) changed.push_back(std::move(now[i]));
  }
  return changed;
}

}  // namespace standin
