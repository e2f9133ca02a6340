#include "standin/layout/scene.h"

#include <algorithm>
#include <utility>

namespace standin {
namespace {

constexpr std::uint32_t kNumbersOfAKind = 0x10000000;
constexpr std::uint32_t kSmallNumbersOfAKind = 0x100000;
constexpr std::uint32_t kHighestBit = 0x80000000;
// By kind of item.
constexpr std::array<int, 4> kFreshVisibility{6, 1, 1, 1};
constexpr std::array<int, 4> kFreshColour{10, 13, 9, 8};

std::size_t kindIndex(ItemKind kind) { return static_cast<std::size_t>(kind); }

bool holdsSkelegons(const PolygonGroup& group) { return group.type == lw::kTypeBone; }

}  // namespace

std::string fileBaseName(const std::string& path) {
  const std::size_t separator = path.find_last_of("/\\");
  const std::string name = separator == std::string::npos ? path : path.substr(separator + 1);
  return name.substr(0, name.rfind('.'));
}

Scene::Scene(LayoutOptions options) : options_(std::move(options)) {}

// ---------------------------------------------------------------------------------------------------------------------
// Making and removing

Item& Scene::make(ItemKind kind, const std::string& name, Item* owner) {
  Item& item = items_.emplace_back();
  auto& ofKind = byKind_[kindIndex(kind)];
  item.kind = kind;
  item.serial = items_.size() - 1;
  item.number = firstNumber(kind) + static_cast<std::uint32_t>(ofKind.size());
  ofKind.push_back(&item);
  item.owner = owner;
  item.placeInList = listOf(item).size();
  listOf(item).push_back(&item);
  item.settings.visibility = freshVisibility(kind);
  item.settings.colour = freshColour(kind);
  for (std::size_t axis = 0; axis < kAxisCount; ++axis) {
    const double resting = axis < kAxisSX ? 0 : 1;
    item.motion[axis] = Envelope(resting, {options_.keyAtSameTime, options_.keyTolerance});
    for (int key = 0; key < options_.keysOnNewItems; ++key) item.motion[axis].create(key, resting);
  }
  giveName(item, name);
  return item;
}

std::vector<Item*>& Scene::listOf(const Item& item) {
  return item.kind == ItemKind::Bone ? item.owner->bones : lists_[kindIndex(item.kind)];
}

void Scene::giveName(Item& item, const std::string& name) {
  std::string scope = std::to_string(item.owner == nullptr ? kindIndex(item.kind) : item.owner->number) + '/';
  Namesakes& namesakes = names_[std::move(scope) + name];
  item.givenName = name;
  item.namesakes = &namesakes;
  item.ordinal = namesakes.size();
  namesakes.push_back(&item);
}

Item& Scene::addNull(const std::string& name) { return make(ItemKind::Object, name, nullptr); }
Item& Scene::addLight(const std::string& name) { return make(ItemKind::Light, name, nullptr); }
Item& Scene::addCamera(const std::string& name) { return make(ItemKind::Camera, name, nullptr); }

Item& Scene::addBone(Item& object, const std::string& name, Item* parentBone) {
  Item& bone = make(ItemKind::Bone, name, &object);
  attach(bone, parentBone == nullptr ? &object : parentBone);
  return bone;
}

std::vector<Item*> Scene::addObject(const ObjectFile& file, const std::string& path) {
  const std::string base = fileBaseName(path);
  const bool namedAfterFile = file.layers.size() == 1 && file.layers.front().number == 0;
  std::vector<Item*> made;
  for (const ObjectLayer& layer : file.layers) {
    std::string name = base;
    if (!namedAfterFile)
      name.append(":").append(layer.name.empty() ? "Layer" + std::to_string(layer.number + 1) : layer.name);
    Item& item = make(ItemKind::Object, name, nullptr);
    item.source = LayerSource{path, layer.number};
    item.pivot = vectorOf(layer.pivot);
    for (const PolygonGroup& group : layer.groups) {
      if (!holdsSkelegons(group)) continue;
      item.skelegons.polygons.insert(item.skelegons.polygons.end(), group.polygons.begin(), group.polygons.end());
    }
    if (!item.skelegons.polygons.empty()) item.skelegons.points = layer.points;
    made.push_back(&item);
  }
  for (std::size_t i = 0; i < made.size(); ++i) {
    if (!file.layers[i].parent) continue;
    const auto parent = std::find_if(file.layers.begin(), file.layers.end(),
                                     [&](const ObjectLayer& layer) { return layer.number == *file.layers[i].parent; });
    // A layer that names itself, or closes a ring, stays without a parent.
    if (parent != file.layers.end()) setParent(*made[i], made[static_cast<std::size_t>(parent - file.layers.begin())]);
  }
  return made;
}

void Scene::remove(Item& item) {
  const std::vector<Item*> bones = item.bones;
  for (Item* bone : bones) removeOne(*bone);
  removeOne(item);
}

void Scene::removeOne(Item& item) {
  if (item.selected) {
    item.selected = false;
    std::erase(selection_, &item);
    selectionChanged();
  }
  moved(item);
  while (!item.children.empty()) {
    Item& child = *item.children.back();
    detach(child);
    if (child.owner != nullptr && child.owner != &item) attach(child, child.owner);
  }
  detach(item);
  auto& list = listOf(item);
  list.erase(list.begin() + static_cast<std::ptrdiff_t>(item.placeInList));
  for (std::size_t place = item.placeInList; place < list.size(); ++place) list[place]->placeInList = place;
  dropName(item);
  item.alive = false;
  forget(item);
}

void Scene::dropName(Item& item) {
  auto& namesakes = *item.namesakes;
  namesakes.erase(namesakes.begin() + static_cast<std::ptrdiff_t>(item.ordinal));
  for (std::size_t place = item.ordinal; place < namesakes.size(); ++place) namesakes[place]->ordinal = place;
}

void Scene::rename(Item& item, const std::string& name) {
  dropName(item);
  giveName(item, name);
}

void Scene::moveInList(Item& item, std::size_t place) {
  auto& list = listOf(item);
  list.erase(list.begin() + static_cast<std::ptrdiff_t>(item.placeInList));
  list.insert(list.begin() + static_cast<std::ptrdiff_t>(std::min(place, list.size())), &item);
  for (std::size_t i = 0; i < list.size(); ++i) list[i]->placeInList = i;
}

void Scene::forget(const Item& gone) {
  const auto drop = [&](Item*& link) {
    if (link == &gone) link = nullptr;
  };
  for (Item& item : items_) {
    drop(item.settings.target);
    drop(item.settings.pole);
    drop(item.settings.ik.goal);
    drop(item.object.boneSource);
    for (SameItemSettings& same : item.settings.same) drop(same.item);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Names and identifiers

std::string Scene::nameOf(const Item& item) const {
  const Counters counters = options_.counters;
  const bool isPlain = counters == Counters::All ? item.namesakes->size() < 2 : item.ordinal == 0;
  if (isPlain || counters == Counters::None) return item.givenName;
  const std::size_t number = counters == Counters::FromOne ? item.ordinal : item.ordinal + 1;
  return item.givenName + " (" + std::to_string(number) + ")";
}

Item* Scene::find(std::string_view name) const {
  for (Item* object : objects()) {
    if (nameOf(*object) == name) return object;
    for (Item* bone : object->bones) {
      if (nameOf(*bone) == name) return bone;
    }
  }
  for (const auto* list : {&lights(), &cameras()}) {
    for (Item* item : *list) {
      if (nameOf(*item) == name) return item;
    }
  }
  return nullptr;
}

lw::ItemId Scene::idOf(const Item* item) const {
  if (item == nullptr) return nullptr;
  return reinterpret_cast<lw::ItemId>(options_.highIdBits | item->number);  // NOLINT(performance-no-int-to-ptr)
}

// Items of the kinds begin here and count up. No number is 0.
std::uint32_t Scene::firstNumber(ItemKind kind) const {
  const auto index = static_cast<std::uint32_t>(kind);
  switch (options_.itemNumbers) {
    case ItemNumbers::Small: return index * kSmallNumbersOfAKind + 1;
    case ItemNumbers::High: return kHighestBit + index * kNumbersOfAKind;
    default: return (index + 1) * kNumbersOfAKind;
  }
}

Item* Scene::byNumber(std::uint32_t number) {
  for (std::size_t kind = 0; kind < byKind_.size(); ++kind) {
    const std::uint32_t first = firstNumber(static_cast<ItemKind>(kind));
    const std::uint32_t place = number - first;
    if (number >= first && place < byKind_[kind].size()) return byKind_[kind][place];
  }
  return nullptr;
}

Item* Scene::byId(lw::ItemId id) {
  Item* item = byNumber(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(id)));
  return item != nullptr && idOf(item) == id ? item : nullptr;
}

// ---------------------------------------------------------------------------------------------------------------------
// Hierarchy and space

void Scene::attach(Item& item, Item* parent) {
  item.parent = parent;
  if (parent == nullptr) return;
  item.placeAmongChildren = parent->children.size();
  parent->children.push_back(&item);
}

void Scene::detach(Item& item) {
  if (item.parent == nullptr) return;
  auto& children = item.parent->children;
  children.back()->placeAmongChildren = item.placeAmongChildren;
  std::swap(children[item.placeAmongChildren], children.back());
  children.pop_back();
  item.parent = nullptr;
}

bool Scene::setParent(Item& item, Item* parent) {
  if (parent == &item) return false;
  const Item* above = item.children.empty() ? nullptr : parent;  // nothing can stand below an item without children
  for (; above != nullptr; above = above->parent) {
    if (above == &item) return false;
  }
  moved(item);
  detach(item);
  attach(item, parent);
  return true;
}

void Scene::moved(Item& item) {
  std::vector<Item*> changed{&item};
  while (!changed.empty()) {
    Item* next = changed.back();
    changed.pop_back();
    if (!next->placementValid) continue;
    next->placementValid = false;
    changed.insert(changed.end(), next->children.begin(), next->children.end());
  }
}

int Scene::freshVisibility(ItemKind kind) { return kFreshVisibility[kindIndex(kind)]; }
int Scene::freshColour(ItemKind kind) { return kFreshColour[kindIndex(kind)]; }

Vec3 Scene::motionAt(const Item& item, Axis first, double time) {
  return {item.motion[first].valueAt(time), item.motion[first + 1].valueAt(time), item.motion[first + 2].valueAt(time)};
}

// A child's position counts along the parent's axes, from the parent's pivot or from its origin.
Vec3 Scene::originOfChildren(const Item& parent) const {
  const Vec3 pivot = options_.childFromOrigin ? parent.placement.axes * parent.pivot : Vec3{};
  return parent.placement.position - pivot;
}

const Placement& Scene::placement(Item& item, double time) {
  std::vector<Item*> chain;
  for (Item* above = &item; above != nullptr; above = above->parent) {
    if (above->placementValid && above->placementTime == time) break;
    chain.push_back(above);
  }
  while (!chain.empty()) {
    Item& next = *chain.back();
    chain.pop_back();
    Matrix3 axes = rotation(next.pivotRotation, next.settings.order) *
                   rotation(motionAt(next, kAxisH, time), next.settings.order) * scaling(motionAt(next, kAxisSX, time));
    Vec3 position = motionAt(next, kAxisX, time);
    if (next.parent != nullptr) {
      position = originOfChildren(*next.parent) + next.parent->placement.axes * position;
      axes = next.parent->placement.axes * axes;
    }
    next.placement = {axes, position};
    next.placementTime = time;
    next.placementValid = true;
  }
  return item.placement;
}

void Scene::placeAt(Item& item, const Placement& wanted, double time) {
  Matrix3 axes = wanted.axes;
  Vec3 position = wanted.position;
  if (item.parent != nullptr) {
    const Matrix3 back = inverted(placement(*item.parent, time).axes);
    axes = back * axes;
    position = back * (position - originOfChildren(*item.parent));
  }
  for (std::size_t i = 0; i < 3; ++i) {
    const double size = length(axes.columns[i]);
    if (size > 0) axes.columns[i] = axes.columns[i] * (1 / size);
    item.motion[kAxisSX + i].assign(time, size);
    item.motion[kAxisX + i].assign(time, position[i]);
  }
  const Matrix3 pivot = transposed(rotation(item.pivotRotation, item.settings.order));
  const Vec3 angles = anglesOf(pivot * axes, item.settings.order);
  for (std::size_t i = 0; i < 3; ++i) item.motion[kAxisH + i].assign(time, angles[i]);
  moved(item);
}

void Scene::recordPivotRotation(Item& item, double time) {
  const RotationOrder order = item.settings.order;
  const Vec3 angles = motionAt(item, kAxisH, time);
  item.pivotRotation = options_.pivotRotationsAdd
                           ? item.pivotRotation + angles
                           : anglesOf(rotation(item.pivotRotation, order) * rotation(angles, order), order);
  for (const Axis axis : {kAxisH, kAxisP, kAxisB}) item.motion[axis].assign(time, 0);
  moved(item);
}

// ---------------------------------------------------------------------------------------------------------------------
// Selection

void Scene::deselectAll() {
  for (Item* item : selection_) item->selected = false;
  selection_.clear();
  selectionChanged();
}

void Scene::addToSelection(Item& item) {
  if (item.selected) return;
  item.selected = true;
  selection_.push_back(&item);
  selectionChanged();
}

std::vector<lw::ItemId> Scene::selectionList() const {
  std::vector<const Item*> items(selection_.begin(), selection_.end());
  if (options_.selectionOrder == SelectionOrder::NewestFirst) std::reverse(items.begin(), items.end());
  if (options_.selectionOrder == SelectionOrder::AsInScene) {
    std::sort(items.begin(), items.end(), [](const Item* a, const Item* b) { return a->serial < b->serial; });
  }
  std::vector<lw::ItemId> list;
  for (const Item* item : items) list.push_back(idOf(item));
  list.push_back(nullptr);
  return list;
}

// The array has room for more than anybody selects, so it stays where it is.
const std::vector<lw::ItemId>& Scene::followingList() {
  constexpr std::size_t kRoom = 4096;
  followingList_.reserve(kRoom);
  selectionChanged();
  return followingList_;
}

void Scene::selectionChanged() {
  if (followingList_.capacity() == 0) return;  // nobody has asked for it
  const std::vector<lw::ItemId> now = selectionList();
  followingList_.assign(now.begin(), now.end());
}

}  // namespace standin
