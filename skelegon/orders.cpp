#include "skelegon/orders.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace skg {
namespace {

// Both coordinates are negated on purpose, also a positive zero, which then lies at the very start of a turn.
double angle(const OrderRow& row, const Position& head) {
  const double plain = std::atan2(-head[row.first], -head[row.second]);
  return plain < row.start ? plain + kFullTurn : plain;
}

// A position that is no number comes last: a sort needs keys that can be compared.
double sortKey(const OrderRow& row, const Position& head) {
  const double key = orderKey(row, head);
  return std::isnan(key) ? std::numeric_limits<double>::infinity() : key;
}

void sort(SkelegonNodes& set, const OrderRow& row) {
  std::vector<std::pair<double, SkelegonNode*>> keyed;
  keyed.reserve(set.size());
  for (SkelegonNode* const node : set) keyed.emplace_back(sortKey(row, node->headPos), node);
  std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  std::transform(keyed.begin(), keyed.end(), set.begin(), [](const auto& entry) { return entry.second; });
}

}  // namespace

double orderKey(const OrderRow& row, const Position& head) {
  switch (row.key) {
    case OrderKey::Coordinate: return head[row.first];
    case OrderKey::SquaredDistance: return head[0] * head[0] + head[1] * head[1] + head[2] * head[2];
    case OrderKey::Angle: return angle(row, head);
    default: return 0;
  }
}

SkelegonNodes order(SkelegonNodes set, int index, bool invert) {
  const bool isOrder = index > 0 && static_cast<std::size_t>(index) < kOrders.size();
  if (isOrder) sort(set, kOrders[static_cast<std::size_t>(index)]);
  if (invert) std::reverse(set.begin(), set.end());
  return set;
}

}  // namespace skg
