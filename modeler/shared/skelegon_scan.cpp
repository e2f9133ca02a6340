#include "modeler/shared/skelegon_scan.h"

#include <utility>

namespace mst {
namespace {

skg::Position positionOf(const lw::MeshEditOp& edit, lw::PointId point) {
  skg::Position position{};
  if (point != nullptr) edit.pointPos(edit.state, point, position.data());
  return position;
}

skg::SkelegonNode readNode(const lw::MeshEditOp& edit, lw::PolygonId polygon) {
  skg::SkelegonNode node;
  node.polygon = polygon;
  const lw::PointId* points = nullptr;
  const int count = edit.polyPoints(edit.state, polygon, &points);
  if (count >= 2 && points != nullptr) {  // a damaged one stands alone
    node.headPoint = points[0];
    node.tailPoint = points[1];
  }
  node.headPos = positionOf(edit, node.headPoint);
  node.tailPos = positionOf(edit, node.tailPoint);
  node.name = lw::polygonTag(edit, polygon, lw::kTagBone).value_or(std::string());
  return node;
}

}  // namespace

skg::SkelegonList BuildSkelegonList(const lw::MeshEditOp& edit, const lw::PolygonIds& polygons) {
  skg::SkelegonList list;
  for (const lw::PolygonId polygon : polygons) list.add(readNode(edit, polygon));
  list.link();
  return list;
}

}  // namespace mst
