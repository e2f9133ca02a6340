// Where bones, helper items and meshes are, as the scene has them.
#include "standin/layout/skelegon_bones.h"
#include "tests/standin/layout_fixture.h"
#include "tests/standin/views_fixture.h"
#include "views/palette.h"

namespace standin::views {
namespace {

void expectNear(const Vec3& a, const Vec3& b) {
  for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(a[i], b[i], 1e-5);
}

// A chain that leans into all directions, and a face.
struct LeaningRig {
  RigBuilder builder;

  LeaningRig() {
    builder.layer(0, "Rig", {1, 2, 3});
    builder.chain({"Root", "Middle", "End"}, {{0.1F, 0.2F, 0.3F}, {0.4F, 0.9F, -0.2F}, {-0.5F, 1, 0.6F}, {-0.5F, 3, 0.6F}});
    builder.face({builder.point({0, 0, 0}), builder.point({1, 0, 0}), builder.point({0, 1, 0})});
  }
};

class PosedScene : public testing::Test {
 protected:
  void convert(const ObjectFile& object) {
    layers = session.scene().addObject(object, "folder/rig.lwo");
    for (Item* layer : layers) makeBonesOfSkelegons(session.scene(), *layer);
  }
  PosedRig after(const ObjectFile& object) { return posedAfter(session.scene(), object); }
  Item& bone(std::size_t place) { return *layers.at(0)->bones.at(place); }

  LayoutSession session;
  std::vector<Item*> layers;
};

TEST_F(PosedScene, BonesLieBeforeTheConversionWhereTheyWillLie) {
  const LeaningRig rig;
  convert(rig.builder.object());
  const PosedRig stored = before(rig.builder.object());
  const PosedRig made = after(rig.builder.object());
  ASSERT_EQ(stored.bones.size(), 3U);
  ASSERT_EQ(made.bones.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(made.bones[i].name, stored.bones[i].name);
    EXPECT_EQ(made.bones[i].parent, stored.bones[i].parent);
    expectNear(made.bones[i].head, stored.bones[i].head);
    expectNear(made.bones[i].tail, stored.bones[i].tail);
    for (std::size_t axis = 0; axis < 3; ++axis)
      expectNear(made.bones[i].axes.columns[axis], stored.bones[i].axes.columns[axis]);
  }
  const PosedMesh& mesh = stored.layers[0].mesh;
  ASSERT_EQ(made.layers[0].mesh.points.size(), mesh.points.size());
  for (std::size_t i = 0; i < mesh.points.size(); ++i) expectNear(made.layers[0].mesh.points[i], mesh.points[i]);
}

TEST_F(PosedScene, FollowsWhatWasMovedAndScaled) {
  const LeaningRig rig;
  convert(rig.builder.object());
  Placement moved;
  moved.axes = rotation({0.3, 0.2, 0.1}, RotationOrder::HPB) * scaling({2, 2, 2});
  moved.position = {10, 20, 30};
  session.scene().placeAt(*layers[0], moved, 0);
  const PosedRig posed = after(rig.builder.object());
  expectNear(posed.bones[0].head, moved.position + moved.axes * Vec3{0.1, 0.2, 0.3});
  expectNear(posed.bones[2].tail, moved.position + moved.axes * Vec3{-0.5, 3, 0.6});
  EXPECT_EQ(posed.layers[0].mesh.faces.size(), 1U);
  expectNear(posed.layers[0].mesh.points[posed.layers[0].mesh.faces[0][1]], moved.position + moved.axes * Vec3{1, 0, 0});
}

TEST_F(PosedScene, TellsWhatEachHelperItemIs) {
  const LeaningRig rig;
  convert(rig.builder.object());
  std::vector<Item*> nulls;
  for (const char* const name : {"a", "b", "c", "d", "e", "f"}) nulls.push_back(&session.scene().addNull(name));
  ItemSettings& settings = bone(1).settings;
  settings.target = nulls[0];
  settings.pole = nulls[1];
  settings.ik.goal = nulls[2];
  for (std::size_t i = 0; i < 3; ++i) settings.same[i].item = nulls[3 + i];
  const PosedRig posed = after(rig.builder.object());
  ASSERT_EQ(posed.nulls.size(), 6U);
  for (std::size_t i = 0; i < 6; ++i) {
    ASSERT_EQ(posed.nulls[i].lines.size(), 1U) << i;
    EXPECT_EQ(posed.nulls[i].lines[0].bone, 1U);
    EXPECT_EQ(posed.nulls[i].lines[0].kind, static_cast<HelperKind>(i));
  }
}

// No item of the scene points to it.
TEST_F(PosedScene, KnowsTheInitialPositionByItsStoredName) {
  RigBuilder builder;
  const auto root = builder.root("Root", {0, 0, 0}, {0, 1, 0});
  builder.settings(root, {{142, "Start"}});
  convert(builder.object());
  session.scene().addNull("Other");
  session.scene().addNull("Start");
  const PosedRig posed = after(builder.object());
  EXPECT_TRUE(posed.nulls.at(0).lines.empty());
  ASSERT_EQ(posed.nulls.at(1).lines.size(), 1U);
  EXPECT_EQ(posed.nulls[1].lines[0].kind, HelperKind::InitialPosition);
}

TEST_F(PosedScene, LinksBonesThatReferToBones) {
  const LeaningRig rig;
  convert(rig.builder.object());
  bone(0).settings.target = &bone(2);
  bone(1).settings.target = &bone(1);  // to itself is no link to show
  const PosedRig posed = after(rig.builder.object());
  ASSERT_EQ(posed.boneLines.size(), 1U);
  EXPECT_EQ(posed.boneLines[0].from, 0U);
  EXPECT_EQ(posed.boneLines[0].to, 2U);
}

TEST_F(PosedScene, KnowsBonesByTheNameThatTheyWereGiven) {
  RigBuilder builder;
  builder.root("Twin", {0, 0, 0}, {0, 1, 0});
  builder.root("Twin", {1, 0, 0}, {1, 1, 0});
  convert(builder.object());
  const PosedRig posed = after(builder.object());
  EXPECT_EQ(posed.bones[0].givenName, "Twin");
  EXPECT_EQ(posed.bones[1].givenName, "Twin");
  EXPECT_EQ(posed.bones[1].name, "Twin (2)");
}

TEST(PosedRig, SkelegonsHaveTheColourThatIsStored) {
  RigBuilder builder;
  const auto own = builder.root("Own", {0, 0, 0}, {0, 1, 0});
  const auto copy = builder.root("Copy", {1, 0, 0}, {1, 1, 0});
  const auto left = builder.root("Left", {2, 0, 0}, {2, 1, 0});
  builder.tag(own, lw::kTagColour, "Red");
  builder.settings(own, {{129, "Green"}});
  builder.settings(copy, {{129, "White"}});
  builder.tag(left, lw::kTagColour, "Modeler");
  const PosedRig posed = before(builder.object());
  EXPECT_EQ(kColourNames.at(static_cast<std::size_t>(posed.bones[0].colour)), std::string("Red"));
  EXPECT_EQ(kColourNames.at(static_cast<std::size_t>(posed.bones[1].colour)), std::string("White"));
  EXPECT_EQ(posed.bones[2].colour, Scene::freshColour(ItemKind::Bone));
}

}  // namespace
}  // namespace standin::views
