// Every point and polygon that the stand-in Modeler ever hands out, by the identifier that the module knows it by.
//
// Identifiers are numbers that cannot be used as addresses. They are never used twice, so one that has outlived its element or
// its object is told from a living one, and a point from a polygon.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "host/lightwave.h"

namespace standin {

class ModelerObject;

class Handles {
 public:
  struct Element {
    ModelerObject* object = nullptr;  // null once the object is closed
    std::size_t place = 0;            // in the object's list of points or polygons
  };

  // `session` makes the identifiers of one session unknown to the next.
  explicit Handles(std::uint32_t session) : session_(session) {}

  lw::PointId addPoint(ModelerObject& object, std::size_t place);
  lw::PolygonId addPolygon(ModelerObject& object, std::size_t place);
  // Null when the identifier was never handed out in this session.
  const Element* find(lw::PointId id) const;
  const Element* find(lw::PolygonId id) const;

  void objectClosed(const ModelerObject& object);

 private:
  std::uint32_t session_;
  std::vector<Element> points_;
  std::vector<Element> polygons_;
};

}  // namespace standin
