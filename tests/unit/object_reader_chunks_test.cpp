// What the chunks of a sound object give.
#include <gtest/gtest.h>

#include "tests/unit/object_reader_fixture.h"

namespace varnel::test {
namespace {

using Lists = std::vector<std::vector<std::uint32_t>>;

// --- the form ---

TEST(ObjectReader, KeepsThePathThatWasRead) {
  const Reading reading(smallRig());
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(reading.data.path(), kPath);
}

TEST(ObjectReader, ReadsBothFormTypes) {
  EXPECT_TRUE(Reading(ObjectBytes("LWO2").layer(0, "a")).isSound);
  EXPECT_TRUE(Reading(ObjectBytes("LWO3").layer(0, "a")).isSound);
}

TEST(ObjectReader, RefusesOtherFormTypes) {
  EXPECT_TRUE(isRefused(Reading(ObjectBytes("LWOB").layer(0, "a"))));
  EXPECT_TRUE(isRefused(Reading(ObjectBytes("LWLO").layer(0, "a"))));
  EXPECT_TRUE(isRefused(Reading(ObjectBytes("lwo2").layer(0, "a"))));
}

TEST(ObjectReader, TakesAFormWithoutChunksAsAnObjectWithoutLayers) {
  const Reading reading{ObjectBytes()};
  EXPECT_TRUE(reading.isSound);
  EXPECT_EQ(reading.data.layerCount(), 0U);
  EXPECT_EQ(reading.data.path(), kPath);
}

TEST(ObjectReader, RefusesAFormSizeThatIsOneByteOff) {
  EXPECT_TRUE(isRefused(Reading(smallRig().file(-1))));
  EXPECT_TRUE(Reading(smallRig().file(0)).isSound);
  EXPECT_TRUE(isRefused(Reading(smallRig().file(+1))));
}

TEST(ObjectReader, RefusesBytesBehindTheForm) {
  std::vector<std::byte> file = smallRig().file();
  file.push_back(std::byte{0});
  EXPECT_TRUE(isRefused(Reading(file)));
}

// --- layers ---

TEST(ObjectReader, GivesTheValuesOfALayer) {
  const Reading reading(ObjectBytes().chunk("LAYR", Bytes().u2(7).u2(0x8001).vec12(1.5F, -2, 0.25F).s0("Arm").u2(3)));
  ASSERT_EQ(reading.data.layerCount(), 1U);
  const ObjectLayer layer = reading.data.layer(0);
  EXPECT_EQ(layer.number(), 7);
  EXPECT_EQ(layer.flags(), 0x8001);
  EXPECT_EQ(layer.pivot(), (lwp::st::Vec12{1.5F, -2, 0.25F}));
  EXPECT_EQ(layer.name(), "Arm");
  EXPECT_EQ(layer.parent(), 3);
}

TEST(ObjectReader, TakesAMissingParentAsZero) {
  const Reading reading(ObjectBytes().layer(1, "child", 5).layer(2, "alone"));
  ASSERT_EQ(reading.data.layerCount(), 2U);
  EXPECT_EQ(reading.data.layer(0).parent(), 5);
  EXPECT_EQ(reading.data.layer(1).parent(), 0);
}

TEST(ObjectReader, GivesTheNumberForNoParentAsItStandsThere) {
  EXPECT_EQ(Reading(ObjectBytes().layer(0, "a", 0xFFFF)).data.layer(0).parent(), 0xFFFF);
}

TEST(ObjectReader, NamesALayerWithoutANameByItsNumberPlusOne) {
  const Reading reading(ObjectBytes().layer(0, "").layer(9, "").layer(65535, ""));
  ASSERT_EQ(reading.data.layerCount(), 3U);
  EXPECT_EQ(reading.data.layer(0).name(), "Layer1");
  EXPECT_EQ(reading.data.layer(1).name(), "Layer10");
  EXPECT_EQ(reading.data.layer(2).name(), "Layer65536");
}

TEST(ObjectReader, KeepsLayersInTheOrderOfTheFileAlsoWithEqualNumbers) {
  const Reading reading(ObjectBytes().layer(4, "a").layer(0, "b").layer(4, "c"));
  std::string names;
  for (const ObjectLayer& layer : layersOf(reading.data)) names += layer.name();
  EXPECT_EQ(names, "abc");
}

TEST(ObjectReader, GivesEachLayerItsOwnPointsFacesAndSkelegons) {
  const Reading reading(ObjectBytes()
                            .layer(0, "a")
                            .points(2)
                            .polygons("BONE", {{0, 1}})
                            .layer(1, "b")
                            .layer(2, "c")
                            .points(4)
                            .polygons("FACE", {{3, 2, 1}})
                            .polygons("BONE", {{2, 3}, {3, 0}}));
  ASSERT_EQ(reading.data.layerCount(), 3U);
  const std::vector<ObjectLayer> layers = layersOf(reading.data);
  EXPECT_EQ(skelegonsOf(layers[0]), (Lists{{0, 1}}));
  EXPECT_EQ(skelegonsOf(layers[1]), Lists{});
  EXPECT_EQ(skelegonsOf(layers[2]), (Lists{{2, 3}, {3, 0}}));
  EXPECT_EQ(layers[0].points().size(), 2U);
  EXPECT_EQ(layers[1].points().size(), 0U);
  EXPECT_EQ(layers[2].points().size(), 4U);
  EXPECT_EQ(layers[0].faces(), Lists{});
  EXPECT_EQ(layers[2].faces(), (Lists{{3, 2, 1}}));
}

// --- tag texts ---

TEST(ObjectReader, GivesTagTextsInTheOrderOfTheFile) {
  const std::vector<std::string> texts{"", "a", "ab", "abc", "", "日本語", "x", "y", "z", "100.000000", ""};
  Bytes body;
  for (const std::string& text : texts) body.s0(text);
  EXPECT_EQ(textsOf(Reading(ObjectBytes().chunk("TAGS", body)).data), texts);
}

TEST(ObjectReader, AppendsTheTextsOfFurtherTagChunks) {
  const Reading reading(ObjectBytes().tags({"a", "bc"}).layer(0, "layer").tags({}).tags({"def", "g"}));
  EXPECT_EQ(textsOf(reading.data), (std::vector<std::string>{"a", "bc", "def", "g"}));
}

// --- points and polygons ---

TEST(ObjectReader, AppendsPointsOfFurtherChunks) {
  const Reading reading(ObjectBytes()
                            .layer(0, "a")
                            .chunk("PNTS", Bytes().vec12(1, 2, 3))
                            .chunk("PNTS", Bytes())
                            .chunk("PNTS", Bytes().vec12(4, 5, 6).vec12(-7, 8.5F, 1e30F)));
  ASSERT_TRUE(reading.isSound);
  const auto points = reading.data.layer(0).points();
  const std::vector<lwp::st::Vec12> expected{{1, 2, 3}, {4, 5, 6}, {-7, 8.5F, 1e30F}};
  EXPECT_EQ(std::vector(points.begin(), points.end()), expected);
}

TEST(ObjectReader, DropsTheFlagsBesideTheCountOfAPolygon) {
  const Reading reading(
      ObjectBytes().layer(0, "a").points(3).chunk("POLS", Bytes().id("FACE").u2(0xFC03).vx(0).vx(1).vx(2).u2(0x0401).vx(2)));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(reading.data.layer(0).faces(), (Lists{{0, 1, 2}, {2}}));
}

TEST(ObjectReader, TakesAPolygonOfAsManyCornersAsTheCountHolds) {
  Bytes body;
  body.id("FACE").u2(1023);
  for (std::uint32_t i = 0; i < 1023; ++i) body.vx(i);
  const Reading reading(ObjectBytes().layer(0, "a").points(1023).chunk("POLS", body));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(reading.data.layer(0).faces()[0].size(), 1023U);
  EXPECT_EQ(reading.data.layer(0).faces()[0].back(), 1022U);
}

TEST(ObjectReader, TakesPolygonsWithoutCorners) {
  const Reading reading(ObjectBytes().layer(0, "a").polygons("FACE", {{}, {}}).polygons("BONE", {{}}));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(reading.data.layer(0).faces(), (Lists{{}, {}}));
  EXPECT_EQ(skelegonsOf(reading.data.layer(0)), (Lists{{}}));
}

TEST(ObjectReader, ReadsAnIndexOfFourBytesAsTheLastThree) {
  Bytes body;
  body.id("FACE").u2(3).longVx(2).u2(1).longVx(0x00FF01);
  const Reading reading(ObjectBytes().layer(0, "a").points(0x00FF02).chunk("POLS", body));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(reading.data.layer(0).faces(), (Lists{{2, 1, 0x00FF01}}));
}

TEST(ObjectReader, ReadsPolygonsOfAllWidthsAndCountsInARow) {
  // Every way in which the quick paths for usual polygons can begin, end and be mixed up.
  Lists expected;
  Bytes body;
  body.id("FACE");
  std::minstd_rand random(3);
  for (int i = 0; i < 2000; ++i) {
    auto& polygon = expected.emplace_back(1 + random() % 6);
    const auto width = random() % 3;
    body.u2(static_cast<unsigned>(polygon.size()));
    for (auto& point : polygon) {
      point = static_cast<std::uint32_t>(random() % 100);
      const bool isLong = width == 0 || (width == 2 && random() % 2 == 0);
      isLong ? body.longVx(point) : body.vx(point);
    }
  }
  const Reading reading(ObjectBytes().layer(0, "a").points(100).chunk("POLS", body));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(reading.data.layer(0).faces(), expected);
}

TEST(ObjectReader, AppendsPolygonsOfFurtherChunks) {
  const Reading reading(ObjectBytes()
                            .layer(0, "a")
                            .points(4)
                            .polygons("FACE", {{0}})
                            .polygons("BONE", {{1, 2}})
                            .polygons("FACE", {{1}, {2}})
                            .polygons("BONE", {{2, 3}}));
  EXPECT_EQ(reading.data.layer(0).faces(), (Lists{{0}, {1}, {2}}));
  EXPECT_EQ(skelegonsOf(reading.data.layer(0)), (Lists{{1, 2}, {2, 3}}));
}

TEST(ObjectReader, TakesPointsThatStandBehindTheirPolygons) {
  const Reading reading(ObjectBytes().layer(0, "a").polygons("FACE", {{0, 1}}).points(2));
  EXPECT_TRUE(reading.isSound);
}

// Deliberately: what a polygon is made of is of no interest to the conversion, only its tags are.
TEST(ObjectReader, TakesPolygonsOfPointsThatTheirLayerDoesNotHave) {
  const Reading reading(ObjectBytes()
                            .layer(0, "a")
                            .polygons("BONE", {{0, 1}, {1, 0xFFFFFF}})
                            .layer(1, "b")
                            .points(3)
                            .polygons("BONE", {{1, 3}})
                            .polygons("FACE", {{0, 1, 3}}));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(skelegonsOf(reading.data.layer(0)), (Lists{{0, 1}, {1, 0xFFFFFF}}));
  EXPECT_EQ(skelegonsOf(reading.data.layer(1)), (Lists{{1, 3}}));
  EXPECT_EQ(reading.data.layer(1).faces(), (Lists{{0, 1, 3}}));
  EXPECT_EQ(reading.data.layer(1).points().size(), 3U);
}

TEST(ObjectReader, PassesOverPolygonsOfOtherTypesUnread) {
  const Reading reading(
      ObjectBytes().layer(0, "a").chunk("POLS", Bytes().id("CURV").u2(0x03FF).u1(1)).polygons("PTCH", {{99, 98}}));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(reading.data.layer(0).faceCount(), 0U);
  EXPECT_EQ(reading.data.layer(0).skelegonCount(), 0U);
}

TEST(ObjectReader, PassesOverUnknownChunksByTheirSize) {
  const Reading reading(ObjectBytes()
                            .chunk("VMAP", Bytes().id("LAYR").u4(0xFFFFFFFF))
                            .layer(0, "a")
                            .chunk("SURF", Bytes())
                            .chunk("\xFF\xFF\xFF\xFF", Bytes().u2(5))
                            .points(1));
  ASSERT_TRUE(reading.isSound);
  EXPECT_EQ(reading.data.layer(0).points().size(), 1U);
}

TEST(ObjectReader, ExpectsNoPadByteBehindAnOddSize) {
  // Deliberately as writers of objects do it: a chunk begins right where the one before ends.
  EXPECT_TRUE(Reading(ObjectBytes().chunk("VMAP", Bytes().u1(1)).layer(0, "a")).isSound);
  ObjectBytes padded;
  padded.chunk("VMAP", Bytes().u1(1));
  std::vector<std::byte> file = padded.layer(0, "a").file();
  file.insert(file.begin() + 12 + 8 + 1, std::byte{0});
  file[7] = static_cast<std::byte>(std::to_integer<unsigned>(file[7]) + 1);
  EXPECT_TRUE(isRefused(Reading(file)));
}

// --- files ---

TEST(ObjectReader, ReadsAFileFromDisk) {
  const TemporaryFile file(smallRig().file());
  ObjectFileData data;
  ASSERT_TRUE(ReadObjectFile(data, file.path()));
  EXPECT_EQ(data.path(), file.path());
  EXPECT_EQ(plainObject(data), *PlainObjectReader::read(smallRig().file()));
}

TEST(ObjectReader, LeavesNoDataOfAnEarlierObjectWhenThereIsNoFile) {
  ObjectFileData data = Reading(smallRig()).data;
  EXPECT_FALSE(ReadObjectFile(data, "there/is/no/such/file.lwo"));
  EXPECT_TRUE(isEmpty(data));
}

TEST(ObjectReader, RefusesAnEmptyPath) {
  ObjectFileData data;
  EXPECT_FALSE(ReadObjectFile(data, ""));
}

TEST(ObjectReader, RefusesAnEmptyFile) {
  const TemporaryFile file(std::vector<std::byte>{});
  ObjectFileData data = Reading(smallRig()).data;
  EXPECT_FALSE(ReadObjectFile(data, file.path()));
  EXPECT_TRUE(isEmpty(data));
}

TEST(ObjectReader, ReadsTheSameFileAgainByThePathItKept) {
  const TemporaryFile file(smallRig().file());
  ObjectFileData data;
  ASSERT_TRUE(ReadObjectFile(data, file.path()));
  EXPECT_TRUE(ReadObjectFile(data, data.path()));
  EXPECT_EQ(data.path(), file.path());
}

}  // namespace
}  // namespace varnel::test
