#include "probe/layout_scene.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "probe/ask.h"
#include "probe/host_text.h"

namespace probe::layout {
namespace {

// A walk that is longer than this does not end.
constexpr std::size_t kMostSteps = 10000;
constexpr std::size_t kDeepestGroup = 8;

void mustEnd(std::size_t steps, const char* walk) {
  if (steps > kMostSteps) throw Trouble{std::string("the walk through ") + walk + " does not end"};
}

std::uint64_t bitsOf(lw::ItemId item) { return reinterpret_cast<std::uintptr_t>(item); }

}  // namespace

// ---------------------------------------------------------------------------------------------------------------------
// Items

Items LayoutScene::all(lw::ItemType type, lw::ItemId object) const {
  const lw::LWItemInfo& info = items();
  Items found;
  for (lw::ItemId item = info.first(type, object); item != nullptr; item = info.next(item)) {
    found.push_back(item);
    mustEnd(found.size(), "the items");
  }
  return found;
}

std::string LayoutScene::nameOf(lw::ItemId item) const { return item == nullptr ? "" : textOfHost(items().name(item)); }

std::string LayoutScene::namesOf(const Items& some) const {
  std::string text;
  for (lw::ItemId item : some) text += (text.empty() ? "\"" : ", \"") + nameOf(item) + "\"";
  return text.empty() ? "nothing" : text;
}

Items LayoutScene::selection() const {
  Items found;
  const lw::ItemId* next = interfaceInfo().selItems;
  for (; next != nullptr && *next != nullptr; ++next) {
    found.push_back(*next);
    mustEnd(found.size(), "the selection");
  }
  return found;
}

void LayoutScene::select(const Items& some) const {
  const char* command = "SelectItem";
  for (lw::ItemId item : some) {
    host_.mustDo(withItem(command, item));
    command = "AddToSelection";
  }
  if (!some.empty()) mustBeSelected(some);
}

// What follows a selection changes or removes what is selected: it must not reach anything of the user's.
void LayoutScene::mustBeSelected(const Items& some) const {
  const Items selected = selection();
  if (!added(some, selected).empty()) throw Trouble{"after selecting " + namesOf(some) + ", selected: " + namesOf(selected)};
  if (selected.size() < some.size()) throw Trouble{"the host selects " + namesOf(selected) + " of " + namesOf(some)};
}

std::string LayoutScene::withItem(const std::string& command, lw::ItemId item) const {
  return command + " " + hexadecimal(lowBits(item));
}

int LayoutScene::confirmed(const std::string& command) const {
  struct Asking {
    const LayoutScene& scene;
    ~Asking() {
      troubleOf([&] { scene.leaveConfirming(); });
    }
  } const after{*this};
  host_.mustDo("AutoConfirm 1");
  return host_.command(command);
}

void LayoutScene::leaveConfirming() const { host_.mustDo("AutoConfirm 0"); }

void LayoutScene::setSwitch(const std::string& command, lw::GeneralFlags bit, bool on) const {
  if (isOn(bit) == on) return;
  host_.command(command + (on ? " 1" : " 0"));
  if (isOn(bit) != on) host_.mustDo(command);
}

Vector LayoutScene::param(lw::ItemId item, lw::ItemParam param) const {
  Vector value{};
  items().param(item, param, time(), value.data());
  return value;
}

// ---------------------------------------------------------------------------------------------------------------------
// Channels

void LayoutScene::addChannels(lw::GroupId group, const std::string& above, std::size_t depth,
                              std::vector<ItemChannel>& found, std::size_t& groups) const {
  if (depth > kDeepestGroup) throw Trouble{"the groups of channels do not end"};
  const lw::LWChannelInfo& info = channelInfo();
  for (lw::ChannelId next = info.nextChannel(group, nullptr); next != nullptr; next = info.nextChannel(group, next)) {
    const std::string name = textOfHost(info.channelName(next));
    found.push_back({above + name, depth, next, name});
    mustEnd(found.size(), "the channels");
  }
  for (lw::GroupId next = info.nextGroup(group, nullptr); next != nullptr; next = info.nextGroup(group, next)) {
    mustEnd(++groups, "the groups of channels");
    addChannels(next, above + textOfHost(info.groupName(next)) + ".", depth + 1, found, groups);
  }
}

std::vector<ItemChannel> LayoutScene::channelsOf(lw::ItemId item) const {
  const lw::GroupId group = items().chanGroup(item);
  if (group == nullptr) throw Trouble{"\"" + nameOf(item) + "\" has no group of channels"};
  std::vector<ItemChannel> found;
  std::size_t groups = 0;
  addChannels(group, "", 0, found, groups);
  return found;
}

lw::EnvelopeId LayoutScene::envelope(lw::ItemId item, const std::string& path) const {
  const std::vector<ItemChannel> channels = channelsOf(item);
  const auto found = std::find_if(channels.begin(), channels.end(), [&](const ItemChannel& c) { return c.path == path; });
  if (found == channels.end()) throw Trouble{"\"" + nameOf(item) + "\" has no channel \"" + path + "\""};
  const lw::EnvelopeId envelope = channelInfo().channelEnvelope(found->channel);
  if (envelope == nullptr) throw Trouble{"the channel \"" + path + "\" has no envelope"};
  return envelope;
}

std::vector<lw::KeyId> LayoutScene::keysOf(lw::EnvelopeId envelope) const {
  std::vector<lw::KeyId> keys;
  lw::KeyId key = envelopes().nextKey(envelope, nullptr);
  for (; key != nullptr; key = envelopes().nextKey(envelope, key)) {
    keys.push_back(key);
    mustEnd(keys.size(), "the keys");
  }
  return keys;
}

double LayoutScene::keyNumber(lw::EnvelopeId envelope, lw::KeyId key, lw::KeyTag tag) const {
  double number = 0;
  if (envelopes().keyGet(envelope, key, tag, &number) == 0) throw Trouble{"keyGet failed"};
  return number;
}

void LayoutScene::setMotion(lw::ItemId item, const std::string& path, double value) const {
  const lw::EnvelopeId keys = envelope(item, path);
  for (lw::KeyId key : keysOf(keys)) {
    if (envelopes().keySet(keys, key, lw::kKeyValue, &value) == 0) throw Trouble{"keySet failed"};
  }
  // What is created where no key stands may still answer null; the value shows whether it was done.
  if (keysOf(keys).empty()) envelopes().createKey(keys, time(), value);
  if (keysOf(keys).empty()) throw Trouble{"createKey failed"};
}

void LayoutScene::setPosition(lw::ItemId item, const Vector& position) const {
  constexpr std::array<const char*, 3> kPaths{"Position.X", "Position.Y", "Position.Z"};
  for (std::size_t i = 0; i < position.size(); ++i) setMotion(item, kPaths[i], position[i]);
  host_.mustDo("RefreshNow");
}

// ---------------------------------------------------------------------------------------------------------------------
// Numbers and texts

std::string textOfHost(const char* text) { return probe::copied(text).value_or(""); }

std::uint32_t lowBits(lw::ItemId item) { return static_cast<std::uint32_t>(bitsOf(item)); }
std::uint32_t highBits(lw::ItemId item) { return static_cast<std::uint32_t>(bitsOf(item) >> 32); }

std::string shown(const Vector& vector) {
  return "(" + shown(vector[0]) + ", " + shown(vector[1]) + ", " + shown(vector[2]) + ")";
}

Vector difference(const Vector& a, const Vector& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }

bool isNear(const Vector& a, const Vector& b) {
  constexpr double kNear = 1e-4;
  const Vector apart = difference(a, b);
  return std::all_of(apart.begin(), apart.end(), [](double one) { return std::abs(one) < kNear; });
}

bool contains(const Items& items, lw::ItemId item) { return std::find(items.begin(), items.end(), item) != items.end(); }

Items added(const Items& before, const Items& now) {
  Items fresh;
  std::copy_if(now.begin(), now.end(), std::back_inserter(fresh), [&](lw::ItemId item) { return !contains(before, item); });
  return fresh;
}

}  // namespace probe::layout
