// The scene layer of Layout and what stands directly on it, without the tool: on hosts that answer oddly, and where a tool
// would have to be in odd company to come there.
#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "layout/ST_bone_set_params.h"
#include "layout/conversion.h"
#include "tests/tools/scene_layer_fixture.h"

namespace varnel::test {
namespace {

// ---------------------------------------------------------------------------------------------------------------------
// Kinds and names

TEST_F(SceneLayer, TellsEveryKindOfItem) {
  Item& null = host.scene().addNull("Null");
  EXPECT_EQ(lw::ClassifyItem(id(null)), lw::ItemKind::OtherObject);
  EXPECT_EQ(lw::ClassifyItem(id(host.scene().addBone(null, "Bone"))), lw::ItemKind::Bone);
  EXPECT_EQ(lw::ClassifyItem(id(host.scene().addLight("Light"))), lw::ItemKind::Light);
  EXPECT_EQ(lw::ClassifyItem(id(host.scene().addCamera("Camera"))), lw::ItemKind::Camera);
}

TEST_F(SceneLayer, TakesATypeThatItDoesNotKnowForSomethingElse) {
  static lw::LWItemInfo items;
  replace("LW Item Info 9", items);
  items.type = [](lw::ItemId) { return 17; };
  acquire();
  EXPECT_EQ(lw::ClassifyItem(id(host.scene().addNull("Null"))), lw::ItemKind::Other);
}

TEST_F(SceneLayer, FindsAnItemThatWasToldOfBeforeTheFirstSearch) {
  lw::CSceneItems items;
  Item& null = host.scene().addNull("Null");
  items.added(id(null), "Null");
  EXPECT_EQ(items.FindItemByName("Null"), id(null));
}

// The host counts what has the same name: what was asked for is not always what it is called.
TEST_F(SceneLayer, FindsAnItemThatGotAnotherNameThanItWasAskedFor) {
  lw::CSceneItems items;
  Item& first = host.scene().addNull("Null");
  EXPECT_EQ(items.FindItemByName("Null"), id(first));
  Item& second = host.scene().addNull("Null");
  items.added(id(second), "Null");
  EXPECT_EQ(items.FindItemByName("Null (2)"), id(second));
  EXPECT_EQ(items.FindItemByName("Null (1)"), id(first));
  EXPECT_EQ(items.FindItemByName("Null"), nullptr);
}

TEST_F(SceneLayer, KeepsTheHostsOrderWhereANewItemHasTheNameOfAnother) {
  Item& light = host.scene().addLight("Key");
  lw::CSceneItems items;
  EXPECT_EQ(items.FindItemByName("Key"), id(light));
  Item& null = host.scene().addNull("Key");  // objects come before lights
  items.added(id(null), "Key");
  EXPECT_EQ(items.FindItemByName("Key"), id(null));
}

// Other plug-ins change the scene while a run goes on.
TEST_F(SceneLayer, FindsAnItemThatSomebodyElseAdded) {
  lw::CSceneItems items;
  EXPECT_EQ(items.FindItemByName("late"), nullptr);
  Item& late = host.scene().addNull("late");
  EXPECT_EQ(items.FindItemByName("late"), id(late));
}

TEST_F(SceneLayer, DoesNotBelieveANameThatSomebodyElseChanged) {
  Item& null = host.scene().addNull("before");
  lw::CSceneItems items;
  EXPECT_EQ(items.FindItemByName("before"), id(null));
  host.scene().rename(null, "after");
  EXPECT_EQ(items.FindItemByName("before"), nullptr);
  EXPECT_EQ(items.FindItemByName("after"), id(null));
}

TEST_F(SceneLayer, FindsTheNextItemOfANameThatTheFirstHasLost) {
  Item& first = host.scene().addNull("Key");
  Item& second = host.scene().addLight("Key");
  lw::CSceneItems items;
  EXPECT_EQ(items.FindItemByName("Key"), id(first));
  host.scene().rename(first, "other");
  EXPECT_EQ(items.FindItemByName("Key"), id(second));
}

// Walking the scene for every name would take long in large scenes.
TEST_F(SceneLayer, AsksOneItemOnlyForANameThatIsThere) {
  static std::size_t asked = 0;
  static lw::LWItemInfo table;
  replace("LW Item Info 9", table);
  static const char* (*nameOf)(lw::ItemId);
  nameOf = table.name;
  table.name = [](lw::ItemId item) {
    ++asked;
    return nameOf(item);
  };
  acquire();
  for (int i = 0; i < 100; ++i) host.scene().addNull("Null" + std::to_string(i));
  lw::CSceneItems items;
  EXPECT_NE(items.FindItemByName("Null0"), nullptr);  // walks
  asked = 0;
  for (int i = 0; i < 100; ++i) EXPECT_NE(items.FindItemByName("Null" + std::to_string(i)), nullptr);
  EXPECT_EQ(asked, 100U);
}

// ---------------------------------------------------------------------------------------------------------------------
// The selection

const lw::ItemId* selectionToTell = nullptr;

// Offers an interface service whose selection is that of the test.
void tellSelection(const lw::ItemId* selection) {
  selectionToTell = selection;
  static lw::LWInterfaceInfo told;
  told = *static_cast<const lw::LWInterfaceInfo*>(standin::Globals::lookup()("LW Interface Info 8", lw::kUseTransient));
  standin::globals().offer("LW Interface Info 8", std::function<void*()>([] {
                             told.selItems = selectionToTell;
                             return static_cast<void*>(&told);
                           }));
}

TEST_F(SceneLayer, SavesASelectedItemOnce) {
  const lw::ItemId a = id(host.scene().addNull("A"));
  const lw::ItemId b = id(host.scene().addNull("B"));
  const lw::ItemId twice[] = {a, b, a, nullptr};
  tellSelection(twice);
  EXPECT_EQ(lw::SaveSelection(), (lw::Selection{a, b}));
}

TEST_F(SceneLayer, SavesNothingWhereTheHostHasNoList) {
  tellSelection(nullptr);
  EXPECT_TRUE(lw::SaveSelection().empty());
}

TEST_F(SceneLayer, RestoresAnEmptySelectionWithoutACommand) {
  EXPECT_TRUE(lw::RestoreSelection({}));
  EXPECT_TRUE(commands().empty());
}

TEST_F(SceneLayer, ARunWithNothingSelectedOnlySaysThatItRan) {
  lwp::convertSelection(true, true);
  EXPECT_TRUE(statusSays("Orlo:SkelegonOptimize done."));
  for (const std::string& command : commands()) {
    EXPECT_TRUE(command.rfind("StatusMsg", 0) == 0 || command.rfind("Enable", 0) == 0) << command;
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Channels

TEST_F(SceneLayer, SetsAndResetsTheScale) {
  Item& null = host.scene().addNull("Null");
  EXPECT_TRUE(lw::SetScale(id(null), 2, 3, 4));
  EXPECT_EQ(standin::Scene::motionAt(null, standin::kAxisSX, 0), (Vec3{2, 3, 4}));
  EXPECT_TRUE(lw::ResetScale(id(null)));
  EXPECT_EQ(standin::Scene::motionAt(null, standin::kAxisSX, 0), (Vec3{1, 1, 1}));
}

TEST_F(SceneLayer, AnItemWithoutAChannelGroupHasNoChannels) {
  static lw::LWItemInfo items;
  replace("LW Item Info 9", items);
  items.chanGroup = [](lw::ItemId) { return lw::GroupId(); };
  acquire();
  Item& null = host.scene().addNull("Null");
  EXPECT_EQ(thrownBy([&] { lw::SetPosition(id(null), 1, 2, 3); }), "getChannelByPathName() returned NULL !(Position.X)");
}

// A host that names the group of the three channels and the channel in it by its letter.
class NestedChannels : public SceneLayer {
 protected:
  // Steps of the path below the item's own group; what is asked of each is passed on to the host as a whole.
  static inline char group = 0;
  static inline char letter = 0;
  static inline lw::ChannelId wanted = nullptr;

  NestedChannels() {
    static lw::LWChannelInfo channels;
    replace("Channel Info 3", channels);
    channels.nextChannel = [](lw::GroupId of, lw::ChannelId after) {
      const bool isNested = of == reinterpret_cast<lw::GroupId>(&group);
      return isNested && after == nullptr ? reinterpret_cast<lw::ChannelId>(&letter) : nullptr;
    };
    channels.nextGroup = [](lw::GroupId of, lw::GroupId after) {
      const bool isNested = of == reinterpret_cast<lw::GroupId>(&group);
      return !isNested && after == nullptr ? reinterpret_cast<lw::GroupId>(&group) : nullptr;
    };
    channels.groupName = [](lw::GroupId) { return "Position"; };
    channels.channelName = [](lw::ChannelId) { return "X"; };
    static lw::EnvelopeId (*envelopeOf)(lw::ChannelId);
    envelopeOf = channels.channelEnvelope;
    channels.channelEnvelope = [](lw::ChannelId) { return envelopeOf(wanted); };
  }
};

TEST_F(NestedChannels, AreFoundByTheirWholePath) {
  Item& null = host.scene().addNull("Null");
  const lw::GroupId own = lw::itemInfo().chanGroup(id(null));
  wanted = lw::channelInfo().nextChannel(own, nullptr);  // still of the host itself: the first is Position.X
  acquire();
  lw::SetChannelValue(id(null), "Position.X", 5);
  EXPECT_EQ(positionOf(null)[0], 5);
  EXPECT_EQ(thrownBy([&] { lw::SetChannelValue(id(null), "X", 5); }), "getChannelByPathName() returned NULL !(X)");
}

class ChannelsOfTwoKeys : public SceneLayer {
 protected:
  static standin::LayoutOptions twoKeys() {
    standin::LayoutOptions options;
    options.keysOnNewItems = 2;
    return options;
  }
  ChannelsOfTwoKeys() : SceneLayer(twoKeys()) {}
};

// What a host answers where a key stands already is not documented; only a single key that cannot be changed ends a run.
TEST_F(ChannelsOfTwoKeys, ARefusedNewKeyIsNoFailure) {
  static lw::LWEnvelopeFuncs envelopes;
  replace("Animation Envelopes 4", envelopes);
  envelopes.createKey = [](lw::EnvelopeId, double, double) { return lw::KeyId(); };
  acquire();
  host.setTime(0.5);  // no key stands there
  Item& null = host.scene().addNull("Null");
  EXPECT_EQ(thrownBy([&] { lw::SetPosition(id(null), 1, 2, 3); }), "");
  EXPECT_EQ(positionOf(null), (Vec3{0, 0, 0}));
}

// Each answer to a new key where one stands. The value that counts there afterwards is the one that was set.
class KeysAtOneTime : public SceneLayer, public testing::WithParamInterface<standin::KeyAtSameTime> {
 protected:
  static standin::LayoutOptions withHabit() {
    standin::LayoutOptions options;
    options.keysOnNewItems = 2;
    options.keyAtSameTime = GetParam();
    return options;
  }
  KeysAtOneTime() : SceneLayer(withHabit()) {}
};

INSTANTIATE_TEST_SUITE_P(Answers, KeysAtOneTime,
                         testing::Values(standin::KeyAtSameTime::Changed, standin::KeyAtSameTime::ChangedSilently,
                                         standin::KeyAtSameTime::Refused, standin::KeyAtSameTime::Second));

TEST_P(KeysAtOneTime, HoldTheValueThatWasSet) {
  Item& null = host.scene().addNull("Null");
  EXPECT_EQ(thrownBy([&] { lw::SetPosition(id(null), 1, 2, 3); }), "");
  EXPECT_EQ(positionOf(null), (Vec3{1, 2, 3}));
}

class ChannelsWithoutEnvelopes : public SceneLayer {
 protected:
  static standin::LayoutOptions withoutEnvelopes() {
    standin::LayoutOptions options;
    options.channelWithoutKeys = "Position.Y";
    return options;
  }
  ChannelsWithoutEnvelopes() : SceneLayer(withoutEnvelopes()) {}
};

TEST_F(ChannelsWithoutEnvelopes, AreReportedAndTheOthersAreSet) {
  Item& null = host.scene().addNull("Null");
  EXPECT_EQ(thrownBy([&] { lw::SetPosition(id(null), 1, 2, 3); }), "");
  EXPECT_EQ(positionOf(null), (Vec3{1, 0, 3}));
  EXPECT_TRUE(statusSays("*** ERROR: channelEnvelope() returned NULL !(Position.Y) ***"));
}

// ---------------------------------------------------------------------------------------------------------------------
// Nulls and their places

TEST_F(SceneLayer, ANullWithoutANameIsCalledNull) {
  Item& bone = host.scene().addBone(host.scene().addNull("Object"), "Bone");
  lw::CSceneItems items;
  const lw::ItemId made = lwp::FindOrCreateNull(items, "", id(bone), false, false);
  EXPECT_EQ(made, id(*host.scene().find("Null")));
  // Another one, though there is one of that name: no name was asked for.
  EXPECT_NE(lwp::FindOrCreateNull(items, "", id(bone), false, false), made);
}

TEST_F(SceneLayer, ANullThatTheHostDoesNotSelectIsNotFound) {
  Item& bone = host.scene().addBone(host.scene().addNull("Object"), "Bone");
  tellSelection(nullptr);
  lw::CSceneItems items;
  EXPECT_EQ(lwp::FindOrCreateNull(items, "goal", id(bone), true, false), nullptr);
  EXPECT_TRUE(statusSays("*** ERROR: createNull() ! ***"));
}

TEST_F(SceneLayer, APlaceThatIsNoNumberIsReportedAndTheNullStaysWhereItIs) {
  const double endless = std::numeric_limits<double>::infinity();
  for (std::size_t axis = 0; axis < 3; ++axis) {
    Item& bone = host.scene().addBone(host.scene().addNull("Object"), "Bone");
    bone.motion[standin::kAxisX + axis].assign(0, endless);
    host.scene().moved(bone);
    lw::CSceneItems items;
    const std::string name = "goal" + std::to_string(axis);
    EXPECT_NE(lwp::FindOrCreateNull(items, name, id(bone), true, true), nullptr);
    EXPECT_EQ(positionOf(*host.scene().find(name)), (Vec3{0, 0, 0})) << axis;
  }
  EXPECT_TRUE(statusSays("*** ERROR: matchTransform() ! ***"));
}

// A host that makes a new null the child of what is selected.
class NullsBelowAParent : public SceneLayer {
 protected:
  static inline lw::ItemId parent = nullptr;

  NullsBelowAParent() : above(host.scene().addNull("Above")), bone(host.scene().addBone(above, "Bone")) {
    static lw::LWItemInfo items;
    replace("LW Item Info 9", items);
    static lw::ItemId (*parentOf)(lw::ItemId);
    parentOf = items.parent;
    items.parent = [](lw::ItemId item) {
      const lw::ItemId found = parentOf(item);
      return found == nullptr && item != parent ? parent : found;
    };
    acquire();
    parent = id(above);
  }

  void place(Item& item, standin::Axis first, const Vec3& values) {
    for (std::size_t i = 0; i < 3; ++i) item.motion[first + i].assign(0, values[i]);
    host.scene().moved(item);
  }

  Item& above;
  Item& bone;
};

TEST_F(NullsBelowAParent, ArePlacedAlongTheParentsAxes) {
  place(above, standin::kAxisSX, {2, 2, 2});
  place(bone, standin::kAxisX, {1, 2, 3});
  Item& goal = host.scene().addNull("goal");
  host.scene().setParent(goal, &above);
  EXPECT_TRUE(lwp::MatchTransform(id(goal), id(bone), true, true));
  EXPECT_EQ(positionOf(goal), (Vec3{1, 2, 3}));
}

TEST_F(NullsBelowAParent, AreReportedWhereTheParentIsFlat) {
  place(above, standin::kAxisSX, {1, 0, 1});
  lw::CSceneItems items;
  EXPECT_NE(lwp::FindOrCreateNull(items, "goal", id(bone), true, false), nullptr);
  EXPECT_TRUE(statusSays("*** ERROR: matchTransform() ! ***"));
  EXPECT_EQ(positionOf(*host.scene().find("goal")), (Vec3{0, 0, 0}));
}

// What the host says of an item's axes. All are as long as `length`, but for the one that is no number.
class OddAxes : public SceneLayer {
 protected:
  static inline double length = 1;
  static inline int brokenAxis = 0;
  static inline lw::ItemId endless = nullptr;  // the item whose axes have no end

  OddAxes() {
    static lw::LWItemInfo items;
    replace("LW Item Info 9", items);
    static void (*param)(lw::ItemId, int, double, double*);
    param = items.param;
    items.param = [](lw::ItemId item, int which, double time, double* out) {
      param(item, which, time, out);
      const bool isAxis = which == lw::kParamRight || which == lw::kParamUp || which == lw::kParamForward;
      for (int i = 0; isAxis && i < 3; ++i) out[i] *= which == brokenAxis ? std::nan("") : length;
      if (isAxis && item == endless) out[0] = std::numeric_limits<double>::infinity();
    };
    acquire();
    length = 1;
    brokenAxis = 0;
    endless = nullptr;
  }

  bool match() {
    Item& object = host.scene().addNull("Object");
    Item& goal = host.scene().addNull("goal");
    return lwp::MatchTransform(id(goal), id(host.scene().addBone(object, "Bone")), true, true);
  }
};

TEST_F(OddAxes, ThatAreNoNumbersPlaceNothing) {
  for (const int axis : {lw::kParamRight, lw::kParamUp, lw::kParamForward}) {
    brokenAxis = axis;
    EXPECT_FALSE(match()) << axis;
  }
}

TEST_F(OddAxes, ThatAreTooLongToBeMeasuredPlaceNothing) {
  length = 1e200;
  EXPECT_FALSE(match());
  length = 2;
  EXPECT_TRUE(match());
}

// Seen along the axes of a turned parent, such an axis has no end in any direction.
TEST_F(OddAxes, WithoutAnEndPlaceNothing) {
  Item& above = host.scene().addNull("Above");
  for (std::size_t i = 0; i < 3; ++i) above.motion[standin::kAxisH + i].assign(0, 0.5 + 0.1 * static_cast<double>(i));
  host.scene().moved(above);
  Item& goal = host.scene().addNull("goal");
  host.scene().setParent(goal, &above);
  Item& bone = host.scene().addBone(above, "Bone");
  EXPECT_TRUE(lwp::MatchTransform(id(goal), id(bone), true, true));
  endless = id(bone);
  EXPECT_FALSE(lwp::MatchTransform(id(goal), id(bone), true, true));
}

// ---------------------------------------------------------------------------------------------------------------------
// Bones and shapes

class EmptyWeightMapNames : public SceneLayer {
 protected:
  static standin::LayoutOptions emptyNames() {
    standin::LayoutOptions options;
    options.noWeightMapIsEmpty = true;
    return options;
  }
  EmptyWeightMapNames() : SceneLayer(emptyNames()) {}
};

TEST_F(EmptyWeightMapNames, AreNoWeightMaps) {
  Item& bone = host.scene().addBone(host.scene().addNull("Object"), "Bone");
  skg::SkelegonProperties properties = skg::propertiesFromFile({});
  properties[skg::Slot::WeightMapOnly] = "1";
  lw::CSceneItems items;
  EXPECT_TRUE(lwp::ApplyBoneParameters(items, id(bone), properties));
  const std::vector<std::string> sent = commands();
  EXPECT_EQ(std::count(sent.begin(), sent.end(), "BoneWeightMapOnly"), 0);
}

TEST_F(SceneLayer, AnItemThatHasAShapeGetsNoSecondOne) {
  Item& null = host.scene().addNull("Null");
  null.settings.servers = {{"CustomObjHandler", "Another"}, {"CustomObjHandler", "LW_ItemShape"}};
  EXPECT_TRUE(lwp::EnsureItemShape(id(null)));
  EXPECT_TRUE(commands().empty());
}

}  // namespace
}  // namespace varnel::test
