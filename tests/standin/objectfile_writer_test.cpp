// What saving changes in a file, and what it leaves alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "objectfile/object_file.h"
#include "objectfile/rig_builder.h"
#include "objectfile/sample_rigs.h"

namespace standin {
namespace {

ObjectFile reopened(const ObjectFile& object) {
  const auto bytes = serializeObject(object);
  EXPECT_TRUE(bytes) << bytes.why();
  const auto again = parseObject(*bytes);
  EXPECT_TRUE(again) << again.why();
  return *again;
}

// A face and two skelegons, with a weight map, as it comes from a file; a surface chunk follows, as in a real object.
ObjectFile savedRig() {
  RigBuilder rig;
  rig.layer(0, "Rig");
  rig.point({0, 0, 0});
  rig.point({1, 0, 0});
  rig.point({0, 1, 0});
  rig.face({0, 1, 2});
  rig.weightMap("Arm", {{0, 1.0F}});
  rig.chain({"Arm", "Hand"}, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}});
  ObjectFile object = reopened(rig.take());
  object.chunks.push_back({kTagSurface, std::string("Default\0\0\0", 10)});
  return reopened(object);
}

std::vector<std::string> chunkNames(const ObjectFile& object) {
  std::vector<std::string> names;
  for (const Chunk& chunk : object.chunks) {
    std::string name = chunkName(chunk.id);
    if (name == "POLS" || name == "PTAG" || name == "VMAP") name += ":" + chunk.bytes.substr(0, 4);
    names.push_back(std::move(name));
  }
  return names;
}

std::set<std::string> touchedChunks(const ObjectFile& before, const ObjectFile& after) {
  std::set<std::string> touched;
  const auto names = chunkNames(after);
  for (std::size_t i = 0; i < names.size(); ++i) {
    const auto same = [&](const Chunk& chunk) {
      return chunk.id == after.chunks[i].id && chunk.bytes == after.chunks[i].bytes;
    };
    if (std::none_of(before.chunks.begin(), before.chunks.end(), same)) touched.insert(names[i]);
  }
  return touched;
}

std::vector<ObjectPolygon>& skelegons(ObjectFile& object) { return object.layers[0].group(lw::kTypeBone).polygons; }

TEST(SavedObjects, ChunksStandInTheOrderOfARealObject) {
  EXPECT_EQ(chunkNames(savedRig()), (std::vector<std::string>{"TAGS", "LAYR", "PNTS", "BBOX", "VMAP:WGHT", "POLS:FACE",
                                                              "PTAG:SURF", "POLS:BONE", "PTAG:SURF", "PTAG:BONE", "SURF"}));
}

TEST(SavedObjects, ANewTextIsAddedToTheTextsAndOnlyItsTagChunkIsRebuilt) {
  const ObjectFile before = savedRig();
  ObjectFile object = before;
  skelegons(object)[1].setTag(lw::kTagBone, "Palm");
  const ObjectFile after = reopened(object);
  EXPECT_EQ(touchedChunks(before, after), (std::set<std::string>{"TAGS", "PTAG:BONE"}));
  EXPECT_EQ(after.chunks[0].bytes, before.chunks[0].bytes + std::string("Palm\0\0", 6));
}

TEST(SavedObjects, ATextThatTheFileHasIsUsedAgain) {
  const ObjectFile before = savedRig();
  ObjectFile object = before;
  skelegons(object)[1].setTag(lw::kTagBone, "Arm");
  EXPECT_EQ(touchedChunks(before, reopened(object)), (std::set<std::string>{"PTAG:BONE"}));
}

TEST(SavedObjects, ANewTagTypeFollowsTheOtherTagsOfItsPolygons) {
  ObjectFile object = savedRig();
  skelegons(object)[0].setTag(settingTag(13), "2");
  const auto names = chunkNames(reopened(object));
  EXPECT_EQ(std::find(names.begin(), names.end(), "PTAG:sg1\r") - std::find(names.begin(), names.end(), "PTAG:BONE"), 1);
}

TEST(SavedObjects, ATagTypeThatNobodyHasAnyMoreLosesItsChunk) {
  ObjectFile object = savedRig();
  for (ObjectPolygon& skelegon : skelegons(object)) skelegon.removeTag(lw::kTagBone);
  const auto names = chunkNames(reopened(object));
  EXPECT_EQ(std::count(names.begin(), names.end(), "PTAG:BONE"), 0);
}

TEST(SavedObjects, ARemovedSkelegonRenumbersTheTagsBehindIt) {
  ObjectFile object = savedRig();
  skelegons(object).erase(skelegons(object).begin());
  ObjectFile after = reopened(object);
  ASSERT_EQ(skelegons(after).size(), 1U);
  EXPECT_EQ(*skelegons(after)[0].tag(lw::kTagBone), "Hand");
}

TEST(SavedObjects, TheLastSkelegonTakesItsPolygonAndTagChunksAlong) {
  ObjectFile object = savedRig();
  skelegons(object).clear();
  const auto names = chunkNames(reopened(object));
  EXPECT_EQ(names,
            (std::vector<std::string>{"TAGS", "LAYR", "PNTS", "BBOX", "VMAP:WGHT", "POLS:FACE", "PTAG:SURF", "SURF"}));
}

TEST(SavedObjects, AnAddedPointRebuildsPointsAndBounds) {
  const ObjectFile before = savedRig();
  ObjectFile object = before;
  object.layers[0].points.push_back({9, 9, 9});
  EXPECT_EQ(touchedChunks(before, reopened(object)), (std::set<std::string>{"PNTS", "BBOX"}));
}

TEST(SavedObjects, ARemovedWeightMapIsGoneAndAChangedOneIsRebuilt) {
  const ObjectFile before = savedRig();
  ObjectFile changed = before;
  changed.layers[0].maps[0].values[0] = 0.5F;
  EXPECT_EQ(touchedChunks(before, reopened(changed)), (std::set<std::string>{"VMAP:WGHT"}));
  ObjectFile removed = before;
  removed.layers[0].maps.clear();
  EXPECT_TRUE(reopened(removed).layers[0].maps.empty());
}

TEST(SavedObjects, ANewLayerStandsBeforeTheSurfaces) {
  ObjectFile object = savedRig();
  ObjectLayer layer;
  layer.number = 1;
  layer.name = "More";
  object.layers.push_back(layer);
  const ObjectFile after = reopened(object);
  EXPECT_EQ(after.layers[1].name, "More");
  EXPECT_EQ(chunkNames(after).back(), "SURF");
}

TEST(SavedObjects, ALayerOfAFileThatHadNoPointsGetsThem) {
  RigBuilder empty;
  empty.layer(0, "Empty");
  ObjectFile object = reopened(empty.take());
  object.layers[0].points = {{0, 0, 0}, {0, 1, 0}};
  ObjectPolygon skelegon;
  skelegon.points = {0, 1};
  skelegons(object).push_back(skelegon);
  EXPECT_EQ(chunkNames(reopened(object)), (std::vector<std::string>{"LAYR", "PNTS", "BBOX", "POLS:BONE"}));
}

TEST(SavedObjects, APolygonOfMorePointsThanCanBeCountedIsNotWritten) {
  ObjectFile object = savedRig();
  object.layers[0].group(lw::kTypeFace).polygons[0].points.assign(1023, 0);
  EXPECT_TRUE(serializeObject(object));
  object.layers[0].group(lw::kTypeFace).polygons[0].points.assign(1024, 0);
  EXPECT_FALSE(serializeObject(object));
}

TEST(SavedObjects, MoreTextsThanCanBeNumberedAreNotWritten) {
  ObjectFile object = makeChainRig(1, 0);
  const ObjectPolygon pattern = skelegons(object)[0];
  for (int i = 0; i < 0xFFFE; ++i) {
    skelegons(object).push_back(pattern);
    skelegons(object).back().setTag(lw::kTagBone, std::to_string(i));
  }
  EXPECT_TRUE(serializeObject(object)) << "65536 texts: the surface, the first name and 65534 more";
  skelegons(object).push_back(pattern);
  skelegons(object).back().setTag(lw::kTagBone, "one too many");
  EXPECT_FALSE(serializeObject(object));
}

TEST(SavedObjects, FacesUnderAMapByPolygonNumberAreNotRenumbered) {
  ObjectFile object = savedRig();
  const auto faceTags = std::find_if(object.chunks.begin(), object.chunks.end(),
                                     [](const Chunk& chunk) { return chunkName(chunk.id) == "PTAG"; });
  object.chunks.insert(faceTags + 1, Chunk{lw::fourCharacters('V', 'M', 'A', 'D'), std::string("TXUV\0\x02uv\0\0", 10)});
  object.layers[0].group(lw::kTypeFace).polygons[0].points = {0, 2, 1};
  const auto bytes = serializeObject(object);
  ASSERT_FALSE(bytes);
  EXPECT_EQ(bytes.why(), "polygons were removed to which a vertex map refers by number");
}

// --- rigs made in code ---------------------------------------------------------------------------------------------------

TEST(BuiltRigs, AreReadBackAsTheyWereBuilt) {
  for (const ObjectFile& built : {makeDemoRig(), makeJapaneseRig(), makeChainRig(100, 20)}) {
    const ObjectFile again = reopened(built);
    ASSERT_EQ(again.layers.size(), built.layers.size());
    for (std::size_t l = 0; l < built.layers.size(); ++l) {
      EXPECT_EQ(again.layers[l].name, built.layers[l].name);
      EXPECT_EQ(again.layers[l].points, built.layers[l].points);
      ASSERT_EQ(again.layers[l].groups.size(), built.layers[l].groups.size());
      for (std::size_t g = 0; g < built.layers[l].groups.size(); ++g) {
        const auto& expected = built.layers[l].groups[g].polygons;
        const auto& actual = again.layers[l].groups[g].polygons;
        ASSERT_EQ(actual.size(), expected.size());
        for (std::size_t p = 0; p < expected.size(); ++p) {
          EXPECT_EQ(actual[p].points, expected[p].points);
          EXPECT_TRUE(std::is_permutation(actual[p].tags.begin(), actual[p].tags.end(), expected[p].tags.begin(),
                                          expected[p].tags.end()));
        }
      }
    }
  }
}

TEST(BuiltRigs, AChainSharesThePointsBetweenParentAndChild) {
  RigBuilder rig;
  const auto chain = rig.chain({"a", "b", "c"}, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}});
  EXPECT_EQ(chain[1].head, chain[0].tail);
  EXPECT_EQ(chain[2].head, chain[1].tail);
  EXPECT_EQ(rig.object().layers[0].points.size(), 4U);
}

std::set<std::uint32_t> typesStoredIn(ObjectFile rig) {
  std::set<std::uint32_t> stored;
  for (ObjectLayer& layer : rig.layers) {
    for (const ObjectPolygon& skelegon : layer.group(lw::kTypeBone).polygons) {
      for (const PolygonTag& tag : skelegon.tags) stored.insert(tag.type);
    }
  }
  return stored;
}

TEST(DemoRig, StoresEverySettingButTheWeightSwitches) {
  std::set<std::uint32_t> stored = typesStoredIn(makeEverySettingRig());
  for (const std::uint8_t number : std::initializer_list<std::uint8_t>{29, 30})
    EXPECT_EQ(stored.erase(settingTag(number)), 1U);
  EXPECT_EQ(typesStoredIn(makeDemoRig()), stored);
}

TEST(EverySettingRig, StoresEverySettingThatThePanelCanMake) {
  const std::set<std::uint32_t> stored = typesStoredIn(makeEverySettingRig());
  // Those that no control writes, and the name and the weight map, which have tag types of their own.
  const std::set<int> without = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 14, 15, 18, 19, 20, 21, 22, 23, 24, 25, 28, 144};
  for (int number = 0; number < 187; ++number) {
    EXPECT_EQ(stored.count(settingTag(static_cast<std::uint8_t>(number))), without.count(number) == 0 ? 1U : 0U) << number;
  }
  EXPECT_EQ(stored.count(lw::kTagBoneWeight), 1U);
  EXPECT_EQ(stored.count(lw::kTagColour), 1U);
}

TEST(DemoRig, HasTwoLayersAndTwentyFourSkelegonsOfDifferentNames) {
  std::set<std::string> names;
  ObjectFile rig = makeDemoRig();
  ASSERT_EQ(rig.layers.size(), 2U);
  for (ObjectLayer& layer : rig.layers) {
    for (const ObjectPolygon& skelegon : layer.group(lw::kTypeBone).polygons) names.insert(*skelegon.tag(lw::kTagBone));
  }
  EXPECT_EQ(names.size(), 24U);
}

TEST(DemoRig, KeepsTheObjectWideSettingsEqualWithinALayer) {
  ObjectFile rig = makeDemoRig();
  for (ObjectLayer& layer : rig.layers) {
    const auto& bones = layer.group(lw::kTypeBone).polygons;
    for (std::uint8_t number = 12; number <= 17; ++number) {
      for (const ObjectPolygon& bone : bones) {
        const std::string* first = bones[0].tag(settingTag(number));
        const std::string* own = bone.tag(settingTag(number));
        ASSERT_EQ(own == nullptr, first == nullptr) << int{number};
        if (own != nullptr) {
          EXPECT_EQ(*own, *first) << int{number};
        }
      }
    }
  }
}

}  // namespace
}  // namespace standin
