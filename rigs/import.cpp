// Settings from JSON into an object: first everything is understood, then everything is written.
#include <algorithm>
#include <initializer_list>
#include <map>
#include <set>
#include <utility>

#include "rigs/setting_json.h"
#include "rigs/settings_json.h"
#include "rigs/text.h"

namespace standin::rigs {
namespace {

struct Refused {
  std::string why;
};

[[noreturn]] void refuse(const std::string& place, const std::string& why) {
  throw Refused{place.empty() ? why : place + ": " + why};
}

void checkKeys(const Json& json, const std::string& place, std::initializer_list<std::string_view> known) {
  if (!json.is_object()) refuse(place, "an object was expected");
  for (const auto& [key, value] : json.items()) {
    if (std::find(known.begin(), known.end(), key) == known.end()) refuse(place, "unknown key " + inQuotes(key));
  }
}

const Json& member(const Json& json, const std::string& place, const char* key) {
  const auto found = json.find(key);
  if (found == json.end()) refuse(place, "the key " + inQuotes(key) + " is missing");
  return *found;
}

const Json& arrayOf(const Json& json, const std::string& place, const char* key) {
  const Json& array = member(json, place, key);
  if (!array.is_array()) refuse(place, std::string(key) + " has to be a list");
  return array;
}

std::string textMember(const Json& json, const std::string& place, const char* key) {
  const std::optional<std::string> text = textOfJson(member(json, place, key));
  if (!text) refuse(place, std::string(key) + " has to be a text");
  return *text;
}

// A whole number from `least` on.
std::size_t countMember(const Json& json, const std::string& place, const char* key, std::size_t least) {
  const Json& number = member(json, place, key);
  if (!number.is_number_unsigned() || number.get<std::size_t>() < least) {
    refuse(place, std::string(key) + " has to be a whole number from " + std::to_string(least) + " on");
  }
  return number.get<std::size_t>();
}

class Import {
 public:
  explicit Import(ObjectFile& object) : object_(object), rig_(rigOf(object, {})) {}

  void read(const Json& json) {
    checkKeys(json, {}, {"format", "version", "layers"});
    if (member(json, {}, "format") != "varnel settings") refuse({}, R"("format" is not "varnel settings")");
    if (member(json, {}, "version") != 1) refuse({}, R"(only "version" 1 is known)");
    const Json& layers = arrayOf(json, {}, "layers");
    for (std::size_t i = 0; i < layers.size(); ++i) readLayer(layers[i], "layers[" + std::to_string(i) + "]");
  }

  std::size_t write() {
    std::size_t changes = 0;
    for (auto& [skelegon, texts] : wanted_) {
      const Skelegon& place = rig_.skelegons[skelegon];
      ObjectPolygon& polygon = object_.layers[place.layer].groups[place.group].polygons[place.polygon];
      for (const Setting& setting : allSettings()) {
        const std::string* const now = polygon.tag(setting.tag);
        const auto text = texts.find(setting.tag);
        const bool same = text == texts.end() ? now == nullptr : now != nullptr && *now == text->second;
        if (same) continue;
        ++changes;
        if (text == texts.end()) {
          polygon.removeTag(setting.tag);
        } else {
          polygon.setTag(setting.tag, std::move(text->second));
        }
      }
    }
    return changes;
  }

 private:
  void readLayer(const Json& json, const std::string& path) {
    checkKeys(json, path, {"number", "name", "skelegons"});
    const std::size_t number = countMember(json, path, "number", 0);
    const std::string name = textMember(json, path, "name");
    const std::string place = path + " " + inQuotes(name);
    const auto isMeant = [&](const Layer& layer) { return layer.number == number; };
    const auto layer = std::find_if(rig_.layers.begin(), rig_.layers.end(), isMeant);
    if (layer == rig_.layers.end()) refuse(place, "the object has no layer of number " + std::to_string(number));
    if (std::count_if(rig_.layers.begin(), rig_.layers.end(), isMeant) > 1) {
      refuse(place, "the object has several layers of number " + std::to_string(number));
    }
    if (layer->name != name) refuse(place, "in the object this layer's name is " + inQuotes(layer->name));
    if (!layersRead_.insert(number).second) refuse(place, "this layer stands twice");
    const Json& skelegons = arrayOf(json, place, "skelegons");
    for (std::size_t i = 0; i < skelegons.size(); ++i) {
      readSkelegon(*layer, skelegons[i], place + ", skelegons[" + std::to_string(i) + "]");
    }
  }

  void readSkelegon(const Layer& layer, const Json& json, const std::string& path) {
    checkKeys(json, path, {"name", "nth", "settings"});
    const std::string name = textMember(json, path, "name");
    const std::string place = path + " " + inQuotes(name);
    const std::size_t skelegon = find(layer, json, name, place);
    if (wanted_.count(skelegon) != 0) refuse(place, "this skelegon stands twice");
    const Json& settings = member(json, place, "settings");
    if (!settings.is_object()) refuse(place, "settings has to be an object");
    Texts& texts = wanted_[skelegon];
    for (const auto& [key, value] : settings.items()) {
      const Setting* const setting = settingNamed(key);
      if (setting == nullptr) refuse(place, "unknown setting " + inQuotes(key));
      const Outcome<std::string> text = textOf(*setting, value);
      if (!text) refuse(place + ", " + inQuotes(key), text.why());
      texts[setting->tag] = *text;
    }
  }

  std::size_t find(const Layer& layer, const Json& json, const std::string& name, const std::string& place) {
    std::vector<std::size_t> equals;
    for (const std::size_t i : layer.skelegons) {
      if (rig_.skelegons[i].name == name) equals.push_back(i);
    }
    if (equals.empty()) refuse(place, "the layer has no skelegon of this name");
    if (!json.contains("nth")) {
      if (equals.size() == 1) return equals.front();
      refuse(place, R"(the layer has several skelegons of this name; "nth" has to say which)");
    }
    const std::size_t nth = countMember(json, place, "nth", 1);
    if (nth > equals.size()) refuse(place, "the layer has only " + std::to_string(equals.size()) + " of this name");
    return equals[nth - 1];
  }

  using Texts = std::map<std::uint32_t, std::string>;

  ObjectFile& object_;
  Rig rig_;
  std::set<std::size_t> layersRead_;
  std::map<std::size_t, Texts> wanted_;  // by skelegon
};

}  // namespace

Outcome<std::size_t> importSettings(ObjectFile& object, std::string_view json) {
  const Outcome<Json> parsed = parseJson(json);
  if (!parsed) return Failure{parsed.why()};
  try {
    Import import(object);
    import.read(*parsed);
    return import.write();
  } catch (const Refused& refused) {
    return Failure{refused.why};
  }
}

}  // namespace standin::rigs
