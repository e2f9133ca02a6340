// Reads a GLB file back without the library that wrote it: the text as JSON, the numbers from their bytes.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "gltf/rig_gltf.h"
#include "gltf/write_glb.h"
#include "standin/layout/transform.h"

namespace standin::gltf {

using Json = nlohmann::json;

class GlbFile {
 public:
  explicit GlbFile(std::string_view bytes) {
    EXPECT_EQ(bytes.substr(0, 4), "glTF");
    EXPECT_EQ(word(bytes, 4), 2U);
    EXPECT_EQ(word(bytes, 8), bytes.size());
    std::size_t at = 12;
    json = Json::parse(chunk(bytes, at, "JSON"));
    if (at < bytes.size()) numbers = chunk(bytes, at, std::string_view("BIN\0", 4));
    EXPECT_EQ(at, bytes.size());
    for (std::size_t i = 0; i < nodes().size(); ++i) {
      for (const std::size_t child : nodes()[i].value("children", std::vector<std::size_t>())) parents_[child] = i;
    }
  }

  const Json& nodes() const { return json.at("nodes"); }
  std::string name(std::size_t node) const { return nodes().at(node).at("name"); }
  std::optional<std::size_t> parent(std::size_t node) const {
    const auto found = parents_.find(node);
    return found == parents_.end() ? std::nullopt : std::optional(found->second);
  }
  // The first of that name; past the end when there is none.
  std::size_t node(const std::string& wanted) const {
    std::size_t i = 0;
    while (i < nodes().size() && nodes()[i].at("name") != wanted) ++i;
    EXPECT_LT(i, nodes().size()) << wanted;
    return i;
  }

  // In space, in glTF's axes.
  Placement place(std::size_t node) const {
    Placement place = localPlace(nodes().at(node));
    for (auto above = parent(node); above; above = parent(*above)) {
      const Placement outer = localPlace(nodes().at(*above));
      place = {outer.axes * place.axes, outer.axes * place.position + outer.position};
    }
    return place;
  }

  // The numbers of an accessor, a row each.
  std::vector<std::vector<double>> rows(std::size_t accessor) const {
    const Json& from = json.at("accessors").at(accessor);
    const Json& view = json.at("bufferViews").at(from.at("bufferView").get<std::size_t>());
    const std::string type = from.at("type");
    const std::size_t width = type == "SCALAR" ? 1 : type == "VEC3" ? 3 : type == "VEC4" ? 4 : 16;
    const int component = from.at("componentType");
    const std::size_t size = component == 5123 ? 2 : 4;
    std::size_t at = view.value("byteOffset", std::size_t{0});
    EXPECT_EQ(view.at("byteLength"), from.at("count").get<std::size_t>() * width * size);
    std::vector<std::vector<double>> rows(from.at("count"), std::vector<double>(width));
    for (auto& row : rows) {
      for (double& number : row) {
        number = numberAt(at, component);
        at += size;
      }
    }
    return rows;
  }
  const Json& primitive(std::size_t mesh) const { return json.at("meshes").at(mesh).at("primitives").at(0); }
  std::vector<std::vector<double>> attribute(std::size_t mesh, const char* name) const {
    return rows(primitive(mesh).at("attributes").at(name));
  }
  std::vector<Vec3> points(std::size_t mesh) const {
    std::vector<Vec3> points;
    for (const auto& row : attribute(mesh, "POSITION")) points.push_back({row[0], row[1], row[2]});
    return points;
  }
  // By points.
  std::vector<std::array<std::size_t, 3>> triangles(std::size_t mesh) const {
    const auto corners = rows(primitive(mesh).at("indices"));
    std::vector<std::array<std::size_t, 3>> triangles(corners.size() / 3);
    for (std::size_t i = 0; i < corners.size(); ++i) triangles[i / 3][i % 3] = static_cast<std::size_t>(corners[i][0]);
    return triangles;
  }
  // Of what the triangles enclose; positive when they look outwards.
  double volume(std::size_t mesh) const {
    const std::vector<Vec3> all = points(mesh);
    double six = 0;
    for (const auto& [a, b, c] : triangles(mesh)) {
      const auto& [p, q, r] = std::array{all[a], all[b], all[c]};
      six += p[0] * (q[1] * r[2] - q[2] * r[1]) + p[1] * (q[2] * r[0] - q[0] * r[2]) + p[2] * (q[0] * r[1] - q[1] * r[0]);
    }
    return six / 6;
  }

  Json json;
  std::string numbers;

 private:
  static std::uint32_t word(std::string_view bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes.at(at + i));
    return value;
  }

  static std::string chunk(std::string_view bytes, std::size_t& at, std::string_view kind) {
    const std::size_t size = word(bytes, at);
    EXPECT_EQ(bytes.substr(at + 4, 4), kind);
    EXPECT_EQ(size % 4, 0U);
    at += 8 + size;
    return std::string(bytes.substr(at - size, size));
  }

  double numberAt(std::size_t at, int component) const {
    if (component == 5126) {
      float number = 0;
      std::memcpy(&number, numbers.substr(at, 4).data(), 4);
      return static_cast<double>(number);
    }
    return component == 5123 ? word(numbers.substr(at, 2) + std::string(2, '\0'), 0) : word(numbers, at);
  }

  static Placement localPlace(const Json& node) {
    const auto t = node.value("translation", std::vector<double>{0, 0, 0});
    const auto q = node.value("rotation", std::vector<double>{0, 0, 0, 1});
    const double x = q[0];
    const double y = q[1];
    const double z = q[2];
    const double w = q[3];
    const Matrix3 axes = {{Vec3{1 - 2 * (y * y + z * z), 2 * (x * y + z * w), 2 * (x * z - y * w)},
                           Vec3{2 * (x * y - z * w), 1 - 2 * (x * x + z * z), 2 * (y * z + x * w)},
                           Vec3{2 * (x * z + y * w), 2 * (y * z - x * w), 1 - 2 * (x * x + y * y)}}};
    return {axes, {t[0], t[1], t[2]}};
  }

  std::map<std::size_t, std::size_t> parents_;
};

inline Translated translatedWhole(const ObjectFile& object, const std::string& path = "rig.lwo") {
  Outcome<Translated> made = translated(object, path);
  EXPECT_EQ(made.why(), "");
  return made ? std::move(*made) : Translated();
}

inline GlbFile glbFileOf(const ObjectFile& object, const std::string& path = "rig.lwo") {
  const Outcome<std::string> bytes = glbOf(translatedWhole(object, path).model);
  EXPECT_EQ(bytes.why(), "");
  return GlbFile(*bytes);
}

}  // namespace standin::gltf
