// Splits a placement relative to a parent into the position, rotation and scale that a host item stores.
#pragma once

#include <array>
#include <optional>

namespace lwp {

using Vector3 = std::array<double, 3>;

// The right, up and forward axis of an item, one after the other; their lengths are its scale.
using Axes = std::array<Vector3, 3>;
inline constexpr Axes kUnitAxes = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

// A vector given along the axes, in the space that the axes are given in.
Vector3 along(const Axes& axes, const Vector3& v);

// The axes that take along() back. Nothing when the axes span no space (a scale of zero).
std::optional<Axes> inverseOf(const Axes& axes);

struct Turn {
  Vector3 rotation;  // heading, pitch, bank in radians
  Vector3 scale;
};

// Rotation and scale that give these axes in the host's rotation order (0 to 5; any other counts as the host's default).
// Exact where the axes are at right angles, mirrored ones included; else the turn keeps forward and, as far as it can, up.
Turn splitAxes(const Axes& axes, int rotationOrder);

}  // namespace lwp
