// The shipped rigs: bodies that other programs can take, tied to the skelegons inside them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numbers>
#include <numeric>
#include <set>
#include <utility>

#include "objectfile/sample_rigs.h"

namespace standin {
namespace {

using Vector = std::array<double, 3>;

Vector minus(const FilePoint& a, const FilePoint& b) {
  return {double{a[0]} - b[0], double{a[1]} - b[1], double{a[2]} - b[2]};
}
Vector cross(const Vector& a, const Vector& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
double dot(const Vector& a, const Vector& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
double length(const Vector& a) { return std::sqrt(dot(a, a)); }

const std::vector<ObjectPolygon>& polygonsOf(ObjectLayer& layer, std::uint32_t type) { return layer.group(type).polygons; }

struct Triangle {
  FilePoint a, b, c;
};

std::vector<Triangle> trianglesOf(const ObjectLayer& layer, const ObjectPolygon& face) {
  std::vector<Triangle> triangles;
  for (std::size_t i = 2; i < face.points.size(); ++i) {
    triangles.push_back({layer.points[face.points[0]], layer.points[face.points[i - 1]], layer.points[face.points[i]]});
  }
  return triangles;
}

// Six times the volume between the triangle and the middle of the world; above 0 where it looks away from there.
double volume(const Triangle& t) {
  const FilePoint middle{};
  return dot(minus(t.a, middle), cross(minus(t.b, middle), minus(t.c, middle)));
}

// How much of what is seen from the point the triangle covers: all of it together is 4 pi.
double coverage(const Triangle& t, const FilePoint& from) {
  const Vector a = minus(t.a, from);
  const Vector b = minus(t.b, from);
  const Vector c = minus(t.c, from);
  const double la = length(a);
  const double lb = length(b);
  const double lc = length(c);
  return 2 * std::atan2(dot(a, cross(b, c)), la * lb * lc + dot(a, b) * lc + dot(b, c) * la + dot(c, a) * lb);
}

// For each point the first point of the closed surface that it belongs to.
std::vector<std::uint32_t> surfacesOf(ObjectLayer& layer) {
  std::vector<std::uint32_t> first(layer.points.size());
  std::iota(first.begin(), first.end(), 0U);
  for (bool changed = true; changed;) {
    changed = false;
    for (const ObjectPolygon& face : polygonsOf(layer, lw::kTypeFace)) {
      std::uint32_t least = first[face.points[0]];
      for (const std::uint32_t point : face.points) least = std::min(least, first[point]);
      for (const std::uint32_t point : face.points) {
        changed = changed || first[point] != least;
        first[point] = least;
      }
    }
  }
  return first;
}

struct ShippedRig {
  const char* name;
  ObjectFile (*make)();
};
void PrintTo(const ShippedRig& rig, std::ostream* out) { *out << rig.name; }

class ShippedBodies : public testing::TestWithParam<ShippedRig> {
 protected:
  ObjectFile rig = GetParam().make();
};
INSTANTIATE_TEST_SUITE_P(Rigs, ShippedBodies,
                         testing::Values(ShippedRig{"Lizard", makeDemoRig}, ShippedRig{"Doll", makeJapaneseRig}),
                         [](const auto& info) { return info.param.name; });

TEST_P(ShippedBodies, AreMoreThanBoxesAndStaySmall) {
  for (ObjectLayer& layer : rig.layers) {
    EXPECT_GT(polygonsOf(layer, lw::kTypeFace).size(), 100U);
    EXPECT_LE(polygonsOf(layer, lw::kTypeFace).size(), 1500U);
  }
}

TEST_P(ShippedBodies, AreClosedSurfaces) {
  for (ObjectLayer& layer : rig.layers) {
    std::map<std::pair<std::uint32_t, std::uint32_t>, int> edges;
    for (const ObjectPolygon& face : polygonsOf(layer, lw::kTypeFace)) {
      for (std::size_t i = 0; i < face.points.size(); ++i) {
        ++edges[{face.points[i], face.points[(i + 1) % face.points.size()]}];
      }
    }
    for (const auto& [edge, times] : edges) {
      EXPECT_EQ(times, 1) << edge.first << " to " << edge.second;
      EXPECT_EQ(edges.count({edge.second, edge.first}), 1U) << edge.first << " to " << edge.second;
    }
  }
}

TEST_P(ShippedBodies, LookOutwards) {
  for (ObjectLayer& layer : rig.layers) {
    const std::vector<std::uint32_t> surface = surfacesOf(layer);
    std::map<std::uint32_t, double> volumes;
    for (const ObjectPolygon& face : polygonsOf(layer, lw::kTypeFace)) {
      for (const Triangle& triangle : trianglesOf(layer, face)) volumes[surface[face.points[0]]] += volume(triangle);
    }
    for (const auto& [first, sum] : volumes) EXPECT_GT(sum, 1e-7) << "the surface from point " << first;
  }
}

TEST_P(ShippedBodies, HaveNoFaceThatIsALineOrFolded) {
  for (ObjectLayer& layer : rig.layers) {
    for (const ObjectPolygon& face : polygonsOf(layer, lw::kTypeFace)) {
      const std::vector<Triangle> triangles = trianglesOf(layer, face);
      const Triangle& first = triangles.front();
      const Vector ahead = cross(minus(first.b, first.a), minus(first.c, first.a));
      for (const Triangle& t : triangles) {
        const Vector normal = cross(minus(t.b, t.a), minus(t.c, t.a));
        EXPECT_GT(length(normal), 1e-6) << "at point " << face.points[0];
        EXPECT_GT(dot(normal, ahead), 0) << "at point " << face.points[0];
      }
    }
  }
}

TEST_P(ShippedBodies, AreTheSameOnBothSides) {
  for (ObjectLayer& layer : rig.layers) {
    for (const ObjectPolygon& face : polygonsOf(layer, lw::kTypeFace)) {
      const FilePoint& point = layer.points[face.points[0]];
      const FilePoint other = {-point[0], point[1], point[2]};
      EXPECT_TRUE(std::any_of(layer.points.begin(), layer.points.end(), [&](const FilePoint& each) {
        return length(minus(each, other)) < 1e-5;
      })) << face.points[0];
    }
  }
}

TEST_P(ShippedBodies, HoldTheirSkelegons) {
  for (ObjectLayer& layer : rig.layers) {
    std::vector<Triangle> triangles;
    for (const ObjectPolygon& face : polygonsOf(layer, lw::kTypeFace)) {
      for (const Triangle& triangle : trianglesOf(layer, face)) triangles.push_back(triangle);
    }
    for (const ObjectPolygon& skelegon : polygonsOf(layer, lw::kTypeBone)) {
      for (const float share : {0.05F, 0.25F, 0.5F, 0.75F, 0.95F}) {
        const FilePoint& head = layer.points[skelegon.points[0]];
        const FilePoint& tail = layer.points[skelegon.points[1]];
        FilePoint point{};
        for (std::size_t i = 0; i < 3; ++i) point[i] = head[i] + (tail[i] - head[i]) * share;
        double covered = 0;
        for (const Triangle& triangle : triangles) covered += coverage(triangle, point);
        EXPECT_GT(covered, 3.9 * std::numbers::pi) << *skelegon.tag(lw::kTagBone) << " at " << share;
      }
    }
  }
}

TEST_P(ShippedBodies, HaveWeightsThatAddUpToOne) {
  for (ObjectLayer& layer : rig.layers) {
    std::map<std::uint32_t, std::vector<float>> weights;
    for (const VertexMap& map : layer.maps) {
      for (std::size_t i = 0; i < map.points.size(); ++i) weights[map.points[i]].push_back(map.values[i]);
    }
    std::set<std::uint32_t> points;
    for (const ObjectPolygon& face : polygonsOf(layer, lw::kTypeFace)) points.insert(face.points.begin(), face.points.end());
    EXPECT_EQ(weights.size(), points.size());
    for (const std::uint32_t point : points) {
      EXPECT_LE(weights[point].size(), 4U) << point;
      EXPECT_NEAR(std::accumulate(weights[point].begin(), weights[point].end(), 0.0), 1, 1e-6) << point;
    }
  }
}

TEST_P(ShippedBodies, HaveAWeightMapForEachSkelegon) {
  for (ObjectLayer& layer : rig.layers) {
    const auto& skelegons = polygonsOf(layer, lw::kTypeBone);
    ASSERT_EQ(layer.maps.size(), skelegons.size());
    for (std::size_t i = 0; i < skelegons.size(); ++i) {
      const VertexMap& map = layer.maps[i];
      EXPECT_EQ(map.type, lw::kMapWeight);
      EXPECT_EQ(map.name, *skelegons[i].tag(lw::kTagBoneWeight));
      EXPECT_GT(*std::max_element(map.values.begin(), map.values.end()), 0.5F) << map.name << " moves nothing";
      EXPECT_LT(*std::min_element(map.values.begin(), map.values.end()), 0.5F) << map.name << " ends abruptly";
    }
  }
}

TEST(Lizard, HasWeightMapsOfTheNamesOfItsBones) {
  ObjectFile rig = makeDemoRig();
  for (ObjectLayer& layer : rig.layers) {
    for (const ObjectPolygon& skelegon : polygonsOf(layer, lw::kTypeBone)) {
      EXPECT_EQ(*skelegon.tag(lw::kTagBoneWeight), *skelegon.tag(lw::kTagBone));
    }
  }
}

// The jaw must be able to open.
TEST(Lizard, HasAJawApartFromItsSkull) {
  ObjectFile rig = makeDemoRig();
  const auto pointsOf = [&](const std::string& name) {
    const auto& maps = rig.layers[0].maps;
    const auto map = std::find_if(maps.begin(), maps.end(), [&](const VertexMap& each) { return each.name == name; });
    return std::set<std::uint32_t>(map->points.begin(), map->points.end());
  };
  const std::set<std::uint32_t> head = pointsOf("Head");
  for (const std::uint32_t point : pointsOf("Jaw")) EXPECT_EQ(head.count(point), 0U) << point;
}

// The settings of a skelegon without its weight map, which goes with the body.
std::vector<PolygonTag> settingsOf(ObjectPolygon skelegon) {
  skelegon.removeTag(lw::kTagBoneWeight);
  return skelegon.tags;
}

struct Pair {
  const char* name;
  ObjectFile (*shipped)();
  ObjectFile (*boxed)();
};
void PrintTo(const Pair& pair, std::ostream* out) { *out << pair.name; }

class BoxedRigs : public testing::TestWithParam<Pair> {};
INSTANTIATE_TEST_SUITE_P(Rigs, BoxedRigs,
                         testing::Values(Pair{"Lizard", makeDemoRig, makeBoxedLizard},
                                         Pair{"Doll", makeJapaneseRig, makeBoxedDoll}),
                         [](const auto& info) { return info.param.name; });

TEST_P(BoxedRigs, HaveTheSkelegonsOfTheShippedOnes) {
  ObjectFile shipped = GetParam().shipped();
  ObjectFile boxed = GetParam().boxed();
  ASSERT_EQ(shipped.layers.size(), boxed.layers.size());
  for (std::size_t l = 0; l < shipped.layers.size(); ++l) {
    const auto& one = polygonsOf(shipped.layers[l], lw::kTypeBone);
    const auto& other = polygonsOf(boxed.layers[l], lw::kTypeBone);
    ASSERT_EQ(one.size(), other.size());
    for (std::size_t i = 0; i < one.size(); ++i) {
      EXPECT_EQ(settingsOf(one[i]), settingsOf(other[i])) << *one[i].tag(lw::kTagBone);
      for (std::size_t end = 0; end < 2; ++end) {
        EXPECT_EQ(shipped.layers[l].points[one[i].points[end]], boxed.layers[l].points[other[i].points[end]]);
      }
    }
  }
}

TEST_P(BoxedRigs, HaveThreeBoxesAtMost) {
  ObjectFile boxed = GetParam().boxed();
  std::size_t faces = 0;
  for (ObjectLayer& layer : boxed.layers) faces += polygonsOf(layer, lw::kTypeFace).size();
  EXPECT_GT(faces, 0U);
  EXPECT_LE(faces, 18U);
}

}  // namespace
}  // namespace standin
