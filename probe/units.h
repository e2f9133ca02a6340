// Angles are radians wherever the host takes or gives them.
#pragma once

#include <numbers>

namespace probe {

inline constexpr double kDegree = std::numbers::pi / 180;

}  // namespace probe
