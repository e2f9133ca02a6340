#include "standin/layout/transform.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace standin {
namespace {

// The axis that each of the angles heading, pitch and bank turns about.
constexpr std::array<std::size_t, 3> kAxisOfAngle{1, 0, 2};
constexpr std::size_t kHeading = 0;
constexpr std::size_t kPitch = 1;
constexpr std::size_t kBank = 2;

// Which angle stands first, second and third in the product, by order number.
constexpr std::array<std::array<std::size_t, 3>, 6> kProduct{{
    {kPitch, kHeading, kBank},
    {kHeading, kBank, kPitch},
    {kBank, kPitch, kHeading},
    {kHeading, kPitch, kBank},
    {kPitch, kBank, kHeading},
    {kBank, kHeading, kPitch},
}};

Matrix3 turn(std::size_t axis, double angle) {
  const std::size_t next = (axis + 1) % 3;
  const std::size_t last = (axis + 2) % 3;
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  Matrix3 m;
  m.columns[next][next] = c;
  m.columns[next][last] = s;
  m.columns[last][next] = -s;
  m.columns[last][last] = c;
  return m;
}

}  // namespace

Vec3 operator+(const Vec3& a, const Vec3& b) { return {a[0] + b[0], a[1] + b[1], a[2] + b[2]}; }
Vec3 operator-(const Vec3& a, const Vec3& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }
Vec3 operator*(const Vec3& a, double factor) { return {a[0] * factor, a[1] * factor, a[2] * factor}; }
double dot(const Vec3& a, const Vec3& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
Vec3 cross(const Vec3& a, const Vec3& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
double length(const Vec3& v) { return std::sqrt(dot(v, v)); }

Vec3 operator*(const Matrix3& m, const Vec3& v) { return m.columns[0] * v[0] + m.columns[1] * v[1] + m.columns[2] * v[2]; }

Matrix3 operator*(const Matrix3& a, const Matrix3& b) { return {{a * b.columns[0], a * b.columns[1], a * b.columns[2]}}; }

Matrix3 transposed(const Matrix3& m) {
  Matrix3 result;
  for (std::size_t column = 0; column < 3; ++column) {
    for (std::size_t row = 0; row < 3; ++row) result.columns[row][column] = m.columns[column][row];
  }
  return result;
}

Matrix3 inverted(const Matrix3& m) {
  const auto& [x, y, z] = m.columns;
  const double determinant = dot(x, cross(y, z));
  if (determinant == 0 || !std::isfinite(determinant)) return {{Vec3{}, Vec3{}, Vec3{}}};
  return transposed({{cross(y, z) * (1 / determinant), cross(z, x) * (1 / determinant), cross(x, y) * (1 / determinant)}});
}

Matrix3 scaling(const Vec3& factors) {
  Matrix3 m;
  for (std::size_t axis = 0; axis < 3; ++axis) m.columns[axis][axis] = factors[axis];
  return m;
}

Matrix3 rotation(const Vec3& headingPitchBank, RotationOrder order) {
  const auto& product = kProduct[static_cast<std::size_t>(order)];
  const auto part = [&](std::size_t angle) { return turn(kAxisOfAngle[angle], headingPitchBank[angle]); };
  return part(product[0]) * part(product[1]) * part(product[2]);
}

// With the order's axes i, j, k the product is T(i, a) * T(j, b) * T(k, c). Its element in row i, column k is +sin b when
// (i, j, k) is a turn of (0, 1, 2) and -sin b when it is not; the other angles stand in row i and column k beside it.
Vec3 anglesOf(const Matrix3& rotation, RotationOrder order) {
  const auto& product = kProduct[static_cast<std::size_t>(order)];
  const std::size_t i = kAxisOfAngle[product[0]];
  const std::size_t j = kAxisOfAngle[product[1]];
  const std::size_t k = kAxisOfAngle[product[2]];
  const double sign = (i + 1) % 3 == j ? 1.0 : -1.0;
  const auto element = [&](std::size_t row, std::size_t column) { return rotation.columns[column][row]; };

  const double sine = std::clamp(sign * element(i, k), -1.0, 1.0);
  const double cosine = std::hypot(element(i, i), element(i, j));
  Vec3 angles{};
  angles[product[1]] = std::atan2(sine, cosine);
  if (cosine > 1e-9) {
    angles[product[0]] = std::atan2(-sign * element(j, k), element(k, k));
    angles[product[2]] = std::atan2(-sign * element(i, j), element(i, i));
  } else {
    angles[product[0]] = std::atan2(sign * element(k, j), element(j, j));
  }
  return angles;
}

}  // namespace standin
