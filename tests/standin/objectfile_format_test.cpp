// Forms and traps of the file format, and damaged files.
#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "objectfile/chunks.h"
#include "objectfile/object_file.h"
#include "objectfile/rig_builder.h"
#include "objectfile/sample_rigs.h"

namespace standin {
namespace {

constexpr std::uint32_t id(const char (&name)[5]) { return lw::fourCharacters(name[0], name[1], name[2], name[3]); }

// Bytes of a chunk, one call after the other.
std::string bytesOf(const std::function<void(ChunkWriter&)>& fill) {
  ChunkWriter writer;
  fill(writer);
  return writer.take();
}

Chunk layerChunk(const std::string& name = "Rig") {
  return {id("LAYR"), bytesOf([&](ChunkWriter& w) {
            w.longWord(0);
            for (int i = 0; i < 3; ++i) w.real(0);
            w.text(name);
          })};
}

Chunk pointsChunk(std::size_t count) { return {id("PNTS"), std::string(count * 12, '\0')}; }

Chunk textsChunk(const std::vector<std::string>& texts) {
  return {id("TAGS"), bytesOf([&](ChunkWriter& w) {
            for (const std::string& text : texts) w.text(text);
          })};
}

Chunk skelegonsChunk(const std::vector<std::pair<std::uint32_t, std::uint32_t>>& skelegons) {
  return {id("POLS"), bytesOf([&](ChunkWriter& w) {
            w.longWord(id("BONE"));
            for (const auto& [head, tail] : skelegons) {
              w.word(2);
              w.index(head);
              w.index(tail);
            }
          })};
}

Chunk tagsChunk(std::uint32_t type, const std::vector<std::pair<std::uint32_t, std::uint16_t>>& pairs) {
  return {id("PTAG"), bytesOf([&](ChunkWriter& w) {
            w.longWord(type);
            for (const auto& [polygon, text] : pairs) {
              w.index(polygon);
              w.word(text);
            }
          })};
}

std::string file(std::vector<Chunk> chunks, std::uint32_t form = kFormObject2) {
  return *joinForm({form, std::move(chunks)});
}

// A layer with four points and two skelegons called A and B.
std::vector<Chunk> smallRig() {
  return {textsChunk({"A", "B"}), layerChunk(), pointsChunk(4), skelegonsChunk({{0, 1}, {1, 2}}),
          tagsChunk(lw::kTagBone, {{0, 0}, {1, 1}})};
}

const ObjectPolygon& skelegon(const ObjectFile& object, std::size_t i) { return object.layers[0].groups[0].polygons[i]; }

std::string whyRefused(const std::string& bytes) {
  const auto object = parseObject(bytes);
  return object ? "it was read" : object.why();
}

TEST(ObjectFormat, BothFormTypesAreRead) {
  for (const std::uint32_t form : {kFormObject2, kFormObject3}) {
    const auto object = parseObject(file(smallRig(), form));
    ASSERT_TRUE(object) << object.why();
    EXPECT_EQ(object->form, form);
    EXPECT_EQ(*skelegon(*object, 1).tag(lw::kTagBone), "B");
  }
}

TEST(ObjectFormat, IndicesFrom65280TakeFourBytes) {
  EXPECT_EQ(bytesOf([](ChunkWriter& w) { w.index(0xFEFF); }), "\xFE\xFF");
  EXPECT_EQ(bytesOf([](ChunkWriter& w) { w.index(0xFF00); }), std::string("\xFF\x00\xFF\x00", 4));
}

TEST(ObjectFormat, ASmallIndexInTheLongFormIsReadAndKept) {
  std::vector<Chunk> chunks = smallRig();
  chunks[3].bytes = std::string("BONE\x00\x02\xFF\x00\x00\x03\x00\x01\x00\x02\x00\x01\x00\x02", 18);
  const std::string bytes = file(chunks);
  const auto object = parseObject(bytes);
  ASSERT_TRUE(object) << object.why();
  EXPECT_EQ(skelegon(*object, 0).points, (std::vector<std::uint32_t>{3, 1}));
  EXPECT_EQ(*serializeObject(*object), bytes);
}

TEST(ObjectFormat, PolygonFlagsAreKeptApartFromTheCount) {
  std::vector<Chunk> chunks = {layerChunk(), pointsChunk(2), {id("POLS"), std::string("CURV\x84\x02\x00\x00\x00\x01", 10)}};
  const auto object = parseObject(file(chunks));
  ASSERT_TRUE(object) << object.why();
  EXPECT_EQ(skelegon(*object, 0).flags, 0x84 >> 2);
  EXPECT_EQ(skelegon(*object, 0).points.size(), 2U);
  EXPECT_EQ(*serializeObject(*object), file(chunks));
}

TEST(ObjectFormat, AChunkOfOddSizeIsFollowedByAPadByte) {
  std::vector<Chunk> chunks = smallRig();
  chunks.insert(chunks.begin(), Chunk{id("XODD"), "abc", 'p'});
  const std::string bytes = file(chunks);
  EXPECT_EQ(bytes.substr(12, 16), std::string("XODD\0\0\0\x03"
                                              "abcpTAGS",
                                              16));
  const auto object = parseObject(bytes);
  ASSERT_TRUE(object) << object.why();
  EXPECT_EQ(object->layers.size(), 1U);
  EXPECT_EQ(*serializeObject(*object), bytes);
}

TEST(ObjectFormat, ALayerMayNameAParentOrNone) {
  for (const auto& [field, parent] : std::vector<std::pair<std::string, std::optional<std::uint16_t>>>{
           {"", std::nullopt}, {std::string("\x00\x05", 2), 5}, {"\xFF\xFF", std::nullopt}}) {
    Chunk layer = layerChunk();
    layer.bytes += field;
    const auto object = parseObject(file({layer}));
    ASSERT_TRUE(object) << object.why();
    EXPECT_EQ(object->layers[0].parent, parent);
    EXPECT_EQ(*serializeObject(*object), file({layer}));
  }
}

TEST(ObjectFormat, TagsBelongToTheLastPolygonsBeforeThem) {
  std::vector<Chunk> chunks = smallRig();
  chunks.push_back({id("POLS"), std::string("FACE\x00\x01\x00\x03", 8)});
  chunks.push_back(tagsChunk(kTagSurface, {{0, 1}}));
  const auto object = parseObject(file(chunks));
  ASSERT_TRUE(object) << object.why();
  EXPECT_EQ(*object->layers[0].groups[1].polygons[0].tag(kTagSurface), "B");
  EXPECT_EQ(skelegon(*object, 0).tag(kTagSurface), nullptr);
}

TEST(ObjectFormat, AnEmptyTagIsNotAMissingOne) {
  std::vector<Chunk> chunks = smallRig();
  chunks[0] = textsChunk({"A", ""});
  const auto object = parseObject(file(chunks));
  ASSERT_TRUE(object) << object.why();
  ASSERT_NE(skelegon(*object, 1).tag(lw::kTagBone), nullptr);
  EXPECT_EQ(*skelegon(*object, 1).tag(lw::kTagBone), "");
  EXPECT_EQ(skelegon(*object, 1).tag(lw::kTagPart), nullptr);
}

TEST(ObjectFormat, TagsInAnyOrderAndTwiceAreKeptAsTheyStand) {
  std::vector<Chunk> chunks = smallRig();
  chunks[4] = tagsChunk(lw::kTagBone, {{1, 0}, {0, 0}, {1, 1}});
  const auto object = parseObject(file(chunks));
  ASSERT_TRUE(object) << object.why();
  EXPECT_EQ(*skelegon(*object, 1).tag(lw::kTagBone), "B") << "the last one counts";
  EXPECT_EQ(*serializeObject(*object), file(chunks));
}

TEST(ObjectFormat, SeveralChunksOfTextsAreNumberedOn) {
  std::vector<Chunk> chunks = smallRig();
  chunks[0] = textsChunk({"A"});
  chunks.insert(chunks.begin() + 1, textsChunk({"B"}));
  const auto object = parseObject(file(chunks));
  ASSERT_TRUE(object) << object.why();
  EXPECT_EQ(*skelegon(*object, 1).tag(lw::kTagBone), "B");
}

// --- damaged files -------------------------------------------------------------------------------------------------------

TEST(DamagedObjects, AFormSizeOneOffTheLengthIsRefused) {
  for (const int off : {-1, 1}) {
    std::string bytes = file(smallRig());
    bytes[7] = static_cast<char>(bytes[7] + off);
    EXPECT_EQ(whyRefused(bytes), "the form's size does not fit the file's length");
  }
}

TEST(DamagedObjects, OtherKindsOfFileAreRefused) {
  EXPECT_EQ(whyRefused(""), "shorter than the head of an object file");
  EXPECT_EQ(whyRefused("RIFF....LWO2"), "not an IFF file");
  EXPECT_EQ(whyRefused(file(smallRig(), id("LWOB"))), "form type LWOB is not one that is read (LWO2, LWO3)");
}

TEST(DamagedObjects, AChunkPastTheEndIsRefused) {
  std::vector<Chunk> chunks = {layerChunk()};
  std::string bytes = file(chunks);
  bytes[19] = static_cast<char>(bytes[19] + 1);
  EXPECT_EQ(whyRefused(bytes), "chunk LAYR runs past the end of the file");
}

TEST(DamagedObjects, ATagOfAPolygonThatIsNotThereIsRefused) {
  std::vector<Chunk> chunks = smallRig();
  chunks[4] = tagsChunk(lw::kTagBone, {{2, 0}});
  EXPECT_EQ(whyRefused(file(chunks)), "a tag in layer 0 names polygon 2, which is not there (2 polygons, counted from 0)");
}

TEST(DamagedObjects, ATagOfATextThatIsNotThereIsRefused) {
  std::vector<Chunk> chunks = smallRig();
  chunks[4] = tagsChunk(lw::kTagBone, {{0, 2}});
  EXPECT_EQ(whyRefused(file(chunks)), "a tag in layer 0 names text 2, which is not there (2 texts, counted from 0)");
}

TEST(DamagedObjects, ATagOfATextThatIsNotThereIsLeftOutWhenAskedSo) {
  std::vector<Chunk> chunks = smallRig();
  chunks[4] = tagsChunk(lw::kTagBone, {{0, 2}, {1, 1}});
  const auto object = parseObject(file(chunks), TextlessTags::LeaveOut);
  ASSERT_TRUE(object) << object.why();
  EXPECT_EQ(skelegon(*object, 0).tag(lw::kTagBone), nullptr);
  EXPECT_EQ(*skelegon(*object, 1).tag(lw::kTagBone), "B");
}

TEST(DamagedObjects, APolygonOnAMissingPointIsRefused) {
  std::vector<Chunk> chunks = smallRig();
  chunks[3] = skelegonsChunk({{0, 1}, {1, 4}});
  EXPECT_EQ(whyRefused(file(chunks)), "a polygon names a point that its layer does not have");
}

TEST(DamagedObjects, APolygonThatIsCutIsRefused) {
  std::vector<Chunk> chunks = smallRig();
  chunks[3].bytes.resize(chunks[3].bytes.size() - 2);
  EXPECT_EQ(whyRefused(file(chunks)), "chunk POLS is damaged");
}

TEST(DamagedObjects, PointsOfAnotherSizeAreRefused) {
  std::vector<Chunk> chunks = smallRig();
  chunks[2].bytes += "12";
  EXPECT_EQ(whyRefused(file(chunks)), "chunk PNTS is damaged");
}

TEST(DamagedObjects, ATextWithoutAnEndIsRefused) {
  std::vector<Chunk> chunks = smallRig();
  chunks[0].bytes = "AB";
  EXPECT_EQ(whyRefused(file(chunks)), "chunk TAGS is damaged");
}

TEST(DamagedObjects, DataBeforeTheFirstLayerIsRefused) {
  EXPECT_EQ(whyRefused(file({pointsChunk(1)})), "chunk PNTS stands before the first layer");
}

TEST(DamagedObjects, AMapOfManyDimensionsAndNoValuesIsRefused) {
  std::vector<Chunk> chunks = smallRig();
  chunks.push_back({id("VMAP"), std::string("WGHT\xFF\xFFm\x00\x00\x00\x00\x00", 12)});
  EXPECT_EQ(whyRefused(file(chunks)), "chunk VMAP is damaged");
}

TEST(DamagedObjects, NoCutAndNoFlippedByteCrashesTheReader) {
  const std::string whole = *serializeObject(makeBoxedLizard());
  for (std::size_t length = 0; length < whole.size(); length += 7) EXPECT_FALSE(parseObject(whole.substr(0, length)));
  std::mt19937 random(20240501);
  for (int round = 0; round < 3000; ++round) {
    std::string bytes = whole;
    for (int flips = 0; flips < 4; ++flips) bytes[random() % bytes.size()] = static_cast<char>(random());
    const auto object = parseObject(bytes);
    if (object) {
      EXPECT_TRUE(serializeObject(*object)) << "what was read can be written";
    }
  }
}

}  // namespace
}  // namespace standin
