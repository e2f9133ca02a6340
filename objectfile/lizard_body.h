// The lizard's shape.
#pragma once

#include "objectfile/object_file.h"

namespace standin {

// Puts the creature around the skelegons of the rig: mesh, and a weight map for each skelegon.
void addLizardBody(ObjectFile& rig);

}  // namespace standin
