// Questions about the motion channels of Layout's items and their keys.
#include <algorithm>
#include <array>

#include "probe/layout_site.h"

namespace probe::layout {
namespace {

// Where no key of a new item stands.
constexpr double kFreeTime = 2.5;

constexpr std::array<const char*, 9> kMotion{"Position.X", "Position.Y", "Position.Z", "Rotation.H", "Rotation.P",
                                             "Rotation.B", "Scale.X",    "Scale.Y",    "Scale.Z"};

Answer keys(LayoutSite& site) {
  const lw::ItemId null = addNull(site.scene, "VarnelProbeKeys").null;
  const std::size_t count = site.scene.keysOf(site.scene.envelope(null, "Position.X")).size();
  const std::string seen = "a channel of a new null has " + std::to_string(count) + (count == 1 ? " key" : " keys");
  return count <= 2 ? told(std::to_string(count), seen) : other(seen);
}

Answer keyAtKey(LayoutSite& site) {
  const LayoutScene& scene = site.scene;
  const lw::EnvelopeId envelope = scene.envelope(addNull(scene, "VarnelProbeKeyAtKey").null, "Position.X");
  const lw::LWEnvelopeFuncs& functions = scene.envelopes();
  functions.createKey(envelope, kFreeTime, 1);
  const std::size_t before = scene.keysOf(envelope).size();
  const bool isGiven = functions.createKey(envelope, kFreeTime, 5) != nullptr;
  const std::size_t after = scene.keysOf(envelope).size();
  const lw::KeyId there = functions.findKey(envelope, kFreeTime);
  if (there == nullptr) throw Trouble{"no key is found where one was created"};
  const double value = scene.keyNumber(envelope, there, lw::kKeyValue);
  const std::string seen = std::string("createKey where a key of value 1 stands, with 5, gives ") +
                           (isGiven ? "a key" : "null") + "; " + std::to_string(before) + " keys became " +
                           std::to_string(after) + ", and the one that is found has " + shown(value);
  if (after == before + 1) return told("second", seen);
  if (after != before) return other(seen);
  if (value == 5) return told(isGiven ? "changed" : "changed-null", seen);
  return value == 1 && !isGiven ? told("refused-null", seen) : other(seen);
}

Answer keyTolerance(LayoutSite& site) {
  const LayoutScene& scene = site.scene;
  const lw::EnvelopeId envelope = scene.envelope(addNull(scene, "VarnelProbeTolerance").null, "Position.X");
  scene.envelopes().createKey(envelope, kFreeTime, 1);
  // From the key itself to what is beyond half a frame at any usual rate.
  constexpr std::array<double, 5> kApart{0, 5e-7, 1e-4, 4e-3, 0.1};
  std::size_t found = 0;
  while (found < kApart.size() && scene.envelopes().findKey(envelope, kFreeTime + kApart[found]) != nullptr) ++found;
  if (found == 0) throw Trouble{"no key is found where one was created"};
  const std::string seen = "a key is found " + shown(kApart[found - 1]) + " s beside its time" +
                           (found < kApart.size() ? ", and not " + shown(kApart[found]) + " s beside it" : "");
  constexpr std::array<const char*, 5> kValues{"none", "microsecond", kOther, "half-frame", kOther};
  return {kValues[found - 1], seen};
}

std::string paths(const std::vector<ItemChannel>& channels) {
  std::string text;
  for (const ItemChannel& channel : channels) text += (text.empty() ? "" : ", ") + channel.path;
  return text;
}

Answer channels(LayoutSite& site) {
  const std::vector<ItemChannel> all = site.scene.channelsOf(site.nulls().first().null);
  const std::string seen = "a null has the channels " + paths(all);
  const auto found = std::find_if(all.begin(), all.end(), [](const ItemChannel& c) { return c.path == kMotion[0]; });
  if (found == all.end()) return other(seen);
  return told(found->depth == 0 ? "direct" : "nested", seen);
}

Answer decoyChannel(LayoutSite& site) {
  for (const ItemChannel& channel : site.scene.channelsOf(site.nulls().first().null)) {
    if (channel.depth > 0 && channel.name == kMotion[0]) {
      return told("below", "a group below the item's holds the channel " + channel.path);
    }
  }
  return told("none", "no group below the item's holds a channel of such a name");
}

Answer envelopes(LayoutSite& site) {
  const lw::LWChannelInfo& info = site.scene.channelInfo();
  std::string without;
  std::size_t count = 0;
  std::size_t ofScale = 0;
  for (const ItemChannel& channel : site.scene.channelsOf(site.nulls().first().null)) {
    const bool isMotion = std::find(kMotion.begin(), kMotion.end(), channel.path) != kMotion.end();
    if (!isMotion || info.channelEnvelope(channel.channel) != nullptr) continue;
    without += (without.empty() ? "" : ", ") + channel.path;
    ++count;
    if (channel.path.starts_with("Scale")) ++ofScale;
  }
  if (count == 0) return told("all", "each motion channel of a null has an envelope");
  const std::string seen = "without an envelope: " + without;
  return count == 3 && ofScale == 3 ? told("not-of-scale", seen) : other(seen);
}

constexpr std::array<Question<LayoutSite>, 6> kChannelQuestions{{
    {"keys", keys},
    {"key-at-key", keyAtKey},
    {"key-tolerance", keyTolerance},
    {"channels", channels},
    {"decoy-channel", decoyChannel},
    {"envelopes", envelopes},
}};

}  // namespace

LayoutQuestions channelQuestions() { return kChannelQuestions; }

}  // namespace probe::layout
