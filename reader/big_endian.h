// Numbers as object files hold them: the highest byte first, on any boundary. Each function takes the address of as many bytes
// as its type has there, and puts them together with shifts: right on every machine, and compiled to one swapped load.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

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

inline std::uint16_t loadU2(const std::byte* from) {
  return static_cast<std::uint16_t>((std::to_integer<unsigned>(from[0]) << 8U) | std::to_integer<unsigned>(from[1]));
}
inline std::uint32_t loadU4(const std::byte* from) { return (std::uint32_t{loadU2(from)} << 16U) | loadU2(from + 2); }
inline float loadF4(const std::byte* from) { return std::bit_cast<float>(loadU4(from)); }
inline Vec12 loadVec12(const std::byte* from) { return {loadF4(from), loadF4(from + 4), loadF4(from + 8)}; }

// A point or polygon number takes two bytes, or four when the first is 0xFF; that one is then dropped.
inline constexpr std::uint32_t kIndexLimit = 0x01000000;
inline bool isLongIndex(std::span<const std::byte> bytes) { return bytes.front() == std::byte{0xFF}; }
inline std::uint32_t loadLongIndex(const std::byte* from) { return loadU4(from) % kIndexLimit; }

}  // namespace lwp::st
