#include "tests/standin/layout_fixture.h"

namespace standin {
namespace {

std::vector<std::string> channelNames(LayoutSession& session, lw::GroupId group) {
  std::vector<std::string> names;
  const lw::LWChannelInfo* info = session.channels();
  for (lw::ChannelId channel = info->nextChannel(group, nullptr); channel != nullptr;
       channel = info->nextChannel(group, channel)) {
    names.emplace_back(info->channelName(channel));
  }
  return names;
}

lw::ChannelId channelOf(LayoutSession& session, const Item& item, const std::string& name) {
  const lw::LWChannelInfo* info = session.channels();
  const lw::GroupId group = session.items()->chanGroup(session.id(item));
  lw::ChannelId channel = info->nextChannel(group, nullptr);
  while (channel != nullptr && name != info->channelName(channel)) channel = info->nextChannel(group, channel);
  return channel;
}

lw::EnvelopeId envelopeOf(LayoutSession& session, const Item& item, const std::string& name) {
  return session.channels()->channelEnvelope(channelOf(session, item, name));
}

double keyValue(LayoutSession& session, lw::EnvelopeId envelope, lw::KeyId key, int tag = lw::kKeyValue) {
  double value = -99;
  EXPECT_EQ(session.envelopes()->keyGet(envelope, key, tag, &value), 1);
  return value;
}

const std::vector<std::string> kMotion{"Position.X", "Position.Y", "Position.Z", "Rotation.H", "Rotation.P",
                                       "Rotation.B", "Scale.X",    "Scale.Y",    "Scale.Z"};

TEST(ItemChannels, AreTheNineMotionsDirectlyInTheItemsGroup) {
  LayoutSession session;
  EXPECT_EQ(channelNames(session, session.items()->chanGroup(session.id(session.selectedBone()))), kMotion);
}

TEST(ItemChannels, HaveAGroupOfOthersBelow) {
  LayoutSession session;
  const lw::GroupId group = session.items()->chanGroup(session.id(session.selectedBone()));
  const lw::LWChannelInfo* info = session.channels();
  const lw::GroupId below = info->nextGroup(group, nullptr);
  ASSERT_NE(below, nullptr);
  EXPECT_EQ(info->nextGroup(group, below), nullptr);
  EXPECT_EQ(info->nextGroup(below, nullptr), nullptr);
  EXPECT_EQ(channelNames(session, below), (std::vector<std::string>{"GoalStrength", "IKFKBlending"}));
  EXPECT_EQ(info->channelEnvelope(info->nextChannel(below, nullptr)), nullptr);
}

TEST(ItemChannels, CanLackOneOrHaveADecoyBelow) {
  LayoutOptions options;
  options.missingChannel = "Position.X";
  options.decoyChannel = true;
  LayoutSession session(options);
  const lw::GroupId group = session.items()->chanGroup(session.id(session.selectedBone()));
  EXPECT_EQ(channelNames(session, group), std::vector<std::string>(kMotion.begin() + 1, kMotion.end()));
  EXPECT_EQ(channelNames(session, session.channels()->nextGroup(group, nullptr)).back(), "Position.X");
}

TEST(RootGroups, AreThoseOfTheItems) {
  LayoutSession session;
  Item& a = session.scene().addNull("A");
  session.scene().remove(session.scene().addNull("Gone"));
  Item& b = session.scene().addNull("B");
  const lw::LWChannelInfo* info = session.channels();
  const lw::GroupId first = info->nextGroup(nullptr, nullptr);
  EXPECT_EQ(first, session.items()->chanGroup(session.id(a)));
  const lw::GroupId second = info->nextGroup(nullptr, first);
  EXPECT_EQ(second, session.items()->chanGroup(session.id(b)));
  EXPECT_EQ(info->nextGroup(nullptr, second), nullptr);
}

TEST(NewItem, HasOneKeyAtTimeZeroInEachMotion) {
  LayoutSession session;
  Item& null = session.scene().addNull("A");
  const lw::EnvelopeId scale = envelopeOf(session, null, "Scale.Y");
  EXPECT_EQ(null.motion[kAxisSY].keys().size(), 1U);
  const lw::KeyId key = session.envelopes()->nextKey(scale, nullptr);
  EXPECT_EQ(keyValue(session, scale, key, lw::kKeyTime), 0);
  EXPECT_EQ(keyValue(session, scale, key), 1);
  EXPECT_EQ(session.envelopes()->nextKey(scale, key), nullptr);
}

TEST(NewItem, MayHaveMoreKeysOrNone) {
  LayoutOptions options;
  options.keysOnNewItems = 3;
  {
    LayoutSession session(options);
    EXPECT_EQ(session.scene().addNull("A").motion[kAxisX].keys().size(), 3U);
  }
  options.keysOnNewItems = 0;
  LayoutSession session(options);
  const Item& null = session.scene().addNull("A");
  EXPECT_TRUE(null.motion[kAxisSX].keys().empty());
  EXPECT_EQ(null.motion[kAxisSX].valueAt(0), 1);
}

TEST(SetKey, MovesTheItem) {
  LayoutSession session;
  Item& null = session.scene().addNull("A");
  const lw::EnvelopeId envelope = envelopeOf(session, null, "Position.Z");
  double place[3] = {};
  session.items()->param(session.id(null), lw::kParamWorldPosition, 0, place);
  double value = 2.5;
  EXPECT_EQ(session.envelopes()->keySet(envelope, session.envelopes()->nextKey(envelope, nullptr), lw::kKeyValue, &value),
            1);
  session.items()->param(session.id(null), lw::kParamWorldPosition, 0, place);
  EXPECT_EQ(place[2], 2.5);
}

TEST(CreateKey, StandsInOrderOfTimeAndIsFound) {
  LayoutSession session;
  Item& null = session.scene().addNull("A");
  const lw::EnvelopeId envelope = envelopeOf(session, null, "Rotation.P");
  const lw::KeyId late = session.envelopes()->createKey(envelope, 2, 8);
  const lw::KeyId early = session.envelopes()->createKey(envelope, 1, 5);
  EXPECT_EQ(session.envelopes()->nextKey(envelope, early), late);
  EXPECT_EQ(session.envelopes()->findKey(envelope, 2), late);
  EXPECT_EQ(session.envelopes()->findKey(envelope, 1.5), nullptr);
  EXPECT_EQ(null.motion[kAxisP].keys().size(), 3U);
}

TEST(CreateKey, AtTheTimeOfAKeyChangesThatKey) {
  LayoutSession session;
  const Item& null = session.scene().addNull("A");
  const lw::EnvelopeId envelope = envelopeOf(session, null, "Position.X");
  const lw::KeyId key = session.envelopes()->createKey(envelope, 0, 4);
  EXPECT_EQ(null.motion[kAxisX].keys().size(), 1U);
  EXPECT_EQ(keyValue(session, envelope, key), 4);
}

TEST(Channel, IsEvaluatedAlongStraightLines) {
  LayoutSession session;
  Item& null = session.scene().addNull("A");
  session.envelopes()->createKey(envelopeOf(session, null, "Position.X"), 2, 8);
  EXPECT_EQ(null.motion[kAxisX].valueAt(-1), 0);
  EXPECT_EQ(null.motion[kAxisX].valueAt(0.5), 2);
  EXPECT_EQ(null.motion[kAxisX].valueAt(9), 8);
}

TEST(Channel, MayHaveNoEnvelope) {
  LayoutOptions options;
  options.channelWithoutKeys = "Position.X";
  LayoutSession session(options);
  Item& null = session.scene().addNull("A");
  EXPECT_EQ(envelopeOf(session, null, "Position.X"), nullptr);
  EXPECT_NE(envelopeOf(session, null, "Position.Y"), nullptr);
}

TEST(ChannelMisuse, OfAKeyOfAnotherEnvelopeIsAFault) {
  LayoutSession session;
  Item& null = session.scene().addNull("A");
  const lw::KeyId key = session.envelopes()->nextKey(envelopeOf(session, null, "Position.X"), nullptr);
  double value = 1;
  EXPECT_EQ(session.envelopes()->keySet(envelopeOf(session, null, "Position.Y"), key, lw::kKeyValue, &value), 0);
  EXPECT_TRUE(oneFaultSaying("a key of another envelope"));
}

TEST(ChannelMisuse, OfAnItemAsAGroupIsAFault) {
  LayoutSession session;
  const auto group = reinterpret_cast<lw::GroupId>(session.id(session.selectedBone()));
  EXPECT_EQ(session.channels()->nextChannel(group, nullptr), nullptr);
  EXPECT_TRUE(oneFaultSaying("no channel group"));
}

TEST(ChannelMisuse, OfAChannelOfARemovedItemIsAFault) {
  LayoutSession session;
  Item& null = session.scene().addNull("A");
  const lw::ChannelId channel = channelOf(session, null, "Position.X");
  session.scene().remove(null);
  session.channels()->channelName(channel);
  EXPECT_TRUE(oneFaultSaying("an item that was removed"));
}

TEST(ChannelMisuse, OfAnUnknownKeyTagIsAFault) {
  LayoutSession session;
  const lw::EnvelopeId envelope = envelopeOf(session, session.scene().addNull("A"), "Position.X");
  double value = 1;
  EXPECT_EQ(session.envelopes()->keySet(envelope, session.envelopes()->nextKey(envelope, nullptr), lw::kKeyTime, &value), 0);
  EXPECT_TRUE(oneFaultSaying("tag 1"));
}

TEST(RefusedKey, IsNotSet) {
  LayoutSession session;
  Item& null = session.scene().addNull("A");
  const lw::EnvelopeId envelope = envelopeOf(session, null, "Position.X");
  const lw::LWEnvelopeFuncs* info = session.envelopes();
  const lw::KeyId key = info->nextKey(envelope, nullptr);
  double value = 1;
  witness().refuseCall(1);
  EXPECT_EQ(info->keySet(envelope, key, lw::kKeyValue, &value), 0);
  EXPECT_EQ(null.motion[kAxisX].valueAt(0), 0);
}

}  // namespace
}  // namespace standin
