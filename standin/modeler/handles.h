// Every point and polygon that the stand-in Modeler ever hands out, by the identifier that the module knows it by.
//
// Identifiers are numbers that cannot be used as addresses. They are never used twice, so one that has outlived its element
// or its object is told from a living one, and a point from a polygon. Only on demand do new polygons get the identifiers of
// polygons that are gone, as in a host whose identifiers are addresses.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "interface/lightwave.h"

namespace standin {

class ModelerObject;

class Handles {
 public:
  struct Element {
    ModelerObject* object = nullptr;  // null once the object is closed
    std::size_t place = 0;            // in the object's list of points or polygons
    bool isFree = false;              // may be given to another one
  };

  // `session` makes the identifiers of one session unknown to the next.
  explicit Handles(std::uint32_t session) : session_(session) {}

  // From now on the identifiers of polygons that are gone are used again, the last one first.
  void useAgain() { usesAgain_ = true; }

  lw::PointId addPoint(ModelerObject& object, std::size_t place);
  lw::PolygonId addPolygon(ModelerObject& object, std::size_t place);
  // A polygon is gone; its identifier still leads to it until it is used again.
  void polygonGone(lw::PolygonId id);
  // A polygon is back. Gives its identifier: the old one, or a new one when that names another polygon by now.
  lw::PolygonId polygonBack(lw::PolygonId id, ModelerObject& object, std::size_t place);
  // Null when the identifier was never handed out in this session.
  const Element* find(lw::PointId id) const;
  const Element* find(lw::PolygonId id) const;

  void objectClosed(const ModelerObject& object);

 private:
  void setFree(std::size_t place);

  std::uint32_t session_;
  std::vector<Element> points_;
  std::vector<Element> polygons_;
  bool usesAgain_ = false;
  std::vector<std::size_t> free_;  // places in polygons_; also some that are not free any more
};

}  // namespace standin
