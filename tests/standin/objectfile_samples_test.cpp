// The stand-in's reader and writer on objects that others wrote.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>

#include "objectfile/file_bytes.h"
#include "objectfile/object_file.h"
#include "tests/standin/samples.h"

namespace standin {
namespace {

class SampleObjects : public OnSamples {};

// The one object of the form before LWO2.
bool isOlder(const std::string& path) { return path.ends_with("old-format-lwob.lwo"); }

// A tag as the facts name it: "BONE", or "sg1+13" for a setting.
std::uint32_t tagType(const std::string& name) {
  if (name.rfind("sg1+", 0) == 0) return settingTag(static_cast<std::uint8_t>(std::stoi(name.substr(4))));
  return lw::fourCharacters(name[0], name[1], name[2], name[3]);
}

void expectSkelegon(const ObjectPolygon& polygon, const nlohmann::json& facts) {
  EXPECT_EQ(polygon.points, (std::vector<std::uint32_t>{facts["head"], facts["tail"]}));
  for (const auto& [name, text] : facts["tags"].items()) {
    const std::string* stored = polygon.tag(tagType(name));
    ASSERT_NE(stored, nullptr) << name;
    EXPECT_EQ(*stored, text.get<std::string>()) << name;
  }
  std::size_t told = polygon.tags.size();
  if (polygon.tag(kTagSurface) != nullptr) --told;
  EXPECT_EQ(told, facts["tags"].size());
}

void expectLayer(const ObjectLayer& layer, const nlohmann::json& facts) {
  EXPECT_EQ(layer.number, facts["number"].get<int>());
  const std::string name = layer.name.empty() ? "Layer" + std::to_string(layer.number + 1) : layer.name;
  EXPECT_EQ(name, facts["name"].get<std::string>());
  EXPECT_EQ(layer.parent.value_or(0), facts["parent"].get<int>());
  EXPECT_EQ(layer.points.size(), facts["points"].get<std::size_t>());
  EXPECT_EQ(layer.polygonCount(lw::kTypeFace), facts["faces"].get<std::size_t>());
  std::vector<ObjectPolygon> skelegons;
  for (const PolygonGroup& group : layer.groups) {
    if (group.type == lw::kTypeBone) skelegons.insert(skelegons.end(), group.polygons.begin(), group.polygons.end());
  }
  ASSERT_EQ(skelegons.size(), facts["skelegons"].size());
  for (std::size_t i = 0; i < skelegons.size(); ++i) {
    SCOPED_TRACE("skelegon " + std::to_string(i));
    expectSkelegon(skelegons[i], facts["skelegons"][i]);
  }
}

TEST_F(SampleObjects, RigsHoldWhatTheirFactsSay) {
  const auto paths = sampleObjects("rigs");
  ASSERT_EQ(paths.size(), 8U);
  for (const std::string& path : paths) {
    SCOPED_TRACE(path);
    const auto object = readObject(path);
    ASSERT_TRUE(object) << object.why();
    std::ifstream stream(pathFromUtf8(path).replace_extension(".facts.json"));
    const auto facts = nlohmann::json::parse(stream);
    EXPECT_EQ(chunkName(object->form), facts["form"].get<std::string>());
    ASSERT_EQ(object->layers.size(), facts["layers"].size());
    for (std::size_t i = 0; i < object->layers.size(); ++i) expectLayer(object->layers[i], facts["layers"][i]);
  }
}

TEST_F(SampleObjects, MeshesOfOtherProgramsAreReadButNotTheOlderForm) {
  const auto paths = sampleObjects("meshes");
  ASSERT_EQ(paths.size(), 9U);
  for (const std::string& path : paths) {
    SCOPED_TRACE(path);
    const auto object = readObject(path);
    EXPECT_EQ(static_cast<bool>(object), !isOlder(path)) << object.why();
    if (isOlder(path)) {
      EXPECT_NE(object.why().find("LWOB"), std::string::npos);
    } else {
      ASSERT_FALSE(object->layers.empty());
      EXPECT_FALSE(object->layers[0].points.empty());
      EXPECT_EQ(object->layers[0].polygonCount(lw::kTypeBone), 0U);
    }
  }
}

TEST_F(SampleObjects, OpenedAndSavedUnchangedIsTheSameByteForByte) {
  for (const char* folder : {"rigs", "meshes"}) {
    for (const std::string& path : sampleObjects(folder)) {
      SCOPED_TRACE(path);
      const auto bytes = readFileBytes(path);
      ASSERT_TRUE(bytes) << bytes.why();
      const auto object = parseObject(*bytes);
      if (isOlder(path)) continue;
      ASSERT_TRUE(object) << object.why();
      const auto saved = serializeObject(*object);
      ASSERT_TRUE(saved) << saved.why();
      EXPECT_TRUE(*saved == *bytes);
    }
  }
}

// What a chunk list lost or gained, ignoring chunks that are equal on both sides.
std::vector<Chunk> missingFrom(const std::vector<Chunk>& all, const std::vector<Chunk>& part) {
  std::vector<Chunk> missing;
  auto next = all.begin();
  for (const Chunk& chunk : part) {
    const auto found =
        std::find_if(next, all.end(), [&](const Chunk& c) { return c.id == chunk.id && c.bytes == chunk.bytes; });
    if (found == all.end()) {
      missing.push_back(chunk);
    } else {
      next = found + 1;
    }
  }
  return missing;
}

TEST_F(SampleObjects, AnAddedSkelegonTouchesNoOtherChunk) {
  for (const std::string& path : sampleObjects("meshes")) {
    if (isOlder(path)) continue;
    SCOPED_TRACE(path);
    auto object = readObject(path);
    ASSERT_TRUE(object) << object.why();
    ObjectPolygon skelegon;
    skelegon.points = {0, 1};
    skelegon.setTag(lw::kTagBone, "Added");
    skelegon.setTag(settingTag(13), "2");
    object->layers[0].group(lw::kTypeBone).polygons.push_back(skelegon);

    const auto saved = serializeObject(*object);
    ASSERT_TRUE(saved) << saved.why();
    const auto chunks = splitForm(*saved)->chunks;
    const auto touched = missingFrom(chunks, object->chunks);
    ASSERT_EQ(touched.size(), 1U) << "only the texts of the tags may change";
    EXPECT_EQ(chunkName(touched[0].id), "TAGS");
    auto again = parseObject(*saved);
    ASSERT_TRUE(again) << again.why();
    EXPECT_EQ(again->layers[0].group(lw::kTypeBone).polygons.back().tags, skelegon.tags);
  }
}

TEST_F(SampleObjects, ARemovedWeightMapTakesItsOptionsAlongAndNothingElse) {
  auto object = readObject(utf8Of(samplesFolder() / "meshes" / "hierarchy.lwo"));
  ASSERT_TRUE(object) << object.why();
  ASSERT_EQ(object->layers[1].maps.size(), 2U);
  object->layers[1].maps.erase(object->layers[1].maps.begin());
  const auto saved = serializeObject(*object);
  ASSERT_TRUE(saved) << saved.why();
  const auto chunks = splitForm(*saved)->chunks;
  EXPECT_EQ(chunks.size() + 2, object->chunks.size());
  EXPECT_TRUE(missingFrom(object->chunks, chunks).empty());
  EXPECT_EQ(parseObject(*saved)->layers[1].maps.size(), 1U);
}

}  // namespace
}  // namespace standin
