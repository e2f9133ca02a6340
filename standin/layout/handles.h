// Handles of channel groups, channels, envelopes and keys: numbers that say what they name and cannot be used as addresses.
//
// Each item has a group with its nine motion channels, and below it the group "IK" with two channels that have no envelope.
// By an option the motion channels stand in three groups of their own below it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace standin {

enum class HandleKind : std::uint64_t { Group = 0x6B01, Channel = 0x6B02, Envelope = 0x6B03, Key = 0x6B04 };

struct Handle {
  std::size_t item = 0;   // its serial number
  std::size_t part = 0;   // the group or the channel
  std::uint16_t key = 0;  // of a key
};

inline constexpr std::size_t kItemGroup = 0;
inline constexpr std::size_t kIkGroup = 1;
inline constexpr std::size_t kMotionGroup = 2;  // the first of the three for position, rotation and scale
inline constexpr std::size_t kGroupCount = 5;

// Channels of the IK group follow the nine motion channels; the last one is there on demand only.
inline constexpr std::size_t kChannelGoalStrength = 9;
inline constexpr std::size_t kChannelBlending = 10;
inline constexpr std::size_t kChannelDecoy = 11;
inline constexpr std::size_t kChannelCount = 12;

// The layout of the 64 bits, from the top: 16 kind, 24 item, 8 part, 16 key.
template <class Id>
Id toHandle(HandleKind kind, const Handle& handle) {
  const std::uint64_t bits = static_cast<std::uint64_t>(kind) << 48 |
                             static_cast<std::uint64_t>(handle.item & 0xFFFFFF) << 24 |
                             static_cast<std::uint64_t>(handle.part & 0xFF) << 16 | handle.key;
  return reinterpret_cast<Id>(static_cast<std::uintptr_t>(bits));  // NOLINT(performance-no-int-to-ptr)
}

// False when the pointer is no handle of the kind.
template <class Id>
bool fromHandle(Id id, HandleKind kind, Handle& out) {
  const std::uint64_t bits = reinterpret_cast<std::uintptr_t>(id);
  out.item = static_cast<std::size_t>(bits >> 24 & 0xFFFFFF);
  out.part = static_cast<std::size_t>(bits >> 16 & 0xFF);
  out.key = static_cast<std::uint16_t>(bits & 0xFFFF);
  return bits >> 48 == static_cast<std::uint64_t>(kind);
}

}  // namespace standin
