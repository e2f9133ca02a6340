// The rig that the probe brings along is a whole object file with all that the probe asks about, and leaves nothing behind.
#include "probe/rig_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "objectfile/chunk_records.h"
#include "objectfile/file_bytes.h"
#include "objectfile/object_file.h"

namespace probe {
namespace {

using standin::ObjectFile;
using standin::ObjectLayer;

ObjectFile written() {
  const RigFile file;
  const auto rig = standin::readObject(file.path());
  EXPECT_TRUE(rig) << rig.why();
  return rig ? *rig : ObjectFile();
}

std::vector<std::string> skelegons(ObjectLayer layer) {
  std::vector<std::string> names;
  for (const auto& polygon : layer.group(lw::kTypeBone).polygons) names.push_back(*polygon.tag(lw::kTagBone));
  return names;
}

TEST(ProbeRigFile, StandsInAFolderThatGoesWithIt) {
  std::filesystem::path path;
  {
    const RigFile file;
    path = standin::pathFromUtf8(file.path());
    EXPECT_TRUE(std::filesystem::exists(path));
  }
  EXPECT_FALSE(std::filesystem::exists(path.parent_path()));
}

TEST(ProbeRigFile, TwoAtOnceAreApart) {
  const RigFile one;
  const RigFile other;
  EXPECT_NE(one.path(), other.path());
}

TEST(ProbeRigFile, TheSecondLayerHasNoName) {
  const ObjectFile rig = written();
  ASSERT_EQ(rig.layers.size(), 2U);
  EXPECT_EQ(rig.layers[0].name, kRigLayer);
  EXPECT_EQ(rig.layers[1].name, "");
}

TEST(ProbeRigFile, SkelegonsDoNotStandInTheOrderOfTheirTree) {
  const ObjectFile rig = written();
  ASSERT_EQ(rig.layers.size(), 2U);
  EXPECT_EQ(skelegons(rig.layers[0]), std::vector<std::string>({kRigRoot, kRigLeft, kRigRight, kRigTip}));
  EXPECT_EQ(skelegons(rig.layers[1]), std::vector<std::string>({kRigOther}));
  ObjectLayer layer = rig.layers[0];
  const auto& polygons = layer.group(lw::kTypeBone).polygons;
  EXPECT_EQ(polygons[3].points[0], polygons[1].points[1]) << "the tip begins where the left one ends";
}

TEST(ProbeRigFile, ThereIsAFaceAndAWeightMapWithAndWithoutName) {
  const ObjectFile rig = written();
  ASSERT_FALSE(rig.layers.empty());
  EXPECT_EQ(rig.layers[0].polygonCount(lw::kTypeFace), 1U);
  ASSERT_EQ(rig.layers[0].maps.size(), 2U);
  EXPECT_EQ(rig.layers[0].maps[0].name, kRigWeightMap);
  EXPECT_EQ(rig.layers[0].maps[1].name, "");
}

TEST(ProbeRigFile, OnePolygonHasTwoTagsOfOneType) {
  const ObjectFile rig = written();
  const auto twice = std::find_if(rig.chunks.begin(), rig.chunks.end(), [](const standin::Chunk& chunk) {
    const auto tags = standin::records::readTags(chunk.bytes);
    return chunk.id == standin::records::kPolygonTags && tags && tags->type == kRigTwiceTag;
  });
  ASSERT_NE(twice, rig.chunks.end());
  const auto pairs = standin::records::readTags(twice->bytes)->pairs;
  ASSERT_EQ(pairs.size(), 2U);
  EXPECT_EQ(pairs[0].first, pairs[1].first);
  const auto texts = std::find_if(rig.chunks.begin(), rig.chunks.end(),
                                  [](const standin::Chunk& chunk) { return chunk.id == standin::records::kTags; });
  const auto words = *standin::records::readTexts(texts->bytes);
  EXPECT_EQ(words.at(pairs[0].second), kRigTwiceFirst);
  EXPECT_EQ(words.at(pairs[1].second), kRigTwiceLast);
}

TEST(ProbeRigFile, TheColourOfOneSkelegonIsStored) {
  const ObjectFile rig = written();
  ASSERT_FALSE(rig.layers.empty());
  ObjectLayer layer = rig.layers[0];
  EXPECT_EQ(*layer.group(lw::kTypeBone).polygons[1].tag(lw::kTagColour), kRigColour);
}

}  // namespace
}  // namespace probe
