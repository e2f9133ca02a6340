#include "standin/layout/transform.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace standin {
namespace {

// An independent way to the same turns: quaternions.
struct Quaternion {
  double w, x, y, z;
};

Quaternion product(const Quaternion& a, const Quaternion& b) {
  return {a.w * b.w - a.x * b.x - a.y * b.y - a.z * b.z, a.w * b.x + a.x * b.w + a.y * b.z - a.z * b.y,
          a.w * b.y - a.x * b.z + a.y * b.w + a.z * b.x, a.w * b.z + a.x * b.y - a.y * b.x + a.z * b.w};
}

Quaternion about(char angle, const Vec3& angles) {
  const double half = angles[angle == 'H' ? 0 : angle == 'P' ? 1 : 2] / 2;
  const double c = std::cos(half);
  const double s = std::sin(half);
  if (angle == 'H') return {c, 0, s, 0};
  if (angle == 'P') return {c, s, 0, 0};
  return {c, 0, 0, s};
}

Vec3 turned(const std::string& order, const Vec3& angles, const Vec3& v) {
  const Quaternion q = product(product(about(order[0], angles), about(order[1], angles)), about(order[2], angles));
  const Quaternion r = product(product(q, {0, v[0], v[1], v[2]}), {q.w, -q.x, -q.y, -q.z});
  return {r.x, r.y, r.z};
}

void expectNear(const Vec3& a, const Vec3& b) {
  for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(a[i], b[i], 1e-12);
}

struct NamedOrder {
  RotationOrder order;
  std::string name;
};

class EveryOrder : public ::testing::TestWithParam<NamedOrder> {};

INSTANTIATE_TEST_SUITE_P(Orders, EveryOrder,
                         ::testing::Values(NamedOrder{RotationOrder::PHB, "PHB"}, NamedOrder{RotationOrder::HBP, "HBP"},
                                           NamedOrder{RotationOrder::BPH, "BPH"}, NamedOrder{RotationOrder::HPB, "HPB"},
                                           NamedOrder{RotationOrder::PBH, "PBH"}, NamedOrder{RotationOrder::BHP, "BHP"}),
                         [](const auto& info) { return info.param.name; });

TEST_P(EveryOrder, TurnsAsTheProductOfItsName) {
  const Vec3 angles{0.4, -1.1, 2.3};
  const Vec3 v{1, -2, 0.5};
  expectNear(rotation(angles, GetParam().order) * v, turned(GetParam().name, angles, v));
}

TEST_P(EveryOrder, GivesItsAnglesBack) {
  for (const Vec3& angles : {Vec3{0.4, -1.1, 1.3}, Vec3{-0.7, 0.2, -1.5}, Vec3{0, 0, 0}}) {
    expectNear(anglesOf(rotation(angles, GetParam().order), GetParam().order), angles);
  }
}

TEST_P(EveryOrder, FindsSomeAnglesForTheSameTurnWhereTwoAxesFallTogether) {
  for (const Vec3& angles :
       {Vec3{0.3, std::acos(0.0), 0.8}, Vec3{std::acos(0.0), 0.3, 0.8}, Vec3{0.3, 0.8, -std::acos(0.0)}}) {
    const Matrix3 turn = rotation(angles, GetParam().order);
    const Matrix3 again = rotation(anglesOf(turn, GetParam().order), GetParam().order);
    for (std::size_t i = 0; i < 3; ++i) expectNear(again.columns[i], turn.columns[i]);
  }
}

TEST(Rotation, PositiveHeadingTurnsForwardToTheRight) {
  expectNear(rotation({std::acos(0.0), 0, 0}, RotationOrder::HPB) * Vec3{0, 0, 1}, {1, 0, 0});
}

TEST(Rotation, PositivePitchTurnsForwardDown) {
  expectNear(rotation({0, std::acos(0.0), 0}, RotationOrder::HPB) * Vec3{0, 0, 1}, {0, -1, 0});
}

TEST(Rotation, PositiveBankTurnsRightUp) {
  expectNear(rotation({0, 0, std::acos(0.0)}, RotationOrder::HPB) * Vec3{1, 0, 0}, {0, 1, 0});
}

TEST(Inverse, TakesAScaledTurnBack) {
  const Matrix3 m = rotation({0.4, 1, -2}, RotationOrder::BPH) * scaling({2, 0.5, -3});
  expectNear(inverted(m) * (m * Vec3{1, 2, 3}), {1, 2, 3});
}

TEST(Inverse, OfAFlatMatrixIsZero) { expectNear(inverted(scaling({1, 0, 1})) * Vec3{1, 1, 1}, {0, 0, 0}); }

}  // namespace
}  // namespace standin
