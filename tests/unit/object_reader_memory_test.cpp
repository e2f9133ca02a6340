// How much memory reading a file takes, counted where the language takes it.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

#include "tests/unit/object_reader_fixture.h"

namespace {

// What is taken now and was at most, of everything in this program.
std::atomic<std::size_t> taken{0};
std::atomic<std::size_t> takenAtMost{0};
// So many requests are granted; then all are refused.
std::atomic<std::size_t> grants{std::numeric_limits<std::size_t>::max()};

// In front of each piece: its size. As large as the strictest alignment that the language asks for here.
constexpr std::size_t kHeader = __STDCPP_DEFAULT_NEW_ALIGNMENT__;

void* take(std::size_t size) {
  if (grants == 0) throw std::bad_alloc();
  --grants;
  auto* piece = static_cast<std::size_t*>(std::malloc(size + kHeader));
  if (piece == nullptr) throw std::bad_alloc();
  *piece = size;
  const std::size_t now = taken += size;
  if (now > takenAtMost) takenAtMost = now;
  return reinterpret_cast<char*>(piece) + kHeader;
}

void giveBack(void* memory) {
  if (memory == nullptr) return;
  auto* piece = reinterpret_cast<std::size_t*>(static_cast<char*>(memory) - kHeader);
  taken -= *piece;
  std::free(piece);
}

}  // namespace

void* operator new(std::size_t size) { return take(size); }
void* operator new[](std::size_t size) { return take(size); }
void operator delete(void* memory) noexcept { giveBack(memory); }
void operator delete[](void* memory) noexcept { giveBack(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { giveBack(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { giveBack(memory); }

namespace varnel::test {
namespace {

// The most that is taken while 'action' runs, beyond what was taken before.
template <class Action>
std::size_t peakOf(Action action) {
  const std::size_t before = taken;
  takenAtMost = before;
  action();
  return takenAtMost - before;
}

// A file stream's buffers, names, the list of layers of a small object.
constexpr std::size_t kBesides = 16384;

struct MemoryCase {
  const char* name;
  std::vector<std::byte> (*makeFile)();
};

constexpr unsigned kMany = 30000;

std::vector<std::byte> manySquares() {
  Bytes faces;
  faces.id("FACE");
  for (unsigned i = 0; i < kMany; ++i) faces.u2(4).vx(0).vx(1).vx(2).vx(3);
  return ObjectBytes().layer(0, "a").points(4).chunk("POLS", faces).file();
}

std::vector<std::byte> manyPoints() { return ObjectBytes().layer(0, "a").points(kMany).file(); }

std::vector<std::byte> manyPolygonsWithoutCorners(const char* type) {
  Bytes polygons;
  polygons.id(type);
  for (unsigned i = 0; i < kMany; ++i) polygons.u2(0);
  return ObjectBytes().layer(0, "a").chunk("POLS", polygons).file();
}

std::vector<std::byte> manyEmptyFaces() { return manyPolygonsWithoutCorners("FACE"); }

std::vector<std::byte> manyEmptySkelegons() { return manyPolygonsWithoutCorners("BONE"); }

std::vector<std::byte> manyTaggedSkelegons() {
  Bytes bones;
  Bytes tags;
  bones.id("BONE");
  tags.id("BONE");
  for (unsigned i = 0; i < kMany; ++i) {
    bones.u2(i % 3);
    for (std::uint32_t point = 0; point < i % 3; ++point) bones.vx(0);
    tags.vx(i).u2(i);
  }
  return ObjectBytes().layer(0, "a").points(1).chunk("POLS", bones).chunk("PTAG", tags).file();
}

std::vector<std::byte> manyTagsOfOneSkelegon() {
  Bytes tags;
  tags.id("BONE");
  for (unsigned i = 0; i < kMany; ++i) tags.vx(0).u2(0);
  return ObjectBytes().layer(0, "a").points(1).polygons("BONE", {{0}}).chunk("PTAG", tags).file();
}

std::vector<std::byte> manyTagLists() {
  ObjectBytes object;
  object.layer(0, "a").points(1).polygons("BONE", {{0}});
  for (unsigned i = 0; i < kMany; ++i) object.polygonTags("BONE", {});
  return object.file();
}

std::vector<std::byte> manyTexts(std::string_view text) {
  Bytes texts;
  for (unsigned i = 0; i < kMany; ++i) texts.s0(text);
  return ObjectBytes().chunk("TAGS", texts).file();
}

std::vector<std::byte> manyEmptyTexts() { return manyTexts(""); }

std::vector<std::byte> manyTextsOfOneLetter() { return manyTexts("a"); }

std::vector<std::byte> manyLayersWithoutANameOfTheirOwn() {
  ObjectBytes object;
  for (unsigned i = 0; i < kMany; ++i) object.layer(65535, "");
  return object.file();
}

std::vector<std::byte> manyUnknownChunks() {
  ObjectBytes object;
  for (unsigned i = 0; i < kMany; ++i) object.chunk("SURF", Bytes());
  return object.file();
}

class ReadingMemory : public testing::TestWithParam<MemoryCase> {};

TEST_P(ReadingMemory, IsThreeTimesTheFileAtMost) {
  const std::vector<std::byte> bytes = GetParam().makeFile();
  const TemporaryFile file(bytes);
  ObjectFileData data;
  bool isSound = false;
  const std::size_t peak = peakOf([&] { isSound = ReadObjectFile(data, file.path()); });
  EXPECT_TRUE(isSound);
  EXPECT_LE(peak, 3 * bytes.size() + kBesides);
}

TEST_P(ReadingMemory, IsTwiceTheFileAtMostWhenTheFileIsDone) {
  const std::vector<std::byte> bytes = GetParam().makeFile();
  const TemporaryFile file(bytes);
  ObjectFileData data;
  const std::size_t before = taken;
  ASSERT_TRUE(ReadObjectFile(data, file.path()));
  EXPECT_LE(taken - before, 2 * bytes.size() + kBesides);
}

INSTANTIATE_TEST_SUITE_P(
    , ReadingMemory,
    testing::Values(MemoryCase{"ManySquares", manySquares}, MemoryCase{"ManyPoints", manyPoints},
                    MemoryCase{"ManyEmptyFaces", manyEmptyFaces}, MemoryCase{"ManyEmptySkelegons", manyEmptySkelegons},
                    MemoryCase{"ManyTaggedSkelegons", manyTaggedSkelegons},
                    MemoryCase{"ManyTagsOfOneSkelegon", manyTagsOfOneSkelegon}, MemoryCase{"ManyTagLists", manyTagLists},
                    MemoryCase{"ManyEmptyTexts", manyEmptyTexts}, MemoryCase{"ManyTextsOfOneLetter", manyTextsOfOneLetter},
                    MemoryCase{"ManyLayersWithoutANameOfTheirOwn", manyLayersWithoutANameOfTheirOwn},
                    MemoryCase{"ManyUnknownChunks", manyUnknownChunks}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ReadingMemoryOfADamagedFile, IsGivenBackAndWasNoMoreThanForASoundOne) {
  // The count of the last polygon is one too high: that shows only when all the others were read.
  std::vector<std::byte> bytes = manySquares();
  bytes[bytes.size() - 9] = std::byte{5};
  const TemporaryFile file(bytes);
  ObjectFileData data;
  const std::size_t before = taken;
  bool isSound = true;
  const std::size_t peak = peakOf([&] { isSound = ReadObjectFile(data, file.path()); });
  EXPECT_FALSE(isSound);
  EXPECT_LE(peak, 3 * bytes.size() + kBesides);
  EXPECT_EQ(taken, before);
}

TEST(ReadingMemoryOfADamagedFile, IsNotTakenForSizesThatTheFileDoesNotHave) {
  std::vector<std::byte> bytes = ObjectBytes().layer(0, "a").points(1).file();
  const Bytes size = Bytes().u4(0xFFFFFFF0);
  std::copy(size.bytes().begin(), size.bytes().end(), bytes.end() - 16);
  ObjectFileData data;
  bool isSound = true;
  const std::size_t peak = peakOf([&] { isSound = ParseObjectFile(data, bytes, kPath); });
  EXPECT_FALSE(isSound);
  EXPECT_LE(peak, kBesides);
}

TEST(ReadingWithoutMemory, AnswersFalseWithEmptyDataWheneverARequestIsRefused) {
  const TemporaryFile file(smallRig().file());
  const std::string path = file.path();
  ObjectFileData data;
  bool isSound = false;
  std::size_t refused = 0;
  for (std::size_t granted = 0; !isSound; ++granted) {
    ASSERT_LT(granted, 1000U);
    std::string narrowPath = path;
    grants = granted;
    isSound = ReadObjectFile(data, std::move(narrowPath));
    grants = std::numeric_limits<std::size_t>::max();
    ASSERT_TRUE(isSound || isEmpty(data)) << "with " << granted << " requests granted";
    refused += isSound ? 0 : 1;
  }
  EXPECT_GT(refused, 5U);
  EXPECT_EQ(plainObject(data), *PlainObjectReader::read(smallRig().file()));
}

}  // namespace
}  // namespace varnel::test
