#include "standin/layout/arrived.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>
#include <iterator>
#include <optional>

#include "standin/layout/skelegon_bones.h"

namespace standin {
namespace {

struct Look {
  const Scene& scene;
  const Item& bone;
  const StoredBySlot& stored;

  std::string text(int slot) const {
    const auto found = stored.find(slot);
    return found == stored.end() ? std::string() : found->second;
  }
  double number(int slot, double otherwise = 0) const {
    const auto found = stored.find(slot);
    if (found == stored.end()) return otherwise;
    const std::string& text = found->second;
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);  // in any locale
    return value;
  }
  bool on(int slot) const { return number(slot) != 0; }
};

// The value of a numeric setting in the form in which it is stored.
using Numeric = std::function<double(const Item&)>;

// The first slots of each axis, and of what it follows.
constexpr int kFirst[kAxisCount] = {76, 81, 86, 95, 100, 105, 113, 118, 123};
constexpr int kFollow[kAxisCount] = {159, 162, 165, 168, 171, 174, 177, 180, 183};

void addAxes(std::map<int, Numeric>& table) {
  for (std::size_t axis = 0; axis < kAxisCount; ++axis) {
    const bool turns = axis >= kAxisH && axis <= kAxisB;
    const double unit = turns ? kPi / 180 : 1;
    const int first = kFirst[axis];
    const int follow = kFollow[axis];
    table[first] = [=](const Item& i) { return i.settings.axes[axis].controller; };
    table[first + 1] = [=](const Item& i) { return i.settings.axes[axis].limited; };
    table[first + 2] = [=](const Item& i) { return i.settings.axes[axis].least * unit; };
    table[first + 3] = [=](const Item& i) { return i.settings.axes[axis].greatest * unit; };
    table[first + 4] = [=](const Item& i) { return i.settings.axes[axis].stiffness; };
    table[follow] = [=](const Item& i) { return i.settings.axes[axis].follow; };
    table[follow + 1] = [=](const Item& i) { return i.settings.axes[axis].factor; };
    table[follow + 2] = [=](const Item& i) { return i.settings.axes[axis].offset; };
  }
}

std::map<int, Numeric> numericTable() {
  std::map<int, Numeric> t = {
      {13, [](const Item& i) { return i.bone.falloff; }},
      {16, [](const Item& i) { return i.owner->object.boneMode; }},
      {17, [](const Item& i) { return i.owner->object.limitedBones; }},
      {26, [](const Item& i) { return i.bone.type; }},
      {27, [](const Item& i) { return i.bone.active; }},
      {29, [](const Item& i) { return i.bone.weightMapOnly; }},
      {30, [](const Item& i) { return i.bone.weightNormalization; }},
      {31, [](const Item& i) { return i.bone.strength * 100; }},
      {32, [](const Item& i) { return i.bone.strengthMultiply; }},
      {33, [](const Item& i) { return i.bone.limitedRange; }},
      {34, [](const Item& i) { return i.bone.minRange * 100; }},
      {35, [](const Item& i) { return i.bone.maxRange * 100; }},
      {36, [](const Item& i) { return i.bone.jointComp; }},
      {37, [](const Item& i) { return i.bone.jointCompAmounts[0] * 100; }},
      {38, [](const Item& i) { return i.bone.jointCompParent; }},
      {39, [](const Item& i) { return i.bone.jointCompAmounts[1] * 100; }},
      {40, [](const Item& i) { return i.bone.muscleFlex; }},
      {41, [](const Item& i) { return i.bone.muscleFlexAmounts[0] * 100; }},
      {42, [](const Item& i) { return i.bone.muscleFlexParent; }},
      {43, [](const Item& i) { return i.bone.muscleFlexAmounts[1] * 100; }},
      {44, [](const Item& i) { return i.bone.bulge; }},
      {45, [](const Item& i) { return i.bone.bulgeAmount * 100; }},
      {46, [](const Item& i) { return i.bone.bulgeParent; }},
      {47, [](const Item& i) { return i.bone.bulgeParentAmount * 100; }},
      {48, [](const Item& i) { return i.bone.twist; }},
      {49, [](const Item& i) { return i.bone.twistAmount * 100; }},
      {50, [](const Item& i) { return i.settings.iconScale * 100; }},
      {54, [](const Item& i) { return i.settings.ik.unaffected; }},
      {56, [](const Item& i) { return i.settings.ik.objective; }},
      {57, [](const Item& i) { return i.settings.ik.initialState; }},
      {58, [](const Item& i) { return i.settings.ik.initialStateFrame; }},
      {59, [](const Item& i) { return i.settings.ik.useChain; }},
      {60, [](const Item& i) { return i.settings.ik.blending * 100; }},
      {61, [](const Item& i) { return i.settings.ik.goalStrength; }},
      {62, [](const Item& i) { return i.settings.ik.softKind; }},
      {63, [](const Item& i) { return i.settings.ik.softDistance; }},
      {64, [](const Item& i) { return i.settings.ik.softLeast * 100; }},
      {65, [](const Item& i) { return i.settings.ik.softGreatest * 100; }},
      {66, [](const Item& i) { return i.settings.ik.matchGoalOrientation; }},
      {67, [](const Item& i) { return i.settings.ik.keepGoalInReach; }},
      {68, [](const Item& i) { return i.settings.ik.fullTime; }},
      {69, [](const Item& i) { return i.settings.pathAlign.lookAhead; }},
      {70, [](const Item& i) { return i.settings.pathAlign.maxSteps; }},
      {71, [](const Item& i) { return i.settings.pathAlign.reliableDistance; }},
      {72, [](const Item& i) { return i.settings.same[0].world; }},
      {74, [](const Item& i) { return i.settings.same[0].blendMethod; }},
      {75, [](const Item& i) { return i.settings.same[0].blend * 100; }},
      {91, [](const Item& i) { return i.settings.same[1].world; }},
      {93, [](const Item& i) { return i.settings.same[1].blendMethod; }},
      {94, [](const Item& i) { return i.settings.same[1].blend * 100; }},
      {111, [](const Item& i) { return i.settings.same[2].blendMethod; }},
      {112, [](const Item& i) { return i.settings.same[2].blend * 100; }},
      {128, [](const Item& i) { return i.settings.visibility; }},
      {186, [](const Item& i) { return static_cast<int>(i.settings.order); }},
  };
  addAxes(t);
  return t;
}

// Settings that only go out together with another one.
bool isHeldBack(const Look& look, int slot) {
  const auto between = [slot](int first, int last) { return slot >= first && slot <= last; };
  if (slot == 29 || slot == 30) return look.text(28).empty() || (slot == 30 && !look.on(29));
  if (between(34, 35)) return !look.on(33);
  if (slot == 37 || slot == 39) return !look.on(36) && !look.on(38);
  if (slot == 41 || slot == 43) return !look.on(40) && !look.on(42);
  if (slot == 45 || slot == 47) return !look.on(slot - 1);
  if (slot == 48) return !look.on(26);
  if (slot == 49) return !look.on(26) || !look.on(48);
  const bool noGoal = look.text(55).empty();
  if (slot == 56 || slot == 61 || between(66, 68)) return noGoal;
  if (slot == 58) return look.number(57) != 3;
  if (slot == 59)
    return look.bone.parent == nullptr || look.bone.parent->kind != ItemKind::Bone ||
           look.bone.parent->settings.ik.unaffected;
  if (slot == 62) return noGoal || look.number(56) != 0;
  if (between(63, 65)) return noGoal || look.number(56) != 0 || look.number(62) == 0;
  if (between(69, 71))
    return !((static_cast<int>(look.number(95)) | static_cast<int>(look.number(100)) | static_cast<int>(look.number(105))) &
             4);
  if (slot == 75) return look.text(73).empty();
  if (slot == 94) return look.text(92).empty();
  if (slot == 112) return look.text(110).empty();
  for (std::size_t axis = 0; axis < kAxisCount; ++axis) {
    const double controller = look.number(kFirst[axis]);
    if (slot == kFirst[axis] + 2 || slot == kFirst[axis] + 3) return !look.on(kFirst[axis] + 1);
    if (slot == kFirst[axis] + 4) return controller != 3 && controller != 6;
    const int gate = axis == kAxisSZ ? 118 : kFirst[axis];
    if (slot >= kFollow[axis] && slot <= kFollow[axis] + 2) return look.number(gate) != 6;
  }
  return false;
}

std::optional<int> colourNumber(const std::string& word) {
  const auto found = std::find(kColourNames.begin(), kColourNames.end(), word);
  if (found != kColourNames.end()) return static_cast<int>(found - kColourNames.begin());
  return word == "Modeler" ? std::nullopt : std::optional<int>(13);
}

Arrival is(bool there) { return there ? Arrival::There : Arrival::Missing; }

// What the bone itself points to for a name-bearing slot.
const Item* linked(const Item& bone, int slot) {
  switch (slot) {
    case 12: return bone.owner->object.boneSource;
    case 51: return bone.parent;
    case 52: return bone.settings.target;
    case 53: return bone.settings.pole;
    case 55: return bone.settings.ik.goal;
    case 73: return bone.settings.same[0].item;
    case 92: return bone.settings.same[1].item;
    default: return bone.settings.same[2].item;
  }
}

std::optional<Arrival> arrivalOnHelper(const Look& look, int slot) {
  for (const HelperSlots& helper : kHelpers) {
    if (slot == helper.name && slot == 142) return is(look.scene.find(look.text(142)) != nullptr);
    if (!helper.hold(slot)) continue;
    const Item* const item = look.text(helper.name).empty() ? nullptr : look.scene.find(look.text(helper.name));
    if (item == nullptr) return Arrival::NotSent;
    if (slot == helper.parent) {
      const Item* const parent = look.scene.find(look.text(slot));
      return parent == nullptr ? Arrival::NotSent : is(item->parent == parent);
    }
    if (slot == helper.shape) return is(!look.on(slot) || !item->settings.servers.empty());
    if (slot == helper.visibility) return is(item->settings.visibility == (look.on(slot) ? 7 : 0));
    const std::optional<int> colour = colourNumber(look.text(slot));
    return colour ? is(item->settings.colour == *colour) : Arrival::NotSent;
  }
  return std::nullopt;
}

}  // namespace

Arrival arrivalOf(const Scene& scene, const Item& bone, const StoredBySlot& stored, int slot) {
  static const std::map<int, Numeric> numeric = numericTable();
  const Look look{scene, bone, stored};
  if (isHeldBack(look, slot)) return Arrival::NotSent;
  if (const auto found = numeric.find(slot); found != numeric.end()) {
    return is(std::abs(found->second(bone) - look.number(slot)) < 1e-7);
  }
  if (slot == 28) return is(bone.bone.weightMap == look.text(28));
  if (slot == 129) {
    const std::optional<int> colour = colourNumber(look.text(129));
    return colour ? is(bone.settings.colour == *colour) : Arrival::NotSent;
  }
  if (const std::optional<Arrival> onHelper = arrivalOnHelper(look, slot)) return *onHelper;
  if (look.text(slot).empty()) return Arrival::NotSent;
  const Item* const wanted = scene.find(look.text(slot));
  if (wanted == nullptr && slot == 51) return Arrival::NotSent;  // a parent is never made
  return is(wanted != nullptr && linked(bone, slot) == wanted);
}

}  // namespace standin
