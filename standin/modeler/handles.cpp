#include "standin/modeler/handles.h"

namespace standin {
namespace {

constexpr std::uint64_t kPointKind = 0x51;
constexpr std::uint64_t kPolygonKind = 0x52;
constexpr unsigned kKindShift = 40;
constexpr unsigned kSessionShift = 32;
constexpr std::uint64_t kStep = 16;

std::uint64_t base(std::uint64_t kind, std::uint32_t session) {
  return kind << kKindShift | static_cast<std::uint64_t>(session & 0xFFU) << kSessionShift | kStep;
}

template <class Id>
Id make(std::uint64_t kind, std::uint32_t session, std::size_t place) {
  return reinterpret_cast<Id>(base(kind, session) + place * kStep);  // NOLINT(performance-no-int-to-ptr)
}

template <class Id>
const Handles::Element* look(const std::vector<Handles::Element>& list, std::uint64_t kind, std::uint32_t session, Id id) {
  const std::uint64_t offset = reinterpret_cast<std::uintptr_t>(id) - base(kind, session);
  if (offset % kStep != 0 || offset / kStep >= list.size()) return nullptr;
  return &list[offset / kStep];
}

}  // namespace

lw::PointId Handles::addPoint(ModelerObject& object, std::size_t place) {
  points_.push_back({&object, place});
  return make<lw::PointId>(kPointKind, session_, points_.size() - 1);
}

lw::PolygonId Handles::addPolygon(ModelerObject& object, std::size_t place) {
  while (!free_.empty()) {
    const std::size_t last = free_.back();
    free_.pop_back();
    if (!polygons_[last].isFree) continue;
    polygons_[last] = {&object, place};
    return make<lw::PolygonId>(kPolygonKind, session_, last);
  }
  polygons_.push_back({&object, place});
  return make<lw::PolygonId>(kPolygonKind, session_, polygons_.size() - 1);
}

void Handles::polygonGone(lw::PolygonId id) {
  if (usesAgain_) setFree(static_cast<std::size_t>(find(id) - polygons_.data()));
}

lw::PolygonId Handles::polygonBack(lw::PolygonId id, ModelerObject& object, std::size_t place) {
  Element& element = polygons_[static_cast<std::size_t>(find(id) - polygons_.data())];
  if (element.object != &object || element.place != place) return addPolygon(object, place);
  element.isFree = false;
  return id;
}

void Handles::setFree(std::size_t place) {
  if (polygons_[place].isFree) return;
  polygons_[place].isFree = true;
  free_.push_back(place);
}

const Handles::Element* Handles::find(lw::PointId id) const { return look(points_, kPointKind, session_, id); }
const Handles::Element* Handles::find(lw::PolygonId id) const { return look(polygons_, kPolygonKind, session_, id); }

void Handles::objectClosed(const ModelerObject& object) {
  for (Element& point : points_) {
    if (point.object == &object) point.object = nullptr;
  }
  for (std::size_t place = 0; place < polygons_.size(); ++place) {
    if (polygons_[place].object != &object) continue;
    polygons_[place].object = nullptr;
    if (usesAgain_) setFree(place);
  }
}

}  // namespace standin
