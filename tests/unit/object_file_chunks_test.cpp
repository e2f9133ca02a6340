// The walk over the chunks of an object file, and files that are odd in themselves.
#include <gtest/gtest.h>

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "reader/file_streams.h"
#include "reader/object_reader.h"
#include "tests/unit/object_reader_fixture.h"

namespace varnel::test {
namespace {

using lwp::st::CFileStream;
using lwp::st::Chunk;
using lwp::st::ChunkKind;
using lwp::st::CLWOFileStream;
using lwp::st::ObjectFileData;
using lwp::st::Vec12;

// The kinds of the chunks that are handed out, up to the first of 'last'; whether the walk came to the end.
std::pair<std::vector<ChunkKind>, bool> walk(const ObjectBytes& object, ChunkKind last = lwp::st::kOther) {
  const std::vector<std::byte> file = object.file();
  CLWOFileStream stream(file);
  std::vector<ChunkKind> kinds;
  const bool isAtEnd = stream.enterForm() && stream.readChunks([&](const Chunk& chunk) {
    kinds.push_back(chunk.kind);
    return chunk.kind != last;
  });
  return {kinds, isAtEnd};
}

TEST(ObjectChunkWalk, HandsOutTheChunksOfUseAndNoOther) {
  using namespace lwp::st;
  const auto [kinds, isAtEnd] = walk(smallRig());
  EXPECT_TRUE(isAtEnd);
  EXPECT_EQ(kinds,
            (std::vector{kTagTexts, kLayer, kPoints, kFaces, kLayer, kPoints, kSkelegons, kSkelegonTags, kSkelegonTags}));
}

TEST(ObjectChunkWalk, EndsWhereTheOneWhoTakesTheChunksIsNotContent) {
  const auto [kinds, isAtEnd] = walk(smallRig(), lwp::st::kPoints);
  EXPECT_FALSE(isAtEnd);
  EXPECT_EQ(kinds.size(), 3U);  // up to the points of the first layer
}

// A form of no bytes at all, and of one to three: there is no room for its type.
TEST(ObjectForm, WithoutATypeIsNone) {
  for (unsigned size = 0; size < 4; ++size) {
    Bytes bytes = Bytes().id("FORM").u4(size);
    for (unsigned i = 0; i < size; ++i) bytes.u1('L');
    CLWOFileStream stream(bytes.span());
    EXPECT_FALSE(stream.enterForm()) << size;
  }
}

TEST(ObjectVector, DiffersInEachOfItsCoordinates) {
  const Vec12 vector{1, 2, 3};
  EXPECT_EQ(vector, (Vec12{1, 2, 3}));
  EXPECT_NE(vector, (Vec12{0, 2, 3}));
  EXPECT_NE(vector, (Vec12{1, 0, 3}));
  EXPECT_NE(vector, (Vec12{1, 2, 0}));
}

// ---------------------------------------------------------------------------------------------------------------------
// Files

// No byte of it is looked at: the reading position could not say where it is.
TEST(FileStreamLength, BeyondFourGigabytesCountsAsNothing) {
  const std::byte byte{};
  EXPECT_TRUE(CFileStream(std::span(&byte, CFileStream::kLongestFile + 1)).atEnd());
}

#if !defined(_WIN32)
// Files of the system's own state claim a page and give some bytes.
TEST(FileStreamLength, BeyondWhatTheFileGivesIsRefused) {
  const std::string path = "/sys/kernel/mm/transparent_hugepage/enabled";
  std::ifstream file(path, std::ios::binary);
  std::string text;
  if (!file || !std::getline(file, text) || std::filesystem::file_size(path) <= text.size() + 1) {
    GTEST_SKIP() << "the system has no such file here";
  }
  CFileStream stream;
  EXPECT_FALSE(stream.load(path));
  EXPECT_TRUE(stream.atEnd());
}

// A name that is no file but gives bytes once: there is no length to be asked for. Opened for both ways first, so that
// opening it again does not wait for a writer.
TEST(FileStreamLength, OfAPipeIsUnknownAndNothingIsRead) {
  const std::string path = TemporaryFile({}).path() + ".pipe";
  ASSERT_EQ(mkfifo(path.c_str(), S_IRUSR | S_IWUSR), 0);
  {
    const std::fstream keepsItOpen(path, std::ios::in | std::ios::out | std::ios::binary);
    ObjectFileData data;
    EXPECT_FALSE(lwp::st::ReadObjectFile(data, path));
    EXPECT_TRUE(isEmpty(data));
  }
  std::filesystem::remove(path);
}
#endif

}  // namespace
}  // namespace varnel::test
