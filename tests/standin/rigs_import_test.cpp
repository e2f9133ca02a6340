// Settings as JSON and back.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "rigs/difference.h"
#include "rigs/report.h"
#include "rigs/settings_json.h"
#include "tests/standin/rigs_fixture.h"

namespace standin::rigs {
namespace {

using testing::HasSubstr;
using Json = nlohmann::ordered_json;

std::string bytesOf(const ObjectFile& object) { return *serializeObject(object); }

// The object as it is once it was read from a file.
ObjectFile reread(const ObjectFile& object) { return *parseObject(bytesOf(object)); }

class Import : public testing::Test {
 protected:
  Json exported() const { return Json::parse(exportSettings(rigOf(object, kFileName))); }
  static Json& skelegon(Json& json, std::size_t i) { return json["layers"][0]["skelegons"][i]; }

  // The sentence; the object has to be as it was.
  std::string refused(const std::string& json) {
    const std::string before = bytesOf(object);
    const auto changes = importSettings(object, json);
    EXPECT_FALSE(changes);
    EXPECT_TRUE(bytesOf(object) == before);
    return changes.why();
  }
  const std::string& stored(std::size_t polygon, std::uint8_t slot) const {
    return *object.layers[0].groups[0].polygons[polygon].tag(settingTag(slot));
  }

  ObjectFile object = reread(SoundRig().object());
};

TEST_F(Import, ExportHoldsValuesThatAPersonCanRead) {
  Json json = exported();
  const Json& settings = skelegon(json, 0)["settings"];
  EXPECT_EQ(settings["Falloff Type"], "Inverse Distance^4");
  EXPECT_EQ(settings["Strength"], 80.0);
  EXPECT_EQ(settings["Color (bone)"], "Green");
  EXPECT_EQ(skelegon(json, 1)["settings"]["Bone Active"], false);
}

TEST_F(Import, TextsInAnotherFormAreExportedAsTheyStand) {
  ObjectPolygon& polygon = object.layers[0].groups[0].polygons[0];
  polygon.setTag(settingTag(31), "80.0");
  polygon.setTag(settingTag(13), "9");
  polygon.setTag(settingTag(27), "");
  polygon.setTag(settingTag(152), "Pink");
  polygon.setTag(settingTag(55), "\x82\xa0");
  Json json = exported();
  const Json& settings = skelegon(json, 0)["settings"];
  EXPECT_EQ(settings["Strength"], (Json{{"text", "80.0"}}));
  EXPECT_EQ(settings["Falloff Type"], (Json{{"text", "9"}}));
  EXPECT_EQ(settings["Bone Active"], (Json{{"text", ""}}));
  EXPECT_EQ(settings["Color (Target Item)"], (Json{{"text", "Pink"}}));
  EXPECT_EQ(settings["Goal Object"], (Json{{"hex", "82a0"}}));
  object = reread(object);
  const std::string before = bytesOf(object);
  EXPECT_EQ(*importSettings(object, json.dump()), 0U);
  EXPECT_TRUE(bytesOf(object) == before);
}

TEST_F(Import, AnUnchangedExportChangesNoByte) {
  const std::string before = bytesOf(object);
  EXPECT_EQ(*importSettings(object, exportSettings(rigOf(object, kFileName))), 0U);
  EXPECT_TRUE(bytesOf(object) == before);
}

TEST_F(Import, ValuesAreWrittenInTheFormOfThePanel) {
  Json json = exported();
  skelegon(json, 0)["settings"]["Strength"] = 12.5;
  skelegon(json, 0)["settings"]["Falloff Type"] = "Inverse Distance^128";
  skelegon(json, 1)["settings"]["Twist"] = true;
  skelegon(json, 1)["settings"]["Frame (IK initial state frame)"] = -3;
  skelegon(json, 1)["settings"]["Goal Strength"] = 2;
  EXPECT_EQ(*importSettings(object, json.dump()), 5U);
  EXPECT_EQ(stored(0, 31), "12.500000");
  EXPECT_EQ(stored(0, 13), "7");
  EXPECT_EQ(stored(1, 48), "1");
  EXPECT_EQ(stored(1, 58), "-3");
  EXPECT_EQ(stored(1, 61), "2.000000");
}

TEST_F(Import, WhatIsNotListedIsRemovedFromSkelegonsThatAreNamed) {
  Json json = exported();
  skelegon(json, 0)["settings"].erase("Strength");
  json["layers"][0]["skelegons"].erase(1);
  EXPECT_EQ(*importSettings(object, json.dump()), 1U);
  EXPECT_EQ(object.layers[0].groups[0].polygons[0].tag(settingTag(31)), nullptr);
  EXPECT_EQ(stored(1, 27), "0");
}

TEST_F(Import, MergingKeepsWhatIsNotListed) {
  Json json = exported();
  skelegon(json, 0)["settings"] = {{"Twist", true}};
  EXPECT_EQ(*importSettings(object, json.dump(), Unlisted::Kept), 1U);
  EXPECT_EQ(stored(0, 31), "80.000000");
  EXPECT_EQ(stored(0, 48), "1");
}

TEST_F(Import, ADefaultIsNotStored) {
  Json json = exported();
  skelegon(json, 0)["settings"]["Strength"] = 100;  // stored as 80
  skelegon(json, 0)["settings"]["Bone Active"] = true;
  skelegon(json, 0)["settings"]["Goal Object"] = "";
  skelegon(json, 0)["settings"]["Joint Compensation amount"] = 100;  // whose default is spelled in another way
  EXPECT_EQ(*importSettings(object, json.dump()), 1U);
  for (const std::uint8_t slot : std::initializer_list<std::uint8_t>{31, 27, 55, 37}) {
    EXPECT_EQ(object.layers[0].groups[0].polygons[0].tag(settingTag(slot)), nullptr) << int{slot};
  }
}

TEST_F(Import, ADefaultThatIsStoredStaysWhereItIsListed) {
  object.layers[0].groups[0].polygons[0].setTag(settingTag(27), "1");
  EXPECT_EQ(*importSettings(object, exported().dump()), 0U);
  EXPECT_EQ(stored(0, 27), "1");
}

TEST_F(Import, TheDefaultColourOfALinkedItemIsNotStored) {
  Json json = exported();
  skelegon(json, 0)["settings"]["Color (Target Item)"] = "Modeler";
  EXPECT_EQ(*importSettings(object, json.dump()), 0U);
}

// A bone whose colour is not stored becomes orange.
TEST_F(Import, ABonesColourIsStoredWhateverItIs) {
  Json json = exported();
  skelegon(json, 1)["settings"]["Color (bone)"] = "Modeler";
  EXPECT_EQ(*importSettings(object, json.dump()), 1U);
  EXPECT_EQ(*object.layers[0].groups[0].polygons[1].tag(lw::kTagColour), "Modeler");
}

TEST_F(Import, TextsAsStoredAreStoredAsTheyStand) {
  Json json = exported();
  skelegon(json, 1)["settings"]["Strength"] = {{"text", "100.0"}};
  EXPECT_EQ(*importSettings(object, json.dump()), 1U);
  EXPECT_EQ(stored(1, 31), "100.0");
}

TEST_F(Import, ALayerOfAnotherNumberIsFoundByItsName) {
  Json json = exported();
  json["layers"][0]["number"] = 7;
  skelegon(json, 0)["settings"]["Strength"] = 12.5;
  EXPECT_EQ(*importSettings(object, json.dump()), 1U);
  EXPECT_EQ(stored(0, 31), "12.500000");
}

TEST_F(Import, ALayerWhoseNumberAnotherHasIsFoundByItsName) {
  Json json = exported();
  skelegon(json, 0)["settings"]["Strength"] = 12.5;
  object.layers.insert(object.layers.begin(), ObjectLayer());
  object.layers[0].name = "Body";
  object.layers[1].number = 1;
  object = reread(ObjectFile{object.form, object.layers, {}});
  EXPECT_EQ(*importSettings(object, json.dump()), 1U);
  EXPECT_EQ(*object.layers[1].groups[0].polygons[0].tag(settingTag(31)), "12.500000");
}

TEST_F(Import, ANameThatSeveralLayersBearIsNoPlace) {
  Json json = exported();
  json["layers"][0]["number"] = 7;
  object.layers.push_back(object.layers[0]);
  object.layers[1].number = 1;
  object = reread(ObjectFile{object.form, object.layers, {}});
  EXPECT_THAT(refused(json.dump()), HasSubstr("several layers of this name"));
}

std::string utf16(std::string_view ascii, bool littleEndian) {
  std::string bytes = littleEndian ? "\xFF\xFE" : "\xFE\xFF";
  for (const char c : ascii) bytes.append(littleEndian ? std::string{c, '\0'} : std::string{'\0', c});
  return bytes;
}

TEST_F(Import, ReadsUtf16OfEitherByteOrder) {
  Json json = exported();
  for (const bool littleEndian : {true, false}) {
    skelegon(json, 0)["settings"]["Strength"] = littleEndian ? 12 : 13;
    EXPECT_EQ(*importSettings(object, utf16(json.dump(), littleEndian)), 1U);
  }
}

TEST_F(Import, ReadsCharactersOfEveryLengthInUtf16) {
  Json json = exported();
  skelegon(json, 1)["settings"]["Target Item"] = "@";
  std::string bytes = utf16(json.dump(), true);
  const std::string at("@\0", 2);
  // U+00E9, U+8155, U+1F98E
  bytes.replace(bytes.find(at), 2, std::string_view("\xE9\x00\x55\x81\x3E\xD8\x8E\xDD", 8));
  EXPECT_EQ(*importSettings(object, bytes), 1U);
  EXPECT_EQ(stored(1, 52), "é腕🦎");
}

TEST_F(Import, BrokenUtf16IsRefused) {
  const std::string sound = utf16(exported().dump(), true);
  EXPECT_THAT(refused(sound.substr(0, sound.size() - 1)), HasSubstr("UTF-16"));
  EXPECT_THAT(refused(sound + std::string("\x3E\xD8", 2)), HasSubstr("UTF-16"));
  EXPECT_THAT(refused(sound + std::string("\x8E\xDD", 2)), HasSubstr("UTF-16"));
}

TEST_F(Import, WhatInspectPrintsIsRefusedWithWhatWasExpected) {
  EXPECT_THAT(refused(R"([{"file": "rig.lwo", "layers": []}])"), HasSubstr("varnel export writes was expected"));
}

TEST_F(Import, TagsOfNoSettingStay) {
  object.layers[0].groups[0].polygons[0].setTag(settingTag(144), "x");
  object.layers[0].groups[0].polygons[0].setTag(lw::kTagPart, "Root");
  Json json = exported();
  skelegon(json, 0)["settings"] = Json::object();
  ASSERT_TRUE(importSettings(object, json.dump()));
  EXPECT_EQ(stored(0, 144), "x");
  EXPECT_NE(object.layers[0].groups[0].polygons[0].tag(lw::kTagPart), nullptr);
  EXPECT_NE(object.layers[0].groups[0].polygons[0].tag(lw::kTagBone), nullptr);
}

TEST_F(Import, SkelegonsOfOneNameAreToldApartByNumber) {
  SoundRig sound;
  sound.builder.child(sound.root, "Hand", {1, 1, 1});
  object = reread(sound.object());
  Json json = exported();
  EXPECT_EQ(skelegon(json, 1)["nth"], 1);
  EXPECT_EQ(skelegon(json, 2)["nth"], 2);
  skelegon(json, 2)["settings"]["Strength"] = 1;
  ASSERT_TRUE(importSettings(object, json.dump()));
  EXPECT_EQ(stored(2, 31), "1.000000");
  EXPECT_EQ(object.layers[0].groups[0].polygons[1].tag(settingTag(31)), nullptr);

  skelegon(json, 2).erase("nth");
  EXPECT_THAT(refused(json.dump()), HasSubstr("\"nth\" has to say which"));
  skelegon(json, 2)["nth"] = 3;
  EXPECT_THAT(refused(json.dump()), HasSubstr("only 2"));
  skelegon(json, 2)["nth"] = 1;
  EXPECT_THAT(refused(json.dump()), HasSubstr("stands twice"));
}

TEST_F(Import, OnlyChunksOfTagsChange) {
  const auto before = splitForm(bytesOf(object))->chunks;
  Json json = exported();
  skelegon(json, 0)["settings"]["Strength"] = 12.5;
  skelegon(json, 0)["settings"]["Goal Strength"] = 2;
  ASSERT_TRUE(importSettings(object, json.dump()));
  std::vector<std::string> changed;
  const auto after = splitForm(bytesOf(object));
  for (const Chunk& chunk : after->chunks) {
    const auto same = [&](const Chunk& c) { return c.id == chunk.id && c.bytes == chunk.bytes && c.pad == chunk.pad; };
    if (std::none_of(before.begin(), before.end(), same)) changed.push_back(chunkName(chunk.id));
  }
  EXPECT_THAT(changed, testing::ElementsAre("TAGS", "PTAG", "PTAG"));
}

struct RefusalRow {
  const char* pointer;
  const char* value;  // empty: remove
  const char* why;
};

TEST_F(Import, WhatIsNotUnderstoodIsRefusedWithItsPlace) {
  constexpr RefusalRow kRows[] = {
      {"/format", R"("other")", "\"format\""},
      {"/version", "2", "\"version\" 1"},
      {"/extra", "1", "unknown key \"extra\""},
      {"/layers", "{}", "layers has to be a list"},
      {"/layers", "", "\"layers\" is missing"},
      {"/layers/0", "[]", "layers[0]: an object was expected"},
      {"/layers/0/number", "-1", "number has to be a whole number"},
      {"/layers/0/number", "0.5", "number has to be a whole number"},
      {"/layers/0/name", R"("Body")", "name is \"Rig\", and no layer has this one"},
      {"/layers/0", R"({"number":7,"name":"Body","skelegons":[]})", "no layer of number 7 or of this name"},
      {"/layers/0/name", "1", "name has to be a text"},
      {"/layers/0/colour", "1", "layers[0]: unknown key \"colour\""},
      {"/layers/0/skelegons/1/name", R"("Paw")", "skelegons[1] \"Paw\": the layer has no skelegon of this name"},
      {"/layers/0/skelegons/1/name", R"("Root")", "stands twice"},
      {"/layers/0/skelegons/1/parent", "1", "unknown key \"parent\""},
      {"/layers/0/skelegons/1/nth", "0", "whole number from 1"},
      {"/layers/0/skelegons/1/settings", "[]", "settings has to be an object"},
      {"/layers/0/skelegons/1/settings/Strenght", "1", "\"Hand\": unknown setting \"Strenght\""},
      {"/layers/0/skelegons/1/settings/Skelegon", R"("x")", "unknown setting \"Skelegon\""},
      {"/layers/0/skelegons/1/settings/Strength", R"("80")", "\"Hand\", \"Strength\": a number was expected"},
      {"/layers/0/skelegons/1/settings/Strength", "null", "a number was expected"},
      {"/layers/0/skelegons/1/settings/Bone Active", "1", "true or false"},
      {"/layers/0/skelegons/1/settings/Bone Type", "1", "one of these was expected: \"Z axis\", \"Joint\""},
      {"/layers/0/skelegons/1/settings/Bone Type", R"("Ball")", "one of these"},
      {"/layers/0/skelegons/1/settings/Limit Bone Num", "1.5", "a whole number"},
      {"/layers/0/skelegons/1/settings/Limit Bone Num", "4294967296", "a whole number"},
      {"/layers/0/skelegons/1/settings/Color (bone)", R"("Dark Red")", "one of these"},
      {"/layers/0/skelegons/1/settings/Goal Object", "5", "a text was expected"},
      {"/layers/0/skelegons/1/settings/Goal Object", R"("a\u0000b")", "zero character"},
      {"/layers/0/skelegons/1/settings/Goal Object", R"({"hex":"8"})", "{\"hex\""},
      {"/layers/0/skelegons/1/settings/Goal Object", R"({"hex":"zz"})", "{\"hex\""},
      {"/layers/0/skelegons/1/settings/Goal Object", R"({"text":"a","hex":"00"})", "{\"text\""},
      {"/layers/0/skelegons/1/settings/Goal Object", "[]", "a text was expected"},
  };
  for (const RefusalRow& row : kRows) {
    SCOPED_TRACE(std::string(row.pointer) + " " + row.value);
    Json json = exported();
    const Json::json_pointer pointer(row.pointer);
    if (*row.value == '\0') {
      json.erase("layers");
    } else {
      json[pointer] = Json::parse(row.value);
    }
    EXPECT_THAT(refused(json.dump()), HasSubstr(row.why));
  }
}

TEST_F(Import, WhatIsNoSoundJsonIsRefusedWithItsPlace) {
  EXPECT_THAT(refused(""), HasSubstr("line 1"));
  EXPECT_THAT(refused("{\n\"format\": \"\xff\"}"), HasSubstr("line 2"));
  EXPECT_THAT(refused(R"({"version": 1, "version": 1})"), HasSubstr("\"version\" stands twice"));
  EXPECT_THAT(refused(R"({"version": 1e999})"), HasSubstr("1e999"));
  EXPECT_THAT(refused(std::string(100000, '[')), HasSubstr("nested too deeply"));
  EXPECT_THAT(refused("[]"), HasSubstr("these are no settings"));
}

TEST_F(Import, TheSameKeyInTwoObjectsIsNoDuplicate) { EXPECT_TRUE(importSettings(object, exported().dump())); }

TEST_F(Import, ALayerNumberThatTheObjectHasTwiceIsRefused) {
  Json json = exported();
  object.layers.push_back(object.layers[0]);
  object = reread(ObjectFile{object.form, object.layers, {}});
  EXPECT_THAT(refused(json.dump()), HasSubstr("several layers of number 0"));
}

class ImportOnSamples : public OnSamples {};

TEST_F(ImportOnSamples, AnUnchangedExportGivesEveryRigBackByteForByte) {
  for (const std::string& path : sampleObjects("rigs")) {
    const auto bytes = readFileBytes(path);
    ObjectFile object = *parseObject(*bytes);
    const auto changes = importSettings(object, exportSettings(rigOf(object, kFileName)));
    ASSERT_TRUE(changes) << path << ": " << changes.why();
    EXPECT_TRUE(*serializeObject(object) == *bytes) << path;
  }
}

TEST_F(ImportOnSamples, SettingsTakenAwayAndPutBackReadTheSame) {
  for (const std::string& path : sampleObjects("rigs")) {
    const ObjectFile before = *readObject(path);
    const std::string settings = exportSettings(rigOf(before, kFileName));
    Json none = Json::parse(settings);
    for (Json& layer : none["layers"]) {
      for (Json& skelegon : layer["skelegons"]) skelegon["settings"] = Json::object();
    }
    ObjectFile object = before;
    ASSERT_TRUE(importSettings(object, none.dump()));
    object = reread(object);
    ASSERT_TRUE(importSettings(object, settings));
    // Defaults that the file stored are not stored again, and mean the same.
    EXPECT_EQ(differencesText(differencesOf(rigOf(before, kFileName), rigOf(reread(object), kFileName), Language::English),
                              Language::English),
              "")
        << path;
  }
}

}  // namespace
}  // namespace standin::rigs
