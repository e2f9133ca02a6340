// From the host's axes to those of glTF.
//
// The host's are left-handed (+X right, +Y up, +Z forward, away from who looks at the front view), glTF's right-handed, with
// the front of a model towards +Z. So every z changes its sign: a model that looks at the viewer of the host's front view
// does so in glTF, +X stays right and +Y up. (To negate x instead would keep +Z, but then such a model shows its back.)
//
// Nothing moves in space by that, so what is clockwise stays so. Faces are clockwise in the host when seen from the front and
// have to be counter-clockwise in glTF: their corners change their order.
#pragma once

#include <array>

#include "standin/layout/transform.h"

namespace standin::gltf {

Vec3 inGltf(const Vec3& v);

// Both its place and its own axes, so that it stays a rotation: what lies along +Z of its own axes comes to lie along -Z.
Placement inGltf(const Placement& placement);

// Placements without scale.
Placement combined(const Placement& outer, const Placement& inner);
Placement inverseOf(const Placement& placement);

// x, y, z, w of a rotation; of length 1.
std::array<double, 4> quaternionOf(const Matrix3& rotation);

}  // namespace standin::gltf
