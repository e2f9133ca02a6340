#include "gltf/triangles.h"

#include <algorithm>
#include <cmath>

namespace standin::gltf {
namespace {

struct Flat {
  double x = 0;
  double y = 0;
};

// Twice the area of the triangle, positive when it goes round counter-clockwise.
double areaOf(const Flat& a, const Flat& b, const Flat& c) { return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x); }

// Twice the face's area, along the direction from which it goes round counter-clockwise. Right for bent faces too.
Vec3 areaOf(const std::vector<Vec3>& corners) {
  Vec3 area{};
  for (std::size_t i = 2; i < corners.size(); ++i) {
    const Vec3 a = corners[i - 1] - corners[0];
    const Vec3 b = corners[i] - corners[0];
    area = area + Vec3{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
  }
  return area;
}

// Seen along the axis along which the face is seen best, and so that it goes round counter-clockwise.
std::vector<Flat> flattened(const std::vector<Vec3>& corners, const Vec3& area) {
  std::size_t along = 0;
  for (const std::size_t axis : {1, 2}) {
    if (std::abs(area[axis]) > std::abs(area[along])) along = axis;
  }
  std::size_t x = (along + 1) % 3;
  std::size_t y = (along + 2) % 3;
  if (area[along] < 0) std::swap(x, y);
  std::vector<Flat> flat;
  flat.reserve(corners.size());
  for (const Vec3& corner : corners) flat.push_back({corner[x] - corners[0][x], corner[y] - corners[0][y]});
  return flat;
}

// Cuts off one ear after the other: a corner whose triangle with its neighbours lies in the face. Cutting one off can make
// ears of its neighbours only, so all in all the time goes by the square of the corners.
class EarClipper {
 public:
  EarClipper(std::vector<Flat> points, double thin) : points_(std::move(points)), thin_(thin), left_(points_.size()) {
    for (std::size_t i = 0; i < left_; ++i) {
      before_.push_back((i + left_ - 1) % left_);
      after_.push_back((i + 1) % left_);
    }
    lookAgain();
  }

  Triangles clip() {
    while (left_ > 2) {
      if (const auto ear = find([&](std::size_t i) { return isEar_[i]; })) {
        cut(*ear, true);
      } else if (const auto flat = find([&](std::size_t i) { return std::abs(turnAt(i)) <= thin_; })) {
        cut(*flat, false);  // on the line between its neighbours, or the tip of a spike
      } else {
        // Rounding, or a face that crosses itself.
        made_.isGuess = hasLookedAgain_;
        hasLookedAgain_ = true;
        lookAgain();
        if (made_.isGuess && !find([&](std::size_t i) { return isEar_[i]; })) break;
      }
    }
    return std::move(made_);
  }

 private:
  double turnAt(std::size_t i) const { return areaOf(points_[before_[i]], points_[i], points_[after_[i]]); }

  template <class Wanted>
  std::optional<std::size_t> find(const Wanted& isWanted) {
    for (std::size_t tried = 0; tried < left_; ++tried, at_ = after_[at_]) {
      if (isWanted(at_)) return at_;
    }
    return std::nullopt;
  }

  void lookAgain() {
    isEar_.assign(points_.size(), false);
    std::size_t i = at_;
    for (std::size_t count = 0; count < left_; ++count, i = after_[i]) isEar_[i] = looksLikeEar(i);
  }

  bool looksLikeEar(std::size_t i) const {
    if (turnAt(i) <= thin_) return false;
    if (made_.isGuess) return true;
    for (std::size_t other = after_[after_[i]]; other != before_[i]; other = after_[other]) {
      if (isInTheWay(other, i)) return false;
    }
    return true;
  }

  // What lies on a corner of the triangle is not: a face with a hole runs twice along the seam that leads to it.
  bool isInTheWay(std::size_t other, std::size_t ear) const {
    const std::array<Flat, 3> triangle = {points_[before_[ear]], points_[ear], points_[after_[ear]]};
    const Flat& p = points_[other];
    for (std::size_t side = 0; side < 3; ++side) {
      const Flat& from = triangle[side];
      if (p.x == from.x && p.y == from.y) return false;
      if (areaOf(from, triangle[(side + 1) % 3], p) < 0) return false;
    }
    return true;
  }

  void cut(std::size_t i, bool withTriangle) {
    const std::size_t before = before_[i];
    const std::size_t after = after_[i];
    if (withTriangle) made_.corners.push_back({before, i, after});
    after_[before] = after;
    before_[after] = before;
    --left_;
    isEar_[before] = looksLikeEar(before);
    isEar_[after] = looksLikeEar(after);
    at_ = after;
  }

  const std::vector<Flat> points_;
  const double thin_;  // twice the area of a triangle that is none
  std::size_t left_;
  std::size_t at_ = 0;
  std::vector<std::size_t> before_;
  std::vector<std::size_t> after_;
  std::vector<bool> isEar_;
  bool hasLookedAgain_ = false;
  Triangles made_;
};

}  // namespace

std::optional<Triangles> trianglesOf(const std::vector<Vec3>& corners) {
  constexpr double kThin = 1e-12;
  const Vec3 area = areaOf(corners);
  double extent = 0;
  for (const Vec3& corner : corners) extent = std::max(extent, length(corner - corners.front()));
  if (!(length(area) > kThin * extent * extent)) return std::nullopt;
  Triangles made = EarClipper(flattened(corners, area), kThin * length(area)).clip();
  if (made.corners.empty()) return std::nullopt;
  return made;
}

}  // namespace standin::gltf
