#include "layout/placement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

namespace lwp {
namespace {

// Turns about one axis, written out apart from the code under test.
Axes turnAbout(int axis, double angle) {
  const double c = std::cos(angle), s = std::sin(angle);
  switch (axis) {
    case 0: return {{{1, 0, 0}, {0, c, s}, {0, -s, c}}};
    case 1: return {{{c, 0, -s}, {0, 1, 0}, {s, 0, c}}};
    default: return {{{c, s, 0}, {-s, c, 0}, {0, 0, 1}}};
  }
}

Axes product(const Axes& outer, const Axes& inner) {
  return {along(outer, inner[0]), along(outer, inner[1]), along(outer, inner[2])};
}

constexpr int kOrders[6][3] = {{0, 1, 2}, {1, 2, 0}, {2, 0, 1}, {1, 0, 2}, {0, 2, 1}, {2, 1, 0}};

Axes axesFrom(const Turn& turn, int order) {
  const double angleAbout[3] = {turn.rotation[1], turn.rotation[0], turn.rotation[2]};
  Axes axes = kUnitAxes;
  for (int step = 2; step >= 0; --step) {
    const int axis = kOrders[order][step];
    axes = product(turnAbout(axis, angleAbout[axis]), axes);
  }
  for (std::size_t i = 0; i < 3; ++i) {
    for (double& v : axes[i]) v *= turn.scale[i];
  }
  return axes;
}

double distance(const Axes& a, const Axes& b) {
  double worst = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t k = 0; k < 3; ++k) worst = std::max(worst, std::abs(a[i][k] - b[i][k]));
  }
  return worst;
}

class EveryOrder : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(SplitAxes, EveryOrder, testing::Range(0, 6));

TEST_P(EveryOrder, GivesAnglesAndScalesThatMakeTheAxesAgain) {
  std::mt19937 random(20);
  std::uniform_real_distribution<double> angle(-4, 4), scale(0.01, 5);
  for (int i = 0; i < 2000; ++i) {
    const Axes axes =
        axesFrom({{angle(random), angle(random), angle(random)}, {scale(random), scale(random), scale(random)}}, GetParam());
    ASSERT_LT(distance(axesFrom(splitAxes(axes, GetParam()), GetParam()), axes), 1e-12);
  }
}

TEST_P(EveryOrder, MeetsTheTurnAtAndNearARightMiddleAngle) {
  std::mt19937 random(21);
  std::uniform_real_distribution<double> angle(-4, 4);
  constexpr std::size_t kAngleOfAxis[3] = {1, 0, 2};
  for (const double off : {0.0, 1e-16, 1e-12, 1e-9, 1e-6}) {
    for (const double side : {-1.0, 1.0}) {
      Turn turn{{angle(random), angle(random), angle(random)}, {1, 1, 1}};
      turn.rotation[kAngleOfAxis[kOrders[GetParam()][1]]] = side * (std::numbers::pi / 2 - off);
      const Axes axes = axesFrom(turn, GetParam());
      ASSERT_LT(distance(axesFrom(splitAxes(axes, GetParam()), GetParam()), axes), 1e-12) << off;
    }
  }
}

TEST_P(EveryOrder, PutsMirroringIntoTheScale) {
  for (std::size_t mirrored = 0; mirrored < 3; ++mirrored) {
    Turn turn{{0.3, -0.4, 0.5}, {1, 2, 3}};
    turn.scale[mirrored] = -turn.scale[mirrored];
    const Axes axes = axesFrom(turn, GetParam());
    ASSERT_LT(distance(axesFrom(splitAxes(axes, GetParam()), GetParam()), axes), 1e-12) << mirrored;
  }
}

TEST(SplitAxes, TakesAnUnknownOrderAsTheHostsDefault) {
  const Axes axes = axesFrom({{0.3, -0.4, 0.5}, {1, 1, 1}}, 3);
  EXPECT_EQ(splitAxes(axes, 17).rotation, splitAxes(axes, 3).rotation);
  EXPECT_EQ(splitAxes(axes, -1).rotation, splitAxes(axes, 3).rotation);
}

TEST(SplitAxes, GivesFiniteAnglesForAnAxisOfNoLength) {
  for (std::size_t flat = 0; flat < 3; ++flat) {
    Axes axes = kUnitAxes;
    axes[flat] = {0, 0, 0};
    const Turn turn = splitAxes(axes, 3);
    for (const double angle : turn.rotation) EXPECT_TRUE(std::isfinite(angle));
    EXPECT_EQ(turn.scale[flat], 0);
  }
}

TEST(InverseOf, TakesAVectorBack) {
  const Axes axes = axesFrom({{0.3, -0.4, 0.5}, {2, 0.5, 3}}, 3);
  const Vector3 back = along(*inverseOf(axes), along(axes, {1, -2, 3}));
  EXPECT_NEAR(back[0], 1, 1e-12);
  EXPECT_NEAR(back[1], -2, 1e-12);
  EXPECT_NEAR(back[2], 3, 1e-12);
}

TEST(InverseOf, DoesNotExistForFlatAxes) {
  Axes axes = kUnitAxes;
  axes[1] = {0, 0, 0};
  EXPECT_FALSE(inverseOf(axes).has_value());
}

TEST(InverseOf, DoesNotExistForAxesThatAreNoNumbersOrWithoutEnd) {
  for (const double bad : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e308}) {
    Axes axes = kUnitAxes;
    for (std::size_t i = 0; i < 3; ++i) axes[i][i] = bad;
    EXPECT_FALSE(inverseOf(axes).has_value()) << bad;
  }
}

}  // namespace
}  // namespace lwp
