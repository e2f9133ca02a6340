// The mesh as a faint drawing: its surface, all its edges where they are few, and those that show its form.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "views/posed_rig.h"
#include "views/projection.h"
#include "views/svg.h"

namespace standin::views {

struct MeshDrawing {
  PathData surface;
  PathData edges;
  PathData outline;      // edges of the silhouette, of the rim, and sharp ones
  std::size_t left = 0;  // edges of the outline that are left out, the shortest ones
};

class MeshOutline {
 public:
  explicit MeshOutline(const std::vector<const PosedMesh*>& meshes);

  // Whether surface and edges are left out, for there are too many.
  bool isSimplified() const { return isSimplified_; }
  // Finite points of faces.
  const std::vector<Vec3>& points() const { return corners_; }
  MeshDrawing drawing(const Frame& frame) const;

 private:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;
  struct Edge {
    std::uint32_t a, b;
    std::uint32_t face, other;
    bool isSharp;
  };

  void addFaces(const PosedMesh& mesh);
  void makeEdges();

  std::vector<Vec3> points_;
  std::vector<Vec3> corners_;
  std::vector<std::vector<std::uint32_t>> faces_;
  std::vector<Vec3> normals_;
  std::vector<Edge> edges_;
  bool isSimplified_ = false;
};

}  // namespace standin::views
