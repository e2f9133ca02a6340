// Under which names Layout will know what a file holds, and whether the conversion finds its layers by them.
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>

#include "objectfile/object_file.h"

namespace standin::rigs {

struct Rig;
struct Layer;

// Of the item that Layout makes of a layer: the file's name when the layer is the only one and its number is 0, else the
// file's name, a colon and the layer's; a layer without a name is "Layer1" and so on.
std::string itemNameOf(const ObjectLayer& layer, std::size_t layers, const std::string& fileName);

// Whether the conversion finds the layer by its item's name.
bool matchesItsItem(const Rig& rig, const Layer& layer);

// What stands for "[file]" in the settings of a layer's skelegons; empty when the item's name tells nothing.
std::string objectNameOf(const Layer& layer);

// The stored name of an item as it is looked up: with the object's name for "[file]".
std::string itemMeant(const Layer& layer, std::string_view text);

// Every name by which an item is found once the skelegons are bones: items of layers, and bones whose name is theirs alone
// in their layer, for Layout numbers the others.
std::set<std::string> namesFound(const Rig& rig);

}  // namespace standin::rigs
