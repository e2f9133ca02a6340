// What the object reader gave, as lists that compare and print.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "reader/object_reader.h"
#include "tests/unit/plain_object_reader.h"

namespace varnel::test {

using lwp::st::ObjectFileData;
using lwp::st::ObjectLayer;
using lwp::st::ParseObjectFile;
using lwp::st::PolygonTag;
using lwp::st::ReadObjectFile;
using lwp::st::SkelegonRecord;

inline bool isEmpty(const ObjectFileData& data) {
  return data.path().empty() && data.tagCount() == 0 && data.layerCount() == 0;
}

inline std::vector<std::string> textsOf(const ObjectFileData& data) {
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < data.tagCount(); ++i) texts.emplace_back(data.tag(i));
  return texts;
}

// The layers of an object, which refer to it.
inline std::vector<ObjectLayer> layersOf(const ObjectFileData& data) {
  std::vector<ObjectLayer> layers;
  for (std::size_t i = 0; i < data.layerCount(); ++i) layers.push_back(data.layer(i));
  return layers;
}

inline std::vector<std::vector<std::uint32_t>> skelegonsOf(const ObjectLayer& layer) {
  std::vector<std::vector<std::uint32_t>> skelegons;
  for (const SkelegonRecord& skelegon : layer.skelegons()) skelegons.push_back(skelegon.points);
  return skelegons;
}

// (type, text number) of a skelegon's tags.
inline std::vector<std::pair<std::uint32_t, std::uint16_t>> tagsOf(const SkelegonRecord& skelegon) {
  std::vector<std::pair<std::uint32_t, std::uint16_t>> tags;
  for (const PolygonTag& tag : skelegon.tags) tags.emplace_back(tag.type, tag.index);
  return tags;
}

inline std::array<std::uint32_t, 3> bitsOf(const lwp::st::Vec12& vector) {
  return {std::bit_cast<std::uint32_t>(vector.x), std::bit_cast<std::uint32_t>(vector.y),
          std::bit_cast<std::uint32_t>(vector.z)};
}

// The same object as the plain reader would have given it.
inline PlainObject plainObject(const ObjectFileData& data) {
  PlainObject object;
  object.tags = textsOf(data);
  for (const ObjectLayer& layer : layersOf(data)) {
    PlainLayer& plain = object.layers.emplace_back();
    plain.number = layer.number();
    plain.flags = layer.flags();
    plain.parent = layer.parent();
    plain.pivot = bitsOf(layer.pivot());
    plain.name = layer.name();
    for (const auto& point : layer.points()) plain.points.push_back(bitsOf(point));
    plain.faces = layer.faces();
    for (const SkelegonRecord& skelegon : layer.skelegons()) {
      plain.skelegons.push_back({skelegon.points, tagsOf(skelegon)});
    }
  }
  return object;
}

}  // namespace varnel::test
