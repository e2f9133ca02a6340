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
  polygons_.push_back({&object, place});
  return make<lw::PolygonId>(kPolygonKind, session_, polygons_.size() - 1);
}

const Handles::Element* Handles::find(lw::PointId id) const { return look(points_, kPointKind, session_, id); }
const Handles::Element* Handles::find(lw::PolygonId id) const { return look(polygons_, kPolygonKind, session_, id); }

void Handles::objectClosed(const ModelerObject& object) {
  for (std::vector<Element>* list : {&points_, &polygons_}) {
    for (Element& element : *list) {
      if (element.object == &object) element.object = nullptr;
    }
  }
}

}  // namespace standin
