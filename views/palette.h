// The colours of pictures. The host's own are pure ones, which are hard to read on paper; these are their likenesses.
#pragma once

#include <array>
#include <cstddef>

#include "standin/layout/skelegon_bones.h"

namespace standin::views {

inline constexpr std::size_t kColourCount = kColourNames.size();

// By the host's colour number.
inline constexpr std::array<const char*, kColourCount> kPalette{"#30343a", "#2a4596", "#2c6a38", "#1d7077", "#8f2a2a",
                                                                "#7b409e", "#8a5a34", "#8d939b", "#4478da", "#43a552",
                                                                "#30b6c5", "#d84040", "#cb50b0", "#e68c22", "#f4f5f7"};
inline constexpr const char* kProblemColour = "#d1242f";
inline constexpr const char* kGround = "#ffffff";
inline constexpr const char* kInk = "#1f2328";

// A number that is none of the host's is shown in its grey.
inline std::size_t colourIndex(int number) {
  constexpr std::size_t kGrey = 7;
  return number >= 0 && static_cast<std::size_t>(number) < kColourCount ? static_cast<std::size_t>(number) : kGrey;
}

}  // namespace standin::views
