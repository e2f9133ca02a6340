#include "objectfile/rig_builder.h"

#include <array>

namespace standin {

RigBuilder& RigBuilder::layer(std::uint16_t number, std::string name, FilePoint pivot, std::optional<std::uint16_t> parent) {
  ObjectLayer layer;
  layer.number = number;
  layer.name = std::move(name);
  layer.pivot = pivot;
  layer.parent = parent;
  object_.layers.push_back(std::move(layer));
  return *this;
}

ObjectLayer& RigBuilder::current() {
  if (object_.layers.empty()) layer(0, "");
  return object_.layers.back();
}

std::uint32_t RigBuilder::point(FilePoint position) {
  std::vector<FilePoint>& points = current().points;
  points.push_back(position);
  return static_cast<std::uint32_t>(points.size() - 1);
}

void RigBuilder::face(std::vector<std::uint32_t> points, const std::string& surface) {
  ObjectPolygon polygon;
  polygon.points = std::move(points);
  polygon.setTag(kTagSurface, surface);
  current().group(lw::kTypeFace).polygons.push_back(std::move(polygon));
}

std::uint32_t RigBuilder::box(FilePoint low, FilePoint high) {
  const auto first = static_cast<std::uint32_t>(current().points.size());
  for (unsigned corner = 0; corner < 8; ++corner) {
    point({(corner & 1U) != 0 ? high[0] : low[0], (corner & 2U) != 0 ? high[1] : low[1],
           (corner & 4U) != 0 ? high[2] : low[2]});
  }
  constexpr std::array<std::array<std::uint32_t, 4>, 6> kSides = {
      {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}}};
  for (const auto& side : kSides) face({first + side[0], first + side[1], first + side[2], first + side[3]});
  return first;
}

void RigBuilder::weightMap(std::string name, std::initializer_list<std::pair<std::uint32_t, float>> weights) {
  VertexMap map;
  map.name = std::move(name);
  for (const auto& [point, weight] : weights) {
    map.points.push_back(point);
    map.values.push_back(weight);
  }
  current().maps.push_back(std::move(map));
}

RigBuilder::Skelegon RigBuilder::root(const std::string& name, FilePoint head, FilePoint tail) {
  const std::uint32_t from = point(head);
  return between(from, point(tail), name);
}

RigBuilder::Skelegon RigBuilder::child(const Skelegon& parent, const std::string& name, FilePoint tail) {
  return between(parent.tail, point(tail), name);
}

std::vector<RigBuilder::Skelegon> RigBuilder::chain(const std::vector<std::string>& names,
                                                    const std::vector<FilePoint>& positions) {
  std::vector<Skelegon> skelegons;
  for (std::size_t i = 0; i < names.size(); ++i) {
    skelegons.push_back(i == 0 ? root(names[i], positions[0], positions[1])
                               : child(skelegons.back(), names[i], positions[i + 1]));
  }
  return skelegons;
}

RigBuilder::Skelegon RigBuilder::between(std::uint32_t head, std::uint32_t tail, const std::optional<std::string>& name) {
  ObjectPolygon polygon;
  polygon.points = {head, tail};
  polygon.setTag(kTagSurface, "Default");
  if (name) polygon.setTag(lw::kTagBone, *name);
  std::vector<ObjectPolygon>& skelegons = current().group(lw::kTypeBone).polygons;
  skelegons.push_back(std::move(polygon));
  return {object_.layers.size() - 1, skelegons.size() - 1, head, tail};
}

void RigBuilder::tag(const Skelegon& skelegon, std::uint32_t type, std::string text) {
  object_.layers[skelegon.layer].group(lw::kTypeBone).polygons[skelegon.polygon].setTag(type, std::move(text));
}

void RigBuilder::settings(const Skelegon& skelegon, std::initializer_list<Setting> list) {
  for (const Setting& setting : list) tag(skelegon, settingTag(setting.number), setting.text);
}

void RigBuilder::colour(const Skelegon& skelegon, const std::string& word) {
  for (const std::uint32_t type : {lw::kTagColour, settingTag(129)}) tag(skelegon, type, word);
}

void RigBuilder::leaveOtherColoursAlone() {
  for (ObjectLayer& layer : object_.layers) {
    for (ObjectPolygon& skelegon : layer.group(lw::kTypeBone).polygons) {
      if (skelegon.tag(lw::kTagColour) != nullptr) continue;
      for (const std::uint32_t type : {lw::kTagColour, settingTag(129)}) skelegon.setTag(type, "Modeler");
    }
  }
}

}  // namespace standin
