// The FACE polygons of a whole object, and how they get there.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "layout/memory_block.h"

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
      : m_starts(counted.haveEqualCorners() ? 1 : counted.polygons + 1),
        m_indices(counted.indices),
        m_corners(counted.haveEqualCorners() ? counted.mostCorners : kDiffering) {}

  std::span<const std::uint32_t> operator[](std::size_t at) const {
    if (m_corners != kDiffering) return {m_indices.data() + at * m_corners, m_corners};
    return {m_indices.data() + m_starts[at], m_indices.data() + m_starts[at + 1]};
  }

 private:
  friend class FaceFiller;
  static constexpr std::uint32_t kDiffering = 0xFFFFFFFF;

  // Face i has the indices from m_starts[i] to m_starts[i + 1]. A single entry without a meaning when it is not needed.
  Block<std::uint32_t> m_starts;
  Block<std::uint32_t> m_indices;
  std::uint32_t m_corners = 0;
};

// Below every point number; those have 24 bits.
inline constexpr std::int32_t kNoPoint = -1;

// Fills a store that was made for just these faces, from its start on. A sink of polygon lists; small, to be copied.
class FaceFiller {
 public:
  explicit FaceFiller(FaceStore& store)
      : m_start(store.m_starts.data()),
        m_step(store.m_corners == FaceStore::kDiffering ? 1 : 0),
        m_index(store.m_indices.data()) {
    *m_start = 0;
  }

  void startPolygon(std::uint32_t corners) {
    ++m_faces;
    m_indices += corners;
    m_start += m_step;
    *m_start = m_indices;
  }
  void addIndex(std::uint32_t point) {
    *m_index++ = point;
    highestPoint = std::max(highestPoint, static_cast<std::int32_t>(point));
  }

  // How many faces there are so far.
  std::uint32_t faces() const { return m_faces; }

  // The highest point number since it was set last.
  std::int32_t highestPoint = kNoPoint;

 private:
  std::uint32_t* m_start;
  std::size_t m_step;
  std::uint32_t* m_index;
  std::uint32_t m_faces = 0;
  std::uint32_t m_indices = 0;
};

}  // namespace lwp::st
