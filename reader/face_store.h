// The FACE polygons of a whole object, and how they get there.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "reader/memory_block.h"

namespace lwp::st {

// Counts polygons before memory is taken for them. A sink of polygon lists.
struct PolygonCounter {
  std::size_t polygons = 0;
  std::size_t indices = 0;
  std::uint32_t mostCorners = 0;

  void startPolygon(std::uint32_t corners) {
    ++polygons;
    indices += corners;
    mostCorners = std::max(mostCorners, corners);
  }
  void addIndex(std::uint32_t /*point*/) {}

  bool haveEqualCorners() const { return indices == polygons * mostCorners; }
};

// One block of point numbers, and where in it each face begins. Where all faces have the same number of corners, as in most
// large objects, the starts are left out.
class FaceStore {
 public:
  FaceStore() = default;
  explicit FaceStore(const PolygonCounter& counted)
      : starts_(counted.haveEqualCorners() ? 1 : counted.polygons + 1),
        indices_(counted.indices),
        corners_(counted.haveEqualCorners() ? counted.mostCorners : kDiffering) {}

  std::span<const std::uint32_t> operator[](std::size_t at) const {
    if (corners_ != kDiffering) return {indices_.data() + at * corners_, corners_};
    return {indices_.data() + starts_[at], indices_.data() + starts_[at + 1]};
  }

 private:
  friend class FaceFiller;
  static constexpr std::uint32_t kDiffering = 0xFFFFFFFF;

  // Face i has the indices from starts_[i] to starts_[i + 1]. A single entry without a meaning when it is not needed.
  Block<std::uint32_t> starts_;
  Block<std::uint32_t> indices_;
  std::uint32_t corners_ = 0;
};

// Fills a store that was made for just these faces, from its start on. A sink of polygon lists; small, to be copied.
class FaceFiller {
 public:
  explicit FaceFiller(FaceStore& store)
      : start_(store.starts_.data()), step_(store.corners_ == FaceStore::kDiffering ? 1 : 0), index_(store.indices_.data()) {
    *start_ = 0;
  }

  void startPolygon(std::uint32_t corners) {
    ++faces_;
    indices_ += corners;
    start_ += step_;
    *start_ = indices_;
  }
  void addIndex(std::uint32_t point) { *index_++ = point; }

  // How many faces there are so far.
  std::uint32_t faces() const { return faces_; }

 private:
  std::uint32_t* start_;
  std::size_t step_;
  std::uint32_t* index_;
  std::uint32_t faces_ = 0;
  std::uint32_t indices_ = 0;
};

}  // namespace lwp::st
