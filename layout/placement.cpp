#include "layout/placement.h"

#include <cmath>

namespace lwp {
namespace {

constexpr int kX = 0, kY = 1, kZ = 2;

// The axes of a rotation order from the outermost turn to the innermost one: with YXZ (the default, HPB) the bank about Z
// comes first, then the pitch about X, then the heading about Y.
constexpr std::array<std::array<int, 3>, 6> kOrders = {{
    {kX, kY, kZ},
    {kY, kZ, kX},
    {kZ, kX, kY},
    {kY, kX, kZ},
    {kX, kZ, kY},
    {kZ, kY, kX},
}};
constexpr std::size_t kDefaultOrder = 3;

// Heading turns about Y, pitch about X, bank about Z: the place of each axis' angle in the stored rotation.
constexpr std::array<std::size_t, 3> kAngleOfAxis = {1, 0, 2};

double dot(const Vector3& a, const Vector3& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

Vector3 cross(const Vector3& a, const Vector3& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vector3 scaled(const Vector3& v, double by) { return {v[0] * by, v[1] * by, v[2] * by}; }

Vector3 minus(const Vector3& a, const Vector3& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }

double length(const Vector3& v) { return std::sqrt(dot(v, v)); }

// A unit vector along v, or `otherwise` where v has no direction.
Vector3 direction(const Vector3& v, const Vector3& otherwise) {
  const double l = length(v);
  return l > 0 ? scaled(v, 1 / l) : otherwise;
}

// Unit axes at right angles. An axis without length is put in from the other two.
Axes squared(const Axes& axes) {
  const Vector3 forward = direction(axes[kZ], direction(cross(axes[kX], axes[kY]), kUnitAxes[kZ]));
  const Vector3 upHint = length(axes[kY]) > 0 ? axes[kY] : cross(forward, axes[kX]);
  const Vector3 spare = std::abs(forward[1]) < 0.9 ? kUnitAxes[kY] : kUnitAxes[kX];
  const Vector3 up =
      direction(minus(upHint, scaled(forward, dot(upHint, forward))), direction(cross(spare, forward), spare));
  return {cross(up, forward), up, forward};
}

// The three angles of a turn given by unit axes at right angles. With the outer angle taken off first, the other two follow
// from what is left, so the turn is met also where the middle angle is a right one and the outer and inner angle mix.
Vector3 anglesOf(const Axes& axes, const std::array<int, 3>& order) {
  const auto i = static_cast<std::size_t>(order[0]);
  const auto j = static_cast<std::size_t>(order[1]);
  const auto k = static_cast<std::size_t>(order[2]);
  const double sign = (order[1] - order[0] + 3) % 3 == 1 ? 1 : -1;
  // entry(r, c) is row r of axis c.
  const auto entry = [&](std::size_t row, std::size_t column) { return axes[column][row]; };

  const double outer = std::atan2(-sign * entry(j, k), entry(k, k));
  const double c = std::cos(outer);
  const double s = std::sin(outer) * sign;
  const double middle = std::atan2(sign * entry(i, k), c * entry(k, k) - s * entry(j, k));
  const auto rowJ = [&](std::size_t column) { return c * entry(j, column) + s * entry(k, column); };
  const double inner = std::atan2(sign * rowJ(i), rowJ(j));

  Vector3 angles{};
  angles[kAngleOfAxis[i]] = outer;
  angles[kAngleOfAxis[j]] = middle;
  angles[kAngleOfAxis[k]] = inner;
  return angles;
}

}  // namespace

Vector3 along(const Axes& axes, const Vector3& v) {
  Vector3 result{};
  for (std::size_t row = 0; row < 3; ++row) result[row] = axes[0][row] * v[0] + axes[1][row] * v[1] + axes[2][row] * v[2];
  return result;
}

std::optional<Axes> inverseOf(const Axes& axes) {
  const Vector3 rows[3] = {cross(axes[1], axes[2]), cross(axes[2], axes[0]), cross(axes[0], axes[1])};
  const double volume = dot(axes[0], rows[0]);
  if (volume == 0 || !std::isfinite(volume)) return std::nullopt;
  Axes inverse;
  for (std::size_t column = 0; column < 3; ++column) {
    for (std::size_t row = 0; row < 3; ++row) inverse[column][row] = rows[row][column] / volume;
  }
  return inverse;
}

Turn splitAxes(const Axes& axes, int rotationOrder) {
  const Axes turn = squared(axes);
  Turn result;
  for (std::size_t i = 0; i < 3; ++i) result.scale[i] = length(axes[i]);
  // Mirrored axes have no turn of their own: the mirroring goes into the scale of the right axis.
  if (dot(axes[kX], turn[kX]) < 0) result.scale[kX] = -result.scale[kX];
  const bool known = rotationOrder >= 0 && static_cast<std::size_t>(rotationOrder) < kOrders.size();
  result.rotation = anglesOf(turn, kOrders[known ? static_cast<std::size_t>(rotationOrder) : kDefaultOrder]);
  return result;
}

}  // namespace lwp
