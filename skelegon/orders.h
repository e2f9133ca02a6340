// The seventeen orders in which the renamer counts skelegons, all by the position of the head.
#pragma once

#include <array>
#include <cstddef>

#include "skelegon/skelegon_tree.h"

namespace skg {

enum class OrderKey { Kept, Coordinate, SquaredDistance, Angle };

struct OrderRow {
  OrderKey key;
  std::size_t first = 0;   // the coordinate, or the first argument of the angle: 0 x, 1 y, 2 z
  std::size_t second = 0;  // the second argument of the angle
  double start = 0;        // where the angle's full turn begins, in radians
};

inline constexpr double kPi = 3.141592653589793;
inline constexpr double kHalfPi = 1.5707963267948966;
inline constexpr double kFullTurn = 6.283185307179586;

// Number = place in the renamer's list of orders.
inline constexpr std::array<OrderRow, 17> kOrders = {{
    // clang-format off
    {OrderKey::Kept},
    {OrderKey::Coordinate, 0},
    {OrderKey::Coordinate, 1},
    {OrderKey::Coordinate, 2},
    {OrderKey::SquaredDistance},
    {OrderKey::Angle, 0, 2, -kPi},      // seen from the top, from +Z over +X
    {OrderKey::Angle, 0, 2, -kHalfPi},  // from +X
    {OrderKey::Angle, 0, 2, 0},         // from -Z
    {OrderKey::Angle, 0, 2, kHalfPi},   // from -X
    {OrderKey::Angle, 0, 1, -kPi},      // from the back, from +Y over +X
    {OrderKey::Angle, 0, 1, -kHalfPi},
    {OrderKey::Angle, 0, 1, 0},
    {OrderKey::Angle, 0, 1, kHalfPi},
    {OrderKey::Angle, 2, 1, -kPi},      // from the right, from +Y over +Z
    {OrderKey::Angle, 2, 1, -kHalfPi},
    {OrderKey::Angle, 2, 1, 0},
    {OrderKey::Angle, 2, 1, kHalfPi},
    // clang-format on
}};

// What an order sorts by. Radians for angles: from the row's start up to a full turn beyond it.
double orderKey(const OrderRow& row, const Position& head);

// The set in the order of that number, ascending; equal keys come in no promised order. `invert` reverses the whole result,
// also that of order 0. A number that is none keeps the order.
SkelegonNodes order(SkelegonNodes set, int index, bool invert);

}  // namespace skg
