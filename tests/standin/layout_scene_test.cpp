#include <cmath>

#include "standin/layout/skelegon_bones.h"
#include "tests/standin/layout_fixture.h"

namespace standin {
namespace {

ObjectLayer layer(std::uint16_t number, const std::string& name) {
  ObjectLayer result;
  result.number = number;
  result.name = name;
  return result;
}

std::vector<std::string> namesOf(const Scene& scene, const std::vector<Item*>& items) {
  std::vector<std::string> names;
  names.reserve(items.size());
  for (const Item* item : items) names.push_back(scene.nameOf(*item));
  return names;
}

using Names = std::vector<std::string>;

TEST(ItemName, OfAOneLayerFileWithLayerNumberZeroIsTheFileName) {
  Scene scene({});
  const auto items = scene.addObject(oneLayer(layer(0, "Ignored")), "some/folder/arm.v2.lwo");
  EXPECT_EQ(namesOf(scene, items), Names{"arm.v2"});
}

TEST(ItemName, OfAOneLayerFileWithAnotherNumberHasItsLayer) {
  Scene scene({});
  EXPECT_EQ(namesOf(scene, scene.addObject(oneLayer(layer(2, "Tail")), "C:\\objects\\cat.lwo")), Names{"cat:Tail"});
}

TEST(ItemName, OfALayerWithoutNameCountsFromOne) {
  Scene scene({});
  ObjectFile file;
  file.layers = {layer(0, ""), layer(4, "")};
  EXPECT_EQ(namesOf(scene, scene.addObject(file, "cat.lwo")), (Names{"cat:Layer1", "cat:Layer5"}));
}

TEST(ItemName, OfEqualNamesAllCarryACounter) {
  Scene scene({});
  Item& first = scene.addNull("Goal");
  EXPECT_EQ(scene.nameOf(first), "Goal");
  scene.addNull("Goal");
  scene.addNull("Other");
  EXPECT_EQ(namesOf(scene, scene.objects()), (Names{"Goal (1)", "Goal (2)", "Other"}));
}

TEST(ItemName, LosesItsCounterWhenTheNamesakeGoes) {
  Scene scene({});
  Item& first = scene.addNull("Goal");
  Item& second = scene.addNull("Goal");
  scene.remove(first);
  EXPECT_EQ(scene.nameOf(second), "Goal");
}

TEST(ItemName, OfBonesIsCountedWithinTheirObjectOnly) {
  Scene scene({});
  Item& a = *scene.addObject(oneLayer(layer(0, "")), "a.lwo").front();
  Item& b = *scene.addObject(oneLayer(layer(0, "")), "b.lwo").front();
  scene.addBone(a, "Hips");
  scene.addBone(b, "Hips");
  scene.addBone(b, "Hips");
  EXPECT_EQ(namesOf(scene, a.bones), Names{"Hips"});
  EXPECT_EQ(namesOf(scene, b.bones), (Names{"Hips (1)", "Hips (2)"}));
}

TEST(ItemName, OfABoneAndAnObjectMayBeEqual) {
  Scene scene({});
  Item& object = *scene.addObject(oneLayer(layer(0, "")), "Arm.lwo").front();
  Item& bone = scene.addBone(object, "Arm");
  EXPECT_EQ(scene.nameOf(bone), "Arm");
  EXPECT_EQ(scene.find("Arm"), &object);
}

TEST(LayerParent, MakesTheItemsParent) {
  Scene scene({});
  ObjectFile file;
  file.layers = {layer(0, "Body"), layer(1, "Rig")};
  file.layers[1].parent = 0;
  const auto items = scene.addObject(file, "cat.lwo");
  EXPECT_EQ(items[1]->parent, items[0]);
}

TEST(LayerParent, ThatIsTheLayerItselfIsNone) {
  Scene scene({});
  ObjectFile file = oneLayer(layer(1, "Rig"));
  file.layers[0].parent = 1;
  EXPECT_EQ(scene.addObject(file, "cat.lwo").front()->parent, nullptr);
}

TEST(Identifier, IsUniqueInItsLowerHalfAndKnownInFullOnly) {
  Scene scene({});
  Item& a = scene.addNull("A");
  Item& b = scene.addNull("B");
  EXPECT_NE(a.number, b.number);
  EXPECT_EQ(scene.byId(scene.idOf(&a)), &a);
  const auto half = reinterpret_cast<lw::ItemId>(std::uintptr_t{a.number});  // NOLINT(performance-no-int-to-ptr)
  EXPECT_EQ(scene.byId(half), nullptr);
}

// ---------------------------------------------------------------------------------------------------------------------
// Bones of skelegons

const std::vector<FilePoint> kPoints{{0, 0, 0}, {0, 0, 2}, {0, 1, 2}, {1, 1, 2}};

std::vector<Item*> bonesOf(Scene& scene, const std::vector<SkelegonSpec>& skelegons) {
  Item& object = *scene.addObject(oneLayer(skelegonLayer(kPoints, skelegons)), "rig.lwo").front();
  return makeBonesOfSkelegons(scene, object);
}

TEST(SkelegonBones, AreNamedByTheirTag) {
  Scene scene({});
  EXPECT_EQ(namesOf(scene, bonesOf(scene, {named(0, 1, "Hips")})), Names{"Hips"});
}

TEST(SkelegonBones, WithoutANameAreCalledBone) {
  Scene scene({});
  EXPECT_EQ(namesOf(scene, bonesOf(scene, {{0, 1, {}}, named(1, 2, "")})), (Names{"Bone (1)", "Bone (2)"}));
}

TEST(SkelegonBones, StandBelowTheOneThatEndsWhereTheyBegin) {
  Scene scene({});
  const auto bones = bonesOf(scene, {named(1, 2, "Child"), named(0, 1, "Root"), named(3, 2, "Apart")});
  EXPECT_EQ(bones[0]->parent, bones[1]);
  EXPECT_EQ(bones[1]->parent, bones[1]->owner);
  EXPECT_EQ(bones[2]->parent, bones[2]->owner);
}

TEST(SkelegonBones, OfARingBeginWithTheFirstInTheFile) {
  Scene scene({});
  const auto bones = bonesOf(scene, {named(0, 1, "A"), named(1, 2, "B"), named(2, 0, "C")});
  EXPECT_EQ(bones[0]->parent, bones[0]->owner);
  EXPECT_EQ(bones[1]->parent, bones[0]);
  EXPECT_EQ(bones[2]->parent, bones[1]);
}

TEST(SkelegonBones, OfOnePointTwiceHaveNoLengthAndNoParent) {
  Scene scene({});
  const auto bones = bonesOf(scene, {named(1, 1, "Dot")});
  EXPECT_EQ(bones[0]->rest.length, 0);
  EXPECT_EQ(bones[0]->parent, bones[0]->owner);
}

TEST(SkelegonBones, WithPointsThatDoNotExistAreNotMade) {
  Scene scene({});
  EXPECT_TRUE(bonesOf(scene, {named(0, 99, "Bad")}).empty());
}

TEST(SkelegonBones, AreMadeOnce) {
  Scene scene({});
  const auto bones = bonesOf(scene, {named(0, 1, "A")});
  EXPECT_TRUE(makeBonesOfSkelegons(scene, *bones[0]->owner).empty());
}

TEST(SkelegonBones, LieAlongTheirSkelegonsInSpace) {
  Scene scene({});
  const auto bones = bonesOf(scene, {named(0, 1, "A"), named(1, 2, "B"), named(2, 3, "C")});
  const Placement place = scene.placement(*bones[2], 0);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(place.position[i], kPoints[2][i], 1e-12);
    EXPECT_NEAR(place.axes.columns[2][i], (Vec3{1, 0, 0})[i], 1e-12);
  }
}

TEST(SkelegonBones, TakeWeightMapAndColourFromTheHostsTags) {
  Scene scene({});
  const auto bones = bonesOf(scene, {{0, 1, {{lw::kTagBoneWeight, "Map"}, {lw::kTagColour, "Green"}}}});
  EXPECT_EQ(bones[0]->bone.weightMap, "Map");
  EXPECT_EQ(bones[0]->settings.colour, 9);
}

TEST(SkelegonBones, KeepTheirColourForAnUnknownName) {
  Scene scene({});
  const auto bones = bonesOf(scene, {{0, 1, {{lw::kTagColour, "Modeler"}}}});
  EXPECT_EQ(bones[0]->settings.colour, Scene::freshColour(ItemKind::Bone));
}

TEST(SkelegonBones, OfALongChainAreMade) {
  constexpr std::uint32_t kCount = 20000;
  Scene scene({});
  std::vector<FilePoint> points;
  std::vector<SkelegonSpec> skelegons;
  for (std::uint32_t i = 0; i <= kCount; ++i) points.push_back({0, 0, static_cast<float>(i)});
  for (std::uint32_t i = kCount; i > 0; --i) skelegons.push_back(named(i - 1, i, "B" + std::to_string(i)));
  Item& object = *scene.addObject(oneLayer(skelegonLayer(points, skelegons)), "rig.lwo").front();
  const auto bones = makeBonesOfSkelegons(scene, object);
  EXPECT_NEAR(scene.placement(*bones.front(), 0).position[2], kCount - 1, 1e-6);
}

// ---------------------------------------------------------------------------------------------------------------------
// Space

void move(Scene& scene, Item& item, const Vec3& position, const Vec3& angles, const Vec3& scale) {
  for (std::size_t i = 0; i < 3; ++i) {
    item.motion[kAxisX + i].assign(0, position[i]);
    item.motion[kAxisH + i].assign(0, angles[i]);
    item.motion[kAxisSX + i].assign(0, scale[i]);
  }
  scene.moved(item);
}

const double kQuarter = std::acos(0.0);

TEST(Placement, FollowsTheParentsPositionTurnAndScale) {
  Scene scene({});
  Item& parent = scene.addNull("Parent");
  Item& child = scene.addNull("Child");
  scene.setParent(child, &parent);
  move(scene, parent, {10, 0, 0}, {kQuarter, 0, 0}, {1, 1, 2});
  move(scene, child, {0, 0, 3}, {0, 0, 0}, {1, 1, 1});
  const Placement place = scene.placement(child, 0);
  EXPECT_NEAR(place.position[0], 16, 1e-12);
  EXPECT_NEAR(place.axes.columns[2][0], 2, 1e-12);
}

TEST(Placement, IsNewAfterTheParentMoved) {
  Scene scene({});
  Item& parent = scene.addNull("Parent");
  Item& child = scene.addNull("Child");
  scene.setParent(child, &parent);
  scene.placement(child, 0);
  move(scene, parent, {5, 0, 0}, {0, 0, 0}, {1, 1, 1});
  EXPECT_EQ(scene.placement(child, 0).position[0], 5);
}

TEST(Placement, BelongsToItsTime) {
  Scene scene({});
  Item& item = scene.addNull("Item");
  item.motion[kAxisX].create(2, 8);
  scene.moved(item);
  EXPECT_EQ(scene.placement(item, 0).position[0], 0);
  EXPECT_EQ(scene.placement(item, 1).position[0], 4);
}

TEST(Parenting, KeepsTheLocalMotion) {
  Scene scene({});
  Item& parent = scene.addNull("Parent");
  Item& child = scene.addNull("Child");
  move(scene, parent, {5, 0, 0}, {0, 0, 0}, {1, 1, 1});
  move(scene, child, {1, 0, 0}, {0, 0, 0}, {1, 1, 1});
  scene.setParent(child, &parent);
  EXPECT_EQ(scene.placement(child, 0).position[0], 6);
}

TEST(Parenting, BelowItselfIsRefused) {
  Scene scene({});
  Item& a = scene.addNull("A");
  Item& b = scene.addNull("B");
  scene.setParent(b, &a);
  EXPECT_FALSE(scene.setParent(a, &b));
  EXPECT_FALSE(scene.setParent(a, &a));
}

TEST(PivotRotation, IsRecordedWithoutTurningTheItem) {
  Scene scene({});
  Item& item = scene.addNull("Item");
  move(scene, item, {1, 2, 3}, {0.3, 0.4, 0.5}, {1, 1, 1});
  const Matrix3 before = scene.placement(item, 0).axes;
  scene.recordPivotRotation(item, 0);
  const Matrix3 after = scene.placement(item, 0).axes;
  EXPECT_EQ(Scene::motionAt(item, kAxisH, 0), (Vec3{0, 0, 0}));
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) EXPECT_NEAR(before.columns[i][j], after.columns[i][j], 1e-12);
  }
}

TEST(PivotRotation, IsTheRotationThatWasRecorded) {
  Scene scene({});
  Item& item = scene.addNull("Item");
  move(scene, item, {0, 0, 0}, {0.3, 0.4, 0.5}, {1, 1, 1});
  scene.recordPivotRotation(item, 0);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(item.pivotRotation[i], (Vec3{0.3, 0.4, 0.5})[i], 1e-12);
}

TEST(Removal, TakesBonesAlongAndLinksAway) {
  Scene scene({});
  Item& object = *scene.addObject(oneLayer({}), "rig.lwo").front();
  Item& bone = scene.addBone(object, "Bone");
  Item& other = scene.addNull("Other");
  other.settings.target = &bone;
  scene.addToSelection(bone);
  scene.remove(object);
  EXPECT_FALSE(bone.alive);
  EXPECT_EQ(other.settings.target, nullptr);
  EXPECT_TRUE(scene.selection().empty());
}

TEST(Removal, OfABoneLeavesItsChildrenToTheObject) {
  Scene scene({});
  Item& object = *scene.addObject(oneLayer({}), "rig.lwo").front();
  Item& root = scene.addBone(object, "Root");
  Item& child = scene.addBone(object, "Child", &root);
  scene.remove(root);
  EXPECT_EQ(child.parent, &object);
}

}  // namespace
}  // namespace standin
