// Which skelegons an advanced run renames, and how it counts them. No host here.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "modeler/renamer/rename_rules.h"
#include "skelegon/skelegon_tree.h"

namespace mst {

struct RenameTargets {
  skg::SkelegonNodes targets;  // in the order in which they are renamed
  skg::SkelegonNodes heads;    // each begins a column; not yet ordered
};

// Selected and registered polygons that are not in the list are left out. Nothing for a choice that is none.
RenameTargets chooseTargets(RenameTarget choice, const skg::SkelegonList& skelegons,
                            const std::vector<skg::PolygonId>& selected, const std::vector<skg::PolygonId>& registered);

// Sets column and row of each target: the place of the head that it leads up to through its parents, and the steps to it.
// A target that leads up to no head keeps what it has.
void setCounters(const skg::SkelegonNodes& targets, const skg::SkelegonNodes& orderedHeads);

// The first name of the list that stands in it before.
std::optional<std::string> firstDuplicate(const std::vector<std::string>& names);

}  // namespace mst
