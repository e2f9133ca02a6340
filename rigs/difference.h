// What differs between two states of a rig, by skelegon and setting.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "rigs/rig.h"

namespace standin::rigs {

enum class DifferenceKind {
  LayerAdded,
  LayerRemoved,
  LayerRenamed,
  LayerNumber,
  Order,  // of a layer's skelegons, which the conversion goes by
  Added,
  Removed,
  Renamed,  // another name at the same points
  Moved,    // head or tail
  Parent,
  Setting,
  Tag,  // any other tag
};

struct Difference {
  DifferenceKind kind;
  std::string layer;     // as shown, of the new state where there is one
  std::string skelegon;  // the same
  std::string what;      // the setting or the tag
  // As shown, a default with a word that it is one; absent where there is nothing: the skelegon is new, or no colour is stored.
  std::optional<std::string> from;
  std::optional<std::string> to;
  // The skelegon's place in the rigs, where it is in them.
  std::optional<std::size_t> placeBefore = {};
  std::optional<std::size_t> placeAfter = {};
};

// In the order of the new state, with what was removed behind.
std::vector<Difference> differencesOf(const Rig& before, const Rig& after, Language language);

}  // namespace standin::rigs
