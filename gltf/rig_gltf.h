// An object with the bones that the host makes of its skelegons, as it is written into a glTF file.
//
//   file                    one node for the file
//     layers                one node for each, with the host's name of the item, below their parent layers
//       joints              one for each bone, below their parents
//       mesh                of a layer whose points no bone moves
//   skinned meshes          at the top: what is above a skinned mesh does not move it
#pragma once

#include <string>

#include "gltf/left_out.h"
#include "gltf/model.h"
#include "objectfile/object_file.h"

namespace standin::gltf {

struct Translated {
  Model model;
  LeftOut leftOut;
  std::size_t bones = 0;
};

// The bones are those of the stand-in's Layout after the command SkelegonsToBones. `path` is where the object comes from:
// items are named by it. Fails with a sentence when something cannot be written at all.
Outcome<Translated> translated(const ObjectFile& object, const std::string& path);

}  // namespace standin::gltf
