// The names that the renamer's counters give, as they stand by default: a letter for each chain, a number for each step.
#pragma once

#include <cstddef>
#include <optional>

#include "rigs/rig.h"

namespace standin::rigs {

struct SharedNames {
  // The first that would get a name that one before it has got. Places in Rig::skelegons.
  std::size_t first = 0;
  std::size_t second = 0;
  std::size_t skelegons = 0;  // how many would
};

// When all skelegons of the layer are counted. Nothing where each gets a name of its own.
std::optional<SharedNames> sharedByCounters(const Rig& rig, const Layer& layer);

}  // namespace standin::rigs
