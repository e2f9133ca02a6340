// "Channel Info 3" and the channel group of an item.
#include <array>
#include <string_view>

#include "standin/core/gap_slots.h"
#include "standin/layout/channel_services.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWChannelInfo> = "LWChannelInfo";

namespace {

struct ChannelRow {
  const char* name;
  std::size_t group;
};

constexpr std::array<ChannelRow, kChannelCount> kChannels{{
    {"Position.X", kItemGroup},
    {"Position.Y", kItemGroup},
    {"Position.Z", kItemGroup},
    {"Rotation.H", kItemGroup},
    {"Rotation.P", kItemGroup},
    {"Rotation.B", kItemGroup},
    {"Scale.X", kItemGroup},
    {"Scale.Y", kItemGroup},
    {"Scale.Z", kItemGroup},
    {"GoalStrength", kIkGroup},
    {"IKFKBlending", kIkGroup},
    {"Position.X", kIkGroup},
}};

constexpr std::array<const char*, kGroupCount> kGroupNames{"", "IK", "Position", "Rotation", "Scale"};

bool areNested() { return currentScene().options().nestedChannels; }

std::size_t groupOf(std::size_t channel) {
  return areNested() && channel < kAxisCount ? kMotionGroup + channel / 3 : kChannels[channel].group;
}

// Without the part before the dot where that is the name of the channel's group.
std::string_view nameOf(std::size_t channel) {
  const std::string_view name = kChannels[channel].name;
  return areNested() && channel < kAxisCount ? name.substr(name.find('.') + 1) : name;
}

bool isThere(std::size_t channel) {
  const LayoutOptions& options = currentScene().options();
  if (channel == kChannelDecoy) return options.decoyChannel;
  return kChannels[channel].group != kItemGroup || options.missingChannel != kChannels[channel].name;
}

// An item of the scene behind a handle; null with a fault when the handle is of another kind or the item is gone.
template <class Id>
Item* checkedHandle(const HostCall& call, Id id, HandleKind kind, const char* what, std::size_t parts, Handle& handle) {
  auto& items = currentScene().all();
  if (!fromHandle(id, kind, handle) || handle.item >= items.size() || handle.part >= parts) {
    call.fault(std::string("was given something that is no ") + what);
    return nullptr;
  }
  Item& item = items[handle.item];
  if (item.alive) return &item;
  call.fault(std::string("was given the ") + what + " of an item that was removed");
  return nullptr;
}

Item* checkedGroup(const HostCall& call, lw::GroupId id, Handle& handle) {
  return checkedHandle(call, id, HandleKind::Group, "channel group", kGroupCount, handle);
}

Item* checkedChannel(const HostCall& call, lw::ChannelId id, Handle& handle) {
  return checkedHandle(call, id, HandleKind::Channel, "channel", kChannelCount, handle);
}

// The group of the first item that is alive, from a serial number on. Null at the end.
lw::GroupId rootGroupFrom(std::size_t serial) {
  const auto& items = currentScene().all();
  while (serial < items.size() && !items[serial].alive) ++serial;
  return serial < items.size() ? toHandle<lw::GroupId>(HandleKind::Group, {serial, kItemGroup, 0}) : nullptr;
}

lw::GroupId nextGroup(lw::GroupId parent, lw::GroupId previous) {
  const HostCall call("LWChannelInfo::nextGroup");
  Handle above;
  Handle before;
  if (parent != nullptr && checkedGroup(call, parent, above) == nullptr) return nullptr;
  if (previous != nullptr && checkedGroup(call, previous, before) == nullptr) return nullptr;
  if (call.refused()) return nullptr;
  if (parent == nullptr) return rootGroupFrom(previous == nullptr ? 0 : before.item + 1);
  if (previous != nullptr && (before.item != above.item || before.part == above.part)) {
    call.fault("the previous group is not below the parent");
  }
  const std::size_t next = previous == nullptr ? kIkGroup : before.part + 1;
  const std::size_t end = areNested() ? kGroupCount : kMotionGroup;
  if (above.part != kItemGroup || next >= end) return nullptr;
  return toHandle<lw::GroupId>(HandleKind::Group, {above.item, next, 0});
}

lw::ChannelId nextChannel(lw::GroupId group, lw::ChannelId previous) {
  const HostCall call("LWChannelInfo::nextChannel");
  Handle in;
  Handle before;
  if (checkedGroup(call, group, in) == nullptr) return nullptr;
  if (previous != nullptr && checkedChannel(call, previous, before) == nullptr) return nullptr;
  if (previous != nullptr && (before.item != in.item || groupOf(before.part) != in.part)) {
    call.fault("the previous channel is not in the group");
    return nullptr;
  }
  if (call.refused()) return nullptr;
  for (std::size_t channel = previous == nullptr ? 0 : before.part + 1; channel < kChannelCount; ++channel) {
    if (groupOf(channel) != in.part || !isThere(channel)) continue;
    return toHandle<lw::ChannelId>(HandleKind::Channel, {in.item, channel, 0});
  }
  return nullptr;
}

const char* groupName(lw::GroupId group) {
  const HostCall call("LWChannelInfo::groupName");
  Handle handle;
  const Item* item = checkedGroup(call, group, handle);
  if (item == nullptr || call.refused()) return nullptr;
  return handle.part == kItemGroup ? giveText(currentScene().nameOf(*item)) : giveText(kGroupNames[handle.part]);
}

const char* channelName(lw::ChannelId channel) {
  const HostCall call("LWChannelInfo::channelName");
  Handle handle;
  const Item* item = checkedChannel(call, channel, handle);
  return item == nullptr || call.refused() ? nullptr : giveText(nameOf(handle.part));
}

lw::EnvelopeId channelEnvelope(lw::ChannelId channel) {
  const HostCall call("LWChannelInfo::channelEnvelope");
  Handle handle;
  const Item* item = checkedChannel(call, channel, handle);
  if (item == nullptr || call.refused() || handle.part >= kAxisCount) return nullptr;
  const std::string& without = currentScene().options().channelWithoutKeys;
  if (!without.empty() && std::string_view(kChannels[handle.part].name).starts_with(without)) return nullptr;
  return toHandle<lw::EnvelopeId>(HandleKind::Envelope, {handle.item, handle.part, 0});
}

}  // namespace

lw::GroupId channelGroupOf(lw::ItemId id) {
  const HostCall call("LWItemInfo::chanGroup");
  const Item* item = checkedItem(call, id);
  if (item == nullptr || call.refused()) return nullptr;
  return toHandle<lw::GroupId>(HandleKind::Group, {item->serial, kItemGroup, 0});
}

Item* checkedEnvelope(const HostCall& call, lw::EnvelopeId id, Handle& handle) {
  return checkedHandle(call, id, HandleKind::Envelope, "envelope", kAxisCount, handle);
}

lw::LWChannelInfo* channelInfoTable() {
  static lw::LWChannelInfo table = [] {
    lw::LWChannelInfo t{};
    t.nextGroup = &nextGroup;
    t.nextChannel = &nextChannel;
    t.groupName = &groupName;
    t.channelName = &channelName;
    STANDIN_FILL_GAP(t, 32);
    t.channelEnvelope = &channelEnvelope;
    STANDIN_FILL_GAP(t, 72);
    return t;
  }();
  return &table;
}

}  // namespace standin
