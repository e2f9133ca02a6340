// The JSON Schema of the settings, by a reader of the few words of schemas that it uses.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <regex>

#include "rigs/settings_json.h"
#include "tests/standin/rigs_fixture.h"

namespace standin::rigs {
namespace {

using Json = nlohmann::ordered_json;

class Schema : public testing::Test {
 protected:
  bool accepts(const Json& json) const { return accepts(schema, json); }

  // One skelegon's settings, as a whole file of them.
  static Json fileWith(const Json& settings) {
    return {{"format", "varnel settings"},
            {"version", 1},
            {"layers", {{{"number", 1}, {"name", "Rig"}, {"skelegons", {{{"name", "Hips"}, {"settings", settings}}}}}}}};
  }

  const Json schema = Json::parse(settingsSchema());

 private:
  static bool isOfType(const std::string& type, const Json& json) {
    if (type == "object") return json.is_object();
    if (type == "array") return json.is_array();
    if (type == "string") return json.is_string();
    if (type == "boolean") return json.is_boolean();
    if (type == "integer") return json.is_number_integer();
    EXPECT_EQ(type, "number");
    return json.is_number();
  }

  bool hasItsMembers(const Json& rule, const Json& json) const {
    for (const Json& name : rule["required"]) {
      if (!json.contains(name.get<std::string>())) return false;
    }
    for (const auto& [name, value] : json.items()) {
      if (!rule["properties"].contains(name) || !accepts(rule["properties"][name], value)) return false;
    }
    return true;
  }

  bool accepts(const Json& rule, const Json& json) const {
    if (rule.contains("$ref")) return accepts(schema[Json::json_pointer(rule["$ref"].get<std::string>().substr(1))], json);
    if (rule.contains("anyOf")) {
      return std::any_of(rule["anyOf"].begin(), rule["anyOf"].end(), [&](const Json& each) { return accepts(each, json); });
    }
    if (rule.contains("const")) return json == rule["const"];
    if (rule.contains("enum")) return std::find(rule["enum"].begin(), rule["enum"].end(), json) != rule["enum"].end();
    if (!isOfType(rule["type"], json)) return false;
    if (rule.contains("minimum") && json < rule["minimum"]) return false;
    if (rule.contains("maximum") && json > rule["maximum"]) return false;
    if (rule.contains("pattern") &&
        !std::regex_match(json.get<std::string>(), std::regex(rule["pattern"].get<std::string>())))
      return false;
    if (rule.contains("items")) {
      return std::all_of(json.begin(), json.end(), [&](const Json& item) { return accepts(rule["items"], item); });
    }
    return !rule.contains("properties") || hasItsMembers(rule, json);
  }
};

TEST_F(Schema, StandsInTheDocuments) {
  EXPECT_EQ(*readFileBytes(std::string(VARNEL_REPOSITORY) + "/docs/rig-settings.schema.json"), settingsSchema())
      << "varnel export --schema -o docs/rig-settings.schema.json";
}

TEST_F(Schema, HoldsEverySettingWithItsChoicesAndItsDefault) {
  const Json& rules = schema["$defs"]["settings"]["properties"];
  EXPECT_EQ(rules.size(), allSettings().size());
  for (const Setting& setting : allSettings()) {
    const Json& rule = rules[setting.english];
    EXPECT_EQ(rule["title"], setting.japanese);
    if (setting.kind == skg::SlotKind::Choice) {
      EXPECT_EQ(rule["anyOf"][0]["enum"], Json(setting.englishChoices));
    }
    EXPECT_EQ(rule.contains("default"), setting.slot != skg::Slot::Colour) << setting.english;
    if (rule.contains("default")) {
      EXPECT_TRUE(accepts(fileWith({{setting.english, rule["default"]}}))) << setting.english;
    }
  }
}

TEST_F(Schema, RefusesValuesOfAnotherKind) {
  for (const Json& settings : std::vector<Json>{{{"Strength", "80"}},
                                                {{"Strength", nullptr}},
                                                {{"Strenght", 80}},
                                                {{"Bone Active", 1}},
                                                {{"Bone Type", "Ball"}},
                                                {{"Limit Bone Num", 1.5}},
                                                {{"Limit Bone Num", 2147483648}},
                                                {{"Color (bone)", "Dark Red"}},
                                                {{"Goal Object", 5}},
                                                {{"Goal Object", {{"hex", "8"}}}},
                                                {{"Goal Object", {{"hex", "4100"}}}},
                                                {{"Goal Object", {{"text", "a"}, {"hex", "00"}}}}}) {
    EXPECT_FALSE(accepts(fileWith(settings))) << settings;
  }
  EXPECT_TRUE(accepts(fileWith({{"Strength", 80}, {"Bone Type", "Joint"}, {"Goal Object", {{"hex", "8a"}}}})));
}

TEST_F(Schema, AcceptsTheExportOfEverySample) {
  if (!std::filesystem::exists(samplesFolder())) GTEST_SKIP() << "no sample objects at " << samplesFolder();
  for (const std::string& path : sampleObjects("rigs")) {
    EXPECT_TRUE(accepts(Json::parse(exportSettings(rigOf(*readObject(path), kFileName))))) << path;
  }
}

}  // namespace
}  // namespace standin::rigs
