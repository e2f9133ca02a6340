#include "views/mesh_outline.h"

#include <algorithm>
#include <cmath>

namespace standin::views {
namespace {

// With more of them the picture would be large, and grey all over.
constexpr std::size_t kMostEdges = 3000;
constexpr std::size_t kMostOutlineEdges = 3000;
constexpr double kCosineOfSharp = 0.7;

// Of any polygon, also of one that is not flat. From its first point, for far from the origin there are few digits left.
Vec3 normalOf(const std::vector<Vec3>& points, const std::vector<std::uint32_t>& face) {
  Vec3 normal{};
  const Vec3& first = points[face[0]];
  for (std::size_t i = 1; i + 1 < face.size(); ++i) {
    const Vec3 a = points[face[i]] - first;
    const Vec3 b = points[face[i + 1]] - first;
    normal = normal + cross(a, b);
  }
  const double size = length(normal);
  return size > 0 && std::isfinite(size) ? normal * (1 / size) : Vec3{};
}

void addPolygon(PathData& path, const std::vector<OnPage>& points) {
  double area = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const OnPage& next = points[(i + 1) % points.size()];
    area += points[i].x * next.y - next.x * points[i].y;
  }
  // All the same way round, so that what lies behind something does not cut a hole into it.
  const std::size_t count = points.size();
  const auto at = [&](std::size_t i) { return points[area < 0 ? count - 1 - i : i]; };
  path.move(at(0).x, at(0).y);
  for (std::size_t i = 1; i < count; ++i) path.line(at(i).x, at(i).y);
  path.close();
}

}  // namespace

MeshOutline::MeshOutline(const std::vector<const PosedMesh*>& meshes) {
  for (const PosedMesh* mesh : meshes) addFaces(*mesh);
  for (const auto& face : faces_) normals_.push_back(normalOf(points_, face));
  makeEdges();
  isSimplified_ = edges_.size() > kMostEdges;
  std::vector<bool> isUsed(points_.size());
  for (const auto& face : faces_) {
    for (const std::uint32_t point : face) isUsed[point] = true;
  }
  for (std::size_t i = 0; i < points_.size(); ++i) {
    if (isUsed[i]) corners_.push_back(points_[i]);
  }
}

void MeshOutline::addFaces(const PosedMesh& mesh) {
  const auto first = static_cast<std::uint32_t>(points_.size());
  points_.insert(points_.end(), mesh.points.begin(), mesh.points.end());
  for (const auto& face : mesh.faces) {
    const bool isSomewhere = std::all_of(face.begin(), face.end(), [&](std::uint32_t point) {
      return point < mesh.points.size() && isFinite(mesh.points[point]);
    });
    if (!isSomewhere) continue;
    faces_.push_back(face);
    for (std::uint32_t& point : faces_.back()) point += first;
  }
}

void MeshOutline::makeEdges() {
  std::vector<Edge> all;
  for (std::uint32_t f = 0; f < faces_.size(); ++f) {
    const auto& face = faces_[f];
    for (std::size_t i = 0; i < face.size(); ++i) {
      const std::uint32_t a = face[i];
      const std::uint32_t b = face[(i + 1) % face.size()];
      if (a != b) all.push_back({std::min(a, b), std::max(a, b), f, kNone, true});
    }
  }
  std::sort(all.begin(), all.end(), [](const Edge& x, const Edge& y) {
    return x.a != y.a ? x.a < y.a : x.b != y.b ? x.b < y.b : x.face < y.face;
  });
  for (const Edge& edge : all) {
    if (edges_.empty() || edges_.back().a != edge.a || edges_.back().b != edge.b) {
      edges_.push_back(edge);
    } else if (edges_.back().other == kNone) {
      edges_.back().other = edge.face;
      edges_.back().isSharp = dot(normals_[edges_.back().face], normals_[edge.face]) < kCosineOfSharp;
    }
  }
}

MeshDrawing MeshOutline::drawing(const Frame& frame) const {
  MeshDrawing drawing;
  std::vector<OnPage> places;
  places.reserve(points_.size());
  for (const Vec3& point : points_) places.push_back(frame.place(point));
  std::vector<bool> isTurnedAway;
  for (const Vec3& normal : normals_) isTurnedAway.push_back(dot(normal, frame.axes.away) > 0);

  std::vector<const Edge*> outline;
  const auto add = [&](PathData& path, const Edge& edge) {
    path.move(places[edge.a].x, places[edge.a].y);
    path.line(places[edge.b].x, places[edge.b].y);
  };
  for (const Edge& edge : edges_) {
    const bool isOfForm = edge.isSharp || isTurnedAway[edge.face] != isTurnedAway[edge.other];
    if (isOfForm) {
      outline.push_back(&edge);
    } else if (!isSimplified_) {
      add(drawing.edges, edge);
    }
  }
  if (outline.size() > kMostOutlineEdges) {
    drawing.left = outline.size() - kMostOutlineEdges;
    const auto lengthOf = [&](const Edge* edge) {
      return std::hypot(places[edge->a].x - places[edge->b].x, places[edge->a].y - places[edge->b].y);
    };
    std::stable_sort(outline.begin(), outline.end(),
                     [&](const Edge* x, const Edge* y) { return lengthOf(x) > lengthOf(y); });
    outline.resize(kMostOutlineEdges);
  }
  for (const Edge* edge : outline) add(drawing.outline, *edge);
  if (isSimplified_) return drawing;
  for (const auto& face : faces_) {
    std::vector<OnPage> points;
    points.reserve(face.size());
    for (const std::uint32_t point : face) points.push_back(places[point]);
    addPolygon(drawing.surface, points);
  }
  return drawing;
}

}  // namespace standin::views
