// Settings from JSON into an object: first everything is understood, then everything is written.
#include <algorithm>
#include <initializer_list>
#include <map>
#include <set>
#include <utility>

#include "rigs/setting_json.h"
#include "rigs/settings_json.h"
#include "rigs/text.h"
#include "rigs/values.h"

namespace standin::rigs {
namespace {

constexpr const char* kFormat = "varnel settings";
constexpr const char* kExpected = ": what varnel export writes was expected, not what inspect or diff prints";

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
  Import(ObjectFile& object, Unlisted unlisted) : object_(object), rig_(rigOf(object, {})), unlisted_(unlisted) {}

  void read(const Json& json) {
    if (!json.is_object() || !json.contains("format")) refuse({}, std::string("these are no settings") + kExpected);
    checkKeys(json, {}, {"format", "version", "layers"});
    if (member(json, {}, "format") != kFormat) refuse({}, std::string(R"("format" is not "varnel settings")") + kExpected);
    if (member(json, {}, "version") != 1) refuse({}, R"(only "version" 1 is known)");
    const Json& layers = arrayOf(json, {}, "layers");
    for (std::size_t i = 0; i < layers.size(); ++i) readLayer(layers[i], "layers[" + std::to_string(i) + "]");
  }

  std::size_t write() {
    std::size_t changes = 0;
    for (const auto& [skelegon, values] : wanted_) {
      const Skelegon& place = rig_.skelegons[skelegon];
      ObjectPolygon& polygon = object_.layers[place.layer].groups[place.group].polygons[place.polygon];
      for (const Setting& setting : allSettings()) {
        const auto value = values.find(setting.tag);
        if (value == values.end() && unlisted_ == Unlisted::Kept) continue;
        if (give(polygon, setting, value == values.end() ? nullptr : &value->second)) ++changes;
      }
    }
    return changes;
  }

 private:
  struct Value {
    std::string text;
    bool isDefault = false;  // which is stored by storing nothing
  };
  using Values = std::map<std::uint32_t, Value>;

  // A null value stands for one that is not listed. False when nothing had to be changed.
  static bool give(ObjectPolygon& polygon, const Setting& setting, const Value* value) {
    const std::string* const now = polygon.tag(setting.tag);
    const bool isAbsent = value == nullptr || value->isDefault;
    if (now == nullptr ? isAbsent : value != nullptr && *now == value->text) return false;
    if (isAbsent) {
      polygon.removeTag(setting.tag);
    } else {
      polygon.setTag(setting.tag, value->text);
    }
    return true;
  }

  void readLayer(const Json& json, const std::string& path) {
    checkKeys(json, path, {"number", "name", "skelegons"});
    const std::size_t number = countMember(json, path, "number", 0);
    const std::string name = textMember(json, path, "name");
    const std::string place = path + " " + inQuotes(name);
    const Layer& layer = findLayer(number, name, place);
    if (!layersRead_.insert(&layer).second) refuse(place, "this layer stands twice");
    const Json& skelegons = arrayOf(json, place, "skelegons");
    for (std::size_t i = 0; i < skelegons.size(); ++i) {
      readSkelegon(layer, skelegons[i], place + ", skelegons[" + std::to_string(i) + "]");
    }
  }

  // By its number where that has the name, else by the name alone.
  const Layer& findLayer(std::size_t number, const std::string& name, const std::string& place) const {
    std::vector<const Layer*> numbered, named;
    for (const Layer& layer : rig_.layers) {
      if (layer.number == number) numbered.push_back(&layer);
      if (layer.name == name && !name.empty()) named.push_back(&layer);
    }
    if (numbered.size() > 1) refuse(place, "the object has several layers of number " + std::to_string(number));
    if (numbered.size() == 1 && numbered.front()->name == name) return *numbered.front();
    if (named.size() == 1) return *named.front();
    if (named.size() > 1)
      refuse(place, "the object has several layers of this name, and none of them has number " + std::to_string(number));
    if (numbered.empty()) refuse(place, "the object has no layer of number " + std::to_string(number) + " or of this name");
    refuse(place, "in the object this layer's name is " + inQuotes(numbered.front()->name) + ", and no layer has this one");
  }

  void readSkelegon(const Layer& layer, const Json& json, const std::string& path) {
    checkKeys(json, path, {"name", "nth", "settings"});
    const std::string name = textMember(json, path, "name");
    const std::string place = path + " " + inQuotes(name);
    const std::size_t skelegon = find(layer, json, name, place);
    if (wanted_.count(skelegon) != 0) refuse(place, "this skelegon stands twice");
    const Json& settings = member(json, place, "settings");
    if (!settings.is_object()) refuse(place, "settings has to be an object");
    Values& values = wanted_[skelegon];
    for (const auto& [key, value] : settings.items()) {
      const Setting* const setting = settingNamed(key);
      if (setting == nullptr) refuse(place, "unknown setting " + inQuotes(key));
      const Outcome<std::string> text = textOf(*setting, value);
      if (!text) refuse(place + ", " + inQuotes(key), text.why());
      // What stands as it is to be stored is no value but a text. A bone whose colour is not stored becomes orange: that one
      // colour has no default.
      const bool hasDefault = !value.is_object() && setting->slot != skg::Slot::Colour;
      values[setting->tag] = {*text, hasDefault && meansTheSame(*setting, *text, setting->defaultText)};
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

  ObjectFile& object_;
  Rig rig_;
  Unlisted unlisted_;
  std::set<const Layer*> layersRead_;
  std::map<std::size_t, Values> wanted_;  // by skelegon
};

}  // namespace

Outcome<std::size_t> importSettings(ObjectFile& object, std::string_view json, Unlisted unlisted) {
  const Outcome<Json> parsed = parseJson(json);
  if (!parsed) return Failure{parsed.why()};
  try {
    Import import(object, unlisted);
    import.read(*parsed);
    return import.write();
  } catch (const Refused& refused) {
    return Failure{refused.why};
  }
}

}  // namespace standin::rigs
