#include "objectfile/body_builder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <span>
#include <stdexcept>
#include <utility>

namespace standin {
namespace {

using Vector = std::array<double, 3>;

Vector vectorOf(const FilePoint& point) { return {point[0], point[1], point[2]}; }
Vector operator+(const Vector& a, const Vector& b) { return {a[0] + b[0], a[1] + b[1], a[2] + b[2]}; }
Vector operator*(const Vector& a, double factor) { return {a[0] * factor, a[1] * factor, a[2] * factor}; }
Vector operator-(const Vector& a, const Vector& b) { return a + b * -1; }
double dot(const Vector& a, const Vector& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
Vector cross(const Vector& a, const Vector& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
Vector unit(const Vector& a) { return a * (1 / std::sqrt(dot(a, a))); }

// ---------------------------------------------------------------------------------------------------------------------
// Faces

// The points of one ring: seen against the way of the tube they go round clockwise.
void addRing(ObjectLayer& layer, const BodyPart& part, std::size_t place) {
  const BodyRing& ring = part.rings[place];
  const BodyRing& before = part.rings[place == 0 ? 0 : place - 1];
  const BodyRing& after = part.rings[std::min(place + 1, part.rings.size() - 1)];
  const Vector along = unit(vectorOf(after.centre) - vectorOf(before.centre));
  const Vector side = unit(cross(vectorOf(part.up), along));
  const Vector up = cross(along, side);
  for (std::size_t i = 0; i < part.corners; ++i) {
    const double angle = 2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(part.corners);
    const double height = std::sin(angle) * (i * 2 < part.corners ? ring.above : ring.below);
    const Vector point = vectorOf(ring.centre) + side * (std::cos(angle) * ring.side) + up * height;
    layer.points.push_back({static_cast<float>(point[0]), static_cast<float>(point[1]), static_cast<float>(point[2])});
  }
}

void addQuad(ObjectLayer& layer, const char* surface, const std::array<std::size_t, 4>& corners) {
  ObjectPolygon quad;
  for (const std::size_t corner : corners) quad.points.push_back(static_cast<std::uint32_t>(corner));
  quad.setTag(kTagSurface, surface);
  layer.group(lw::kTypeFace).polygons.push_back(std::move(quad));
}

// The quads of a tube whose points begin at `first`, seen from outside clockwise.
void addQuads(ObjectLayer& layer, const BodyPart& part, std::size_t first) {
  const std::size_t n = part.corners;
  const std::size_t last = first + (part.rings.size() - 1) * n;
  for (std::size_t ring = first; ring < last; ring += n) {
    for (std::size_t i = 0; i < n; ++i) {
      const std::size_t next = (i + 1) % n;
      addQuad(layer, part.surface, {ring + i, ring + next, ring + n + next, ring + n + i});
    }
  }
  for (std::size_t i = 0; i + 1 < n / 2; ++i) {
    addQuad(layer, part.surface, {first + n - 1 - i, first + n - 2 - i, first + i + 1, first + i});
    addQuad(layer, part.surface, {last + i, last + i + 1, last + n - 2 - i, last + n - 1 - i});
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Weights

constexpr std::size_t kMostWeights = 4;  // of a point: more cannot be given in other formats

struct Followed {
  Vector head, tail;
  VertexMap* map;
};

// How little of a point follows a bone: it grows with the distance, more slowly about a long bone, so that thin limbs bend softly too.
double looseness(const Vector& point, const Followed& bone) {
  constexpr double kSoftness = 0.25;  // of the bone's length
  const Vector along = bone.tail - bone.head;
  const double square = std::max(dot(along, along), 1e-12);
  const Vector away = point - (bone.head + along * std::clamp(dot(point - bone.head, along) / square, 0.0, 1.0));
  return std::pow(dot(away, away) + square * kSoftness * kSoftness, 2);
}

// The nearer a skelegon, the more of the point follows it.
void weigh(const Vector& at, std::uint32_t point, std::span<const Followed> bones) {
  constexpr double kLeast = 0.01;  // of the weight of the nearest
  std::vector<std::pair<double, VertexMap*>> weights;
  for (const Followed& bone : bones) weights.emplace_back(1 / looseness(at, bone), bone.map);
  std::sort(weights.begin(), weights.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
  std::erase_if(weights, [least = weights.front().first * kLeast](const auto& weight) { return weight.first < least; });
  weights.resize(std::min(weights.size(), kMostWeights));
  double sum = 0;
  for (const auto& weight : weights) sum += weight.first;
  for (const auto& [weight, map] : weights) {
    map->points.push_back(point);
    map->values.push_back(static_cast<float>(weight / sum));
  }
}

const std::string& nameOf(const ObjectPolygon& skelegon) {
  static const std::string kNone;
  const std::string* const name = skelegon.tag(lw::kTagBone);
  return name == nullptr ? kNone : *name;
}

// The weight maps of a layer's skelegons, in the order of these.
class Weights {
 public:
  explicit Weights(ObjectLayer& layer) : layer_(layer), maps_(skelegons().size()) {}

  void tie(const BodyPart& part, std::size_t first) {
    if (part.follows.empty()) return;
    std::vector<Followed> bones;
    for (const std::string& name : part.follows) bones.push_back(followed(name));
    for (std::size_t point = first; point < layer_.points.size(); ++point) {
      weigh(vectorOf(layer_.points[point]), static_cast<std::uint32_t>(point), bones);
    }
  }

  void store() {
    for (std::size_t i = 0; i < maps_.size(); ++i) {
      if (maps_[i].points.empty()) continue;
      ObjectPolygon& skelegon = skelegons()[i];
      if (skelegon.tag(lw::kTagBoneWeight) == nullptr) skelegon.setTag(lw::kTagBoneWeight, nameOf(skelegon));
      maps_[i].name = *skelegon.tag(lw::kTagBoneWeight);
      layer_.maps.push_back(std::move(maps_[i]));
    }
  }

 private:
  std::vector<ObjectPolygon>& skelegons() { return layer_.group(lw::kTypeBone).polygons; }

  Followed followed(const std::string& name) {
    for (std::size_t i = 0; i < maps_.size(); ++i) {
      const ObjectPolygon& skelegon = skelegons()[i];
      if (nameOf(skelegon) != name) continue;
      return {vectorOf(layer_.points[skelegon.points[0]]), vectorOf(layer_.points[skelegon.points[1]]), &maps_[i]};
    }
    throw std::invalid_argument("no skelegon is named " + name);
  }

  ObjectLayer& layer_;
  std::vector<VertexMap> maps_;
};

}  // namespace

std::vector<BodyRing> ballRings(FilePoint centre, FilePoint axis, float radius) {
  constexpr int kRings = 6;
  constexpr double kPole = 0.45 * std::numbers::pi;  // the rings at the poles are small
  std::vector<BodyRing> rings;
  for (int i = 0; i < kRings; ++i) {
    const double latitude = kPole * (2.0 * i / (kRings - 1) - 1);
    const auto along = static_cast<float>(std::sin(latitude));
    const FilePoint at = {centre[0] + axis[0] * along, centre[1] + axis[1] * along, centre[2] + axis[2] * along};
    rings.push_back(roundRing(at, radius * static_cast<float>(std::cos(latitude))));
  }
  return rings;
}

BodyPart onTheRight(BodyPart part) {
  for (BodyRing& ring : part.rings) ring.centre[0] = -ring.centre[0];
  for (std::string& name : part.follows) {
    if (const std::size_t at = name.find("_L"); at != std::string::npos) name.replace(at, 2, "_R");
  }
  return part;
}

void addBody(ObjectLayer& layer, const std::vector<BodyPart>& parts) {
  Weights weights(layer);
  for (const BodyPart& part : parts) {
    const std::size_t first = layer.points.size();
    for (std::size_t ring = 0; ring < part.rings.size(); ++ring) addRing(layer, part, ring);
    addQuads(layer, part, first);
    weights.tie(part, first);
  }
  weights.store();
}

}  // namespace standin
