// The nulls that a conversion makes for goals, targets and the like: where they are put, whose children they become, how
// they look.
#include <algorithm>
#include <functional>
#include <utility>

#include "tests/tools/conversion_fixture.h"

namespace standin {
namespace {

double worstDifference(const Placement& a, const Placement& b, bool withAxes) {
  double worst = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    worst = std::max(worst, std::abs(a.position[i] - b.position[i]));
    for (std::size_t k = 0; withAxes && k < 3; ++k)
      worst = std::max(worst, std::abs(a.axes.columns[i][k] - b.axes.columns[i][k]));
  }
  return worst;
}

class HelperItems : public ConversionTest {
 protected:
  explicit HelperItems(const LayoutOptions& options = {}) : ConversionTest(options) {}

  // Bones "Root" and "Bone" that stand askew below an object that does so too, all in one rotation order.
  std::vector<Item*> askew(RotationOrder order, const StoredSettings& settings, const Vec3& scale) {
    const std::vector<Item*> items = load(twoBones(settings));
    host.select(items);
    for (const char* command : {"AutoConfirm 1", "SkelegonsToBones", "AutoConfirm 0"}) EXPECT_TRUE(host.command(command));
    int n = 0;
    for (Item* const item : {items[0], &this->item("Root"), &this->item("Bone")}) {
      item->settings.order = order;
      ++n;
      for (std::size_t i = 0; i < 3; ++i) {
        item->motion[kAxisX + i].assign(0, 0.3 * n + static_cast<double>(i));
        item->motion[kAxisH + i].assign(0, 0.7 * n - 0.45 * static_cast<double>(i));
      }
      host.scene().moved(*item);
    }
    // Scale where an exact answer exists: the same on all axes above, any on the bone itself.
    for (std::size_t i = 0; i < 3; ++i) {
      items[0]->motion[kAxisSX + i].assign(0, 2);
      this->item("Bone").motion[kAxisSX + i].assign(0, scale[i]);
    }
    host.scene().moved(*items[0]);
    host.select(items);
    return items;
  }

  const Placement placementOf(const std::string& name) { return host.scene().placement(item(name), 0); }
};

struct OrderCase {
  RotationOrder order;
  const char* name;
};

class HelperItemsInEveryOrder : public HelperItems, public testing::WithParamInterface<OrderCase> {
 protected:
  StoredSettings with(StoredSettings settings) const {
    settings.emplace_back(186, std::to_string(static_cast<int>(GetParam().order)));
    return settings;
  }
};

INSTANTIATE_TEST_SUITE_P(Orders, HelperItemsInEveryOrder,
                         testing::Values(OrderCase{RotationOrder::PHB, "PHB"}, OrderCase{RotationOrder::HBP, "HBP"},
                                         OrderCase{RotationOrder::BPH, "BPH"}, OrderCase{RotationOrder::HPB, "HPB"},
                                         OrderCase{RotationOrder::PBH, "PBH"}, OrderCase{RotationOrder::BHP, "BHP"}),
                         [](const testing::TestParamInfo<OrderCase>& info) { return info.param.name; });

TEST_P(HelperItemsInEveryOrder, AScaleItemHasTheBonesWorldTransform) {
  askew(GetParam().order, with({{110, "scl"}}), {0.5, 3, 0.25});
  run(/*makeBones=*/false, /*recordPivot=*/false);
  EXPECT_LT(worstDifference(placementOf("scl"), placementOf("Bone"), true), 1e-9);
}

TEST_P(HelperItemsInEveryOrder, AMirroredBoneIsMatchedToo) {
  askew(GetParam().order, with({{110, "scl"}}), {0.5, -3, 0.25});
  run(/*makeBones=*/false, /*recordPivot=*/false);
  EXPECT_LT(worstDifference(placementOf("scl"), placementOf("Bone"), true), 1e-9);
}

TEST_P(HelperItemsInEveryOrder, AGoalHasTheBonesPositionAndRotationAndUnitScale) {
  askew(GetParam().order, with({{55, "goal"}}), {1, 1, 1});
  run(/*makeBones=*/false, /*recordPivot=*/false);
  Placement unscaled = placementOf("Bone");
  for (Vec3& column : unscaled.axes.columns) column = column * 0.5;  // without the object's scale
  EXPECT_LT(worstDifference(placementOf("goal"), unscaled, true), 1e-9);
}

TEST_P(HelperItemsInEveryOrder, ATargetHasTheBonesPositionAndNoRotation) {
  askew(GetParam().order, with({{52, "tar"}}), {1, 1, 1});
  run(/*makeBones=*/false, /*recordPivot=*/false);
  EXPECT_LT(worstDifference(placementOf("tar"), placementOf("Bone"), false), 1e-9);
  EXPECT_EQ(Scene::motionAt(item("tar"), kAxisH, 0), (Vec3{0, 0, 0}));
  EXPECT_EQ(Scene::motionAt(item("tar"), kAxisSX, 0), (Vec3{1, 1, 1}));
}

struct MatchCase {
  std::uint8_t slot;
  const char* name;
  bool rotates;
};

class HelperItemsByRole : public HelperItems, public testing::WithParamInterface<MatchCase> {};

INSTANTIATE_TEST_SUITE_P(Roles, HelperItemsByRole,
                         testing::Values(MatchCase{52, "Target", false}, MatchCase{53, "Pole", false},
                                         MatchCase{55, "Goal", true}, MatchCase{73, "Position", false},
                                         MatchCase{92, "Rotation", true}, MatchCase{110, "Scale", true},
                                         MatchCase{142, "InitialPosition", true}),
                         [](const testing::TestParamInfo<MatchCase>& info) { return info.param.name; });

TEST_P(HelperItemsByRole, AreTurnedWithTheBoneWhereTheirRoleAsksForIt) {
  askew(RotationOrder::HPB, {{GetParam().slot, "helper"}}, {1, 1, 1});
  run(/*makeBones=*/false, /*recordPivot=*/false);
  EXPECT_EQ(Scene::motionAt(item("helper"), kAxisH, 0) != (Vec3{0, 0, 0}), GetParam().rotates);
  EXPECT_LT(worstDifference(placementOf("helper"), placementOf("Bone"), false), 1e-9);
}

TEST_F(HelperItems, AreMadeOnceForAllBonesThatNameThem) {
  convert(load(twoBones({{52, "shared"}}, {{52, "shared"}})));
  EXPECT_EQ(countOf("AddNull shared"), 1u);
  EXPECT_EQ(item("Root").settings.target, &item("shared"));
  EXPECT_EQ(item("Bone").settings.target, &item("shared"));
}

TEST_F(HelperItems, AreNotMadeWhereAnItemOfTheNameExists) {
  Item& light = host.scene().addLight("lamp");
  convert(load(twoBones({{52, "lamp"}})));
  EXPECT_EQ(countOf("AddNull"), 0u);
  EXPECT_EQ(item("Bone").settings.target, &light);
}

// Objects are searched before their bones.
TEST_F(HelperItems, AreTheObjectWhereABoneHasTheSameName) {
  Item& null = host.scene().addNull("Root");
  convert(load(twoBones({{52, "Root"}})));
  EXPECT_EQ(item("Bone").settings.target, &null);
}

TEST_F(HelperItems, AreFoundAmongTheBonesOfLaterObjectsAfterNullsWereAdded) {
  const std::vector<Item*> first = load(twoBones({{52, "new"}, {53, "Far"}}), "first.lwo");
  RigBuilder rig = oneLayer();
  rig.root("Far", {0, 0, 0}, {0, 1, 0});
  const std::vector<Item*> second = load(rig.take(), "second.lwo");
  convert({second[0], first[0]});
  EXPECT_EQ(countOf("AddNull"), 1u);
  EXPECT_EQ(item("Bone").settings.pole, &item("Far"));
}

TEST_F(HelperItems, LeaveTheBoneSelectedForTheCommandsThatFollow) {
  convert(load(twoBones({{52, "tar"}, {186, "5"}})));
  EXPECT_EQ(item("Bone").settings.order, RotationOrder::BHP);
}

TEST_F(HelperItems, GetTheirParents) {
  convert(load(twoBones({
      // clang-format off
      {52, "tar"}, {130, "Root"}, {53, "pole"}, {131, "tar"}, {55, "goal"}, {132, "Root"}, {92, "rot"}, {134, "Root"},
      {110, "scl"}, {135, "Root"},
      // clang-format on
  })));
  EXPECT_EQ(item("tar").parent, &item("Root"));
  EXPECT_EQ(item("pole").parent, &item("tar"));
  EXPECT_EQ(item("goal").parent, &item("Root"));
  EXPECT_EQ(item("rot").parent, &item("Root"));
  EXPECT_EQ(item("scl").parent, &item("Root"));
}

// The initial position item has no parent of its own and takes the position item's.
TEST_F(HelperItems, ShareThePositionItemsParentWithTheInitialPosition) {
  convert(load(twoBones({{73, "pos"}, {133, "Root"}, {142, "init"}})));
  EXPECT_EQ(item("pos").parent, &item("Root"));
  EXPECT_EQ(item("init").parent, &item("Root"));
}

TEST_F(HelperItems, StayWithoutAParentThatDoesNotExist) {
  convert(load(twoBones({{52, "tar"}, {130, "nobody"}})));
  EXPECT_EQ(item("tar").parent, nullptr);
  EXPECT_EQ(countOf("ParentItem"), 0u);
}

TEST_F(HelperItems, ParentTheBoneItself) {
  Item& null = host.scene().addNull("carrier");
  convert(load(twoBones({}, {{51, "carrier"}})));
  EXPECT_EQ(item("Root").parent, &null);
}

// Helpers are shown with 7, bones with 1.
TEST_F(HelperItems, AreShownTexturedWhereTheBoneIsJustVisible) {
  convert(load(twoBones({{52, "tar"}, {145, "1"}})));
  EXPECT_EQ(item("tar").settings.visibility, 7);
  EXPECT_EQ(item("Bone").settings.visibility, 1);
}

TEST_F(HelperItems, AreHiddenWhenStoredSo) {
  convert(load(twoBones({{52, "tar"}, {145, "0"}})));
  EXPECT_EQ(item("tar").settings.visibility, 0);
}

TEST_F(HelperItems, TakeTheirColour) {
  convert(load(twoBones({{52, "tar"}, {152, "Cyan"}, {55, "goal"}, {154, "unknown"}})));
  EXPECT_EQ(item("tar").settings.colour, 10);
  EXPECT_EQ(item("goal").settings.colour, 13);
}

TEST_F(HelperItems, KeepTheirColourForTheModelersSetting) {
  convert(load(twoBones({{52, "tar"}})));
  EXPECT_EQ(item("tar").settings.colour, host.scene().addNull("fresh").settings.colour);
}

TEST_F(HelperItems, GetAShapeOnce) {
  convert(load(twoBones({{52, "shared"}, {136, "1"}}, {{52, "shared"}, {136, "1"}})));
  EXPECT_EQ(countOf("ApplyServer CustomObjHandler LW_ItemShape"), 1u);
  EXPECT_EQ(item("shared").settings.servers.size(), 1u);
}

TEST_F(HelperItems, GetNoShapeUnlessStoredSo) {
  convert(load(twoBones({{52, "tar"}})));
  EXPECT_TRUE(item("tar").settings.servers.empty());
}

// Hosts that leave the bone selected, alone or first, when they make a null: it must not be taken for the null.
class NullNotSelected : public HelperItems, public testing::WithParamInterface<NewItems> {
 protected:
  static LayoutOptions withHabit() {
    LayoutOptions options;
    options.newNull = GetParam();
    return options;
  }
  NullNotSelected() : HelperItems(withHabit()) {}
};

INSTANTIATE_TEST_SUITE_P(Habits, NullNotSelected, testing::Values(NewItems::Left, NewItems::Added));

TEST_P(NullNotSelected, IsFoundAndPlacedAllTheSame) {
  host.select(load(twoBones({{110, "scl"}, {52, "tar"}})));
  run(/*makeBones=*/true, /*recordPivot=*/false);
  EXPECT_FALSE(statusSays("*** ERROR: createNull() ! ***")) << host.transcript().text();
  EXPECT_EQ(item("Bone").settings.target, &item("tar"));
  EXPECT_EQ(item("Bone").settings.same[2].item, &item("scl"));
  EXPECT_LT(worstDifference(placementOf("scl"), placementOf("Bone"), true), 1e-9);
}

TEST_P(NullNotSelected, LeavesTheBoneWhereItIs) {
  convert(load(twoBones({{110, "scl"}, {52, "tar"}})));
  EXPECT_EQ(Scene::motionAt(item("Bone"), kAxisX, 0)[2], 1);
}

class NothingSelected : public HelperItems {
 protected:
  static LayoutOptions cleared() {
    LayoutOptions options;
    options.newNull = NewItems::Cleared;
    return options;
  }
  NothingSelected() : HelperItems(cleared()) {}
};

// Deliberately, though the null can be found by its name: with nothing selected there counts as none made.
TEST_F(NothingSelected, AfterANullIsReported) {
  convert(load(twoBones({{52, "tar"}})));
  EXPECT_TRUE(statusSays("*** ERROR: createNull() ! ***")) << host.transcript().text();
}

TEST_F(NothingSelected, AfterANullDoesNotHideItFromTheNextSearch) {
  convert(load(twoBones({{52, "tar"}}, {{142, "tar"}})));  // the root's initial position item is only reported
  EXPECT_EQ(countOf("AddNull tar"), 1u);
  EXPECT_EQ(item("Bone").settings.target, &item("tar"));
}

// Another plug-in that does something once, behind the first command of that name.
class OtherPlugin : public HelperItems {
 protected:
  using Deed = std::function<void(Scene&)>;
  static inline std::string command;
  static inline Deed deed;

  static LayoutOptions withPlugin() {
    LayoutOptions options;
    options.otherPlugin = [](Scene& scene, std::string_view sent) {
      if (!deed || !sent.starts_with(command)) return;
      const Deed now = std::exchange(deed, nullptr);
      now(scene);
    };
    return options;
  }
  OtherPlugin() : HelperItems(withPlugin()) {}

  void convertWith(const StoredSettings& settings, const std::string& behind, Deed what) {
    command = behind;
    deed = std::move(what);
    convert(load(twoBones(settings)));
    EXPECT_FALSE(deed) << "never came to it";
  }
};

TEST_F(OtherPlugin, ThatAddsAnItemSavesANull) {
  convertWith({{52, "tar"}, {53, "pole"}}, "AddNull tar", [](Scene& scene) { scene.addNull("pole"); });
  EXPECT_EQ(countOf("AddNull pole"), 0u);
  EXPECT_EQ(item("Bone").settings.pole, &item("pole"));
}

TEST_F(OtherPlugin, ThatRenamesAnItemSavesANull) {
  Item& carrier = host.scene().addNull("carrier");
  convertWith({{52, "tar"}, {53, "pole"}}, "AddNull tar", [&](Scene& scene) { scene.rename(carrier, "pole"); });
  EXPECT_EQ(countOf("AddNull"), 1u);
  EXPECT_EQ(item("Bone").settings.pole, &carrier);
}

TEST_F(OtherPlugin, ThatTakesANameAwayCostsANull) {
  Item& carrier = host.scene().addNull("pole");
  convertWith({{52, "tar"}, {53, "pole"}}, "AddNull tar", [&](Scene& scene) { scene.rename(carrier, "carrier"); });
  EXPECT_EQ(countOf("AddNull pole"), 1u);
  EXPECT_NE(item("Bone").settings.pole, &carrier);
}

TEST_F(OtherPlugin, ThatSelectsAnItemOfItsOwnFirstIsToldFromTheNull) {
  convertWith({{52, "tar"}}, "AddNull tar", [](Scene& scene) {
    Item& made = *scene.find("tar");
    scene.deselectAll();
    scene.addToSelection(scene.addNull("Other"));
    scene.addToSelection(made);
  });
  EXPECT_EQ(item("Bone").settings.target, &item("tar"));
}

TEST_F(OtherPlugin, ThatSelectsAnItemOfItsOwnAloneIsToldFromTheNull) {
  convertWith({{52, "tar"}}, "AddNull tar", [](Scene& scene) {
    scene.deselectAll();
    scene.addToSelection(scene.addNull("Other"));
  });
  EXPECT_EQ(item("Bone").settings.target, &item("tar"));
}

// The name is not free any more, so that the null is called by it and a counter.
TEST_F(OtherPlugin, ThatTakesTheNameOfANullIsToldFromIt) {
  convertWith({{52, "tar"}}, "AddNull tar", [](Scene& scene) { scene.rename(*scene.find("tar"), "tar (2)"); });
  EXPECT_EQ(item("Bone").settings.target, &item("tar (2)"));
}

TEST_F(OtherPlugin, ThatAddsAParentInTimeIsNotOverlooked) {
  convertWith({{52, "tar"}, {130, "late"}}, "TargetItem", [](Scene& scene) { scene.addNull("late"); });
  EXPECT_EQ(item("tar").parent, &item("late"));
}

TEST_F(OtherPlugin, ThatSortsTheItemsChangesNothing) {
  host.scene().addNull("first");
  convertWith({{52, "tar"}, {53, "pole"}, {131, "first"}, {130, "Root"}}, "AddNull tar", [](Scene& scene) {
    for (std::size_t i = 0; i < 3; ++i) scene.moveInList(*scene.objects().back(), 0);
    Item& bone = *scene.find("Bone");
    scene.moveInList(bone, 0);
  });
  EXPECT_EQ(item("Bone").settings.pole, &item("pole"));
  EXPECT_EQ(item("pole").parent, &item("first"));
  EXPECT_EQ(item("tar").parent, &item("Root"));
}

class ManyKeys : public HelperItems {
 protected:
  static LayoutOptions threeKeys() {
    LayoutOptions options;
    options.keysOnNewItems = 3;
    return options;
  }
  ManyKeys() : HelperItems(threeKeys()) {}
};

TEST_F(ManyKeys, GetANewKeyAtTheCurrentTime) {
  host.setTime(0.5);
  convert(load(twoBones({{52, "tar"}})));
  const auto& keys = item("tar").motion[kAxisX].keys();
  ASSERT_EQ(keys.size(), 4u);
  EXPECT_EQ(keys[1].time, 0.5);
}

// A host that takes times half a frame apart for one, and makes no second key there.
class KeyBeside : public HelperItems {
 protected:
  static LayoutOptions coarse() {
    LayoutOptions options;
    options.keysOnNewItems = 2;
    options.keyTolerance = 0.5 / options.framesPerSecond;
    options.keyAtSameTime = KeyAtSameTime::Refused;
    return options;
  }
  KeyBeside() : HelperItems(coarse()) {}
};

TEST_F(KeyBeside, TheCurrentTimeIsNotChanged) {
  host.setTime(0.01);
  convert(load(twoBones({{52, "tar"}})));
  for (std::size_t i = 0; i < 3; ++i) {
    for (const Key& key : item("tar").motion[kAxisX + i].keys()) EXPECT_EQ(key.value, 0);
  }
  EXPECT_TRUE(statusSays("*** ERROR: createKey() returned NULL !(Position.Y) ***")) << host.transcript().text();
  EXPECT_EQ(item("Bone").settings.target, &item("tar"));
}

TEST_F(KeyBeside, IsSetAtItsOwnTime) {
  host.setTime(1);
  convert(load(twoBones({{52, "tar"}})));
  EXPECT_EQ(Scene::motionAt(item("tar"), kAxisX, 1)[1], host.scene().placement(item("Bone"), 1).position[1]);
}

class OneKey : public HelperItems {};

TEST_F(OneKey, IsChangedInPlace) {
  host.setTime(0.5);
  convert(load(twoBones({{52, "tar"}})));
  EXPECT_EQ(item("tar").motion[kAxisX].keys().size(), 1u);
}

class MissingChannel : public HelperItems {
 protected:
  static LayoutOptions withoutPositionX() {
    LayoutOptions options;
    options.missingChannel = "Position.X";
    return options;
  }
  MissingChannel() : HelperItems(withoutPositionX()) {}
};

TEST_F(MissingChannel, EndsTheRunWithItsPath) {
  convert(load(twoBones({{52, "tar"}, {31, "50"}})));
  EXPECT_TRUE(statusSays("*** ERROR: getChannelByPathName() returned NULL !(Position.X) ***")) << host.transcript().text();
  EXPECT_TRUE(host.state().ikEnabled);
}

class DecoyChannel : public HelperItems {
 protected:
  static LayoutOptions withDecoy() {
    LayoutOptions options;
    options.decoyChannel = true;
    return options;
  }
  DecoyChannel() : HelperItems(withDecoy()) {}
};

TEST_F(DecoyChannel, InAGroupBelowIsNotTaken) {
  convert(load(twoBones({{52, "tar"}})));
  EXPECT_EQ(Scene::motionAt(item("tar"), kAxisX, 0)[1], host.scene().placement(item("Bone"), 0).position[1]);
}

}  // namespace
}  // namespace standin
