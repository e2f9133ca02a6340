// Skelegons made of numbers: identifiers that mean nothing but themselves.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "skelegon/skelegon_tree.h"

namespace skg::test {

inline PolygonId polygon(std::uintptr_t number) {
  return reinterpret_cast<PolygonId>(number);  // NOLINT(performance-no-int-to-ptr)
}

inline PointId point(std::uintptr_t number) {
  return reinterpret_cast<PointId>(number);  // NOLINT(performance-no-int-to-ptr)
}

struct Ends {
  std::uintptr_t head;
  std::uintptr_t tail;
};

// One record for each pair of points, named "0", "1" and so on, with the polygons 1, 2 and so on; not linked.
inline SkelegonList unlinkedList(const std::vector<Ends>& skelegons) {
  SkelegonList list;
  for (std::size_t i = 0; i < skelegons.size(); ++i) {
    SkelegonNode node;
    node.polygon = polygon(i + 1);
    node.name = std::to_string(i);
    node.headPoint = point(skelegons[i].head);
    node.tailPoint = point(skelegons[i].tail);
    list.add(std::move(node));
  }
  return list;
}

inline SkelegonList listOf(const std::vector<Ends>& skelegons) {
  SkelegonList list = unlinkedList(skelegons);
  list.link();
  return list;
}

// One record for each position, which is where it begins.
inline SkelegonList listAt(const std::vector<Position>& headPositions) {
  SkelegonList list;
  for (std::size_t i = 0; i < headPositions.size(); ++i) {
    SkelegonNode node;
    node.name = std::to_string(i);
    node.headPos = headPositions[i];
    list.add(std::move(node));
  }
  return list;
}

using Names = std::vector<std::string>;

inline Names namesOf(const SkelegonNodes& nodes) {
  Names names;
  for (const SkelegonNode* const node : nodes) names.push_back(node->name);
  return names;
}

}  // namespace skg::test
