#include "standin/validate/conversion_judge.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace standin::validate {
namespace {

constexpr int kWeightMapOnly = 29;
constexpr int kWeightNormalization = 30;
constexpr int kWeightMap = 28;
constexpr int kParentItem = 51;
constexpr int kColour = 129;
constexpr int kSettings = 187;

// Of the bone's object: the last bone's count for all.
constexpr std::array kOfTheObject{12, 16, 17};

// How much of a null is that of the bone, by the command that tells the bone of it.
enum class Match { Position, Rotation, Scale };
struct Link {
  std::string_view command;
  Match match;
};
constexpr std::array kLinks{Link{"TargetItem 0x", Match::Position},   Link{"PoleItem 0x", Match::Position},
                            Link{"GoalItem 0x", Match::Rotation},     Link{"PositionItem 0x", Match::Position},
                            Link{"RotationItem 0x", Match::Rotation}, Link{"ScaleItem 0x", Match::Scale}};

int slotOf(std::uint32_t type) {
  if (type == lw::kTagBoneWeight) return kWeightMap;
  if (type == lw::kTagColour) return kColour;
  const std::uint32_t slot = type - settingTag(0);
  return slot < kSettings && slot != kColour ? static_cast<int>(slot) : -1;
}

std::string withObjectName(std::string text, const std::string& objectName) {
  constexpr std::string_view kPlaceholder = "[file]:";
  const std::size_t at = text.find(kPlaceholder);
  return at == std::string::npos ? text : text.replace(at, kPlaceholder.size(), objectName + ":");
}

double difference(const Vec3& a, const Vec3& b) { return length(a - b); }

Matrix3 unscaled(Matrix3 axes) {
  for (Vec3& column : axes.columns) column = column * (1 / length(column));
  return axes;
}

bool isAt(const Placement& null, const Placement& bone, Match match) {
  constexpr double kNear = 1e-6;
  if (difference(null.position, bone.position) > kNear) return false;
  if (match == Match::Position) return true;
  const Matrix3 one = match == Match::Scale ? null.axes : unscaled(null.axes);
  const Matrix3 other = match == Match::Scale ? bone.axes : unscaled(bone.axes);
  for (std::size_t i = 0; i < 3; ++i) {
    if (difference(one.columns[i], other.columns[i]) > kNear) return false;
  }
  return true;
}

}  // namespace

ConversionJudge::ConversionJudge(LayoutHost& host, const TripRig& rig) : host_(host) {
  const std::string base = fileBaseName(rig.path);
  for (const ObjectLayer& layer : rig.object.layers) read(layer, base);
  for (const Item& item : host.scene().all()) seen_.insert(&item);
  host.state().watch = [this](LayoutState& state, std::string_view command) { look(state, command); };
}

ConversionJudge::~ConversionJudge() { host_.state().watch = nullptr; }

void ConversionJudge::read(const ObjectLayer& layer, const std::string& objectName) {
  for (const PolygonGroup& group : layer.groups) {
    if (group.type != lw::kTypeBone) continue;
    for (const ObjectPolygon& polygon : group.polygons) {
      const std::string* const name = polygon.tag(lw::kTagBone);
      if (name == nullptr || name->empty()) continue;
      Skelegon& skelegon = skelegons_.emplace_back();
      skelegon.name = *name;
      skelegon.layer = layers_;
      for (const PolygonTag& tag : polygon.tags) {
        if (const int slot = slotOf(tag.type); slot >= 0) skelegon.stored[slot] = withObjectName(tag.text, objectName);
      }
    }
  }
  ++layers_;
}

// A bone is told of a null that was made for it while it is selected, and before either is moved.
void ConversionJudge::look(LayoutState& state, std::string_view command) {
  const auto link =
      std::find_if(kLinks.begin(), kLinks.end(), [&](const Link& l) { return command.starts_with(l.command); });
  if (link == kLinks.end()) return;
  std::uint32_t number = 0;
  std::from_chars(command.data() + link->command.size(), command.data() + command.size(), number, 16);
  Item* const null = state.scene.byNumber(number);
  if (null == nullptr || !null->isNull() || !seen_.insert(null).second) return;
  ++nulls_;
  const std::vector<Item*>& selection = state.scene.selection();
  Item* const bone = selection.size() == 1 ? selection.front() : nullptr;
  if (bone == nullptr || bone->kind != ItemKind::Bone) {
    wrong_.push_back("one bone is selected when it is told of " + state.scene.nameOf(*null));
  } else if (!isAt(state.scene.placement(*null, state.time), state.scene.placement(*bone, state.time), link->match)) {
    wrong_.push_back(state.scene.nameOf(*null) + " is made at " + state.scene.nameOf(*bone));
  }
}

// Settings that are rightly those of somebody else, or that the tool's own rules let go.
bool ConversionJudge::isOverridden(std::size_t at, int slot) const {
  const StoredBySlot& stored = skelegons_[at].stored;
  // Both switches go out under one name, so that the second undoes the first.
  if (slot == kWeightMapOnly && stored.count(kWeightNormalization) != 0) return true;
  // Objects are converted in the order of the selection: a parent among the bones that come later is not found.
  const bool isOtherOrder = host_.scene().options().selectionOrder != SelectionOrder::AsSelected;
  if (isOtherOrder && slot == kParentItem && isInAnotherLayer(stored.at(slot), skelegons_[at].layer)) return true;
  const bool isLast = at + 1 == skelegons_.size();
  if (std::find(kOfTheObject.begin(), kOfTheObject.end(), slot) != kOfTheObject.end() && (isOtherOrder || !isLast)) {
    return true;
  }
  for (const HelperSlots& helper : kHelpers) {
    if (!helper.hold(slot)) continue;
    const auto name = stored.find(helper.name);
    if (name == stored.end()) continue;
    for (std::size_t other = at + 1; other < skelegons_.size(); ++other) {
      for (const auto& [_, text] : skelegons_[other].stored) {
        if (text == name->second) return true;
      }
    }
  }
  return false;
}

bool ConversionJudge::isInAnotherLayer(const std::string& name, std::size_t layer) const {
  return std::any_of(skelegons_.begin(), skelegons_.end(),
                     [&](const Skelegon& other) { return other.name == name && other.layer != layer; });
}

// Where a host makes the bones of the whole file for each of its layers, several have the name; one of them was the first of
// that name when the settings were sent.
Arrival ConversionJudge::arrival(const Skelegon& skelegon, int slot) const {
  for (const Item& item : host_.scene().all()) {
    if (item.kind != ItemKind::Bone || host_.scene().nameOf(item) != skelegon.name) continue;
    const Arrival come = arrivalOf(host_.scene(), item, skelegon.stored, slot);
    if (come != Arrival::Missing) return come;
  }
  return Arrival::Missing;
}

std::vector<std::string> ConversionJudge::verdict() const {
  std::vector<std::string> wrong = wrong_;
  std::size_t there = 0;
  const Scene& scene = host_.scene();
  for (std::size_t i = 0; i < skelegons_.size(); ++i) {
    const Item* const bone = scene.find(skelegons_[i].name);
    if (bone == nullptr || bone->kind != ItemKind::Bone) {
      wrong.push_back("there is a bone " + skelegons_[i].name);
      continue;
    }
    for (const auto& [slot, text] : skelegons_[i].stored) {
      const Arrival come = arrival(skelegons_[i], slot);
      there += come == Arrival::There ? 1 : 0;
      if (come != Arrival::Missing || isOverridden(i, slot)) continue;
      wrong.push_back("setting " + std::to_string(slot) + " of " + skelegons_[i].name + " is " + text);
    }
  }
  // Whoever judges nothing finds nothing wrong.
  if (there == 0) wrong.push_back("settings arrive");
  if (nulls_ == 0) wrong.push_back("nulls are made");
  return wrong;
}

}  // namespace standin::validate
