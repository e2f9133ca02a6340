#include "gltf/weights.h"

#include <algorithm>
#include <map>

#include "rigs/text.h"
#include "standin/layout/scene.h"

namespace standin::gltf {
namespace {

using Bearers = std::vector<std::uint32_t>;  // bones with one map

// Comparisons of a point with a bone. More would take longer than anybody waits.
constexpr std::size_t kMostComparisons = 2'000'000'000;

// Squared.
double distance(const Vec3& point, const WeightedBone& bone) {
  const Vec3 along = bone.tail - bone.head;
  const Vec3 from = point - bone.head;
  const double square = dot(along, along);
  const double at = square > 0 ? std::clamp(dot(from, along) / square, 0.0, 1.0) : 0.0;
  const Vec3 away = from - along * at;
  return dot(away, away);
}

std::uint32_t nearest(const Vec3& point, const Bearers& bearers, const std::vector<WeightedBone>& bones) {
  if (bearers.size() == 1) return bearers.front();
  std::uint32_t best = bearers.front();
  double least = distance(point, bones[best]);
  for (const std::uint32_t bone : bearers) {
    const double here = distance(point, bones[bone]);
    if (here < least) best = bone;
    least = std::min(least, here);
  }
  return best;
}

// A file may give a point twice in maps of one name: the later weight holds.
void give(Shares& shares, std::uint32_t bone, float weight) {
  const auto found = std::find_if(shares.begin(), shares.end(), [&](const Share& share) { return share.bone == bone; });
  if (found == shares.end()) {
    shares.push_back({bone, weight});
  } else {
    found->weight = weight;
  }
}

void keepTheGreatest(Shares& shares, LeftOut& leftOut) {
  std::stable_sort(shares.begin(), shares.end(), [](const Share& a, const Share& b) { return a.weight > b.weight; });
  if (shares.size() <= kMostJointsOfAPoint) return;
  shares.resize(kMostJointsOfAPoint);
  ++leftOut.crowdedPoints;
}

void take(const VertexMap& map, const Bearers& bearers, const ObjectLayer& layer, const std::vector<WeightedBone>& bones,
          std::vector<Shares>& shares, LeftOut& leftOut) {
  const std::size_t count = std::min(map.points.size(), map.values.size());
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint32_t point = map.points[i];
    if (map.values[i] < 0) ++leftOut.negativeWeights;
    if (map.values[i] > 0) give(shares[point], nearest(vectorOf(layer.points[point]), bearers, bones), map.values[i]);
  }
}

}  // namespace

Outcome<std::vector<Shares>> sharesOf(const ObjectLayer& layer, const std::vector<WeightedBone>& bones, LeftOut& leftOut) {
  std::map<std::string, Bearers> bearersOf;
  for (std::size_t i = 0; i < bones.size(); ++i) {
    if (!bones[i].weightMap.empty()) bearersOf[bones[i].weightMap].push_back(static_cast<std::uint32_t>(i));
  }
  std::vector<Shares> shares(layer.points.size());
  std::size_t comparisons = 0;
  for (const VertexMap& map : layer.maps) {
    const auto bearers = isWeightMap(map) ? bearersOf.find(map.name) : bearersOf.end();
    if (bearers == bearersOf.end()) continue;
    if (bearers->second.size() > 1) {
      ++leftOut.sharedMaps;
      comparisons += map.points.size() * bearers->second.size();
    }
    if (comparisons > kMostComparisons) {
      return Failure{"the weight map " + rigs::inQuotes(map.name) + " has " + std::to_string(map.points.size()) +
                     " points and " + std::to_string(bearers->second.size()) + " bones, too many to find the nearest"};
    }
    take(map, bearers->second, layer, bones, shares, leftOut);
  }
  for (Shares& ofPoint : shares) keepTheGreatest(ofPoint, leftOut);
  return shares;
}

PointJoints jointsOf(const Shares& shares, bool othersToFirst) {
  PointJoints joints;
  double sum = 0;
  for (const Share& share : shares) sum += static_cast<double>(share.weight);
  float rest = 1;
  for (std::size_t i = 0; i < shares.size(); ++i) {
    const auto weight = static_cast<float>(static_cast<double>(shares[i].weight) / sum);
    if (!(weight > 0)) continue;  // too small beside the others
    joints.joints[i] = static_cast<std::uint16_t>(shares[i].bone + (othersToFirst ? 1 : 0));
    joints.weights[i] = weight;
    if (i > 0) rest -= weight;
  }
  joints.weights[0] = rest;  // all of it where there is no share; else what makes the sum 1 in spite of rounding
  return joints;
}

}  // namespace standin::gltf
