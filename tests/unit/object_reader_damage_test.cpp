// Damaged files: refused as a whole, whatever is wrong, and nothing is left in the data.
#include <gtest/gtest.h>

#include "tests/unit/object_reader_fixture.h"

namespace varnel::test {
namespace {

struct Damage {
  const char* name;
  ObjectBytes object;
};

Bytes layerBody() { return Bytes().u2(0).u2(0).vec12(0, 0, 0); }

ObjectBytes layerWithPoints(unsigned points) { return ObjectBytes().layer(0, "a").points(points); }

ObjectBytes twoSkelegons() { return layerWithPoints(3).polygons("BONE", {{0, 1}, {1, 2}}); }

class DamagedObject : public testing::TestWithParam<Damage> {};

TEST_P(DamagedObject, IsRefused) { EXPECT_TRUE(isRefused(Reading(GetParam().object))); }

TEST_P(DamagedObject, IsRefusedFromDisk) {
  const TemporaryFile file(GetParam().object.file());
  ObjectFileData data = Reading(smallRig()).data;
  EXPECT_FALSE(ReadObjectFile(data, file.path()));
  EXPECT_TRUE(isEmpty(data));
}

TEST_P(DamagedObject, IsRefusedByThePlainReaderToo) {
  EXPECT_FALSE(PlainObjectReader::read(GetParam().object.file()).has_value());
}

std::string nameOf(const testing::TestParamInfo<Damage>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(
    Texts, DamagedObject,
    testing::Values(Damage{"TextWithoutItsZero", ObjectBytes().chunk("TAGS", Bytes().text("ab"))},
                    Damage{"SecondTextWithoutItsZero", ObjectBytes().chunk("TAGS", Bytes().s0("a").text("bcde"))},
                    Damage{"TextWithoutItsPadding", ObjectBytes().chunk("TAGS", Bytes().text("ab").u1(0))},
                    Damage{"TextThatWouldTakeItsPaddingFromTheNextChunk",
                           ObjectBytes().chunk("TAGS", Bytes().text("ab").u1(0)).layer(0, "a")},
                    Damage{"TextThatWouldTakeItsZeroFromTheNextChunk",
                           ObjectBytes().chunk("TAGS", Bytes().text("ab")).chunk("SURF", Bytes().u2(0))}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Layers, DamagedObject,
    testing::Values(Damage{"EmptyLayer", ObjectBytes().chunk("LAYR", Bytes())},
                    Damage{"LayerWithANumberAlone", ObjectBytes().chunk("LAYR", Bytes().u2(0))},
                    Damage{"LayerWithoutAName", ObjectBytes().chunk("LAYR", layerBody())},
                    Damage{"LayerNameWithoutItsZero", ObjectBytes().chunk("LAYR", layerBody().text("ab"))},
                    Damage{"HalfAParent", ObjectBytes().chunk("LAYR", layerBody().s0("a").u1(0))},
                    Damage{"MoreThanAParent", ObjectBytes().chunk("LAYR", layerBody().s0("a").u2(0).u1(0))},
                    Damage{"TwoParents", ObjectBytes().chunk("LAYR", layerBody().s0("a").u2(0).u2(0))},
                    Damage{"PointsBeforeAnyLayer", ObjectBytes().points(1)},
                    Damage{"NoPointsBeforeAnyLayer", ObjectBytes().points(0)},
                    Damage{"PolygonsBeforeAnyLayer", ObjectBytes().polygons("FACE", {})},
                    Damage{"OtherPolygonsBeforeAnyLayer", ObjectBytes().polygons("CURV", {})},
                    Damage{"TagsBeforeAnyLayer", ObjectBytes().polygonTags("SURF", {})}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Polygons, DamagedObject,
    testing::Values(
        Damage{"OneByteTooManyInPoints", ObjectBytes().layer(0, "a").chunk("PNTS", Bytes().vec12(0, 0, 0).u1(0))},
        Damage{"OneFloatTooManyInPoints", ObjectBytes().layer(0, "a").chunk("PNTS", Bytes().vec12(0, 0, 0).f4(0))},
        Damage{"OneFloatTooFewInPoints", ObjectBytes().layer(0, "a").chunk("PNTS", Bytes().f4(0).f4(0))},
        Damage{"OneByteTooFewInPoints", ObjectBytes().layer(0, "a").chunk("PNTS", Bytes().u4(0).u4(0).u2(0).u1(0))},
        Damage{"PolygonsWithoutAType", layerWithPoints(1).chunk("POLS", Bytes())},
        Damage{"PolygonsWithHalfAType", layerWithPoints(1).chunk("POLS", Bytes().text("FAC"))},
        Damage{"HalfACount", layerWithPoints(1).chunk("POLS", Bytes().id("FACE").u1(0))},
        Damage{"OneCornerMissing", layerWithPoints(3).chunk("POLS", Bytes().id("FACE").u2(3).vx(0).vx(1))},
        Damage{"HalfACornerMissing", layerWithPoints(3).chunk("POLS", Bytes().id("FACE").u2(3).vx(0).vx(1).u1(0))},
        Damage{"HalfALongCornerMissing", layerWithPoints(3).chunk("POLS", Bytes().id("FACE").u2(3).vx(0).vx(1).u2(0xFF00))},
        Damage{"OneByteOfALongSquareMissing",
               layerWithPoints(1).chunk("POLS", Bytes().id("FACE").u2(4).longVx(0).longVx(0).longVx(0).u2(0xFF00).u1(0))},
        Damage{"CornerMissingThatTheNextChunkWouldHave",
               layerWithPoints(9).chunk("POLS", Bytes().id("FACE").u2(2).vx(0)).chunk("SURF", Bytes())},
        Damage{"CornerOfASkelegonMissing", layerWithPoints(3).chunk("POLS", Bytes().id("BONE").u2(2).vx(0))}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Tags, DamagedObject,
    testing::Values(
        Damage{"TagsWithoutAType", twoSkelegons().chunk("PTAG", Bytes())},
        Damage{"TagsWithHalfAType", twoSkelegons().chunk("PTAG", Bytes().u2(0))},
        Damage{"HalfAPair", twoSkelegons().chunk("PTAG", Bytes().id("BONE").u2(0))},
        Damage{"AlmostAPair", twoSkelegons().chunk("PTAG", Bytes().id("BONE").u2(0).u1(0))},
        Damage{"AlmostALongPair", twoSkelegons().chunk("PTAG", Bytes().id("BONE").longVx(0).u1(0))},
        Damage{"LongPairWithoutItsText", twoSkelegons().chunk("PTAG", Bytes().id("BONE").longVx(0))},
        Damage{"TagOfNoSkelegon", twoSkelegons().polygonTags("BONE", {{1, 0}, {2, 0}})},
        Damage{"TagOfNoSkelegonBeforeOthers", twoSkelegons().polygonTags("BONE", {{2, 0}, {1, 0}})},
        Damage{"TagOfNoSkelegonAtAll", ObjectBytes().layer(0, "a").polygons("BONE", {}).polygonTags("BONE", {{0, 0}})},
        Damage{"TagOfASkelegonThatOnlyTheLayerBeforeHas",
               twoSkelegons().layer(1, "b").points(2).polygons("BONE", {{0, 1}}).polygonTags("BONE", {{1, 0}})},
        Damage{"TagOfASkelegonThatComesLater",
               layerWithPoints(2).polygons("BONE", {{0, 1}}).polygonTags("BONE", {{1, 0}}).polygons("BONE", {{1, 0}})}),
    nameOf);

TEST(DamagedObject, EndsBeforeAChunkThatReachesPastTheForm) {
  for (const std::uint32_t excess : {1U, 2U, 0x10000U, 0x7FFFFFFFU, 0xFFFFFFFEU}) {
    for (const char* id : {"TAGS", "LAYR", "PNTS", "POLS", "PTAG", "SURF"}) {
      std::vector<std::byte> file = smallRig().chunk(id, Bytes().id("BONE")).file();
      const Bytes size = Bytes().u4(4 + excess);
      std::copy(size.bytes().begin(), size.bytes().end(), file.end() - 8);
      EXPECT_TRUE(isRefused(Reading(file))) << id << " with " << excess;
    }
  }
}

TEST(DamagedObject, EndsAtAnUnfinishedChunkHeader) {
  for (std::size_t bytes = 1; bytes < 8; ++bytes) {
    std::vector<std::byte> file = smallRig().file();
    file.insert(file.end(), bytes, std::byte{0});
    file[7] = static_cast<std::byte>(std::to_integer<unsigned>(file[7]) + bytes);
    EXPECT_TRUE(isRefused(Reading(file))) << bytes;
  }
}

TEST(DamagedObject, IsRefusedWhereverTheFileIsCutOff) {
  const std::vector<std::byte> whole = smallRig().file();
  ASSERT_TRUE(Reading(whole).isSound);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_TRUE(isRefused(Reading(std::span(whole).first(size)))) << size << " bytes";
  }
}

TEST(DamagedObject, IsReadAsThePlainReaderDoesWhereverTheFormIsCutOff) {
  // With a form size that fits, so that cuts between chunks leave a sound object.
  const std::vector<std::byte> whole = smallRig().file();
  std::size_t sound = 0;
  for (std::size_t size = 12; size <= whole.size(); ++size) {
    std::vector<std::byte> file(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    const Bytes form = Bytes().u4(static_cast<std::uint32_t>(size - 8));
    std::copy(form.bytes().begin(), form.bytes().end(), file.begin() + 4);
    EXPECT_TRUE(readersAgree(file)) << size << " bytes";
    sound += PlainObjectReader::read(file).has_value() ? 1 : 0;
  }
  EXPECT_EQ(sound, 12U) << "the form itself and the end of each of its chunks";
}

TEST(DamagedObject, IsReadAsThePlainReaderDoesWithAnyByteChanged) {
  const std::vector<std::byte> whole = smallRig().file();
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const unsigned change : {0x01U, 0x02U, 0x04U, 0x08U, 0x10U, 0x20U, 0x40U, 0x80U, 0xFFU}) {
      std::vector<std::byte> file = whole;
      file[at] ^= static_cast<std::byte>(change);
      EXPECT_TRUE(readersAgree(file)) << "byte " << at << " changed by " << change;
    }
  }
}

TEST(DamagedObject, IsReadAsThePlainReaderDoesAfterManyChanges) {
  const std::vector<std::byte> whole = smallRig().file();
  std::minstd_rand random(11);
  std::size_t sound = 0;
  for (int run = 0; run < 8000; ++run) {
    std::vector<std::byte> file = whole;
    for (auto changes = 1 + random() % 4; changes > 0; --changes) {
      const auto at = static_cast<std::ptrdiff_t>(random() % file.size());
      const auto value = static_cast<std::byte>(random() % 3 == 0 ? 0xFF : random() % 256);
      switch (random() % 4) {
        case 0: file.erase(file.begin() + at); break;
        case 1: file.insert(file.begin() + at, value); break;
        default: file[static_cast<std::size_t>(at)] = value;
      }
    }
    // Half of them with a form size that fits again, else hardly any would get further.
    if (random() % 2 == 0 && file.size() >= 8) {
      const Bytes form = Bytes().u4(static_cast<std::uint32_t>(file.size() - 8));
      std::copy(form.bytes().begin(), form.bytes().end(), file.begin() + 4);
    }
    ASSERT_TRUE(readersAgree(file)) << "run " << run;
    sound += PlainObjectReader::read(file).has_value() ? 1 : 0;
  }
  EXPECT_GT(sound, 200U) << "too few of the changed files are still sound to tell anything";
}

}  // namespace
}  // namespace varnel::test
