// It looks along -Z, as the host's front view shows things from before; its feet stand on the ground, Y = 0.
#include "objectfile/lizard_body.h"

#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "objectfile/body_builder.h"

namespace standin {
namespace {

constexpr const char* kSkin = "Skin";
constexpr const char* kEye = "Eye";

template <std::size_t N>
std::vector<BodyRing> ringsOf(const std::array<BodyRing, N>& rings) {
  return {rings.begin(), rings.end()};
}

// clang-format off
// From the snout to the rump, which is inside the tail.
constexpr std::array kTrunkRings{
    //        centre                   side     above    below
    BodyRing{{0, 0.532F, -0.958F},    0.038F,  0.018F,  0.012F},
    BodyRing{{0, 0.540F, -0.930F},    0.066F,  0.036F,  0.024F},
    BodyRing{{0, 0.540F, -0.860F},    0.086F,  0.052F,  0.030F},
    BodyRing{{0, 0.532F, -0.780F},    0.112F,  0.078F,  0.036F},
    BodyRing{{0, 0.520F, -0.700F},    0.140F,  0.085F,  0.044F},
    BodyRing{{0, 0.505F, -0.625F},    0.134F,  0.080F,  0.075F},
    BodyRing{{0, 0.480F, -0.550F},    0.104F,  0.076F,  0.090F},
    BodyRing{{0, 0.445F, -0.470F},    0.106F,  0.080F,  0.108F},
    BodyRing{{0, 0.415F, -0.380F},    0.150F,  0.096F,  0.130F},
    BodyRing{{0, 0.400F, -0.250F},    0.176F,  0.110F,  0.148F},
    BodyRing{{0, 0.400F, -0.080F},    0.196F,  0.118F,  0.165F},
    BodyRing{{0, 0.400F,  0.100F},    0.204F,  0.120F,  0.170F},
    BodyRing{{0, 0.400F,  0.260F},    0.188F,  0.116F,  0.152F},
    BodyRing{{0, 0.400F,  0.400F},    0.154F,  0.108F,  0.124F},
    BodyRing{{0, 0.400F,  0.510F},    0.136F,  0.100F,  0.106F},
    BodyRing{{0, 0.398F,  0.600F},    0.108F,  0.084F,  0.088F},
    BodyRing{{0, 0.392F,  0.660F},    0.076F,  0.060F,  0.062F},
};

// Open a little, from within the throat.
constexpr std::array kJawRings{
    BodyRing{{0, 0.470F, -0.560F},    0.090F,  0.030F,  0.030F},
    BodyRing{{0, 0.474F, -0.640F},    0.126F,  0.026F,  0.042F},
    BodyRing{{0, 0.464F, -0.720F},    0.118F,  0.022F,  0.042F},
    BodyRing{{0, 0.451F, -0.800F},    0.090F,  0.018F,  0.034F},
    BodyRing{{0, 0.440F, -0.868F},    0.062F,  0.015F,  0.026F},
    BodyRing{{0, 0.436F, -0.900F},    0.034F,  0.010F,  0.014F},
};

constexpr std::array kTailRings{
    BodyRing{{0, 0.400F,  0.580F},    0.108F,  0.084F,  0.088F},
    BodyRing{{0, 0.393F,  0.640F},    0.104F,  0.082F,  0.086F},
    BodyRing{{0, 0.362F,  0.760F},    0.088F,  0.074F,  0.078F},
    BodyRing{{0, 0.310F,  0.880F},    0.074F,  0.066F,  0.068F},
    BodyRing{{0, 0.250F,  1.000F},    0.062F,  0.057F,  0.058F},
    BodyRing{{0, 0.196F,  1.120F},    0.052F,  0.049F,  0.050F},
    BodyRing{{0, 0.150F,  1.240F},    0.043F,  0.042F,  0.043F},
    BodyRing{{0, 0.116F,  1.360F},    0.036F,  0.035F,  0.036F},
    BodyRing{{0, 0.092F,  1.480F},    0.029F,  0.029F,  0.029F},
    BodyRing{{0, 0.075F,  1.600F},    0.023F,  0.023F,  0.023F},
    BodyRing{{0, 0.065F,  1.700F},    0.017F,  0.017F,  0.017F},
    BodyRing{{0, 0.060F,  1.780F},    0.010F,  0.010F,  0.010F},
    BodyRing{{0, 0.059F,  1.810F},    0.004F,  0.004F,  0.004F},
};

// The legs of the left side, from within the trunk to within the foot.
constexpr std::array kFrontLegRings{
    roundRing({0.050F, 0.370F, -0.380F}, 0.070F),
    roundRing({0.160F, 0.375F, -0.353F}, 0.074F),
    roundRing({0.260F, 0.386F, -0.320F}, 0.062F),
    roundRing({0.340F, 0.396F, -0.294F}, 0.054F),
    roundRing({0.388F, 0.380F, -0.282F}, 0.052F),
    roundRing({0.408F, 0.320F, -0.294F}, 0.054F),
    roundRing({0.430F, 0.210F, -0.322F}, 0.044F),
    roundRing({0.450F, 0.110F, -0.348F}, 0.033F),
    roundRing({0.462F, 0.045F, -0.366F}, 0.031F),
};
constexpr std::array kHindLegRings{
    roundRing({0.040F, 0.370F,  0.510F}, 0.086F),
    roundRing({0.150F, 0.380F,  0.486F}, 0.092F),
    roundRing({0.250F, 0.398F,  0.444F}, 0.080F),
    roundRing({0.335F, 0.412F,  0.410F}, 0.064F),
    roundRing({0.388F, 0.398F,  0.396F}, 0.056F),
    roundRing({0.410F, 0.330F,  0.412F}, 0.060F),
    roundRing({0.432F, 0.220F,  0.458F}, 0.049F),
    roundRing({0.452F, 0.120F,  0.502F}, 0.036F),
    roundRing({0.462F, 0.048F,  0.520F}, 0.033F),
};

constexpr std::array kFrontFootRings{
    BodyRing{{0.456F, 0.034F, -0.335F},  0.028F,  0.024F,  0.028F},
    BodyRing{{0.470F, 0.032F, -0.380F},  0.044F,  0.024F,  0.028F},
    BodyRing{{0.482F, 0.028F, -0.425F},  0.052F,  0.018F,  0.024F},
    BodyRing{{0.490F, 0.022F, -0.455F},  0.040F,  0.010F,  0.016F},
};
constexpr std::array kHindFootRings{
    BodyRing{{0.452F, 0.034F,  0.555F},  0.030F,  0.024F,  0.028F},
    BodyRing{{0.468F, 0.032F,  0.500F},  0.046F,  0.026F,  0.028F},
    BodyRing{{0.484F, 0.028F,  0.435F},  0.054F,  0.020F,  0.024F},
    BodyRing{{0.494F, 0.022F,  0.395F},  0.042F,  0.011F,  0.016F},
};

// Where the toes end, from the inner to the outer one.
constexpr std::array kFrontToes{
    FilePoint{0.392F, 0.010F, -0.480F}, FilePoint{0.440F, 0.010F, -0.552F}, FilePoint{0.508F, 0.010F, -0.580F},
    FilePoint{0.574F, 0.010F, -0.552F}, FilePoint{0.606F, 0.010F, -0.470F},
};
constexpr std::array kHindToes{
    FilePoint{0.396F, 0.010F,  0.372F}, FilePoint{0.442F, 0.010F,  0.280F}, FilePoint{0.522F, 0.010F,  0.236F},
    FilePoint{0.602F, 0.010F,  0.272F}, FilePoint{0.640F, 0.010F,  0.392F},
};
// clang-format on

// From the foot over a knuckle to the tip.
std::vector<BodyRing> toe(const BodyRing& foot, const FilePoint& tip) {
  const auto between = [&](float share, float height) {
    return FilePoint{foot.centre[0] + (tip[0] - foot.centre[0]) * share, height,
                     foot.centre[2] + (tip[2] - foot.centre[2]) * share};
  };
  return {roundRing(between(0.1F, 0.024F), 0.017F), roundRing(between(0.55F, 0.028F), 0.016F),
          roundRing(between(0.85F, 0.016F), 0.012F), roundRing(tip, 0.004F)};
}

void addBothSides(std::vector<BodyPart>& parts, const BodyPart& left) {
  parts.push_back(left);
  parts.push_back(onTheRight(left));
}

void addLegParts(std::vector<BodyPart>& parts, const std::string& name, const std::string& trunk,
                 std::vector<BodyRing> leg) {
  addBothSides(parts, {std::move(leg), 8, kForwards, kSkin, {trunk, name + "_01", name + "_02", name + "_03"}});
}

template <std::size_t N>
void addFootParts(std::vector<BodyPart>& parts, const std::string& name, const std::vector<BodyRing>& foot,
                  const std::array<FilePoint, N>& toes) {
  addBothSides(parts, {foot, 8, kUpwards, kSkin, {name + "_02", name + "_03"}});
  for (const FilePoint& tip : toes) addBothSides(parts, {toe(foot[2], tip), 4, kUpwards, kSkin, {name + "_03"}});
}

std::vector<BodyPart> trunkParts() {
  std::vector<BodyPart> parts = {
      {ringsOf(kTrunkRings), 12, kUpwards, kSkin, {"Root", "Spine_01", "Spine_02", "Neck", "Head"}},
      {ringsOf(kJawRings), 10, kUpwards, kSkin, {"Jaw", "Neck"}},
  };
  addBothSides(parts, {ballRings({0.078F, 0.590F, -0.785F}, {0.034F, 0, 0}, 0.034F), 8, kUpwards, kEye, {"Head"}});
  addLegParts(parts, "FrontLeg_L", "Spine_02", ringsOf(kFrontLegRings));
  addFootParts(parts, "FrontLeg_L", ringsOf(kFrontFootRings), kFrontToes);
  addLegParts(parts, "HindLeg_L", "Root", ringsOf(kHindLegRings));
  addFootParts(parts, "HindLeg_L", ringsOf(kHindFootRings), kHindToes);
  return parts;
}

std::vector<BodyPart> tailParts() {
  return {{ringsOf(kTailRings), 10, kUpwards, kSkin, {"Tail_01", "Tail_02", "Tail_03", "Tail_04", "Tail_05", "Tail_06"}}};
}

}  // namespace

void addLizardBody(ObjectFile& rig) {
  addBody(rig.layers[0], trunkParts());
  addBody(rig.layers[1], tailParts());
}

}  // namespace standin
