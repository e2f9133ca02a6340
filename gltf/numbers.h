// Numbers that glTF cannot hold: it knows no infinity and nothing that is not a number, and viewers reckon with 32 bits.
#pragma once

#include <optional>

#include "objectfile/object_file.h"

namespace standin::gltf {

// In metres. The squares of all that lies nearer are numbers in 32 bits too, which every length needs.
inline constexpr float kFarthest = 1e18F;

// Says which point, pivot or weight it is; empty when all of the object can be written.
std::optional<Failure> refusedNumbers(const ObjectFile& object);

}  // namespace standin::gltf
