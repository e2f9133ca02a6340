// Meshes in the file, which bones move their points, and what is told of the rest.
#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "gltf/numbers.h"
#include "gltf/weights.h"
#include "objectfile/rig_builder.h"
#include "objectfile/sample_rigs.h"
#include "rigs/text.h"
#include "tests/standin/gltf_reader.h"

namespace standin::gltf {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// A face of the points 0 to 3 beside a bone.
struct BodyWithRoot {
  RigBuilder rig;
  RigBuilder::Skelegon root;

  BodyWithRoot() {
    rig.layer(0, "Body");
    addFace();
    root = rig.root("Root", {0, 0, 0}, {0, 1, 0});
  }
  void addFace() { rig.face({rig.point({0, 0, 0}), rig.point({0, 1, 0}), rig.point({1, 1, 0}), rig.point({1, 0, 0})}); }
  // A bone with a map of its name, or of another.
  RigBuilder::Skelegon bone(const std::string& name, const std::string& map = {}, FilePoint tail = {0, 2, 0}) {
    const auto made = rig.child(root, name, tail);
    rig.tag(made, lw::kTagBoneWeight, map.empty() ? name : map);
    return made;
  }
};

// The joints' names of a point with their weights, as they stand.
std::vector<std::pair<std::string, double>> sharesOf(const GlbFile& file, std::size_t point) {
  const Json& node = file.nodes().back();
  const Json& skin = file.json["skins"][node.at("skin").get<std::size_t>()];
  const std::size_t mesh = node.at("mesh");
  const auto joints = file.attribute(mesh, "JOINTS_0").at(point);
  const auto weights = file.attribute(mesh, "WEIGHTS_0").at(point);
  std::vector<std::pair<std::string, double>> shares;
  for (std::size_t i = 0; i < 4 && weights[i] > 0; ++i) {
    shares.emplace_back(file.name(skin.at("joints").at(static_cast<std::size_t>(joints[i]))), weights[i]);
  }
  return shares;
}

using Shared = std::vector<std::pair<std::string, double>>;

TEST(GltfMesh, LooksOutwardsAndKeepsItsSize) {
  RigBuilder rig;
  rig.box({-1, 0, 2}, {1, 3, 4});
  const GlbFile file = glbFileOf(rig.object());
  EXPECT_NEAR(file.volume(0), 12, 1e-6);
  EXPECT_EQ(file.points(0).size(), 8U);
  EXPECT_EQ(file.points(0)[0], (Vec3{-1, 0, -2}));
  const Json& box = file.json["accessors"][file.primitive(0)["attributes"]["POSITION"].get<std::size_t>()];
  EXPECT_EQ(box["min"], Json({-1.0, 0.0, -4.0}));
  EXPECT_EQ(box["max"], Json({1.0, 3.0, -2.0}));
}

TEST(GltfMesh, HoldsOnlyWhatFacesUse) {
  BodyWithRoot body;
  body.rig.point({9, 9, 9});
  const Translated made = translatedWhole(body.rig.object());
  EXPECT_EQ(made.model.meshes.at(0).points.size(), 4U);
  EXPECT_EQ(made.leftOut.loosePoints, 1U);
}

TEST(GltfMesh, WithoutWeightsHangsOnItsLayer) {
  BodyWithRoot body;
  const GlbFile file = glbFileOf(body.rig.object());
  EXPECT_EQ(file.nodes()[file.node("rig")]["mesh"], 0);
  EXPECT_EQ(file.json["skins"].size(), 1U);
  EXPECT_FALSE(file.primitive(0)["attributes"].contains("JOINTS_0"));
}

TEST(GltfMesh, AloneIsAFile) {
  RigBuilder rig;
  rig.box({0, 0, 0}, {1, 1, 1});
  const GlbFile file = glbFileOf(rig.object());
  EXPECT_FALSE(file.json.contains("skins"));
  EXPECT_EQ(file.json["meshes"].size(), 1U);
}

TEST(GltfMesh, AnObjectWithNextToNothingIsAFile) {
  EXPECT_EQ(glbFileOf(ObjectFile()).nodes().size(), 1U);
  RigBuilder rig;
  rig.point({1, 2, 3});
  const GlbFile file = glbFileOf(rig.object());
  EXPECT_EQ(file.nodes().size(), 2U);
  EXPECT_FALSE(file.json.contains("buffers"));
  EXPECT_EQ(file.json["scenes"][0]["nodes"], Json::array({0}));
}

TEST(GltfMesh, ASkeletonAloneIsJointsWithoutAMesh) {
  const GlbFile file = glbFileOf(makeChainRig(3, 0));
  EXPECT_FALSE(file.json.contains("meshes"));
  EXPECT_EQ(file.json["skins"][0]["joints"].size(), 3U);
}

TEST(GltfWeights, AreSharedByTheBonesOfTheMaps) {
  BodyWithRoot body;
  body.bone("Arm");
  body.bone("Leg");
  body.rig.weightMap("Arm", {{0, 1.0F}, {1, 0.25F}, {2, 0.5F}, {3, 0.3F}});
  body.rig.weightMap("Leg", {{1, 0.75F}, {2, 0.5F}, {3, 0.1F}});
  const GlbFile file = glbFileOf(body.rig.object());
  EXPECT_EQ(sharesOf(file, 0), (Shared{{"Arm", 1}}));
  EXPECT_EQ(sharesOf(file, 1), (Shared{{"Leg", 0.75}, {"Arm", 0.25}}));
  EXPECT_EQ(sharesOf(file, 2), (Shared{{"Arm", 0.5}, {"Leg", 0.5}}));
  EXPECT_NEAR(sharesOf(file, 3)[0].second, 0.75, 1e-6);  // 0.3 of 0.4
}

TEST(GltfWeights, OfMoreThanFourBonesTheGreatestAreKept) {
  BodyWithRoot body;
  for (const char* const name : {"A", "B", "C", "D", "E"}) {
    body.bone(name);
    body.rig.weightMap(name, {{0, 1.0F + static_cast<float>(*name - 'A')}, {1, 1.0F}, {2, 1.0F}, {3, 1.0F}});
  }
  const GlbFile file = glbFileOf(body.rig.object());
  const Shared shares = sharesOf(file, 0);
  ASSERT_EQ(shares.size(), 4U);
  EXPECT_EQ(shares[0].first, "E");
  EXPECT_EQ(shares[3].first, "B");
  EXPECT_NEAR(shares[0].second, 5.0 / 14, 1e-6);
  EXPECT_EQ(translatedWhole(body.rig.object()).leftOut.crowdedPoints, 4U);
}

TEST(GltfWeights, APointWithoutAnyGoesWithItsLayer) {
  BodyWithRoot body;
  body.bone("Arm");
  body.rig.weightMap("Arm", {{0, 1.0F}, {1, 0.0F}, {2, -1.0F}});
  const GlbFile file = glbFileOf(body.rig.object());
  EXPECT_EQ(sharesOf(file, 0), (Shared{{"Arm", 1}}));
  for (const std::size_t point : {1, 2, 3}) EXPECT_EQ(sharesOf(file, point), (Shared{{"rig", 1}})) << point;
  const LeftOut leftOut = translatedWhole(body.rig.object()).leftOut;
  EXPECT_EQ(leftOut.unweightedPoints, 3U);
  EXPECT_EQ(leftOut.negativeWeights, 1U);
}

TEST(GltfWeights, AMapOfSeveralBonesGoesToTheNearest) {
  BodyWithRoot body;
  const auto lower = body.bone("Lower", "Both", {0, 0.5F, 0});
  const auto upper = body.rig.child(lower, "Upper", {5, 0, 0});
  body.rig.tag(upper, lw::kTagBoneWeight, "Both");
  body.rig.weightMap("Both", {{0, 0.5F}, {1, 0.5F}, {2, 0.5F}, {3, 0.5F}});
  const GlbFile file = glbFileOf(body.rig.object());
  EXPECT_EQ(sharesOf(file, 1), (Shared{{"Lower", 1}}));  // at its head
  EXPECT_EQ(sharesOf(file, 2), (Shared{{"Upper", 1}}));  // nearer to its middle than to the other's head
  EXPECT_EQ(sharesOf(file, 3), (Shared{{"Upper", 1}}));
  EXPECT_EQ(translatedWhole(body.rig.object()).leftOut.sharedMaps, 1U);
}

TEST(GltfWeights, OfMorePointsAndBonesThanAnybodyWaitsForAreRefused) {
  ObjectLayer layer;
  layer.points.resize(1);
  constexpr std::size_t kPoints = 40'001;
  layer.maps.push_back({lw::kMapWeight, "Both", 1, std::vector<std::uint32_t>(kPoints), std::vector<float>(kPoints, 1)});
  LeftOut leftOut;
  EXPECT_EQ(sharesOf(layer, std::vector<WeightedBone>(50'000, {"Both", {}, {}}), leftOut).why(),
            "the weight map \"Both\" has 40001 points and 50000 bones, too many to find the nearest");
}

TEST(GltfWeights, OfAPointThatStandsTwiceInAMapTheLaterHolds) {
  BodyWithRoot body;
  body.bone("Arm");
  body.bone("Leg");
  body.rig.weightMap("Arm", {{0, 9.0F}, {0, 1.0F}});
  body.rig.weightMap("Leg", {{0, 1.0F}});
  EXPECT_EQ(sharesOf(glbFileOf(body.rig.object()), 0), (Shared{{"Arm", 0.5}, {"Leg", 0.5}}));
}

TEST(GltfWeights, AMeshWithoutBonesTakesThoseOfTheLayersWhoseMapsItHas) {
  BodyWithRoot body;
  body.bone("Arm");
  body.rig.layer(1, "Mesh", {5, 6, 7});
  body.addFace();
  body.rig.weightMap("Arm", {{0, 1.0F}, {1, 1.0F}, {2, 1.0F}, {3, 1.0F}});
  const GlbFile file = glbFileOf(body.rig.object());
  EXPECT_EQ(file.name(file.nodes().size() - 1), "rig:Mesh (mesh)");
  EXPECT_EQ(sharesOf(file, 2), (Shared{{"Arm", 1}}));
  EXPECT_EQ(file.json["skins"].size(), 1U);
  EXPECT_EQ(file.json["skins"][0]["joints"].size(), 2U);
}

// As in Layout, where a layer with bones of its own is moved by these.
TEST(GltfWeights, AMeshWithBonesIsNotMovedByThoseOfOtherLayers) {
  BodyWithRoot body;
  body.bone("Arm");
  body.rig.weightMap("Leg", {{0, 1.0F}});
  body.rig.layer(1, "Other");
  body.rig.tag(body.rig.root("Leg", {0, 0, 0}, {0, 1, 0}), lw::kTagBoneWeight, "Leg");
  const Translated made = translatedWhole(body.rig.object());
  EXPECT_TRUE(made.model.meshes.at(0).joints.empty());
  EXPECT_EQ(made.leftOut.unusedMaps, 1U);
}

// The matrices lead from the mesh to the joint: at rest nothing moves.
TEST(GltfWeights, LeaveTheMeshWhereItIsAtRest) {
  const GlbFile file = glbFileOf(makeDemoRig(), "lizard.lwo");
  std::size_t compared = 0;
  for (const Json& skin : file.json.at("skins")) {
    const auto matrices = file.rows(skin.at("inverseBindMatrices"));
    const Placement layer = file.place(file.node(skin.at("name")));
    ASSERT_EQ(matrices.size(), skin.at("joints").size());
    for (std::size_t i = 0; i < matrices.size(); ++i) {
      const auto& m = matrices[i];
      const Placement joint = file.place(skin.at("joints")[i]);
      for (const Vec3& point : {Vec3{0, 0, 0}, Vec3{1, 2, 3}}) {
        const Vec3 bound = Vec3{m[0], m[1], m[2]} * point[0] + Vec3{m[4], m[5], m[6]} * point[1] +
                           Vec3{m[8], m[9], m[10]} * point[2] + Vec3{m[12], m[13], m[14]};
        const Vec3 moved = joint.axes * bound + joint.position;
        EXPECT_LT(length(moved - (layer.axes * point + layer.position)), 1e-5);
        ++compared;
      }
      EXPECT_EQ((std::vector{m[3], m[7], m[11], m[15]}), (std::vector<double>{0, 0, 0, 1}));
    }
  }
  EXPECT_GE(compared, 48U);
}

TEST(GltfNumbers, WhatIsNoNumberIsRefusedWithItsPlace) {
  constexpr float kNone = std::numeric_limits<float>::quiet_NaN();
  constexpr float kInfinite = std::numeric_limits<float>::infinity();
  BodyWithRoot points;
  points.rig.point({0, kNone, 0});
  EXPECT_EQ(translated(points.rig.object(), "rig.lwo").why(),
            "layer 0 (Body): point 6 (counted from 0) has a coordinate that is no number");
  BodyWithRoot far;
  far.rig.point({0, 0, -2e18F});
  EXPECT_THAT(translated(far.rig.object(), "rig.lwo").why(), HasSubstr("point 6 (counted from 0) lies too far away"));
  BodyWithRoot weights;
  weights.rig.weightMap("A\n", {{0, 1.0F}, {3, kInfinite}});
  EXPECT_EQ(translated(weights.rig.object(), "rig.lwo").why(),
            "layer 0 (Body): in the weight map \"A\\x0a\" the weight of point 3 (counted from 0) is no number");
  RigBuilder pivot;
  pivot.layer(3, "", {kInfinite, 0, 0});
  EXPECT_EQ(translated(pivot.object(), "rig.lwo").why(), "layer 3: the pivot has a coordinate that is no number");
}

TEST(GltfNumbers, TheFarthestAreWritten) {
  RigBuilder rig;
  rig.box({-kFarthest, -kFarthest, -kFarthest}, {kFarthest, kFarthest, kFarthest});
  rig.root("Root", {kFarthest, 0, 0}, {-kFarthest, 0, 0});
  const GlbFile file = glbFileOf(rig.object());
  EXPECT_EQ(file.nodes()[file.node("Root")]["extras"]["length"], 2 * static_cast<double>(kFarthest));
}

TEST(GltfSize, IsToldBeforehandAndRefusedBeyondTheLimit) {
  const Translated made = translatedWhole(makeDemoRig());
  const Outcome<std::string> bytes = glbOf(made.model);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(sizeOfNumbers(made.model), GlbFile(*bytes).json["buffers"][0]["byteLength"].get<std::uint64_t>());
  EXPECT_TRUE(glbOf(made.model, bytes->size()));
  for (const std::uint64_t size : {bytes->size() - 1, sizeOfNumbers(made.model) - 1}) {
    EXPECT_THAT(glbOf(made.model, size).why(), HasSubstr("larger than the 4 GB"));
  }
}

TEST(GltfLeftOut, IsToldByKindAndNumber) {
  BodyWithRoot body;
  body.rig.settings(body.root, {{51, "Other"}});
  body.rig.face({0, 1}, "Skin");
  body.rig.face({0, 0, 0}, "Skin");
  body.rig.weightMap("Nobody's", {{0, 1.0F}});
  ObjectFile object = body.rig.take();
  object.layers[0].group(lw::fourCharacters('C', 'U', 'R', 'V')).polygons.push_back({{0, 1, 2}, 0, {}});
  object.layers[0].group(lw::fourCharacters('P', 'T', 'C', 'H')).polygons.push_back({{0, 1, 2}, 0, {}});
  object.layers[0].maps.push_back({lw::fourCharacters('T', 'X', 'U', 'V'), "UV", 2, {0}, {0, 0}});
  EXPECT_THAT(linesOf(translatedWhole(object).leftOut),
              ElementsAre("left out: 1 polygon of type CURV", "left out: 1 map of type TXUV", "left out: 2 surfaces",
                          "left out: 1 face of fewer than three points", "left out: 1 face without area",
                          "left out: 1 weight map of no bone", HasSubstr("1 subdivided polygon: the cage"),
                          HasSubstr("1 bone without a weight map"), HasSubstr("1 bone with a stored parent"),
                          HasSubstr("1 bone with stored settings")));
}

TEST(GltfLeftOut, IsNothingWhereGltfSaysAll) {
  RigBuilder rig;
  rig.root("Root", {0, 0, 0}, {0, 1, 0});
  EXPECT_THAT(linesOf(translatedWhole(rig.object()).leftOut), IsEmpty());
}

}  // namespace
}  // namespace standin::gltf
