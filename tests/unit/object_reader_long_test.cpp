// Objects on disk with long lists of every shape, compared with the plain reader.
#include <gtest/gtest.h>

#include "tests/unit/object_reader_fixture.h"

namespace varnel::test {
namespace {

// True when the reader reads a file from disk as the plain reader reads its bytes.
testing::AssertionResult readersAgreeOnDisk(const std::vector<std::byte>& file) {
  const TemporaryFile onDisk(file);
  ObjectFileData data = Reading(smallRig()).data;
  const bool isSound = ReadObjectFile(data, onDisk.path());
  const std::optional<PlainObject> expected = PlainObjectReader::read(file);
  if (isSound != expected.has_value()) return testing::AssertionFailure() << (isSound ? "taken as sound" : "refused");
  if (!isSound && !isEmpty(data)) return testing::AssertionFailure() << "refused, but the data is not empty";
  if (isSound && plainObject(data) != *expected) return testing::AssertionFailure() << "read differently";
  return testing::AssertionSuccess();
}

// A list of so many faces with that many corners each.
Bytes faces(unsigned count, unsigned corners) {
  Bytes list;
  list.id("FACE");
  for (unsigned i = 0; i < count; ++i) {
    list.u2(corners);
    for (unsigned corner = 0; corner < corners; ++corner) list.vx(corner);
  }
  return list;
}

ObjectBytes layerWithFaces(const Bytes& list) { return ObjectBytes().layer(0, "a").points(1100).chunk("POLS", list); }

TEST(LongObject, IsReadWithItsPoints) {
  EXPECT_TRUE(readersAgreeOnDisk(ObjectBytes().layer(0, "a").points(20000).layer(1, "b").points(10000).points(7).file()));
}

TEST(LongObject, IsReadWithFacesOfAnyOneSize) {
  for (const unsigned corners : {0U, 1U, 2U, 3U, 4U, 5U, 100U, 1023U}) {
    EXPECT_TRUE(readersAgreeOnDisk(layerWithFaces(faces(200000 / (2 + 2 * corners), corners)).file())) << corners;
  }
}

TEST(LongObject, IsReadWithFacesThatDifferFromSomewhereOn) {
  for (const unsigned alike : {1U, 2U, 9000U, 30000U}) {
    Bytes list = faces(alike, 3);
    list.u2(5).vx(0).vx(1).vx(2).vx(3).vx(4).u2(0).u2(3).vx(5).vx(6).vx(7);
    EXPECT_TRUE(readersAgreeOnDisk(layerWithFaces(list).layer(1, "b").points(2).polygons("FACE", {{0}, {1}}).file()))
        << alike;
  }
}

TEST(LongObject, IsReadWithLongListsOfSeveralLayersAndWhatStandsBetweenThem) {
  Bytes texts;
  Bytes tags;
  Bytes bones;
  bones.id("BONE");
  tags.id("BONE");
  for (unsigned i = 0; i < 20000; ++i) {
    texts.s0("text" + std::to_string(i));
    bones.u2(2).vx(i % 1100).vx(i % 7);
    tags.vx(i).u2(i);
  }
  Bytes unknown;
  for (unsigned i = 0; i < 100000; ++i) unknown.u1(0xFF);
  const ObjectBytes object = layerWithFaces(faces(20000, 3))
                                 .chunk("TAGS", texts)
                                 .chunk("VMAP", unknown)
                                 .chunk("PTAG", unknown)
                                 .layer(1, "b")
                                 .chunk("POLS", faces(20000, 4))
                                 .points(20000)
                                 .chunk("POLS", bones)
                                 .chunk("PTAG", tags)
                                 .chunk("SURF", Bytes().u2(0))
                                 .chunk("POLS", faces(1, 3));
  EXPECT_TRUE(readersAgreeOnDisk(object.file()));
}

// The list ends with, and within, each byte of a face.
TEST(LongObject, IsRefusedWhenItsLastFaceRunsPastTheList) {
  for (std::size_t size = 60000; size < 60016; ++size) {
    Bytes list = faces(10000, 3);
    list.bytes().resize(size);
    EXPECT_TRUE(readersAgreeOnDisk(layerWithFaces(list).layer(1, "b").file())) << size;
  }
}

TEST(LongObject, IsRefusedForAPointThatItsLayerDoesNotHave) {
  Bytes list = faces(30000, 3);
  list.u2(1).vx(1100);
  EXPECT_TRUE(readersAgreeOnDisk(layerWithFaces(list).file()));
  EXPECT_TRUE(readersAgreeOnDisk(layerWithFaces(list).points(1).file()));
}

TEST(LongObject, IsRefusedWithHalfAPointAtTheEnd) {
  Bytes points;
  for (unsigned i = 0; i < 50000; ++i) points.u4(i);
  EXPECT_TRUE(readersAgreeOnDisk(ObjectBytes().layer(0, "a").chunk("PNTS", points).file()));
}

TEST(LongObject, IsRefusedWhenItsFormIsLongerThanTheFile) {
  EXPECT_TRUE(readersAgreeOnDisk(layerWithFaces(faces(30000, 3)).file(1)));
}

// Faces of any number of corners, with point numbers of both widths.
TEST(LongObject, IsReadWhateverItsFacesAre) {
  std::minstd_rand random(7);
  for (unsigned run = 0; run < 20; ++run) {
    Bytes list;
    list.id("FACE");
    while (list.size() < 200000) {
      const auto corners = static_cast<unsigned>(random() % 8 == 0 ? random() % 1024 : random() % 6);
      list.u2(corners | static_cast<unsigned>(random() % 64) << 10U);
      for (unsigned corner = 0; corner < corners; ++corner) {
        const auto point = static_cast<std::uint32_t>(random() % 1100);
        random() % 2 == 0 ? list.vx(point) : list.longVx(point);
      }
    }
    if (run % 4 == 3) list.bytes().pop_back();
    EXPECT_TRUE(readersAgreeOnDisk(layerWithFaces(list).chunk("POLS", list).file())) << run;
  }
}

}  // namespace
}  // namespace varnel::test
