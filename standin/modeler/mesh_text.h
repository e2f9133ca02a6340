// An object of the stand-in Modeler as text: its skelegons as trees with what is stored on them. For demonstrations and for
// looking at a failed test.
#pragma once

#include <string>

#include "standin/modeler/modeler_object.h"

namespace standin {

// "BONE", or "sg1+13" for a stored bone setting.
std::string tagTypeName(std::uint32_t type);

// A line for each layer and each skelegon, children indented below the skelegon that ends where they begin. Tags follow the
// name, the surface left out; a selected skelegon is marked with '*'.
std::string skelegonsAsText(const ModelerObject& object, bool withTags = true);

}  // namespace standin
