// The object reader on files that others wrote.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>

#include "tests/unit/object_reader_fixture.h"

namespace varnel::test {
namespace {

namespace fs = std::filesystem;

fs::path samples() {
  const char* given = std::getenv("VARNEL_SAMPLES");
  return given != nullptr ? fs::path(given) : fs::path(VARNEL_REPOSITORY) / ".." / "shared" / "samples";
}

std::vector<fs::path> objectsIn(const char* folder) {
  std::vector<fs::path> paths;
  for (const auto& entry : fs::directory_iterator(samples() / folder)) {
    if (entry.path().extension() == ".lwo") paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

std::vector<std::byte> bytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::vector<std::byte> bytes(fs::file_size(path));
  file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

std::string printable(const fs::path& path) {
  const std::u8string text = path.filename().u8string();
  return {text.begin(), text.end()};
}

// How the facts name the type of a tag.
std::string factName(std::uint32_t type) {
  if (type >> 8U == idOf("sg1")) return "sg1+" + std::to_string(type & 0xFFU);
  std::string four;
  for (int shift = 24; shift >= 0; shift -= 8) four += static_cast<char>(type >> static_cast<unsigned>(shift) & 0xFFU);
  return four;
}

nlohmann::json factsOf(const SkelegonRecord& skelegon, const ObjectFileData& data) {
  nlohmann::json facts{{"head", skelegon.points[0]}, {"tail", skelegon.points[1]}, {"tags", nlohmann::json::object()}};
  for (const PolygonTag& tag : skelegon.tags) {
    // The facts leave the surface out, which every polygon has.
    if (tag.type == idOf("SURF")) continue;
    facts["tags"][factName(tag.type)] = tag.index < data.tagCount() ? data.tag(tag.index) : "(no such text)";
  }
  return facts;
}

nlohmann::json factsOf(const ObjectFileData& data) {
  nlohmann::json layers = nlohmann::json::array();
  for (const ObjectLayer& layer : layersOf(data)) {
    nlohmann::json facts{{"number", layer.number()},   {"name", layer.name()},
                         {"parent", layer.parent()},   {"points", layer.points().size()},
                         {"faces", layer.faceCount()}, {"skelegons", nlohmann::json::array()}};
    for (const SkelegonRecord& skelegon : layer.skelegons()) facts["skelegons"].push_back(factsOf(skelegon, data));
    layers.push_back(std::move(facts));
  }
  return layers;
}

class SampleObject : public testing::Test {
 protected:
  void SetUp() override {
    if (!fs::exists(samples())) GTEST_SKIP() << "the folder of sample objects is missing: " << samples();
  }
};

TEST_F(SampleObject, OfARigHoldsJustWhatItsFactsSay) {
  const std::vector<fs::path> rigs = objectsIn("rigs");
  ASSERT_FALSE(rigs.empty());
  for (const fs::path& rig : rigs) {
    const Reading reading(bytesOf(rig));
    ASSERT_TRUE(reading.isSound) << printable(rig);
    fs::path factsPath = rig;
    std::ifstream factsFile(factsPath.replace_extension(".facts.json"));
    EXPECT_EQ(factsOf(reading.data), nlohmann::json::parse(factsFile)["layers"]) << printable(rig);
  }
}

TEST_F(SampleObject, OfAMeshIsReadAsByThePlainReader) {
  std::size_t faces = 0;
  for (const fs::path& mesh : objectsIn("meshes")) {
    if (mesh.stem() == "old-format-lwob") continue;
    const std::vector<std::byte> file = bytesOf(mesh);
    const Reading reading(file);
    ASSERT_TRUE(reading.isSound) << printable(mesh);
    EXPECT_TRUE(readersAgree(file)) << printable(mesh);
    for (const ObjectLayer& layer : layersOf(reading.data)) {
      EXPECT_EQ(layer.skelegonCount(), 0U) << printable(mesh);
      faces += layer.faceCount();
    }
  }
  EXPECT_GT(faces, 0U);
}

TEST_F(SampleObject, OfTheOlderFormatIsRefused) {
  EXPECT_TRUE(isRefused(Reading(bytesOf(samples() / "meshes" / "old-format-lwob.lwo"))));
}

}  // namespace
}  // namespace varnel::test
