// How strictly the tables of the stand-in Layout take their callers, and what a refused call gives.
#include <cmath>

#include "tests/standin/layout_fixture.h"

namespace standin {
namespace {

// ---------------------------------------------------------------------------------------------------------------------
// Globals

TEST(LayoutGlobals, CanBeWithheld) {
  LayoutSession session;
  globals().withhold("LW Item Info 9");
  EXPECT_EQ(session.items(), nullptr);
}

TEST(LayoutGlobals, CarryTheNumbersOfProductAndLocale) {
  LayoutSession session;
  session.host.setLocale(kLocaleJapanese);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(Globals::lookup()("Locale Info", 0)), 0x411U);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(Globals::lookup()("Product Info", 0)), 0x08F00641U);
}

TEST(LayoutGlobals, AreFreshForANewSession) {
  {
    LayoutSession old;
    old.scene().addNull("Old");
    globals().withhold("LW Item Info 9");
  }
  LayoutSession session;
  ASSERT_NE(session.items(), nullptr);
  EXPECT_EQ(session.items()->first(lw::kItemObject, nullptr), nullptr);
}

// ---------------------------------------------------------------------------------------------------------------------
// Walking

TEST(ItemWalk, GoesThroughAKindInOrder) {
  LayoutSession session;
  Item& a = session.scene().addNull("A");
  Item& light = session.scene().addLight("Light");
  Item& b = session.scene().addNull("B");
  EXPECT_EQ(session.items()->first(lw::kItemObject, nullptr), session.id(a));
  EXPECT_EQ(session.items()->next(session.id(a)), session.id(b));
  EXPECT_EQ(session.items()->next(session.id(b)), nullptr);
  EXPECT_EQ(session.items()->first(lw::kItemLight, nullptr), session.id(light));
  EXPECT_EQ(session.items()->first(lw::kItemCamera, nullptr), nullptr);
}

TEST(ItemWalk, OfBonesWithoutAnObjectIsEmpty) {
  LayoutSession session;
  session.selectedBone();
  EXPECT_EQ(session.items()->first(lw::kItemBone, nullptr), nullptr);
  EXPECT_TRUE(noFaults());
}

TEST(TopBone, HasItsObjectAsParentOrNone) {
  LayoutOptions options;
  options.topBoneHasParent = false;
  {
    LayoutSession session;
    EXPECT_EQ(session.items()->parent(session.id(session.selectedBone())), session.id(*session.object()));
  }
  LayoutSession session(options);
  EXPECT_EQ(session.items()->parent(session.id(session.selectedBone())), nullptr);
}

// ---------------------------------------------------------------------------------------------------------------------
// Parameters

TEST(ItemParam, GivesWorldAxesWithTheirLengths) {
  LayoutSession session;
  Item& null = session.scene().addNull("A");
  null.motion[kAxisSX].assign(0, 4);
  null.motion[kAxisX].assign(0, 7);
  double right[3] = {};
  double position[3] = {};
  session.items()->param(session.id(null), lw::kParamRight, 0, right);
  session.items()->param(session.id(null), lw::kParamWorldPosition, 0, position);
  EXPECT_EQ(right[0], 4);
  EXPECT_EQ(position[0], 7);
}

TEST(ItemParam, GivesMotionPivotAndPivotRotation) {
  LayoutSession session;
  Item& null = session.scene().addNull("A");
  null.motion[kAxisH].assign(0, 0.5);
  null.motion[kAxisSX].assign(0, 4);
  null.pivot = {1, 2, 3};
  null.pivotRotation = {0.25, 0, 0};
  const auto firstOf = [&](int param) {
    double out[3] = {};
    session.items()->param(session.id(null), param, 0, out);
    return out[0];
  };
  EXPECT_EQ(firstOf(lw::kParamRotation), 0.5);
  EXPECT_EQ(firstOf(lw::kParamScale), 4);
  EXPECT_EQ(firstOf(lw::kParamPivot), 1);
  EXPECT_EQ(firstOf(lw::kParamPivotRotation), 0.25);
}

TEST(ItemParam, ThatTheHostDoesNotKnowIsAFault) {
  LayoutSession session;
  double out[16] = {};
  session.items()->param(session.id(session.selectedBone()), 13, 0, out);
  EXPECT_TRUE(oneFaultSaying("parameter 13"));
}

TEST(ItemLimits, OfAnotherParameterAreAFault) {
  LayoutSession session;
  double low[3];
  double high[3];
  session.items()->limits(session.id(session.selectedBone()), lw::kParamWorldPosition, low, high);
  EXPECT_TRUE(oneFaultSaying("not position, rotation or scale"));
}

// ---------------------------------------------------------------------------------------------------------------------
// Misuse

TEST(Misuse, OfNoItemIsAFault) {
  LayoutSession session;
  EXPECT_EQ(session.items()->name(nullptr), nullptr);
  EXPECT_TRUE(oneFaultSaying("no item"));
}

TEST(Misuse, OfABareNumberIsAFault) {
  LayoutSession session;
  const auto half =
      reinterpret_cast<lw::ItemId>(std::uintptr_t{session.selectedBone().number});  // NOLINT(performance-no-int-to-ptr)
  session.items()->name(half);
  EXPECT_TRUE(oneFaultSaying("something that is no item"));
}

TEST(Misuse, OfARemovedItemIsAFault) {
  LayoutSession session;
  Item& null = session.scene().addNull("Gone");
  session.scene().remove(null);
  EXPECT_EQ(session.items()->type(session.id(null)), 0);
  EXPECT_TRUE(oneFaultSaying("an item that was removed"));
}

TEST(Misuse, OfAnItemOfTheWrongKindIsAFault) {
  LayoutSession session;
  session.bones()->flags(session.id(*session.object()));
  EXPECT_TRUE(oneFaultSaying("an object instead of a bone"));
}

TEST(Misuse, OfANullOutputIsAFault) {
  LayoutSession session;
  session.items()->param(session.id(session.selectedBone()), lw::kParamPosition, 0, nullptr);
  EXPECT_TRUE(oneFaultSaying("null"));
}

TEST(Misuse, OfAnUnusedSlotIsAFaultThatNamesIt) {
  LayoutSession session;
  reinterpret_cast<void* (*)()>(session.items()->gap_88[1])();
  EXPECT_TRUE(oneFaultSaying("offset 96"));
  EXPECT_EQ(witness().faults().front().function, "LWItemInfo");
}

TEST(Misuse, OfServerZeroIsAFault) {
  LayoutSession session;
  session.items()->server(session.id(*session.object()), "CustomObjHandler", 0);
  EXPECT_TRUE(oneFaultSaying("count from 1"));
}

TEST(Misuse, OfANullCommandIsAFault) {
  LayoutSession session;
  reinterpret_cast<lw::CommandFunc>(Globals::lookup()("LW Command Interface", 0))(nullptr);
  EXPECT_TRUE(oneFaultSaying("null"));
}

// ---------------------------------------------------------------------------------------------------------------------
// Things that last only until the next call

TEST(ReturnedText, IsSpoiltByTheNextOne) {
  LayoutSession session;
  Item& a = session.scene().addNull("Apple");
  Item& b = session.scene().addNull("Pear");
  const char* first = session.items()->name(session.id(a));
  EXPECT_STREQ(first, "Apple");
  session.items()->name(session.id(b));
  EXPECT_STREQ(first, "XXXXX");
}

TEST(InterfaceInfo, ThatWasAskedForBeforeDoesNotFollow) {
  LayoutSession session;
  const lw::LWInterfaceInfo* before = session.interfaceInfo();
  session.send("AddNull A");
  EXPECT_EQ(before->selItems[0], nullptr);
  EXPECT_NE(session.interfaceInfo()->selItems[0], nullptr);
}

TEST(InterfaceInfo, IsSpoiltByTheNextOne) {
  LayoutSession session;
  Item& bone = session.selectedBone();
  const lw::LWInterfaceInfo* before = session.interfaceInfo();
  session.interfaceInfo();
  EXPECT_NE(before->selItems[0], session.id(bone));
  session.items()->name(before->selItems[0]);
  EXPECT_TRUE(oneFaultSaying("something that is no item"));
}

TEST(InterfaceInfo, MayHaveNoListWithNothingSelected) {
  LayoutOptions options;
  options.selectedItemsNullWhenEmpty = true;
  LayoutSession session(options);
  EXPECT_EQ(session.interfaceInfo()->selItems, nullptr);
}

TEST(TimeInfo, IsOfTheMomentItWasAskedFor) {
  LayoutSession session;
  session.host.setTime(0.5);
  const auto* before = session.table<lw::LWTimeInfo>("LW Time Info");
  session.host.setTime(2);
  EXPECT_EQ(before->time, 0.5);
  const auto* now = session.table<lw::LWTimeInfo>("LW Time Info");
  EXPECT_EQ(now->time, 2);
  EXPECT_EQ(now->frame, 60);
  EXPECT_TRUE(std::isnan(before->time));
}

// ---------------------------------------------------------------------------------------------------------------------
// Object files

TEST(ObjectInfo, GivesFileAndLayer) {
  LayoutSession session;
  ObjectFile file;
  file.layers.resize(2);
  file.layers[1].number = 3;
  const auto items = session.scene().addObject(file, "rigs/cat.lwo");
  EXPECT_STREQ(session.objects()->filename(session.id(*items[1])), "rigs/cat.lwo");
  EXPECT_EQ(session.objects()->layerLoaded(session.id(*items[1])), 3);
}

TEST(ObjectInfo, OfANullHasAnEmptyFileNameWhereTheHostGivesOne) {
  LayoutOptions options;
  options.nullFileName = NoFileName::Empty;
  LayoutSession session(options);
  EXPECT_STREQ(session.objects()->filename(session.id(session.scene().addNull("A"))), "");
}

// ---------------------------------------------------------------------------------------------------------------------
// Refused calls

struct Refusal {
  const char* function;
  bool (*isAnswered)(LayoutSession&, lw::ItemId bone);  // as a function answers that failed
};

const Refusal kRefusals[] = {
    {"LWItemInfo::name", [](LayoutSession& s, lw::ItemId bone) { return s.items()->name(bone) == nullptr; }},
    {"LWItemInfo::parent", [](LayoutSession& s, lw::ItemId bone) { return s.items()->parent(bone) == nullptr; }},
    {"LWItemInfo::chanGroup", [](LayoutSession& s, lw::ItemId bone) { return s.items()->chanGroup(bone) == nullptr; }},
    {"LWItemInfo::flags", [](LayoutSession& s, lw::ItemId bone) { return s.items()->flags(bone) == 0; }},
    {"LWItemInfo::target", [](LayoutSession& s, lw::ItemId bone) { return s.items()->target(bone) == nullptr; }},
    {"LWItemInfo::pole", [](LayoutSession& s, lw::ItemId bone) { return s.items()->pole(bone) == nullptr; }},
    {"LWBoneInfo::falloff", [](LayoutSession& s, lw::ItemId bone) { return s.bones()->falloff(bone) == 0; }},
    {"LWBoneInfo::strength", [](LayoutSession& s, lw::ItemId bone) { return s.bones()->strength(bone) == 0; }},
    {"LWInterfaceInfo::itemColor",
     [](LayoutSession& s, lw::ItemId bone) { return s.interfaceInfo()->itemColor(bone) == 0; }},
    {"LWBoneInfo::flags", [](LayoutSession& s, lw::ItemId bone) { return s.bones()->flags(bone) == 0; }},
    {"global lookup", [](LayoutSession& s, lw::ItemId) { return s.items() == nullptr; }},
    {"LW Command Interface", [](LayoutSession& s, lw::ItemId) { return s.send("RefreshNow") == 0; }},
};

class RefusedCall : public ::testing::TestWithParam<Refusal> {};

INSTANTIATE_TEST_SUITE_P(Functions, RefusedCall, ::testing::ValuesIn(kRefusals), [](const auto& info) {
  std::string name = info.param.function;
  std::erase_if(name, [](char c) { return c == ':' || c == ' '; });
  return name;
});

TEST_P(RefusedCall, AnswersAsAFailedOne) {
  LayoutSession session;
  const lw::ItemId bone = session.id(session.selectedBone());
  witness().refuseNext(GetParam().function);
  EXPECT_TRUE(GetParam().isAnswered(session, bone));
  EXPECT_EQ(witness().refusedFunction(), GetParam().function);
  EXPECT_TRUE(noFaults());
}

}  // namespace
}  // namespace standin
