#include "rigs/rig.h"

#include <algorithm>
#include <map>
#include <unordered_map>

#include "rigs/japanese_texts.h"
#include "rigs/names_in_layout.h"
#include "rigs/text.h"

namespace standin::rigs {
namespace {

constexpr std::uint32_t kFamilyMask = 0xFFFFFF00;

Skelegon skelegonOf(const ObjectLayer& layer, const ObjectPolygon& polygon) {
  Skelegon skelegon;
  if (const std::string* name = polygon.tag(lw::kTagBone)) skelegon.name = *name;
  if (!polygon.points.empty()) {
    skelegon.head = layer.points[polygon.points.front()];
    skelegon.tail = layer.points[polygon.points.size() > 1 ? polygon.points[1] : polygon.points[0]];
  }
  skelegon.tags = polygon.tags;
  return skelegon;
}

const ObjectPolygon& polygonOf(const ObjectFile& object, const Skelegon& skelegon) {
  return object.layers[skelegon.layer].groups[skelegon.group].polygons[skelegon.polygon];
}

void link(const ObjectFile& object, Rig& rig, const Layer& layer) {
  std::unordered_map<std::uint32_t, std::size_t> endingAt;
  const auto pointsOf = [&](std::size_t i) -> const std::vector<std::uint32_t>& {
    return polygonOf(object, rig.skelegons[i]).points;
  };
  for (const std::size_t i : layer.skelegons) {
    if (pointsOf(i).size() > 1) endingAt[pointsOf(i)[1]] = i;
  }
  for (const std::size_t i : layer.skelegons) {
    const auto found = pointsOf(i).empty() ? endingAt.end() : endingAt.find(pointsOf(i)[0]);
    if (found == endingAt.end() || found->second == i) continue;
    rig.skelegons[i].parent = found->second;
    rig.skelegons[found->second].children.push_back(i);
  }
}

void takeOddTags(const ObjectFile& object, Rig& rig) {
  auto skelegon = rig.skelegons.begin();  // both lists are in the order of the file
  for (OddTags& odd : oddTagsOf(object)) {
    skelegon = std::find_if(skelegon, rig.skelegons.end(), [&](const Skelegon& s) {
      return s.layer == odd.layer && s.group == odd.group && s.polygon == odd.polygon;
    });
    if (skelegon == rig.skelegons.end()) return;
    skelegon->repeated = std::move(odd.repeated);
    skelegon->textless = std::move(odd.textless);
  }
}

void countNamesakes(Rig& rig, const Layer& layer) {
  std::map<std::string, std::vector<std::size_t>> byName;
  for (const std::size_t i : layer.skelegons) {
    auto& equals = byName[rig.skelegons[i].name];
    rig.skelegons[i].number = equals.size();
    equals.push_back(i);
  }
  for (const auto& [name, equals] : byName) {
    for (const std::size_t i : equals) rig.skelegons[i].namesakes = equals.size();
  }
}

}  // namespace

const std::string* Skelegon::stored(const Setting& setting) const {
  const auto found = std::find_if(tags.begin(), tags.end(), [&](const PolygonTag& t) { return t.type == setting.tag; });
  return found == tags.end() ? nullptr : &found->text;
}

std::vector<StoredSetting> Skelegon::storedSettings() const {
  std::vector<StoredSetting> stored;
  for (const PolygonTag& tag : tags) {
    if (const Setting* const setting = settingOfTag(tag.type)) stored.push_back({setting, &tag.text});
  }
  // All lie in one list.
  std::sort(stored.begin(), stored.end(),
            [](const StoredSetting& a, const StoredSetting& b) { return a.setting < b.setting; });
  return stored;
}

Rig rigOf(const ObjectFile& object, const std::string& fileName) {
  Rig rig;
  rig.fileName = fileName;
  rig.isInJapanese = isInJapaneseCodePage(object);
  for (std::size_t l = 0; l < object.layers.size(); ++l) {
    const ObjectLayer& from = object.layers[l];
    Layer layer{from.number, from.name, itemNameOf(from, object.layers.size(), fileName), {}};
    for (std::size_t g = 0; g < from.groups.size(); ++g) {
      if (from.groups[g].type != lw::kTypeBone) continue;
      for (std::size_t p = 0; p < from.groups[g].polygons.size(); ++p) {
        Skelegon skelegon = skelegonOf(from, from.groups[g].polygons[p]);
        skelegon.layer = l;
        skelegon.group = g;
        skelegon.polygon = p;
        layer.skelegons.push_back(rig.skelegons.size());
        rig.skelegons.push_back(std::move(skelegon));
      }
    }
    link(object, rig, layer);
    countNamesakes(rig, layer);
    rig.layers.push_back(std::move(layer));
  }
  takeOddTags(object, rig);
  return rig;
}

std::string nameShown(const Skelegon& skelegon, Language language) {
  const char* const none = language == Language::Japanese ? "(名前なし)" : "(no name)";
  const std::string name = skelegon.name.empty() ? none : printable(skelegon.name);
  return skelegon.namesakes == 1 ? name : name + " [" + std::to_string(skelegon.number + 1) + "]";
}

std::string nameShown(const Layer& layer, Language language) {
  if (!layer.name.empty()) return printable(layer.name);
  return (language == Language::Japanese ? "レイヤー " : "layer ") + std::to_string(layer.number);
}

std::string tagName(std::uint32_t tag) {
  if ((tag & kFamilyMask) != skg::kPropertyTagFamily) return chunkName(tag);
  return "sg1+" + std::to_string(tag & ~kFamilyMask);
}

bool isUnknownSlot(std::uint32_t tag) {
  return (tag & kFamilyMask) == skg::kPropertyTagFamily && settingOfTag(tag) == nullptr;
}

}  // namespace standin::rigs
