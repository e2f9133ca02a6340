#include "rigs/settings_json.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "rigs/setting_json.h"
#include "rigs/text.h"
#include "rigs/values.h"
#include "skelegon/numbers.h"

namespace standin::rigs {
namespace {

using skg::SlotKind;

bool isColour(std::string_view word) {
  return std::find(skg::BoneColourNames.begin(), skg::BoneColourNames.end(), word) != skg::BoneColourNames.end();
}

Json plainValue(const Setting& setting, std::string_view text) {
  const int integer = skg::leadingInteger(text);
  switch (setting.kind) {
    case SlotKind::Flag: return integer != 0;
    case SlotKind::Choice:
      return isInList(setting, text) ? Json(setting.englishChoices[static_cast<std::size_t>(integer)]) : Json();
    case SlotKind::Integer: return integer;
    case SlotKind::Percent:
    case SlotKind::Distance:
    case SlotKind::Number:
    case SlotKind::Angle: return skg::leadingReal(text);
    case SlotKind::Colour: return isColour(text) ? Json(text) : Json();
    default: return isUtf8(text) ? Json(text) : Json();
  }
}

Outcome<std::string> numberText(const Setting& setting, const Json& value) {
  if (setting.kind == SlotKind::Integer) {
    constexpr auto kLeast = std::numeric_limits<int>::min();
    constexpr auto kGreatest = std::numeric_limits<int>::max();
    const bool fits = value.is_number_integer() && value >= kLeast && value <= kGreatest;
    if (!fits) return Failure{"a whole number was expected"};
    return std::to_string(value.get<int>());
  }
  if (!value.is_number() || !std::isfinite(value.get<double>())) return Failure{"a number was expected"};
  return sixDecimals(value.get<double>());
}

Outcome<std::string> choiceText(const Setting& setting, const Json& value) {
  const auto& choices = setting.englishChoices;
  const auto found = value.is_string() ? std::find(choices.begin(), choices.end(), value.get<std::string>()) : choices.end();
  if (found != choices.end()) return std::to_string(found - choices.begin());
  std::string list;
  for (const std::string& choice : choices) list.append(list.empty() ? "" : ", ").append(inQuotes(choice));
  return Failure{"one of these was expected: " + list};
}

Outcome<std::string> plainText(const Setting& setting, const Json& value) {
  if (setting.kind == SlotKind::Choice) return choiceText(setting, value);
  if (setting.kind == SlotKind::Flag) {
    if (!value.is_boolean()) return Failure{"true or false was expected"};
    return std::string(value.get<bool>() ? "1" : "0");
  }
  if (isNumeric(setting.kind)) return numberText(setting, value);
  if (!value.is_string()) return Failure{"a text was expected"};
  const std::optional<std::string> text = textOfJson(value);
  if (!text) return Failure{"the text has a zero character"};
  if (setting.kind != SlotKind::Colour || isColour(*text)) return *text;
  std::string list;
  for (const std::string_view word : skg::BoneColourNames) list.append(list.empty() ? "" : ", ").append(inQuotes(word));
  return Failure{"one of these was expected: " + list};
}

Json jsonOf(const Skelegon& skelegon) {
  Json json;
  json["name"] = jsonOfText(skelegon.name);
  if (skelegon.namesakes > 1) json["nth"] = skelegon.number + 1;
  Json settings = Json::object();
  for (const auto& [setting, text] : skelegon.storedSettings()) settings[setting->english] = valueOf(*setting, *text);
  json["settings"] = std::move(settings);
  return json;
}

}  // namespace

Json valueOf(const Setting& setting, std::string_view text) {
  Json plain = plainValue(setting, text);
  if (!plain.is_null()) {
    const Outcome<std::string> back = plainText(setting, plain);
    if (back && *back == text) return plain;
  }
  Json raw = jsonOfText(text);
  return raw.is_string() ? Json{{"text", std::move(raw)}} : raw;
}

Outcome<std::string> textOf(const Setting& setting, const Json& value) {
  if (!value.is_object()) return plainText(setting, value);
  const bool isText = value.size() == 1 && value.contains("text") && value["text"].is_string();
  const std::optional<std::string> text = textOfJson(isText ? value["text"] : value);
  if (!text) return Failure{R"(an object here has to be {"text": "..."} or {"hex": "..."})"};
  return *text;
}

std::string exportSkelegon(const Skelegon& skelegon) {
  return jsonOf(skelegon).dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string exportSettings(const Rig& rig) {
  Json layers = Json::array();
  for (const Layer& layer : rig.layers) {
    Json skelegons = Json::array();
    for (const std::size_t i : layer.skelegons) skelegons.push_back(jsonOf(rig.skelegons[i]));
    layers.push_back(Json{{"number", layer.number}, {"name", jsonOfText(layer.name)}, {"skelegons", std::move(skelegons)}});
  }
  return dumpJson(Json{{"format", "varnel settings"}, {"version", 1}, {"layers", std::move(layers)}});
}

}  // namespace standin::rigs
