#include "gltf/axes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace standin::gltf {

Vec3 inGltf(const Vec3& v) { return {v[0], v[1], 0 - v[2]}; }  // 0 stays 0, not -0

Placement inGltf(const Placement& placement) {
  const auto& [x, y, z] = placement.axes.columns;
  return {{{inGltf(x), inGltf(y), inGltf(z) * -1}}, inGltf(placement.position)};
}

Placement combined(const Placement& outer, const Placement& inner) {
  return {outer.axes * inner.axes, outer.axes * inner.position + outer.position};
}

Placement inverseOf(const Placement& placement) {
  const Matrix3 back = transposed(placement.axes);
  return {back, back * (placement.position * -1)};
}

// By the largest of the four parts, which is never near 0: the others are quotients by it.
std::array<double, 4> quaternionOf(const Matrix3& rotation) {
  const auto element = [&](std::size_t row, std::size_t column) { return rotation.columns[column][row]; };
  const std::array<double, 4> squares = {
      1 + element(0, 0) - element(1, 1) - element(2, 2), 1 - element(0, 0) + element(1, 1) - element(2, 2),
      1 - element(0, 0) - element(1, 1) + element(2, 2), 1 + element(0, 0) + element(1, 1) + element(2, 2)};
  const auto largest = static_cast<std::size_t>(std::max_element(squares.begin(), squares.end()) - squares.begin());
  const auto sum = [&](std::size_t a, std::size_t b) { return element(a, b) + element(b, a); };
  const auto difference = [&](std::size_t a, std::size_t b) { return element(a, b) - element(b, a); };
  std::array<double, 4> parts{};
  switch (largest) {
    case 0: parts = {squares[0], sum(0, 1), sum(0, 2), difference(2, 1)}; break;
    case 1: parts = {sum(0, 1), squares[1], sum(1, 2), difference(0, 2)}; break;
    case 2: parts = {sum(0, 2), sum(1, 2), squares[2], difference(1, 0)}; break;
    default: parts = {difference(2, 1), difference(0, 2), difference(1, 0), squares[3]}; break;
  }
  double square = 0;
  for (const double part : parts) square += part * part;
  for (double& part : parts) part /= std::sqrt(square);
  return parts;
}

}  // namespace standin::gltf
