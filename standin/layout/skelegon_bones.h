// What the host makes of an object's skelegons.
#pragma once

#include <vector>

#include "standin/layout/scene.h"

namespace standin {

// The names of the host's colours, by colour number.
inline constexpr std::array<const char*, 15> kColourNames{"Black",  "DkBlu", "DkGrn", "DkCyn", "DkRed",
                                                          "Purple", "Brown", "Gray",  "Blue",  "Green",
                                                          "Cyan",   "Red",   "Magen", "Orang", "White"};

// How the bone of a skelegon rests, from its two points.
BoneRest restOf(const Vec3& head, const Vec3& tail);

// A bone lies along +Z of its own axes, without bank in its object.
Matrix3 restAxes(const Vec3& direction);

// The items whose skelegons become bones of the object: the object itself where it has any, and by an option the others of
// its file.
std::vector<Item*> skelegonSources(Scene& scene, const Item& object);

// Turns these skelegons into bones and uses them up: a second call makes none. (Options say otherwise.)
// Gives the new bones. Polygons that are not between two points of the layer are passed over.
std::vector<Item*> makeBonesOfSkelegons(Scene& scene, Item& object);

}  // namespace standin
