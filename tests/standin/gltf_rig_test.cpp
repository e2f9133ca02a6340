// The skeleton in the file is the one that Layout makes: compared by numbers with the stand-in's scene.
#include "objectfile/rig_builder.h"
#include "objectfile/sample_rigs.h"
#include "objectfile/temporary_folder.h"
#include "rigs/settings_json.h"
#include "standin/layout/layout_host.h"
#include "standin/layout/scene.h"
#include "tests/standin/gltf_reader.h"
#include "tests/standin/samples.h"

namespace standin::gltf {
namespace {

constexpr double kNear = 1e-5;

// Loaded, and every skelegon made a bone, as a person would do it.
class ConvertedScene {
 public:
  explicit ConvertedScene(const std::string& path) : items(host.loadObject(path)) {
    host.command("AutoConfirm 1");
    for (Item* item : items) {
      host.select({item});
      host.command("SkelegonsToBones");
    }
  }

  LayoutHost host;
  std::vector<Item*> items;
};

// Both axes have z the other way round.
Vec3 mirrored(const Vec3& v) { return {v[0], v[1], -v[2]}; }

::testing::AssertionResult areNear(const Vec3& a, const Vec3& b) {
  const double size = std::max(1.0, length(b));
  if (length(a - b) <= kNear * size) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << a[0] << " " << a[1] << " " << a[2] << " is not " << b[0] << " " << b[1] << " "
                                       << b[2];
}

Vec3 across(const Vec3& a, const Vec3& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

std::vector<std::size_t> childrenOf(const GlbFile& file, std::size_t node) {
  return file.nodes()[node].value("children", std::vector<std::size_t>());
}

// The joints below a layer's node, by name.
std::map<std::string, std::size_t> jointsBelow(const GlbFile& file, std::size_t layer) {
  std::map<std::string, std::size_t> joints;
  std::vector<std::size_t> waiting = childrenOf(file, layer);
  while (!waiting.empty()) {
    const std::size_t node = waiting.back();
    waiting.pop_back();
    if (!file.nodes()[node].at("extras").contains("length")) continue;
    EXPECT_TRUE(joints.emplace(file.name(node), node).second) << file.name(node);
    for (const std::size_t child : childrenOf(file, node)) waiting.push_back(child);
  }
  return joints;
}

std::set<std::size_t> jointsOfSkins(const GlbFile& file) {
  std::set<std::size_t> joints;
  for (const Json& skin : file.json.value("skins", Json::array())) {
    for (const std::size_t joint : skin.at("joints")) joints.insert(joint);
  }
  return joints;
}

void expectBone(const GlbFile& file, std::size_t joint, ConvertedScene& scene, Item& bone) {
  const std::string name = scene.host.scene().nameOf(bone);
  EXPECT_EQ(file.name(*file.parent(joint)), scene.host.scene().nameOf(*bone.parent)) << name;
  const Placement here = file.place(joint);
  const Placement there = scene.host.scene().placement(bone, 0);
  const double length = file.nodes()[joint]["extras"]["length"];
  const Vec3 tail = here.position + here.axes * Vec3{0, 0, -length};
  EXPECT_TRUE(areNear(mirrored(here.position), there.position)) << name << ", head";
  EXPECT_TRUE(areNear(mirrored(tail), there.position + there.axes.columns[2] * bone.rest.length)) << name << ", tail";
  EXPECT_TRUE(areNear(mirrored(here.axes * Vec3{1, 0, 0}), there.axes.columns[0])) << name << ", its right side";
  EXPECT_TRUE(areNear(mirrored(here.axes * Vec3{0, 1, 0}), there.axes.columns[1])) << name << ", its upper side";
}

void expectSkeletonOf(const GlbFile& file, ConvertedScene& scene) {
  const std::set<std::size_t> joints = jointsOfSkins(file);
  for (Item* item : scene.items) {
    const std::size_t layer = file.node(scene.host.scene().nameOf(*item));
    EXPECT_EQ(file.name(*file.parent(layer)),
              item->parent == nullptr ? file.name(0) : scene.host.scene().nameOf(*item->parent));
    const auto found = jointsBelow(file, layer);
    EXPECT_EQ(found.size(), item->bones.size());
    for (Item* bone : item->bones) {
      const auto joint = found.find(scene.host.scene().nameOf(*bone));
      ASSERT_NE(joint, found.end()) << scene.host.scene().nameOf(*bone);
      EXPECT_TRUE(joints.contains(joint->second)) << joint->first;
      expectBone(file, joint->second, scene, *bone);
    }
  }
}

// What is true of every file.
void expectSound(const GlbFile& file) {
  for (std::size_t n = 0; n < file.nodes().size(); ++n) {
    const Json& node = file.nodes()[n];
    if (!node.contains("skin")) continue;
    EXPECT_FALSE(file.parent(n)) << "what is above a skinned mesh does not move it";
    const std::size_t mesh = node.at("mesh");
    const Json& skin = file.json["skins"][node.at("skin").get<std::size_t>()];
    const auto joints = file.attribute(mesh, "JOINTS_0");
    const auto weights = file.attribute(mesh, "WEIGHTS_0");
    for (std::size_t i = 0; i < weights.size(); ++i) {
      double sum = 0;
      for (std::size_t k = 0; k < 4; ++k) {
        sum += weights[i][k];
        EXPECT_GE(weights[i][k], 0);
        EXPECT_LT(joints[i][k], static_cast<double>(skin.at("joints").size()));
      }
      EXPECT_NEAR(sum, 1, 1e-6);
    }
  }
  for (std::size_t mesh = 0; mesh < file.json.value("meshes", Json::array()).size(); ++mesh) {
    const std::size_t points = file.points(mesh).size();
    for (const auto& triangle : file.triangles(mesh)) {
      for (const std::size_t point : triangle) EXPECT_LT(point, points);
    }
  }
}

void expectAsInLayout(const std::string& path) {
  SCOPED_TRACE(path);
  const Outcome<ObjectFile> object = readObject(path);
  ASSERT_TRUE(object) << object.why();
  const GlbFile file = glbFileOf(*object, path);
  ConvertedScene scene(path);
  expectSkeletonOf(file, scene);
  expectSound(file);
}

void expectAsInLayout(const ObjectFile& object) {
  const TemporaryFolder folder;
  const std::string path = folder.file("rig.lwo");
  ASSERT_FALSE(writeObject(object, path));
  expectAsInLayout(path);
}

TEST(GltfSkeleton, IsThatOfLayoutForTheShippedRigs) {
  expectAsInLayout(makeDemoRig());
  expectAsInLayout(makeJapaneseRig());
  expectAsInLayout(makeJapaneseLizard());
}

TEST(GltfSkeleton, StaysInPlaceAlongALongChain) { expectAsInLayout(makeChainRig(200, 3)); }

// Bones in every direction, straight up and down among them, from layers with pivots below one another.
TEST(GltfSkeleton, IsThatOfLayoutInEveryDirection) {
  RigBuilder rig;
  rig.layer(0, "Below", {1, 2, 3}, 1);
  const auto root = rig.root("Root", {0.5F, 0, 0}, {0.5F, 1, 0});
  for (const float x : {-1.0F, 0.0F, 1.0F}) {
    for (const float y : {-1.0F, 0.0F, 1.0F}) {
      for (const float z : {-1.0F, 0.0F, 1.0F}) {
        const auto bone = rig.child(root, "Bone", {0.5F + x, 1 + y, z});
        rig.child(bone, "End", {0.5F + 2 * x + z, 1 + y, z - y});
      }
    }
  }
  rig.layer(1, "Above", {-4, 5, 6});
  rig.root("Root", {0, 0, 0}, {1, 1, 1});
  expectAsInLayout(rig.take());
}

class GltfOfSamples : public OnSamples {};

TEST_F(GltfOfSamples, HasTheSkeletonOfLayout) {
  for (const std::string& path : sampleObjects("rigs")) expectAsInLayout(path);
}

TEST_F(GltfOfSamples, HasTheMeshesOfOthers) {
  for (const std::string& path : sampleObjects("meshes")) {
    if (readObject(path)) expectAsInLayout(path);
  }
}

// All its faces are flat.
TEST_F(GltfOfSamples, KeepsTheAreaOfAConcavePolygon) {
  const Outcome<ObjectFile> object = readObject(utf8Of(samplesFolder() / "meshes" / "concave_polygon.lwo"));
  ASSERT_TRUE(object);
  const ObjectLayer& layer = object->layers[0];
  double faces = 0;
  for (const ObjectPolygon& polygon : layer.groups[0].polygons) {
    Vec3 area{};
    for (std::size_t i = 2; i < polygon.points.size(); ++i) {
      const Vec3 first = vectorOf(layer.points[polygon.points[0]]);
      area = area + across(vectorOf(layer.points[polygon.points[i - 1]]) - first,
                           vectorOf(layer.points[polygon.points[i]]) - first);
    }
    faces += length(area) / 2;
  }
  const GlbFile file = glbFileOf(*object);
  const std::vector<Vec3> points = file.points(0);
  double triangles = 0;
  for (const auto& [a, b, c] : file.triangles(0))
    triangles += length(across(points[b] - points[a], points[c] - points[a])) / 2;
  EXPECT_NEAR(triangles, faces, 1e-5);
}

TEST_F(GltfOfSamples, TurnsItsFacesOutwards) {
  const std::string path = utf8Of(samplesFolder() / "meshes" / "sphere_with_gradient.lwo");
  EXPECT_GT(glbFileOf(*readObject(path)).volume(0), 10);
}

TEST(GltfSkeleton, ABoneWithoutLengthLooksForwardAsInLayout) {
  RigBuilder rig;
  rig.root("Dot", {1, 2, 3}, {1, 2, 3});
  expectAsInLayout(rig.object());
  const GlbFile file = glbFileOf(rig.object());
  const std::size_t dot = file.node("Dot");
  EXPECT_EQ(file.nodes()[dot]["extras"]["length"], 0.0);
  EXPECT_TRUE(areNear(file.place(dot).axes * Vec3{0, 0, -1}, {0, 0, -1}));
}

TEST(GltfSkeleton, CarriesTheStoredSettingsAsExportWritesThem) {
  const ObjectFile object = makeDemoRig();
  const GlbFile file = glbFileOf(object, "lizard.lwo");
  const rigs::Rig rig = rigs::rigOf(object, "lizard.lwo");
  const Json exported = Json::parse(rigs::exportSettings(rig));
  std::size_t compared = 0;
  for (const Json& layer : exported.at("layers")) {
    for (const Json& skelegon : layer.at("skelegons")) {
      const std::string name = skelegon.at("name");
      const Json& extras = file.nodes()[file.node(name)].at("extras");
      EXPECT_EQ(extras.at("skelegon"), skelegon) << name;
      ++compared;
    }
  }
  EXPECT_EQ(compared, 24U);
  const Json& head = file.nodes()[file.node("Head")].at("extras");
  EXPECT_EQ(head.at("weightMap"), "Head");
  EXPECT_EQ(head.at("colour"), "Purple");
}

// The name is a text that could be mistaken for settings without any.
TEST(GltfSkeleton, CarriesThatASkelegonStoresNothingAsExportWritesIt) {
  const std::string name = R"("settings":null)";
  RigBuilder rig;
  rig.root(name, {0, 0, 0}, {0, 1, 0});
  const Json exported = Json::parse(rigs::exportSettings(rigs::rigOf(rig.object(), "rig.lwo")));
  const Json& skelegon = exported.at("layers").at(0).at("skelegons").at(0);
  EXPECT_EQ(skelegon.at("settings"), Json::object());
  const GlbFile file = glbFileOf(rig.object());
  EXPECT_EQ(file.nodes()[file.node(name)].at("extras").at("skelegon"), skelegon);
}

TEST(GltfSkeleton, OfMoreBonesThanAPointCanNumberIsRefused) {
  constexpr std::size_t kTooMany = 65'536;
  ObjectFile object = makeChainRig(kTooMany, 0);
  ObjectLayer& layer = object.layers[0];
  for (ObjectPolygon& skelegon : layer.group(lw::kTypeBone).polygons) skelegon.setTag(lw::kTagBoneWeight, "Body");
  layer.maps.push_back({lw::kMapWeight, "Body", 1, {0}, {1}});
  layer.group(lw::kTypeFace).polygons.push_back({{0, 1, static_cast<std::uint32_t>(layer.points.size())}, 0, {}});
  layer.points.push_back({1, 0, 0});
  EXPECT_EQ(translated(object, "rig.lwo").why(), "more than 65535 bones have weight maps of one layer");
}

TEST(GltfSkeleton, OfSixtyThousandBonesIsWhole) {
  constexpr std::size_t kMany = 60'000;
  const Translated made = translatedWhole(makeChainRig(kMany, 0));
  EXPECT_EQ(made.bones, kMany);
  ASSERT_EQ(made.model.nodes.size(), kMany + 2);
  EXPECT_TRUE(areNear(made.model.nodes.back().place.position, {0, kMany - 1.0, 0}));
  ASSERT_EQ(made.model.skins.size(), 1U);
  EXPECT_EQ(made.model.skins[0].joints.size(), kMany);
}

TEST(GltfSkeleton, OfThousandsOfBonesIsAFile) {
  const GlbFile file = glbFileOf(makeChainRig(3000, 1));
  EXPECT_EQ(file.nodes().size(), 3002U);
  EXPECT_TRUE(areNear(file.place(3001).position, {0, 2999, 0}));
}

TEST(GltfNames, AreThoseOfLayoutInPrintableUtf8) {
  RigBuilder rig;
  rig.layer(0, "A \"<&>\"\t\x07");
  const auto first = rig.root("Arm\n", {0, 0, 0}, {0, 1, 0});
  rig.child(first,
            "\x81\x01"
            "Arm",
            {0, 2, 0});
  rig.child(first, "Arm", {1, 2, 0});
  rig.child(first, "Arm", {2, 2, 0});
  rig.layer(1, "B");
  rig.face({rig.point({0, 0, 0}), rig.point({0, 1, 0}), rig.point({1, 0, 0})});
  const GlbFile file = glbFileOf(rig.object(), "a\x01.lwo");
  EXPECT_EQ(file.name(0), "a\\x01.lwo");
  EXPECT_EQ(file.name(file.node("a\\x01:A \"<&>\"\\x09\\x07")), "a\\x01:A \"<&>\"\\x09\\x07");
  for (const char* const name : {"Arm\\x0a",
                                 "\\x81\\x01"
                                 "Arm",
                                 "Arm (1)", "Arm (2)"}) {
    EXPECT_LT(file.node(name), file.nodes().size());
  }
}

}  // namespace
}  // namespace standin::gltf
