// The objects that the benchmarks read: made in memory, the same at each run, and written to a folder that is removed at
// the end.
#pragma once

#include <cstddef>
#include <random>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "objectfile/file_bytes.h"
#include "objectfile/temporary_folder.h"
#include "tests/unit/object_bytes.h"

namespace varnel::bench {

using test::Bytes;
using test::ObjectBytes;

// A grid of triangles, two for each point but for two borders, as scanned and sculpted objects have them: points and faces
// of about that many bytes. Most point numbers take four bytes.
inline std::vector<std::byte> makeMesh(std::size_t wantedBytes) {
  constexpr std::uint32_t kWidth = 1000;
  constexpr std::size_t kBytesOfPoint = 12;
  constexpr std::size_t kBytesOfTriangle = 2 + 3 * 4;
  const auto rows = static_cast<std::uint32_t>(wantedBytes / (kBytesOfPoint + 2 * kBytesOfTriangle) / kWidth);

  Bytes points;
  points.reserve(kBytesOfPoint * rows * kWidth);
  for (std::uint32_t row = 0; row < rows; ++row) {
    for (std::uint32_t column = 0; column < kWidth; ++column) {
      points.vec12(static_cast<float>(column) * 0.01F, static_cast<float>(column % 7) * 0.5F,
                   static_cast<float>(row) * 0.01F);
    }
  }
  Bytes faces;
  faces.reserve(2 * kBytesOfTriangle * rows * kWidth);
  faces.id("FACE");
  for (std::uint32_t row = 0; row + 1 < rows; ++row) {
    for (std::uint32_t column = 0; column + 1 < kWidth; ++column) {
      const std::uint32_t at = row * kWidth + column;
      faces.u2(3).vx(at).vx(at + 1).vx(at + kWidth + 1);
      faces.u2(3).vx(at).vx(at + kWidth + 1).vx(at + kWidth);
    }
  }
  return ObjectBytes().tags({"Default"}).layer(0, "Grid").chunk("PNTS", points).chunk("POLS", faces).file();
}

// A chain of skelegons. Each has a name and further settings, one PTAG chunk for each type of tag.
inline std::vector<std::byte> makeRig(std::uint32_t skelegons, unsigned settings) {
  constexpr std::uint32_t kTexts = 60000;
  Bytes texts;
  for (std::uint32_t i = 0; i < kTexts; ++i)
    texts.s0(i % 3 == 0 ? "Bone" + std::to_string(i) : std::to_string(i) + ".000000");
  Bytes points;
  for (std::uint32_t i = 0; i <= skelegons; ++i) points.vec12(0, static_cast<float>(i) * 0.1F, 0);
  Bytes bones;
  bones.id("BONE");
  for (std::uint32_t i = 0; i < skelegons; ++i) bones.u2(2).vx(i).vx(i + 1);

  ObjectBytes object;
  object.chunk("TAGS", texts).layer(0, "Rig").chunk("PNTS", points).chunk("POLS", bones);
  std::minstd_rand random(1);
  for (unsigned setting = 0; setting < settings; ++setting) {
    Bytes tags;
    setting == 0 ? tags.id("BONE") : tags.text("sg1").u1(setting);
    for (std::uint32_t i = 0; i < skelegons; ++i) tags.vx(i).u2(static_cast<unsigned>(random() % kTexts));
    object.chunk("PTAG", tags);
  }
  return object.file();
}

// A folder of the run's own, removed with everything in it.
class BenchFolder : public standin::TemporaryFolder {
 public:
  // Writes a file and gives its path.
  std::string write(const std::string& name, std::span<const std::byte> bytes) const {
    if (const auto failure =
            standin::writeFileBytes(file(name), std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size())))
      throw std::runtime_error(failure->text);
    return file(name);
  }
};

}  // namespace varnel::bench
