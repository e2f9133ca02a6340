// The seventeen orders: keys, signs, where a turn begins, ties.
#include "skelegon/orders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <set>

#include "tests/unit/skelegon_fixture.h"

namespace skg::test {
namespace {

Names ordered(const std::vector<Position>& heads, int index, bool invert = false) {
  const SkelegonList list = listAt(heads);
  return namesOf(order(list.all(), index, invert));
}

TEST(Orders, RegistrationKeepsTheOrder) { EXPECT_EQ(ordered({{3, 0, 0}, {1, 0, 0}, {2, 0, 0}}, 0), (Names{"0", "1", "2"})); }

TEST(Orders, InvertReversesRegistrationToo) {
  EXPECT_EQ(ordered({{3, 0, 0}, {1, 0, 0}, {2, 0, 0}}, 0, true), (Names{"2", "1", "0"}));
}

TEST(Orders, PositionSortsAscendingByOneCoordinate) {
  const std::vector<Position> heads = {{1, -2, 3}, {-1, 5, 2}, {0, 0, -7}};
  EXPECT_EQ(ordered(heads, 1), (Names{"1", "2", "0"}));
  EXPECT_EQ(ordered(heads, 2), (Names{"0", "2", "1"}));
  EXPECT_EQ(ordered(heads, 3), (Names{"2", "1", "0"}));
}

TEST(Orders, InvertReversesASortedOrder) {
  EXPECT_EQ(ordered({{1, 0, 0}, {-1, 0, 0}, {0, 0, 0}}, 1, true), (Names{"0", "2", "1"}));
}

TEST(Orders, DistanceFromOriginIsSquared) {
  EXPECT_EQ(ordered({{0, -2, 0}, {1, 0, 0}}, 4), (Names{"1", "0"}));
  EXPECT_EQ(orderKey(kOrders[4], {1, 0, 0}), 1);
  EXPECT_EQ(orderKey(kOrders[4], {0, -2, 0}), 4);
  EXPECT_EQ(orderKey(kOrders[4], {1, 2, 3}), 14);
}

TEST(Orders, AnOrderThatIsNoneKeepsTheOrder) {
  EXPECT_EQ(ordered({{3, 0, 0}, {1, 0, 0}}, 17), (Names{"0", "1"}));
  EXPECT_EQ(ordered({{3, 0, 0}, {1, 0, 0}}, -1), (Names{"0", "1"}));
}

TEST(Orders, RegistrationHasNoKeyOfItsOwn) { EXPECT_EQ(orderKey(kOrders[0], {3, 4, 5}), 0); }

TEST(Orders, EqualKeysLoseNoRecord) {
  const Names names = ordered({{1, 0, 0}, {1, 5, 0}, {0, 0, 0}, {1, 0, 9}}, 1);
  EXPECT_EQ(names.front(), "2");
  EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), 4u);
}

TEST(Orders, APositionThatIsNoNumberComesLast) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(ordered({{nan, 0, 0}, {2, 0, 0}, {1, 0, 0}}, 1), (Names{"2", "1", "0"}));
}

// --- angles --------------------------------------------------------------------------------------------------------------

// A turn seen in a plane: the four directions in the order in which it passes them, from where the first of its orders
// begins.
struct Turn {
  const char* plane;
  int firstOrder;
  std::array<Position, 4> directions;
};
const std::array<Turn, 3> kTurns = {{
    {"top", 5, {{{0, 0, 1}, {1, 0, 0}, {0, 0, -1}, {-1, 0, 0}}}},    // +Z +X -Z -X
    {"back", 9, {{{0, 1, 0}, {1, 0, 0}, {0, -1, 0}, {-1, 0, 0}}}},   // +Y +X -Y -X
    {"right", 13, {{{0, 1, 0}, {0, 0, 1}, {0, -1, 0}, {0, 0, -1}}}}  // +Y +Z -Y -Z
}};

class OrderTurns : public testing::TestWithParam<Turn> {};

TEST_P(OrderTurns, EachOrderBeginsAtItsOwnDirectionAndSweepsAFullTurn) {
  const Turn& turn = GetParam();
  for (std::size_t start = 0; start < 4; ++start) {
    std::vector<Position> sweep(turn.directions.begin(), turn.directions.end());
    std::rotate(sweep.begin(), sweep.begin() + static_cast<std::ptrdiff_t>(start), sweep.end());
    std::vector<Position> shuffled = {sweep[2], sweep[0], sweep[3], sweep[1]};
    const int index = turn.firstOrder + static_cast<int>(start);
    EXPECT_EQ(ordered(shuffled, index), (Names{"1", "3", "0", "2"})) << turn.plane << ", order " << index;
  }
}

TEST_P(OrderTurns, TheThirdCoordinateDoesNotMatter) {
  const Turn& turn = GetParam();
  for (const Position& direction : turn.directions) {
    Position raised = direction;
    const OrderRow& row = kOrders[static_cast<std::size_t>(turn.firstOrder)];
    const std::size_t third = 3 - row.first - row.second;
    raised[third] = 42;
    EXPECT_EQ(orderKey(row, raised), orderKey(row, direction)) << turn.plane;
  }
}

INSTANTIATE_TEST_SUITE_P(Planes, OrderTurns, testing::ValuesIn(kTurns),
                         [](const auto& turn) { return std::string(turn.param.plane); });

TEST(Orders, TopFromPlusZKeepsTheSweep) {
  EXPECT_EQ(ordered({{0, 0, 1}, {1, 0, 0}, {0, 0, -1}, {-1, 0, 0}}, 5), (Names{"0", "1", "2", "3"}));
}

TEST(Orders, TopFromMinusZBeginsHalfATurnLater) {
  EXPECT_EQ(ordered({{0, 0, 1}, {1, 0, 0}, {0, 0, -1}, {-1, 0, 0}}, 7), (Names{"2", "3", "0", "1"}));
}

// A positive zero is negated like any coordinate. Written as a subtraction or as an absolute value it would come last.
TEST(Orders, APositiveZeroLiesAtTheVeryStartOfTheTurn) {
  EXPECT_EQ(orderKey(kOrders[5], {0.0, 0, 1}), -kPi);
  EXPECT_EQ(orderKey(kOrders[9], {0.0, 1, 0}), -kPi);
  EXPECT_EQ(orderKey(kOrders[13], {0, 1, 0.0}), -kPi);
}

TEST(Orders, ANegativeZeroLiesAtTheEndOfTheTurn) {
  EXPECT_EQ(orderKey(kOrders[5], {-0.0, 0, 1}), kPi);
  EXPECT_EQ(ordered({{-0.0, 0, 1}, {-1, 0, 0}, {0.0, 0, 1}}, 5), (Names{"2", "1", "0"}));
}

TEST(Orders, AnAngleBelowTheStartIsAFullTurnLater) {
  EXPECT_EQ(orderKey(kOrders[7], {1, 0, 0}), -kHalfPi + kFullTurn);
  EXPECT_EQ(orderKey(kOrders[6], {1, 0, 0}), -kHalfPi);
  EXPECT_EQ(orderKey(kOrders[6], {0.0, 0, 1}), -kPi + kFullTurn);
  EXPECT_EQ(orderKey(kOrders[8], {-1, 0, 0}), kHalfPi);
}

}  // namespace
}  // namespace skg::test
