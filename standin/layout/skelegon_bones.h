// What the host makes of an object's skelegons.
#pragma once

#include <vector>

#include "standin/layout/scene.h"

namespace standin {

// The names of the host's colours, by colour number.
inline constexpr std::array<const char*, 15> kColourNames{"Black",  "DkBlu", "DkGrn", "DkCyn", "DkRed",
                                                          "Purple", "Brown", "Gray",  "Blue",  "Green",
                                                          "Cyan",   "Red",   "Magen", "Orang", "White"};

// Turns the object's skelegons into bones, in their order in the file, and uses them up: a second call makes none.
// Gives the new bones. Polygons that are not between two points of the layer are passed over.
std::vector<Item*> makeBonesOfSkelegons(Scene& scene, Item& object);

}  // namespace standin
