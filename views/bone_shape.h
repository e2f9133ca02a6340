// The shape in which a bone is shown: two pyramids that share a square, near the head, turned as the bone's own axes.
#pragma once

#include <array>
#include <vector>

#include "views/posed_rig.h"
#include "views/projection.h"
#include "views/svg.h"

namespace standin::views {

struct BoneShape {
  bool isDrawn = false;  // head and tail are somewhere
  bool isPoint = false;  // it has no length
  // The head, the tail, and around them right, up, left and down.
  std::array<Vec3, 6> corners{};
  Vec3 middle{};
};
BoneShape shapeOf(const PosedBone& bone);

// Where a bone lies on the page.
struct BoneSpan {
  OnPage head;
  OnPage tail;
  OnPage middle;
  double length = 0;
};
BoneSpan spanOf(const BoneShape& shape, const Frame& frame);

// What a view sees of a shape.
struct BoneDrawing {
  PathData outline;
  PathData shade;  // its darker faces, where they are wanted
};
BoneDrawing drawingOf(const BoneShape& shape, const Frame& frame, bool isShaded);

}  // namespace standin::views
