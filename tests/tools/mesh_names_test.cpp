// Names of layers and weight maps.
#include "tests/tools/mesh_fixture.h"

namespace varnel::test {
namespace {

using LayerNames = MeshTest;

TEST_F(LayerNames, AreTheHostsOrMadeOfTheNumber) {
  EXPECT_EQ(lw::LayerNames(), (Names{"Body", "Layer2"}));
  EXPECT_EQ(lw::LayerName(0), "Body");
  EXPECT_EQ(lw::LayerName(1), "Layer2");
}

TEST_F(LayerNames, AnEmptyNameIsNone) {
  mesh.host.options().unnamedLayerIsEmpty = true;
  EXPECT_EQ(lw::LayerNames(), (Names{"Body", "Layer2"}));
}

TEST_F(LayerNames, CountGapsToo) {
  standin::RigBuilder rig;
  rig.layer(0, "First");
  rig.root("A", {0, 0, 0}, {0, 1, 0});
  rig.layer(3, "Fourth");
  rig.root("B", {0, 0, 0}, {0, 1, 0});
  mesh.host.add(rig.take(), "gaps.lwo");
  EXPECT_EQ(lw::LayerNames(), (Names{"First", "Layer2", "Layer3", "Fourth"}));
}

TEST_F(LayerNames, AreThoseOfTheCurrentObject) {
  standin::RigBuilder rig;
  rig.layer(0, "Other");
  rig.root("A", {0, 0, 0}, {0, 1, 0});
  mesh.host.add(rig.take(), "other.lwo");
  EXPECT_EQ(lw::LayerNames(), Names{"Other"});
  mesh.host.makeCurrent(*mesh.object);
  EXPECT_EQ(lw::LayerName(0), "Body");
}

TEST_F(LayerNames, AreThoseOfTheFirstObjectOfTheName) {
  standin::RigBuilder rig;
  rig.layer(0, "Second");
  rig.layer(1, "Its tail");
  rig.root("A", {0, 0, 0}, {0, 1, 0});
  mesh.host.add(rig.take(), "rig.lwo");
  EXPECT_EQ(lw::LayerNames(), (Names{"Body", "Layer2"}));
  EXPECT_EQ(lw::LayerName(0), "Body");
}

// One that was never saved, beside one that was.
TEST_F(LayerNames, OfAnObjectThatTheSceneDoesNotKnowAreMadeOfTheNumber) {
  mesh.host.options().unsavedFileName = standin::UnsavedFileName::Null;
  mesh.host.add(smallRig());
  EXPECT_EQ(lw::LayerName(0), "Layer1");
  EXPECT_EQ(lw::LayerNames(), Names{});
}

TEST_F(LayerNames, OfNoObjectAreMadeOfTheNumber) {
  mesh.host.closeAll();
  EXPECT_EQ(lw::LayerName(4), "Layer5");
  EXPECT_EQ(lw::LayerNames(), Names{});
}

TEST_F(LayerNames, OfALayerThatIsNotThereAreMadeOfTheNumber) { EXPECT_EQ(lw::LayerName(7), "Layer8"); }

TEST(WeightMapNames, AreTheHostsOrMadeOfTheNumber) {
  standin::RigBuilder rig;
  rig.point({0, 0, 0});
  rig.weightMap("", {{0, 1.0F}});
  rig.weightMap("Arm", {{0, 1.0F}});
  for (const bool unnamedIsEmpty : {false, true}) {
    Mesh mesh(rig.object());
    mesh.host.options().unnamedMapIsEmpty = unnamedIsEmpty;
    EXPECT_EQ(lw::WeightMapNames(), (Names{"WMap1", "Arm"}));
    expectCleanEnd(mesh);
  }
}

TEST(WeightMapNames, AreOfNoMapsOfOtherTypes) {
  standin::ObjectFile file = smallRig();
  standin::VertexMap texture = file.layers[0].maps.front();
  texture.type = lw::fourCharacters('T', 'X', 'U', 'V');
  texture.name = "UV";
  file.layers[0].maps.insert(file.layers[0].maps.begin(), texture);
  const Mesh mesh(std::move(file));
  EXPECT_EQ(lw::WeightMapNames(), Names{"Head"});
  expectCleanEnd(mesh);
}

TEST(WeightMapNames, AreNoneWithoutMaps) {
  const Mesh mesh(standin::RigBuilder().take());
  EXPECT_EQ(lw::WeightMapNames(), Names{});
}

}  // namespace
}  // namespace varnel::test
