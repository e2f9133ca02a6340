#include "views/bone_shape.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace standin::views {
namespace {

constexpr double kSquareAt = 0.1;     // of the length, from the head
constexpr double kHalfWidth = 0.085;  // of the length
constexpr double kDotSize = 3.5;      // of a bone without length, on the page
constexpr double kDarkBelow = 0.45;
// Towards the light, as who looks sees it: right, up, away.
constexpr Vec3 kLight{-0.46, 0.62, -0.64};

struct Triangle {
  std::size_t a, b, c;
};
constexpr std::array<Triangle, 8> kFaces{
    {{0, 2, 3}, {0, 3, 4}, {0, 4, 5}, {0, 5, 2}, {1, 3, 2}, {1, 4, 3}, {1, 5, 4}, {1, 2, 5}}};

Vec3 unit(const Vec3& v) {
  const double size = length(v);
  return size > 0 && std::isfinite(size) ? v * (1 / size) : Vec3{};
}

// The direction of an axis; one that a scale of zero has taken is made up.
Vec3 across(const Vec3& axis, const Vec3& along) {
  const Vec3 direction = unit(axis);
  if (length(direction) > 0) return direction;
  const Vec3 other = std::abs(along[1]) < 0.9 ? Vec3{0, 1, 0} : Vec3{1, 0, 0};
  return unit(cross(other, along));
}

// Around the points; in order, without those within.
std::vector<OnPage> hullOf(std::vector<OnPage> points) {
  std::sort(points.begin(), points.end(),
            [](const OnPage& a, const OnPage& b) { return a.x < b.x || (a.x == b.x && a.y < b.y); });
  const auto turn = [](const OnPage& a, const OnPage& b, const OnPage& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
  };
  std::vector<OnPage> hull;
  for (int side = 0; side < 2; ++side) {
    const std::size_t begin = hull.size();
    for (const OnPage& point : points) {
      while (hull.size() >= begin + 2 && turn(hull[hull.size() - 2], hull.back(), point) <= 0) hull.pop_back();
      hull.push_back(point);
    }
    hull.pop_back();
    std::reverse(points.begin(), points.end());
  }
  return hull;
}

void add(PathData& path, const std::vector<OnPage>& points) {
  path.move(points.front().x, points.front().y);
  for (std::size_t i = 1; i < points.size(); ++i) path.line(points[i].x, points[i].y);
  path.close();
}

// By the face's direction in the view: right, up, away.
bool isDark(const Vec3& normal) { return dot(unit(normal), kLight) < kDarkBelow; }

}  // namespace

BoneShape shapeOf(const PosedBone& bone) {
  BoneShape shape;
  if (!isFinite(bone.head) || !isFinite(bone.tail)) return shape;
  const Vec3 whole = bone.tail - bone.head;
  const double size = length(whole);
  shape.isDrawn = std::isfinite(size);
  shape.isPoint = size == 0;
  shape.middle = bone.head + whole * 0.5;
  const Vec3 along = unit(whole);
  const Vec3 right = across(bone.axes.columns[0], along) * (size * kHalfWidth);
  const Vec3 up = across(bone.axes.columns[1], along) * (size * kHalfWidth);
  const Vec3 square = bone.head + whole * kSquareAt;
  shape.corners = {bone.head, bone.tail, square + right, square + up, square - right, square - up};
  return shape;
}

BoneSpan spanOf(const BoneShape& shape, const Frame& frame) {
  BoneSpan span{frame.place(shape.corners[0]), frame.place(shape.corners[1]), {}};
  span.middle = {(span.head.x + span.tail.x) / 2, (span.head.y + span.tail.y) / 2};
  span.length = std::hypot(span.tail.x - span.head.x, span.tail.y - span.head.y);
  return span;
}

BoneDrawing drawingOf(const BoneShape& shape, const Frame& frame, bool isShaded) {
  BoneDrawing drawing;
  std::vector<OnPage> onPage;
  for (const Vec3& corner : shape.corners) onPage.push_back(frame.place(corner));
  if (shape.isPoint) {
    const auto [x, y] = onPage[0];
    add(drawing.outline, {{x - kDotSize, y}, {x, y - kDotSize}, {x + kDotSize, y}, {x, y + kDotSize}});
    return drawing;
  }
  add(drawing.outline, hullOf(onPage));
  if (!isShaded) return drawing;
  // From the middle, for far from the origin there are few digits left.
  std::array<Vec3, 6> inView;
  for (std::size_t i = 0; i < inView.size(); ++i) {
    const Seen corner = seen(frame.axes, shape.corners[i] - shape.middle);
    inView[i] = {corner.right, corner.up, corner.away};
  }
  for (const Triangle& face : kFaces) {
    Vec3 normal = cross(inView[face.b] - inView[face.a], inView[face.c] - inView[face.a]);
    if (dot(normal, inView[face.a]) < 0) normal = normal * -1;
    if (normal[2] < 0 && isDark(normal)) add(drawing.shade, {onPage[face.a], onPage[face.b], onPage[face.c]});
  }
  return drawing;
}

}  // namespace standin::views
