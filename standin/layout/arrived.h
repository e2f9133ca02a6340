// Whether a setting that was stored on a skelegon is on its bone (or on its helper items) after a conversion.
// Written apart from the module's tables.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "standin/layout/scene.h"

namespace standin {

using StoredBySlot = std::map<int, std::string>;

// The settings of an item that several skelegons may name, by slot.
struct HelperSlots {
  int name, parent, shape, visibility, colour;

  bool hold(int slot) const { return slot == parent || slot == shape || slot == visibility || slot == colour; }
};
inline constexpr HelperSlots kHelpers[] = {
    {52, 130, 136, 145, 152}, {53, 131, 137, 146, 153},  {55, 132, 138, 147, 154},  {73, 133, 139, 148, 155},
    {92, 134, 140, 149, 156}, {110, 135, 141, 150, 157}, {142, 133, 143, 151, 158},
};

enum class Arrival {
  There,
  Missing,
  NotSent,  // another stored setting keeps it from being sent, as the rules of the tool say
};

// `stored` are all settings of the skelegon by slot; `slot` is one of them.
Arrival arrivalOf(const Scene& scene, const Item& bone, const StoredBySlot& stored, int slot);

}  // namespace standin
