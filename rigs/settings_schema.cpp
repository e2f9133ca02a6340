// The form of the settings as JSON, for programs that write or check them.
#include <cstdint>

#include "rigs/setting_json.h"
#include "rigs/settings_json.h"

namespace standin::rigs {
namespace {

using skg::SlotKind;

Json ref(const char* name) { return Json{{"$ref", std::string("#/$defs/") + name}}; }

Json object(Json properties, Json required) {
  return Json{{"type", "object"},
              {"properties", std::move(properties)},
              {"required", std::move(required)},
              {"additionalProperties", false}};
}

Json listOf(Json items) { return Json{{"type", "array"}, {"items", std::move(items)}}; }

// A value as a person writes it.
Json plainSchema(const Setting& setting) {
  switch (setting.kind) {
    case SlotKind::Flag: return Json{{"type", "boolean"}};
    case SlotKind::Choice: return Json{{"enum", setting.englishChoices}};
    case SlotKind::Integer: return Json{{"type", "integer"}, {"minimum", INT32_MIN}, {"maximum", INT32_MAX}};
    case SlotKind::Percent:
    case SlotKind::Distance:
    case SlotKind::Number:
    case SlotKind::Angle: return Json{{"type", "number"}};
    case SlotKind::Colour: return Json{{"enum", skg::BoneColourNames}};
    default: return Json{{"type", "string"}};
  }
}

Json settingSchema(const Setting& setting) {
  Json json{{"title", setting.japanese}, {"anyOf", Json::array({plainSchema(setting), ref("asStored")})}};
  // A bone whose colour is not stored becomes orange: that one colour has no default.
  if (setting.slot != skg::Slot::Colour) json["default"] = valueOf(setting, setting.defaultText);
  return json;
}

Json settingsOfASkelegon() {
  Json properties = Json::object();
  for (const Setting& setting : allSettings()) properties[setting.english] = settingSchema(setting);
  return object(std::move(properties), Json::array());
}

}  // namespace

std::string settingsSchema() {
  const Json text = Json{{"type", "string"}};
  const Json hex = object({{"hex", {{"type", "string"}, {"pattern", "^(0[1-9A-Fa-f]|[1-9A-Fa-f][0-9A-Fa-f])*$"}}}}, {"hex"});
  const Json name = Json{{"anyOf", Json::array({text, hex})}};
  Json json =
      object({{"format", {{"const", "varnel settings"}}}, {"version", {{"const", 1}}}, {"layers", listOf(ref("layer"))}},
             {"format", "version", "layers"});
  json["$defs"] = {
      {"layer",
       object({{"number", {{"type", "integer"}, {"minimum", 0}}}, {"name", name}, {"skelegons", listOf(ref("skelegon"))}},
              {"number", "name", "skelegons"})},
      {"skelegon", object({{"name", name}, {"nth", {{"type", "integer"}, {"minimum", 1}}}, {"settings", ref("settings")}},
                          {"name", "settings"})},
      {"settings", settingsOfASkelegon()},
      {"asStored", {{"anyOf", Json::array({object({{"text", text}}, {"text"}), hex})}}},
  };
  Json whole{{"$schema", "https://json-schema.org/draft/2020-12/schema"}, {"title", "Settings of skelegons"}};
  whole.update(json);
  return dumpJson(whole);
}

}  // namespace standin::rigs
