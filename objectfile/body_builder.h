// Bodies around skelegons: closed tubes of quads, and the weight maps that tie them to the skelegons.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "objectfile/object_file.h"

namespace standin {

// Where "above" is: of tubes along the ground, and of those that go up or down themselves.
inline constexpr FilePoint kUpwards = {0, 1, 0};
inline constexpr FilePoint kForwards = {0, 0, 1};

// One section of a tube, an ellipse whose upper and lower half may differ in height. Half sizes, in metres.
struct BodyRing {
  FilePoint centre;
  float side;
  float above;
  float below;
};

constexpr BodyRing roundRing(FilePoint centre, float radius) { return {centre, radius, radius, radius}; }

// The rings of a ball that is drawn out along an axis; the axis is half as long as the ball.
std::vector<BodyRing> ballRings(FilePoint centre, FilePoint axis, float radius);

struct BodyPart {
  std::vector<BodyRing> rings;  // two at least, from end to end
  std::size_t corners = 8;      // of each ring, an even number
  FilePoint up = kUpwards;      // along no part of the tube
  const char* surface = "Default";
  std::vector<std::string> follows;  // the names of skelegons of the layer
};

// The part of the right side for one of the left: X turned round, and "_R" in names for "_L".
BodyPart onTheRight(BodyPart part);

// Adds the parts to a layer that has its skelegons, and a weight map for each skelegon that is followed. It has the name that
// the skelegon stores for it; a skelegon that stores none gets its own name stored. The weights of a point add up to 1.
void addBody(ObjectLayer& layer, const std::vector<BodyPart>& parts);

}  // namespace standin
