// The reading position and the primitives of a file stream.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <filesystem>
#include <istream>
#include <limits>
#include <locale>
#include <streambuf>

#include "reader/file_streams.h"
#include "tests/unit/object_reader_fixture.h"

namespace lwp::st {
namespace {

using varnel::test::Bytes;
using varnel::test::TemporaryFile;

TEST(FileStream, ReadsNumbersHighestByteFirst) {
  const Bytes bytes = Bytes().u1(0x12).u1(0x34).u1(0x89).u1(0xAB).u1(0xCD).u1(0xEF);
  CFileStream stream(bytes.span());
  std::uint16_t two = 0;
  std::uint32_t four = 0;
  EXPECT_TRUE(stream.readU2(two) && stream.readU4(four));
  EXPECT_EQ(two, 0x1234);
  EXPECT_EQ(four, 0x89ABCDEFU);
  EXPECT_TRUE(stream.atEnd());
}

TEST(FileStream, ReadsFloats) {
  const Bytes bytes = Bytes().u4(0xC0490FDB).u4(0x3F800000).u4(0).u4(0x7F800000);
  CFileStream stream(bytes.span());
  float pi = 0;
  Vec12 vector{};
  EXPECT_TRUE(stream.readF4(pi) && stream.readVEC12(vector));
  EXPECT_FLOAT_EQ(pi, -3.14159274F);
  EXPECT_EQ(vector.x, 1.0F);
  EXPECT_EQ(vector.y, 0.0F);
  EXPECT_TRUE(std::isinf(vector.z));
}

TEST(FileStream, PassesOneMoreZeroBehindATextOfOddLengthWithItsZero) {
  const Bytes bytes = Bytes().text("ab").u2(0).text("abc").u1(0).u2(0).text("x").u1(0);
  CFileStream stream(bytes.span());
  std::string_view text;
  std::vector<std::string> texts;
  while (stream.readS0(text)) texts.emplace_back(text);
  EXPECT_EQ(texts, (std::vector<std::string>{"ab", "abc", "", "x"}));
  EXPECT_TRUE(stream.atEnd());
}

TEST(FileStream, ReadsIndicesOfTwoAndFourBytes) {
  const Bytes bytes = Bytes().u2(0).u2(0xFEFF).u4(0xFF00FF00).u4(0xFFFFFFFF).u4(0xFF000001);
  CFileStream stream(bytes.span());
  std::uint32_t index = 0;
  std::vector<std::uint32_t> indices;
  while (stream.readVX(index)) indices.push_back(index);
  EXPECT_EQ(indices, (std::vector<std::uint32_t>{0, 0xFEFF, 0xFF00, 0xFFFFFF, 1}));
  EXPECT_TRUE(stream.atEnd());
}

// One way to read, and how many bytes it is given: always too few.
struct ShortRead {
  const char* name;
  std::vector<std::byte> bytes;
  bool (*read)(CFileStream&);
};

template <class Value, bool (CFileStream::*Read)(Value&)>
bool readOne(CFileStream& stream) {
  Value value{};
  return (stream.*Read)(value);
}

class FileStreamPastTheEnd : public testing::TestWithParam<ShortRead> {};

TEST_P(FileStreamPastTheEnd, FailsWithoutMoving) {
  std::vector<std::byte> bytes{std::byte{1}, std::byte{2}};
  bytes.insert(bytes.end(), GetParam().bytes.begin(), GetParam().bytes.end());
  CFileStream stream(bytes);
  std::uint16_t before = 0;
  ASSERT_TRUE(stream.readU2(before));
  EXPECT_FALSE(GetParam().read(stream));
  EXPECT_EQ(stream.position(), 2U);
  EXPECT_EQ(stream.left(), GetParam().bytes.size());
}

std::vector<std::byte> zeros(std::size_t count) { return std::vector<std::byte>(count); }

bool readWindowOfThree(CFileStream& stream) {
  CFileStream window;
  return stream.readWindow(3, window);
}

INSTANTIATE_TEST_SUITE_P(
    , FileStreamPastTheEnd,
    testing::Values(ShortRead{"NothingForU2", zeros(0), readOne<std::uint16_t, &CFileStream::readU2>},
                    ShortRead{"OneByteForU2", zeros(1), readOne<std::uint16_t, &CFileStream::readU2>},
                    ShortRead{"ThreeBytesForU4", zeros(3), readOne<std::uint32_t, &CFileStream::readU4>},
                    ShortRead{"ThreeBytesForF4", zeros(3), readOne<float, &CFileStream::readF4>},
                    ShortRead{"ElevenBytesForVec12", zeros(11), readOne<Vec12, &CFileStream::readVEC12>},
                    ShortRead{"NothingForS0", zeros(0), readOne<std::string_view, &CFileStream::readS0>},
                    ShortRead{"NoZeroForS0", Bytes().text("abc").bytes(), readOne<std::string_view, &CFileStream::readS0>},
                    ShortRead{"NoPaddingForS0", zeros(1), readOne<std::string_view, &CFileStream::readS0>},
                    ShortRead{"NothingForVX", zeros(0), readOne<std::uint32_t, &CFileStream::readVX>},
                    ShortRead{"OneByteForVX", zeros(1), readOne<std::uint32_t, &CFileStream::readVX>},
                    ShortRead{"ThreeBytesForLongVX", Bytes().u1(0xFF).u2(0).bytes(),
                              readOne<std::uint32_t, &CFileStream::readVX>},
                    ShortRead{"TwoBytesForAWindowOfThree", zeros(2), readWindowOfThree}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(FileStream, AWindowEndsWhereItWasToldTo) {
  const Bytes bytes = Bytes().u2(1).u2(2).u2(3);
  CFileStream stream(bytes.span());
  CFileStream window;
  ASSERT_TRUE(stream.readWindow(4, window));
  std::uint32_t four = 0;
  std::uint16_t two = 0;
  EXPECT_TRUE(window.readU4(four));
  EXPECT_FALSE(window.readU2(two));
  EXPECT_TRUE(stream.readU2(two));
  EXPECT_EQ(two, 3);
}

TEST(FileStream, LoadsAWholeFile) {
  const Bytes bytes = Bytes().text("a\r\n\x1A\xFF").u1(0).text("b");
  const TemporaryFile file(bytes.span());
  CFileStream stream;
  ASSERT_TRUE(stream.load(file.path()));
  EXPECT_EQ(std::vector(stream.rest().begin(), stream.rest().end()), bytes.bytes());
}

TEST(FileStream, LoadsNothingWhereThereIsNoFile) {
  const TemporaryFile file(Bytes().text("before").span());
  CFileStream stream;
  ASSERT_TRUE(stream.load(file.path()));
  EXPECT_FALSE(stream.load(file.path() + ".missing"));
  EXPECT_EQ(stream.left(), 0U);
}

TEST(FileStream, LoadsNoFolder) {
  CFileStream stream;
  EXPECT_FALSE(stream.load(std::filesystem::temp_directory_path().string()));
  EXPECT_TRUE(stream.atEnd());
}

// A file that notes how much each read asks for, and refuses one for more than its system can take.
class CountingFile : public std::streambuf {
 public:
  CountingFile(std::size_t size, std::streamsize most) : left_(size), most_(most) {}
  std::vector<std::streamsize> asked;

 protected:
  std::streamsize xsgetn(char* to, std::streamsize count) override {
    asked.push_back(count);
    if (count > most_) return 0;
    const auto given = std::min(left_, static_cast<std::size_t>(count));
    std::fill_n(to, given, 'x');
    left_ -= given;
    return static_cast<std::streamsize>(given);
  }

 private:
  std::size_t left_;
  std::streamsize most_;
};

TEST(FileBlocks, AskForNoMoreThanABlockInEachRead) {
  CountingFile counting(10, 4);
  std::istream file(&counting);
  std::vector<std::byte> bytes(10);
  EXPECT_TRUE(readInBlocks(file, bytes, 4));
  EXPECT_EQ(counting.asked, (std::vector<std::streamsize>{4, 4, 2}));
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), std::byte{'x'}), 10);
}

TEST(FileBlocks, EndWithAWholeBlockWithoutAFurtherRead) {
  CountingFile counting(8, 4);
  std::istream file(&counting);
  std::vector<std::byte> bytes(8);
  EXPECT_TRUE(readInBlocks(file, bytes, 4));
  EXPECT_EQ(counting.asked, (std::vector<std::streamsize>{4, 4}));
}

TEST(FileBlocks, FailWhereTheFileHasFewerBytes) {
  CountingFile counting(9, 4);
  std::istream file(&counting);
  std::vector<std::byte> bytes(10);
  EXPECT_FALSE(readInBlocks(file, bytes, 4));
}

TEST(FileBlocks, AreOfASizeThatEverySystemReads) {
  EXPECT_LE(kBytesPerRead, static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()));
  CountingFile counting(kBytesPerRead + 1, static_cast<std::streamsize>(kBytesPerRead));
  std::istream file(&counting);
  std::vector<std::byte> bytes(kBytesPerRead + 1);
  EXPECT_TRUE(readInBlocks(file, bytes));
}

// Converts what a file holds, as a locale may.
class Changing : public std::codecvt<char, char, std::mbstate_t> {
 protected:
  bool do_always_noconv() const noexcept override { return false; }
  result do_in(state_type&, const char* from, const char* fromEnd, const char*& fromNext, char* to, char* toEnd,
               char*& toNext) const override {
    for (; from != fromEnd && to != toEnd; ++from, ++to) *to = static_cast<char>(*from + 1);
    fromNext = from;
    toNext = to;
    return from == fromEnd ? ok : partial;
  }
};

TEST(FileStream, LoadsTheBytesAsTheyAreInAnyLocale) {
  const Bytes bytes = Bytes().text("abc");
  const TemporaryFile file(bytes.span());
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Changing));
  CFileStream stream;
  const bool loaded = stream.load(file.path());
  std::locale::global(before);
  ASSERT_TRUE(loaded);
  EXPECT_EQ(std::vector(stream.rest().begin(), stream.rest().end()), bytes.bytes());
}

}  // namespace
}  // namespace lwp::st
