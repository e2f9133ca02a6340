// Numbers as object files hold them: the highest byte first, on any boundary. Used by the object reader only.
//
// The bytes are put together with shifts: that is right on every machine, and compilers turn it into one swapped load.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

namespace lwp::st {

// Three floats: a position or a pivot.
struct Vec12 {
  float x;
  float y;
  float z;

  friend bool operator==(const Vec12&, const Vec12&) = default;
};

inline constexpr std::size_t kBytesOfU2 = 2;
inline constexpr std::size_t kBytesOfU4 = 4;
inline constexpr std::size_t kBytesOfVec12 = 12;

// Each takes the address of as many bytes as its type has in the file.
inline std::uint16_t loadU2(const std::byte* from) {
  return static_cast<std::uint16_t>((std::to_integer<unsigned>(from[0]) << 8U) | std::to_integer<unsigned>(from[1]));
}

inline std::uint32_t loadU4(const std::byte* from) {
  return (std::to_integer<std::uint32_t>(from[0]) << 24U) | (std::to_integer<std::uint32_t>(from[1]) << 16U) |
         (std::to_integer<std::uint32_t>(from[2]) << 8U) | std::to_integer<std::uint32_t>(from[3]);
}

inline float loadF4(const std::byte* from) { return std::bit_cast<float>(loadU4(from)); }

inline Vec12 loadVec12(const std::byte* from) {
  return {loadF4(from), loadF4(from + kBytesOfU4), loadF4(from + 2 * kBytesOfU4)};
}

// A point or polygon number takes two bytes, or four when the first is 0xFF; that one is then dropped.
inline constexpr std::byte kLongIndexMark{0xFF};
inline constexpr std::uint32_t kLongIndexMask = 0x00FFFFFF;
inline constexpr std::size_t kBytesOfShortIndex = 2;
inline constexpr std::size_t kBytesOfLongIndex = 4;

inline std::size_t bytesOfIndexAt(const std::byte* from) {
  return *from == kLongIndexMark ? kBytesOfLongIndex : kBytesOfShortIndex;
}

inline std::uint32_t loadLongIndex(const std::byte* from) { return loadU4(from) & kLongIndexMask; }

}  // namespace lwp::st
