// The skelegons of a mesh as a forest: which one continues which, by the points that they share. Built anew for each run of
// a tool; nothing of it outlives the run.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// The host's identifiers are only compared here.
namespace lw {
struct OpaquePolygon;
struct OpaquePoint;
}  // namespace lw

namespace skg {

using PolygonId = lw::OpaquePolygon*;
using PointId = lw::OpaquePoint*;
using Position = std::array<double, 3>;  // x, y, z

// A skelegon as a panel knows it from a scan of the mesh.
struct SkelegonInfo {
  PolygonId polygon = nullptr;
  std::string name;         // empty when the skelegon has no name tag
  int layer = 0;            // 0 is the first
  bool isSelected = false;  // by the user, directly
  PointId head = nullptr;   // null in a damaged one
  PointId tail = nullptr;
  std::vector<std::optional<std::string>> tags;  // of the types that were asked for, in their order
};

struct SkelegonNode {
  PolygonId polygon = nullptr;
  std::string name;             // UTF-8; empty when the skelegon has no name
  PointId headPoint = nullptr;  // the polygon's first vertex
  PointId tailPoint = nullptr;  // its second
  Position headPos{};
  Position tailPos{};
  std::uint32_t column = 0;  // set by the renamer
  std::uint32_t row = 0;
  SkelegonNode* parent = nullptr;       // ends where this one begins; null for none
  std::vector<SkelegonNode*> children;  // begin where this one ends, in list order
};

// A choice out of one SkelegonList, which must outlive it.
using SkelegonNodes = std::vector<SkelegonNode*>;

// Owns the records, in the order in which the mesh delivered the polygons. Records keep their address.
class SkelegonList {
 public:
  SkelegonNode& add(SkelegonNode node);

  // Sets parents and children of all records from their points. To be called once, after the last add.
  //
  // Points are compared by identifier, never by position. When several records end where one begins, it is a child of each
  // of them and the last in list order is its parent. A record may be its own child: the host's skelegon tools make no such
  // shapes, and what a damaged mesh holds is taken as it is.
  void link();

  std::size_t size() const { return nodes_.size(); }
  bool empty() const { return nodes_.empty(); }
  SkelegonNode& operator[](std::size_t index) const { return *nodes_[index]; }

  // Every record, in list order.
  SkelegonNodes all() const;
  // The records of these polygons, in their order. Polygons that have no record are left out.
  SkelegonNodes resolve(const std::vector<PolygonId>& polygons) const;

 private:
  std::vector<std::unique_ptr<SkelegonNode>> nodes_;
};

// The records of `set` whose parent is none or not in `set`, in the order of `set`.
SkelegonNodes heads(const SkelegonNodes& set);

// Everything below a record, breadth first, each record once; the record itself is not among them, even where the links run
// in a circle.
SkelegonNodes descendants(const SkelegonNode& node);

// Each record of `set` followed by its descendants, each record once.
SkelegonNodes expandWithChildren(const SkelegonNodes& set);

}  // namespace skg
