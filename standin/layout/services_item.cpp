// "LW Item Info 9".
#include <optional>
#include <string>

#include "standin/core/gap_slots.h"
#include "standin/layout/channel_services.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWItemInfo> = "LWItemInfo";

namespace {

const char* kindName(int kind) {
  switch (kind) {
    case lw::kItemObject: return "an object";
    case lw::kItemLight: return "a light";
    case lw::kItemCamera: return "a camera";
    default: return "a bone";
  }
}

// The first of the three motion channels that a parameter stands for, or nothing with a fault.
std::optional<Axis> motionOf(const HostCall& call, int param) {
  switch (param) {
    case lw::kParamPosition: return kAxisX;
    case lw::kParamRotation: return kAxisH;
    case lw::kParamScale: return kAxisSX;
    default: call.fault("parameter " + std::to_string(param) + " is not position, rotation or scale"); return std::nullopt;
  }
}

lw::ItemId firstOf(const std::vector<Item*>& items) { return items.empty() ? nullptr : currentScene().idOf(items.front()); }

lw::ItemId first(int type, lw::ItemId object) {
  const HostCall call("LWItemInfo::first");
  if (call.refused()) return nullptr;
  switch (type) {
    case lw::kItemObject: return firstOf(currentScene().objects());
    case lw::kItemLight: return firstOf(currentScene().lights());
    case lw::kItemCamera: return firstOf(currentScene().cameras());
    case lw::kItemBone: {
      if (object == nullptr) return nullptr;
      const Item* owner = checkedItem(call, object, lw::kItemObject);
      return owner == nullptr ? nullptr : firstOf(owner->bones);
    }
    default: call.fault(std::to_string(type) + " is no type of items"); return nullptr;
  }
}

lw::ItemId next(lw::ItemId id) {
  const HostCall call("LWItemInfo::next");
  const Item* item = checkedItem(call, id);
  if (item == nullptr || call.refused()) return nullptr;
  Scene& scene = currentScene();
  const auto& list = item->kind == ItemKind::Bone     ? item->owner->bones
                     : item->kind == ItemKind::Object ? scene.objects()
                     : item->kind == ItemKind::Light  ? scene.lights()
                                                      : scene.cameras();
  return item->placeInList + 1 < list.size() ? scene.idOf(list[item->placeInList + 1]) : nullptr;
}

lw::ItemId parent(lw::ItemId id) {
  const HostCall call("LWItemInfo::parent");
  const Item* item = checkedItem(call, id);
  if (item == nullptr || call.refused()) return nullptr;
  const bool top = item->kind == ItemKind::Bone && item->parent == item->owner;
  return top && !currentScene().options().topBoneHasParent ? nullptr : currentScene().idOf(item->parent);
}

lw::ItemId target(lw::ItemId id) {
  const HostCall call("LWItemInfo::target");
  const Item* item = checkedItem(call, id);
  return item == nullptr || call.refused() ? nullptr : currentScene().idOf(item->settings.target);
}

lw::ItemId goal(lw::ItemId id) {
  const HostCall call("LWItemInfo::goal");
  const Item* item = checkedItem(call, id);
  return item == nullptr || call.refused() ? nullptr : currentScene().idOf(item->settings.ik.goal);
}

lw::ItemId pole(lw::ItemId id) {
  const HostCall call("LWItemInfo::pole");
  const Item* item = checkedItem(call, id);
  return item == nullptr || call.refused() ? nullptr : currentScene().idOf(item->settings.pole);
}

int type(lw::ItemId id) {
  const HostCall call("LWItemInfo::type");
  const Item* item = checkedItem(call, id);
  return item == nullptr || call.refused() ? 0 : static_cast<int>(item->kind);
}

const char* name(lw::ItemId id) {
  const HostCall call("LWItemInfo::name");
  const Item* item = checkedItem(call, id);
  return item == nullptr || call.refused() ? nullptr : giveText(currentScene().nameOf(*item));
}

Vec3 paramValue(const HostCall& call, Item& item, int param, double time) {
  const auto placed = [&]() -> const Placement& { return currentScene().placement(item, time); };
  switch (param) {
    case lw::kParamPosition: return Scene::motionAt(item, kAxisX, time);
    case lw::kParamRight:
    case lw::kParamUp:
    case lw::kParamForward: return placed().axes.columns[static_cast<std::size_t>(param - lw::kParamRight)];
    case lw::kParamWorldPosition: return placed().position;
    case lw::kParamRotation: return Scene::motionAt(item, kAxisH, time);
    case lw::kParamScale: return Scene::motionAt(item, kAxisSX, time);
    case lw::kParamPivot: return item.pivot;
    case lw::kParamPivotRotation: return item.pivotRotation;
    default: call.fault("parameter " + std::to_string(param) + " is not one that a tool asks for"); return {};
  }
}

void param(lw::ItemId id, int number, double time, double* out) {
  const HostCall call("LWItemInfo::param");
  Item* item = checkedItem(call, id);
  if (!checkedOutput(call, out) || item == nullptr || call.refused()) return;
  const Vec3 value = paramValue(call, *item, number, time);
  for (std::size_t i = 0; i < 3; ++i) out[i] = value[i];
}

// Angles leave the host in radians.
unsigned limits(lw::ItemId id, int number, double low[3], double high[3]) {
  const HostCall call("LWItemInfo::limits");
  const Item* item = checkedItem(call, id);
  const auto firstAxis = motionOf(call, number);
  if (!checkedOutput(call, low) || !checkedOutput(call, high)) return 0;
  if (item == nullptr || !firstAxis || call.refused()) return 0;
  const double unit = *firstAxis == kAxisH ? kPi / 180 : 1;
  unsigned bits = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    const AxisSettings& axis = item->settings.axes[*firstAxis + i];
    low[i] = axis.least * unit;
    high[i] = axis.greatest * unit;
    if (axis.limited) bits |= 1U << i;
  }
  return bits;
}

const char* server(lw::ItemId id, const char* className, int index) {
  const HostCall call("LWItemInfo::server");
  const Item* item = checkedItem(call, id);
  if (!checkedOutput(call, className) || item == nullptr) return nullptr;
  if (index < 1) call.fault("servers count from 1, not from " + std::to_string(index));
  if (call.refused()) return nullptr;
  for (const AppliedServer& applied : item->settings.servers) {
    if (applied.className == className && --index == 0) return giveText(applied.name);
  }
  return nullptr;
}

void controller(lw::ItemId id, int number, int kinds[3]) {
  const HostCall call("LWItemInfo::controller");
  const Item* item = checkedItem(call, id);
  const auto firstAxis = motionOf(call, number);
  if (!checkedOutput(call, kinds) || item == nullptr || !firstAxis || call.refused()) return;
  for (std::size_t i = 0; i < 3; ++i) kinds[i] = item->settings.axes[*firstAxis + i].controller;
}

unsigned flags(lw::ItemId id) {
  const HostCall call("LWItemInfo::flags");
  const Item* item = checkedItem(call, id);
  if (item == nullptr || call.refused()) return 0;
  const IkSettings& ik = item->settings.ik;
  return (ik.unaffected ? lw::kItemUnaffectedByIK : 0U) | (ik.fullTime ? lw::kItemFullTimeIK : 0U) |
         (ik.matchGoalOrientation ? lw::kItemMatchGoalOrientation : 0U) |
         (ik.keepGoalInReach ? lw::kItemKeepGoalInReach : 0U) | (ik.useChain ? lw::kItemUseIKChain : 0U);
}

unsigned goalObjective(lw::ItemId id) {
  const HostCall call("LWItemInfo::goalObjective");
  const Item* item = checkedItem(call, id);
  return item == nullptr || call.refused() ? 0 : static_cast<unsigned>(item->settings.ik.objective);
}

unsigned ikInitialState(lw::ItemId id) {
  const HostCall call("LWItemInfo::ikInitialState");
  const Item* item = checkedItem(call, id);
  return item == nullptr || call.refused() ? 0 : static_cast<unsigned>(item->settings.ik.initialState);
}

// The outputs are left alone while soft IK is off.
unsigned ikSoft(lw::ItemId id, double, unsigned* distance, double* least, double* greatest) {
  const HostCall call("LWItemInfo::ikSoft");
  const Item* item = checkedItem(call, id);
  if (!checkedOutput(call, distance) || !checkedOutput(call, least) || !checkedOutput(call, greatest)) return 0;
  if (item == nullptr || call.refused() || item->settings.ik.softKind == 0) return 0;
  *distance = static_cast<unsigned>(item->settings.ik.softDistance);
  *least = item->settings.ik.softLeast;
  *greatest = item->settings.ik.softGreatest;
  return static_cast<unsigned>(item->settings.ik.softKind);
}

lw::ItemId sameItem(lw::ItemId id, int number) {
  const HostCall call("LWItemInfo::sameItem");
  const Item* item = checkedItem(call, id);
  const auto firstAxis = motionOf(call, number);
  return item == nullptr || !firstAxis || call.refused() ? nullptr
                                                         : currentScene().idOf(item->settings.same[*firstAxis / 3].item);
}

int rotationOrder(lw::ItemId id) {
  const HostCall call("LWItemInfo::rotationOrder");
  const Item* item = checkedItem(call, id);
  return static_cast<int>(item == nullptr || call.refused() ? RotationOrder::HPB : item->settings.order);
}

}  // namespace

Item* checkedItem(const HostCall& call, lw::ItemId id, int kind) {
  if (id == nullptr) {
    call.fault("was given no item");
    return nullptr;
  }
  Item* item = currentScene().byId(id);
  if (item == nullptr) {
    call.fault("was given something that is no item");
  } else if (!item->alive) {
    call.fault("was given an item that was removed");
  } else if (kind >= 0 && static_cast<int>(item->kind) != kind) {
    call.fault(std::string("was given ") + kindName(static_cast<int>(item->kind)) + " instead of " + kindName(kind));
  } else {
    return item;
  }
  return nullptr;
}

bool checkedOutput(const HostCall& call, const void* pointer) {
  if (pointer == nullptr) call.fault("was given null where it writes or reads");
  return pointer != nullptr;
}

lw::LWItemInfo* itemInfoTable() {
  static lw::LWItemInfo table = [] {
    lw::LWItemInfo t{};
    t.first = &first;
    t.next = &next;
    t.parent = &parent;
    t.target = &target;
    t.goal = &goal;
    t.type = &type;
    t.name = &name;
    t.param = &param;
    t.limits = &limits;
    t.chanGroup = &channelGroupOf;
    t.server = &server;
    t.controller = &controller;
    t.flags = &flags;
    t.goalObjective = &goalObjective;
    t.ikInitialState = &ikInitialState;
    t.ikSoft = &ikSoft;
    t.pole = &pole;
    t.sameItem = &sameItem;
    t.rotationOrder = &rotationOrder;
    STANDIN_FILL_GAP(t, 16);
    STANDIN_FILL_GAP(t, 88);
    STANDIN_FILL_GAP(t, 120);
    STANDIN_FILL_GAP(t, 144);
    STANDIN_FILL_GAP(t, 200);
    STANDIN_FILL_GAP(t, 216);
    STANDIN_FILL_GAP(t, 248);
    STANDIN_FILL_GAP(t, 328);
    return t;
  }();
  return &table;
}

}  // namespace standin
