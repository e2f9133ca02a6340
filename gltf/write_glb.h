// A model as the bytes of a GLB file: glTF 2.0 and its numbers in one.
#pragma once

#include <cstdint>
#include <string>

#include "gltf/model.h"

namespace standin::gltf {

// A GLB file states its own size, and that of its numbers, in 32 bits.
inline constexpr std::uint64_t kGreatestFile = 0xFFFFFFFF;

// Of all points, triangles and matrices. The numbers of a file are told before they are made.
std::uint64_t sizeOfNumbers(const Model& model);

// Fails when the file would be too large.
Outcome<std::string> glbOf(const Model& model, std::uint64_t greatest = kGreatestFile);

}  // namespace standin::gltf
