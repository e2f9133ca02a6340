// The rigs of the manual's pictures: filled, and in the language of the manual.
#include "program/pictured_rigs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "rigs/code_page.h"
#include "rigs/settings.h"

namespace standin::rigs {
namespace {

std::vector<ObjectPolygon> skelegonsOf(ObjectFile object) {
  std::vector<ObjectPolygon> all;
  for (ObjectLayer& layer : object.layers) {
    const auto& skelegons = layer.group(lw::kTypeBone).polygons;
    all.insert(all.end(), skelegons.begin(), skelegons.end());
  }
  return all;
}

std::set<std::string> namesOf(const ObjectFile& object) {
  std::set<std::string> names;
  for (const ObjectPolygon& skelegon : skelegonsOf(object)) names.insert(*skelegon.tag(lw::kTagBone));
  return names;
}

ObjectPolygon filledSkelegon(const PicturedRig& rig) {
  for (const ObjectPolygon& skelegon : skelegonsOf(rig.filled())) {
    if (*skelegon.tag(lw::kTagBone) == rig.filledSkelegon()) return skelegon;
  }
  throw std::runtime_error(rig.filledSkelegon());
}

bool isJapanese(const std::string& name) {
  return std::any_of(name.begin(), name.end(), [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; });
}

bool isOfNames(const Setting& setting) {
  return setting.kind == skg::SlotKind::ItemName || setting.kind == skg::SlotKind::ObjectName ||
         setting.kind == skg::SlotKind::WeightMapName;
}

class PicturedRigs : public testing::TestWithParam<const char*> {
 protected:
  const PicturedRig rig{GetParam()};
};
INSTANTIATE_TEST_SUITE_P(Languages, PicturedRigs, testing::Values("en", "ja"));

TEST_P(PicturedRigs, FillEveryNameOfTheFilledSkelegon) {
  const ObjectPolygon filled = filledSkelegon(rig);
  for (const Setting& setting : allSettings()) {
    if (!isOfNames(setting)) continue;
    const std::string* const text = filled.tag(setting.tag);
    EXPECT_TRUE(text != nullptr && !text->empty()) << setting.english;
  }
}

TEST_P(PicturedRigs, StoreNothingOnTheFilledSkelegonThatThePanelWouldNot) {
  for (const PolygonTag& tag : filledSkelegon(rig).tags) {
    const Setting* const setting = settingOfTag(tag.type);
    if (setting != nullptr) {
      EXPECT_NE(setting->defaultText, tag.text) << setting->english;
    }
  }
}

TEST_P(PicturedRigs, KeepTheSettingsOfALayerEqual) {
  ObjectFile object = rig.filled();
  for (const int number : {12, 13, 16, 17}) {
    std::set<std::string> texts;
    for (const ObjectPolygon& skelegon : object.layers[0].group(lw::kTypeBone).polygons) {
      texts.insert(*skelegon.tag(settingTag(static_cast<std::uint8_t>(number))));
    }
    EXPECT_EQ(1U, texts.size()) << number;
  }
}

TEST_P(PicturedRigs, HaveTheWeightMapOfTheFilledSkelegon) {
  const ObjectFile object = rig.filled();
  const auto& maps = object.layers[0].maps;
  EXPECT_TRUE(std::any_of(maps.begin(), maps.end(), [&](const VertexMap& map) { return map.name == rig.filledSkelegon(); }));
}

TEST_P(PicturedRigs, BringTheParentsOfTheLinkedItems) {
  const ObjectFile object = rig.filled();
  std::set<std::string> known = namesOf(object);
  for (const ObjectLayer& layer : object.layers) known.insert("[file]:" + layer.name);
  const ObjectPolygon filled = filledSkelegon(rig);
  int parents = 0;
  for (const Setting& setting : allSettings()) {
    if (!setting.english.ends_with("Parent") || setting.kind != skg::SlotKind::ItemName) continue;
    EXPECT_EQ(1U, known.count(*filled.tag(setting.tag))) << setting.english;
    ++parents;
  }
  EXPECT_EQ(6, parents);
}

const PicturedRig kJapanese{"ja"};

TEST(JapanesePicturedRig, HasNoEnglishName) {
  for (const ObjectLayer& layer : kJapanese.filled().layers) {
    EXPECT_TRUE(isJapanese(layer.name)) << layer.name;
    for (const VertexMap& map : layer.maps) EXPECT_TRUE(isJapanese(map.name)) << map.name;
  }
  for (const std::string& name : namesOf(kJapanese.plain())) EXPECT_TRUE(isJapanese(name)) << name;
  const ObjectPolygon filled = filledSkelegon(kJapanese);
  for (const Setting& setting : allSettings()) {
    if (isOfNames(setting)) {
      EXPECT_TRUE(isJapanese(*filled.tag(setting.tag))) << setting.english;
    }
  }
}

TEST(JapanesePicturedRig, HasACircledNumberAndAStarInItsNames) {
  const std::set<std::string> names = namesOf(kJapanese.plain());
  for (const std::string symbol : {"①", "★"}) {
    EXPECT_TRUE(std::any_of(names.begin(), names.end(), [&](const std::string& name) {
      return name.find(symbol) != std::string::npos;
    })) << symbol;
  }
}

TEST(JapanesePicturedRig, HasTheShapeOfTheEnglishOne) {
  const ObjectFile japanese = kJapanese.plain();
  const ObjectFile english = PicturedRig("en").plain();
  EXPECT_EQ(namesOf(english).size(), namesOf(japanese).size());
  ASSERT_EQ(english.layers.size(), japanese.layers.size());
  for (std::size_t i = 0; i < english.layers.size(); ++i) EXPECT_EQ(english.layers[i].points, japanese.layers[i].points);
}

// Layout takes commands in the system's encoding.
TEST(JapanesePicturedRig, CanBeSaidInTheJapaneseCodePage) {
  const CodePage page(932);
  if (!page.isKnown()) GTEST_SKIP() << "this system has no tables of code page 932";
  for (const ObjectPolygon& skelegon : skelegonsOf(kJapanese.filled())) {
    for (const PolygonTag& tag : skelegon.tags) EXPECT_TRUE(page.holds(tag.text)) << tag.text;
  }
}

}  // namespace
}  // namespace standin::rigs
