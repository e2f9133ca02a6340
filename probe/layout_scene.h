// The scene of Layout as the probe reaches it: items, selection, places, channels, and commands to items.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "interface/lightwave.h"
#include "probe/host_access.h"
#include "probe/number_text.h"

namespace probe::layout {

using Vector = std::array<double, 3>;
using Items = std::vector<lw::ItemId>;

// A motion channel, or another one, of an item. The path is put together from the groups below the item's own.
struct ItemChannel {
  std::string path;
  std::size_t depth = 0;  // 0: directly in the item's group
  lw::ChannelId channel = nullptr;
  std::string name;
};

class LayoutScene {
 public:
  explicit LayoutScene(const Host& host) : host_(host) {}

  const Host& host() const { return host_; }
  lw::LWItemInfo& items() const { return host_.service<lw::LWItemInfo>("LW Item Info 9"); }
  lw::LWObjectInfo& objectInfo() const { return host_.service<lw::LWObjectInfo>("LW Object Info 14"); }
  lw::LWBoneInfo& boneInfo() const { return host_.service<lw::LWBoneInfo>("LW Bone Info 7"); }
  lw::LWChannelInfo& channelInfo() const { return host_.service<lw::LWChannelInfo>("Channel Info 3"); }
  lw::LWEnvelopeFuncs& envelopes() const { return host_.service<lw::LWEnvelopeFuncs>("Animation Envelopes 4"); }
  // Of this moment: asked for anew each time.
  lw::LWInterfaceInfo& interfaceInfo() const { return host_.service<lw::LWInterfaceInfo>("LW Interface Info 8"); }
  double time() const { return host_.service<lw::LWTimeInfo>("LW Time Info").time; }

  // All of one type in the host's order, for bones those of the object.
  Items all(lw::ItemType type, lw::ItemId object = nullptr) const;
  Items objects() const { return all(lw::kItemObject); }
  Items bonesOf(lw::ItemId object) const { return all(lw::kItemBone, object); }
  // Empty for no item.
  std::string nameOf(lw::ItemId item) const;
  // In quote marks, with commas between.
  std::string namesOf(const Items& items) const;

  Items selection() const;
  // The first one alone, then the others one after another. Throws Trouble when the host refuses, as all that sends does, and
  // when others are selected than these.
  void select(const Items& items) const;
  // "ParentItem" and the number of the item, for example.
  std::string withItem(const std::string& command, lw::ItemId item) const;
  // Sends what the host would ask the user about, with "yes" for an answer. What the host answers.
  int confirmed(const std::string& command) const;
  // Has the host ask again.
  void leaveConfirming() const;
  // A switch of the whole program, by the bit that shows it: "EnableIK". Switched by its argument, or without one where the
  // host takes none.
  bool isOn(lw::GeneralFlags bit) const { return (interfaceInfo().generalFlags & bit) != 0; }
  void setSwitch(const std::string& command, lw::GeneralFlags bit, bool on) const;

  Vector param(lw::ItemId item, lw::ItemParam param) const;

  std::vector<ItemChannel> channelsOf(lw::ItemId item) const;
  // The keys behind a motion channel such as "Position.X", wherever it stands. Throws Trouble when there are none.
  lw::EnvelopeId envelope(lw::ItemId item, const std::string& path) const;
  std::vector<lw::KeyId> keysOf(lw::EnvelopeId envelope) const;
  double keyNumber(lw::EnvelopeId envelope, lw::KeyId key, lw::KeyTag tag) const;
  // The whole channel becomes this value.
  void setMotion(lw::ItemId item, const std::string& path, double value) const;
  void setPosition(lw::ItemId item, const Vector& position) const;

 private:
  void mustBeSelected(const Items& items) const;
  void addChannels(lw::GroupId group, const std::string& above, std::size_t depth, std::vector<ItemChannel>& found,
                   std::size_t& groups) const;

  const Host& host_;
};

// Copies a text of the host's. Empty for null.
std::string textOfHost(const char* text);
// The part of an identifier that counts in commands.
std::uint32_t lowBits(lw::ItemId item);
std::uint32_t highBits(lw::ItemId item);
using probe::shown;
std::string shown(const Vector& vector);
bool isNear(const Vector& a, const Vector& b);
Vector difference(const Vector& a, const Vector& b);
bool contains(const Items& items, lw::ItemId item);
// Those of `now` that are not among `before`.
Items added(const Items& before, const Items& now);

}  // namespace probe::layout
