// The body of a POLS chunk: polygons of a count and that many point numbers of two or four bytes. Most of a large file is
// made of it, so this is where its reader spends its time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "reader/big_endian.h"

namespace lwp::st {

// The upper six bits beside the count are flags.
inline constexpr std::uint16_t kCornerCountMask = 0x03FF;

// A polygon of this many corners with numbers of this many bytes. Knowing both beforehand makes a polygon cheap.
template <std::uint32_t Corners, std::size_t IndexBytes>
struct PolygonShape {
  static constexpr std::uint32_t kCorners = Corners;
  static constexpr std::size_t kBytes = kBytesOfU2 + Corners * IndexBytes;

  // 'at' has kBytes bytes.
  static bool isAt(const std::byte* at) {
    if ((loadU2(at) & kCornerCountMask) != Corners) return false;
    for (std::size_t corner = 0; corner < Corners; ++corner) {
      if ((*indexAt(at, corner) == kLongIndexMark) != (IndexBytes == kBytesOfLongIndex)) return false;
    }
    return true;
  }
  static std::uint32_t index(const std::byte* at, std::size_t corner) {
    const std::byte* from = indexAt(at, corner);
    return IndexBytes == kBytesOfLongIndex ? loadLongIndex(from) : loadU2(from);
  }

 private:
  static const std::byte* indexAt(const std::byte* at, std::size_t corner) { return at + kBytesOfU2 + corner * IndexBytes; }
};

// Gives a run of polygons of one shape to the sink; returns where it ends, which is 'at' when there is none.
template <class Shape, class Sink>
const std::byte* readPolygonRun(const std::byte* at, const std::byte* end, Sink& sink) {
  while (static_cast<std::size_t>(end - at) >= Shape::kBytes && Shape::isAt(at)) {
    sink.startPolygon(Shape::kCorners);
    for (std::size_t corner = 0; corner < Shape::kCorners; ++corner) sink.addIndex(Shape::index(at, corner));
    at += Shape::kBytes;
  }
  return at;
}

// The same for the shapes that objects are mostly made of, whichever of them comes next.
template <class Sink>
const std::byte* readUsualPolygons(const std::byte* at, const std::byte* end, Sink& sink) {
  at = readPolygonRun<PolygonShape<4, kBytesOfLongIndex>>(at, end, sink);
  at = readPolygonRun<PolygonShape<4, kBytesOfShortIndex>>(at, end, sink);
  at = readPolygonRun<PolygonShape<3, kBytesOfLongIndex>>(at, end, sink);
  at = readPolygonRun<PolygonShape<3, kBytesOfShortIndex>>(at, end, sink);
  at = readPolygonRun<PolygonShape<2, kBytesOfLongIndex>>(at, end, sink);
  return readPolygonRun<PolygonShape<2, kBytesOfShortIndex>>(at, end, sink);
}

// Any one polygon. Null when it runs past the end.
template <class Sink>
const std::byte* readPolygon(const std::byte* at, const std::byte* end, Sink& sink) {
  if (static_cast<std::size_t>(end - at) < kBytesOfU2) return nullptr;
  const std::uint32_t corners = loadU2(at) & kCornerCountMask;
  at += kBytesOfU2;
  sink.startPolygon(corners);
  for (std::uint32_t corner = 0; corner < corners; ++corner) {
    if (at == end) return nullptr;
    const std::size_t size = bytesOfIndexAt(at);
    if (size > static_cast<std::size_t>(end - at)) return nullptr;
    sink.addIndex(size == kBytesOfLongIndex ? loadLongIndex(at) : loadU2(at));
    at += size;
  }
  return at;
}

// Gives the polygons of a list to 'sink': for each startPolygon(number of corners), then addIndex(number of a point) as many
// times. Returns the sink as it is then, or none when a polygon runs past the end of the list.
// The sink is a copy on purpose: a compiler keeps its members in registers only while nothing else can refer to it.
template <class Sink>
std::optional<Sink> readPolygonList(std::span<const std::byte> list, Sink sink) {
  const std::byte* at = list.data();
  const std::byte* end = at + list.size();
  while (at != end) {
    const std::byte* after = readUsualPolygons(at, end, sink);
    if (after == at) after = readPolygon(at, end, sink);
    if (after == nullptr) return std::nullopt;
    at = after;
  }
  return sink;
}

}  // namespace lwp::st
