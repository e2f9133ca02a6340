// A doll turned of wood: a trunk, a round head, no limbs. It looks along -Z.
#include <cstdint>
#include <string>
#include <vector>

#include "objectfile/body_builder.h"
#include "objectfile/rig_builder.h"
#include "objectfile/sample_rigs.h"

namespace standin {
namespace {

constexpr const char* kHeadWeight = "頭ウェイト";

// The rings of what is turned: radius and height.
struct Turned {
  float radius;
  float height;
};

std::vector<BodyRing> turned(const std::vector<Turned>& rows) {
  std::vector<BodyRing> rings;
  rings.reserve(rows.size());
  for (const Turned& row : rows) rings.push_back(roundRing({0, row.height, 0}, row.radius));
  return rings;
}

void addDollBody(ObjectLayer& layer) {
  const std::vector<std::string> trunk = {"腰", "背骨", "首"};
  const std::vector<std::string> head = {"首", "頭"};
  const auto robe = turned({{0.150F, 0},
                            {0.165F, 0.02F},
                            {0.158F, 0.12F},
                            {0.140F, 0.28F},
                            {0.138F, 0.4F},
                            {0.150F, 0.5F},
                            {0.140F, 0.57F},
                            {0.100F, 0.615F},
                            {0.060F, 0.63F}});
  const auto belt = turned({{0.120F, 0.285F}, {0.150F, 0.29F}, {0.149F, 0.37F}, {0.120F, 0.375F}});
  const auto neck = turned({{0.050F, 0.6F}, {0.045F, 0.66F}, {0.060F, 0.72F}});
  const BodyPart eye = {ballRings({0.068F, 0.8F, -0.166F}, {0, 0, -0.016F}, 0.016F), 6, kUpwards, "目", {"頭"}};
  addBody(layer, {{robe, 12, kForwards, "着物", trunk},
                  {belt, 12, kForwards, "帯", trunk},
                  {neck, 8, kForwards, "肌", head},
                  {ballRings({0, 0.82F, 0}, {0, 0.165F, 0}, 0.185F), 12, kForwards, "肌", head},
                  {ballRings({0, 0.862F, 0.042F}, {0, 0.15F, 0}, 0.2F), 12, kForwards, "髪", head},
                  {ballRings({0, 1.03F, 0.06F}, {0, 0.055F, 0}, 0.06F), 8, kForwards, "髪", {"頭"}},
                  eye,
                  onTheRight(eye)});
}

ObjectFile makeDoll(bool withBox) {
  RigBuilder rig;
  rig.layer(0, "体");
  if (withBox) {
    const std::uint32_t first = rig.box({-0.1F, 0, -0.1F}, {0.1F, 1, 0.1F});
    rig.weightMap(kHeadWeight, {{first + 2, 1.0F}, {first + 3, 1.0F}});
  }
  const auto bones = rig.chain({"腰", "背骨", "首", "頭"}, {{0, 0, 0}, {0, 0.3F, 0}, {0, 0.6F, 0}, {0, 0.8F, 0}, {0, 1, 0}});
  rig.settings(bones[0], {{142, "腰_initpos"}, {151, "0"}});
  rig.settings(bones[1], {{26, "1"}, {48, "1"}, {49, "60.000000"}});
  rig.tag(bones[3], lw::kTagBoneWeight, kHeadWeight);
  rig.colour(bones[3], "Red");
  rig.settings(bones[3], {{52, "頭_tar"}, {130, "腰"}, {136, "1"}, {152, "Orang"}, {95, "1"}});
  rig.leaveOtherColoursAlone();
  return rig.take();
}

}  // namespace

ObjectFile makeJapaneseRig() {
  ObjectFile rig = makeDoll(false);
  addDollBody(rig.layers[0]);
  return rig;
}

ObjectFile makeBoxedDoll() { return makeDoll(true); }

}  // namespace standin
