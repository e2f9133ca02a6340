// The tags of skelegons: which are taken, and in which order.
#include <gtest/gtest.h>

#include "tests/unit/object_reader_fixture.h"

namespace varnel::test {
namespace {

using Tags = std::vector<std::pair<std::uint32_t, std::uint16_t>>;

TEST(ObjectReader, GivesSkelegonsTheirTagsInTheOrderOfTheFile) {
  const Reading reading(ObjectBytes()
                            .layer(0, "a")
                            .points(3)
                            .polygons("BONE", {{0, 1}, {1, 2}})
                            .polygonTags("sg1A", {{1, 5}, {0, 4}, {1, 3}})
                            .polygonTags("BONE", {{1, 2}, {1, 1}}));
  ASSERT_TRUE(reading.isSound);
  const ObjectLayer layer = reading.data.layer(0);
  EXPECT_EQ(tagsOf(layer.skelegons()[0]), (Tags{{idOf("sg1A"), 4}}));
  EXPECT_EQ(tagsOf(layer.skelegons()[1]),
            (Tags{{idOf("sg1A"), 5}, {idOf("sg1A"), 3}, {idOf("BONE"), 2}, {idOf("BONE"), 1}}));
}

TEST(ObjectReader, CountsTheSkelegonsOfATagWithinTheLayer) {
  const Reading reading(ObjectBytes()
                            .layer(0, "a")
                            .points(2)
                            .polygons("BONE", {{0, 1}, {1, 0}})
                            .polygonTags("BONE", {{1, 1}})
                            .layer(1, "b")
                            .points(2)
                            .polygons("BONE", {{0, 1}})
                            .polygonTags("BONE", {{0, 2}}));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(tagsOf(reading.data.layer(0).skelegons()[0]), Tags{});
  EXPECT_EQ(tagsOf(reading.data.layer(0).skelegons()[1]), (Tags{{idOf("BONE"), 1}}));
  EXPECT_EQ(tagsOf(reading.data.layer(1).skelegons()[0]), (Tags{{idOf("BONE"), 2}}));
}

TEST(ObjectReader, CountsTheSkelegonsOfATagFromTheLayersFirstNotTheLastChunks) {
  const Reading reading(ObjectBytes()
                            .layer(0, "a")
                            .points(2)
                            .polygons("BONE", {{0, 1}})
                            .polygonTags("BONE", {{0, 7}})
                            .polygons("BONE", {{1, 0}})
                            .polygonTags("BONE", {{0, 8}, {1, 9}}));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(tagsOf(reading.data.layer(0).skelegons()[0]), (Tags{{idOf("BONE"), 7}, {idOf("BONE"), 8}}));
  EXPECT_EQ(tagsOf(reading.data.layer(0).skelegons()[1]), (Tags{{idOf("BONE"), 9}}));
}

TEST(ObjectReader, GivesTagsAlsoToSkelegonsWithoutPoints) {
  const Reading reading(ObjectBytes().layer(0, "a").polygons("BONE", {{}, {}}).polygonTags("BONE", {{1, 0}}));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(tagsOf(reading.data.layer(0).skelegons()[0]), Tags{});
  EXPECT_EQ(tagsOf(reading.data.layer(0).skelegons()[1]), (Tags{{idOf("BONE"), 0}}));
  EXPECT_TRUE(reading.data.layer(0).skelegons()[1].points.empty());
}

TEST(ObjectReader, IgnoresTagsOfFaces) {
  const Reading reading(ObjectBytes()
                            .layer(0, "a")
                            .points(2)
                            .polygons("BONE", {{0, 1}})
                            .polygons("FACE", {{0, 1}})
                            .polygonTags("PART", {{0, 1}, {99, 1}}));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(tagsOf(reading.data.layer(0).skelegons()[0]), Tags{});
}

TEST(ObjectReader, IgnoresTagsOfOtherPolygons) {
  const Reading reading(ObjectBytes()
                            .layer(0, "a")
                            .points(2)
                            .polygons("BONE", {{0, 1}})
                            .polygons("CURV", {{0, 1}})
                            .polygonTags("BONE", {{0, 1}, {99, 1}}));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(tagsOf(reading.data.layer(0).skelegons()[0]), Tags{});
}

TEST(ObjectReader, IgnoresTagsOfALayerWithoutPolygons) {
  const Reading reading(
      ObjectBytes().layer(0, "a").points(2).polygons("BONE", {{0, 1}}).layer(1, "b").polygonTags("BONE", {{0, 1}, {99, 1}}));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(tagsOf(reading.data.layer(0).skelegons()[0]), Tags{});
}

TEST(ObjectReader, IgnoresEvenBrokenTagsOfFaces) {
  const Reading reading(ObjectBytes().layer(0, "a").polygons("FACE", {}).chunk("PTAG", Bytes().u1(1)));
  EXPECT_TRUE(reading.isSound);
}

TEST(ObjectReader, KeepsATagWhoseTextTheListDoesNotHave) {
  // Whoever looks the text up has the rule for this; the list may also stand further behind.
  const Reading reading(
      ObjectBytes().layer(0, "a").points(2).polygons("BONE", {{0, 1}}).polygonTags("BONE", {{0, 65535}}).tags({"late"}));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(tagsOf(reading.data.layer(0).skelegons()[0]), (Tags{{idOf("BONE"), 65535}}));
}

// Tags are placed for some skelegons at a time when all lists ascend and are long, else list by list. What comes out must
// not depend on it.
struct TagOrder {
  const char* name;
  std::uint32_t skelegons;
  unsigned lists;
  bool ascends;
  bool isDense;
};

class ObjectReaderTagOrder : public testing::TestWithParam<TagOrder> {};

TEST_P(ObjectReaderTagOrder, IsThatOfTheFile) {
  const TagOrder& order = GetParam();
  constexpr std::array<std::uint32_t, 3> kPoints{0, 1, 2};
  Bytes bones;
  bones.id("BONE");
  for (std::uint32_t i = 0; i < order.skelegons; ++i) addPolygon(bones, std::span(kPoints).first(i % 4));
  ObjectBytes object;
  object.layer(0, "empty").layer(1, "a").points(3).chunk("POLS", bones);
  std::minstd_rand random(5);
  for (unsigned list = 0; list < order.lists; ++list) {
    Bytes pairs;
    pairs.text("sg1").u1(list % 256);
    for (std::uint32_t i = 0; i < order.skelegons; ++i) {
      if (!order.isDense && random() % 40 != 0) continue;
      const auto skelegon = order.ascends ? i : static_cast<std::uint32_t>(random() % order.skelegons);
      random() % 2 == 0 ? pairs.vx(skelegon) : pairs.longVx(skelegon);
      pairs.u2(static_cast<unsigned>(random() % 65536));
    }
    object.chunk("PTAG", pairs);
  }
  EXPECT_TRUE(PlainObjectReader::read(object.file()).has_value());
  EXPECT_TRUE(readersAgree(object.file()));
}

INSTANTIATE_TEST_SUITE_P(
    , ObjectReaderTagOrder,
    testing::Values(TagOrder{"DenseAscending", 1000, 20, true, true}, TagOrder{"DenseMixed", 1000, 20, false, true},
                    TagOrder{"SparseAscending", 1000, 20, true, false}, TagOrder{"SparseMixed", 1000, 20, false, false},
                    TagOrder{"ManyLists", 300, 200, true, true}, TagOrder{"OneSkelegon", 1, 187, true, true},
                    TagOrder{"AsManyAsAreDoneAtATime", 128, 3, true, true},
                    TagOrder{"OneMoreThanAreDoneAtATime", 129, 3, true, true}),
    [](const auto& info) { return std::string(info.param.name); });

// The skelegons that are done at a time are those of the object, whichever layer they are in.
TEST(ObjectReader, GivesTagsToTheSkelegonsOfSeveralLargeLayers) {
  ObjectBytes object;
  for (unsigned layer = 0; layer < 3; ++layer) {
    Bytes bones;
    Bytes names;
    bones.id("BONE");
    names.id("BONE");
    for (std::uint32_t i = 0; i < 200; ++i) {
      bones.u2(1).vx(i);
      names.vx(i).u2(1000 * layer + i);
    }
    object.layer(layer, "a").chunk("POLS", bones).chunk("PTAG", names).chunk("PTAG", names);
  }
  EXPECT_TRUE(readersAgree(object.file()));
  const Reading reading(object);
  EXPECT_EQ(tagsOf(reading.data.layer(2).skelegons()[199]), (Tags{{idOf("BONE"), 2199}, {idOf("BONE"), 2199}}));
}

}  // namespace
}  // namespace varnel::test
