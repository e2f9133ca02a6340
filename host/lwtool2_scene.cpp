#include "host/lwtool2_scene.h"

#include <cmath>
#include <cstdint>
#include <unordered_set>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "skelegon/item_names.h"

namespace lw {
namespace {

std::string copied(const char* text) {
  if (text == nullptr) return {};
  return text;
}

// The first channel of that path in the group or in the groups below it; null when there is none.
ChannelId findChannel(GroupId group, const std::string& pathOfGroup, const std::string& wanted) {
  const LWChannelInfo& channels = channelInfo();
  for (ChannelId c = channels.nextChannel(group, nullptr); c != nullptr; c = channels.nextChannel(group, c)) {
    if (pathOfGroup + copied(channels.channelName(c)) == wanted) return c;
  }
  for (GroupId below = channels.nextGroup(group, nullptr); below != nullptr; below = channels.nextGroup(group, below)) {
    const ChannelId found = findChannel(below, pathOfGroup + copied(channels.groupName(below)) + ".", wanted);
    if (found != nullptr) return found;
  }
  return nullptr;
}

// Null, after a report, for a channel that has none.
EnvelopeId envelopeOf(ItemId item, const char* pathName) {
  const GroupId group = itemInfo().chanGroup(item);
  // A null group would mean the root of all channels, which are not this item's.
  ChannelId channel = nullptr;
  if (group != nullptr) channel = findChannel(group, {}, pathName);
  if (channel == nullptr) throwReported(FormatString("getChannelByPathName() returned NULL !(%s)", pathName));
  const EnvelopeId envelope = channelInfo().channelEnvelope(channel);
  if (envelope == nullptr) ReportStatusError(FormatString("channelEnvelope() returned NULL !(%s)", pathName));
  return envelope;
}

// Whether a key stands at that time, and not beside it: how far from the time asked for a host finds keys is not documented.
// A key whose time the host does not tell is taken for the one asked for.
bool standsAt(EnvelopeId envelope, KeyId key, double time) {
  constexpr double kRounding = 1e-4;  // of a host that keeps times as floats; frames are much further apart
  double found = time;
  return envelopes().keyGet(envelope, key, kKeyTime, &found) == 0 || std::abs(found - time) <= kRounding;
}

// A new key at the current time. What a host answers where a key stands already is not documented: one that makes none there
// is given the value for the key that it has, but no key beside that time is changed. Whatever comes of it, the run goes on.
void addKey(EnvelopeId envelope, const char* pathName, double value) {
  RefreshTimeInfo();
  const double now = timeInfo().time;
  const LWEnvelopeFuncs& keys = envelopes();
  if (keys.createKey(envelope, now, value) != nullptr) return;
  const KeyId there = keys.findKey(envelope, now);
  const bool isSet =
      there != nullptr && standsAt(envelope, there, now) && keys.keySet(envelope, there, kKeyValue, &value) != 0;
  if (!isSet) ReportStatusError(FormatString("createKey() returned NULL !(%s)", pathName));
}

// Shows every item to `visit`, in the order in which names are looked up, until it answers true: the item at which it did.
template <class Visit>
ItemId firstItem(Visit visit) {
  const LWItemInfo& items = itemInfo();
  for (ItemId object = items.first(kItemObject, nullptr); object != nullptr; object = items.next(object)) {
    if (visit(object)) return object;
    for (ItemId bone = items.first(kItemBone, object); bone != nullptr; bone = items.next(bone)) {
      if (visit(bone)) return bone;
    }
  }
  for (const int type : {kItemLight, kItemCamera}) {
    for (ItemId item = items.first(type, nullptr); item != nullptr; item = items.next(item)) {
      if (visit(item)) return item;
    }
  }
  return nullptr;
}

// Without a copy of the name: a search asks this of every item.
bool isNamed(ItemId item, const std::string& name) {
  const char* const now = itemInfo().name(item);
  return now != nullptr && name == now;
}

}  // namespace

std::string itemName(ItemId item) { return copied(itemInfo().name(item)); }

ItemKind ClassifyItem(ItemId item) {
  switch (itemInfo().type(item)) {
    case kItemObject:
      return skg::isObjectFileName(copied(objectInfo().filename(item))) ? ItemKind::FileObject : ItemKind::OtherObject;
    case kItemLight: return ItemKind::Light;
    case kItemCamera: return ItemKind::Camera;
    case kItemBone: return ItemKind::Bone;
    default: return ItemKind::Other;
  }
}

std::string SplitItemName(ItemId item, int group) { return skg::splitItemName(itemName(item), group); }

unsigned commandId(ItemId item) { return static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(item)); }

ItemId CSceneItems::FindItemByName(const std::string& name) {
  const bool isFresh = !walked_;
  if (isFresh) walk();
  const auto kept = first_.find(name);
  if (kept != first_.end() && (isFresh || isNamed(kept->second, name))) return kept->second;
  if (isFresh) return nullptr;
  const ItemId found = firstItem([&](ItemId item) { return isNamed(item, name); });
  if (found != nullptr) {
    first_.insert_or_assign(name, found);
  } else {
    first_.erase(name);
  }
  return found;
}

void CSceneItems::added(ItemId item, const std::string& name) {
  if (!walked_) return;
  // Under another name than the one asked for, or beside an item of that name, the new item may change more than its own
  // entry: the host counts items of equal name, and where it puts a new one among the others is not documented.
  const bool alone = isNamed(item, name) && first_.count(name) == 0;
  if (alone) {
    first_.emplace(name, item);
  } else {
    forget();
  }
}

void CSceneItems::walk() {
  first_.clear();
  firstItem([this](ItemId item) {
    first_.emplace(itemName(item), item);
    return false;
  });
  walked_ = true;
}

Selection SaveSelection() {
  RefreshInterfaceInfo();
  Selection selection;
  selection.reserve(128);
  std::unordered_set<ItemId> known;
  const ItemId* item = interfaceInfo().selItems;
  for (; item != nullptr && *item != nullptr; ++item) {
    if (known.insert(*item).second) selection.push_back(*item);
  }
  return selection;
}

bool RestoreSelection(const Selection& selection) {
  if (selection.empty()) return true;
  const char* command = "SelectItem";
  for (std::size_t i = selection.size(); i-- > 0;) {
    EvalF("%s 0x%x", command, commandId(selection[i]));
    command = "AddToSelection";
  }
  RefreshInterfaceInfo();
  return true;
}

CSavedSelection::~CSavedSelection() {
  guarded([this] { RestoreSelection(items_); });
}

void SetChannelValue(ItemId item, const char* pathName, double value) {
  const EnvelopeId envelope = envelopeOf(item, pathName);
  if (envelope == nullptr) return;
  const LWEnvelopeFuncs& keys = envelopes();
  const KeyId first = keys.nextKey(envelope, nullptr);
  const bool onlyKey = first != nullptr && keys.nextKey(envelope, first) == nullptr;
  if (!onlyKey) return addKey(envelope, pathName, value);
  if (keys.keySet(envelope, first, kKeyValue, &value) == 0) {
    throw ex::CBaseEx(FormatString("g_envf->keySet() !(%s)", pathName));
  }
}

bool SetPosition(ItemId item, double x, double y, double z) {
  SetChannelValue(item, "Position.X", x);
  SetChannelValue(item, "Position.Y", y);
  SetChannelValue(item, "Position.Z", z);
  return true;
}

bool SetRotation(ItemId item, double h, double p, double b) {
  SetChannelValue(item, "Rotation.H", h);
  SetChannelValue(item, "Rotation.P", p);
  SetChannelValue(item, "Rotation.B", b);
  return true;
}

bool SetScale(ItemId item, double x, double y, double z) {
  SetChannelValue(item, "Scale.X", x);
  SetChannelValue(item, "Scale.Y", y);
  SetChannelValue(item, "Scale.Z", z);
  return true;
}

bool ResetRotation(ItemId item) { return SetRotation(item, 0, 0, 0); }
bool ResetScale(ItemId item) { return SetScale(item, 1, 1, 1); }

}  // namespace lw
