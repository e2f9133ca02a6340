// Whether a setting that was stored on a skelegon is on its bone (or on its helper items) after a conversion.
// Written apart from the module's tables.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "standin/layout/scene.h"

namespace standin {

using StoredBySlot = std::map<int, std::string>;

enum class Arrival {
  There,
  Missing,
  NotSent,  // another stored setting keeps it from being sent, as the rules of the tool say
};

// `stored` are all settings of the skelegon by slot; `slot` is one of them.
Arrival arrivalOf(const Scene& scene, const Item& bone, const StoredBySlot& stored, int slot);

}  // namespace standin
