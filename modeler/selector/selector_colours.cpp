#include "modeler/selector/selector_colours.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace mst {
namespace {

// The numbers by which the host draws the swatches of the colour list, in its order.
constexpr std::array<std::uint32_t, 15> kPackedColours = {
    16777216, 16809992, 16777312, 18903136, 24117248, 24145952, 24117328, 28356784,
    18935968, 18882784, 23130336, 32514080, 32567392, 32514240, 33554431,
};

// From the highest byte to the lowest: 1, red, blue, green. Blue stands before green, as the host
// packs them.
constexpr Rgba unpacked(std::uint32_t packed) {
  const auto byte = [packed](unsigned shift) { return static_cast<std::uint8_t>(packed >> shift & 0xFFU); };
  const std::uint8_t red = byte(16), blue = byte(8), green = byte(0);
  return {red, green, blue, 255};
}
static_assert(unpacked(16809992) == Rgba{0, 8, 128, 255});

}  // namespace

std::optional<Rgba> rowColour(int colourIndex) {
  if (colourIndex < 0 || std::cmp_greater_equal(colourIndex, kPackedColours.size())) return std::nullopt;
  return unpacked(kPackedColours[static_cast<std::size_t>(colourIndex)]);
}

}  // namespace mst
