// Questions about the items of Layout: their names, files and identifiers.
#include <algorithm>
#include <array>

#include "probe/layout_site.h"

namespace probe::layout {
namespace {

constexpr const char* kTwin = "VarnelProbeTwin";

Answer topParent(LayoutSite& site) {
  const lw::ItemId parent = site.scene.items().parent(site.rig().bone(kRigRoot));
  if (parent == nullptr) return told("null", "a topmost bone has no parent");
  const std::string seen = "the parent of a topmost bone is \"" + site.scene.nameOf(parent) + "\"";
  return parent == site.rig().first() ? told("object", seen) : other(seen);
}

Answer nullFile(LayoutSite& site) {
  const lw::ItemId null = site.nulls().first().null;
  const char* const answer = site.scene.objectInfo().filename(null);
  if (answer == nullptr) return told("null", "the file name of a null is null");
  const std::string file = textOfHost(answer);
  const std::string seen = "the file name of a null is \"" + file + "\"";
  if (file.empty()) return told("empty", seen);
  if (file == " ") return told("blank", seen);
  return file == site.scene.nameOf(null) ? told("own-name", seen) : other(seen);
}

Answer noWeightMap(LayoutSite& site) {
  const char* const map = site.scene.boneInfo().weightMap(site.rig().bone(kRigRoot));
  if (map == nullptr) return told("null", "the weight map name of a bone without one is null");
  const std::string seen = "the weight map name of a bone without one is \"" + textOfHost(map) + "\"";
  return *map == '\0' ? told("empty", seen) : other(seen);
}

Answer layerBase(LayoutSite& site) {
  const int layer = site.scene.objectInfo().layerLoaded(site.rig().first());
  const std::string seen = "the loaded layer of the first layer's item is " + std::to_string(layer);
  return layer == 0 || layer == 1 ? told(std::to_string(layer), seen) : other(seen);
}

struct Counting {
  const char* value;
  const char* first;
  const char* second;
};
constexpr std::array<Counting, 4> kCountings{{
    {"all", " (1)", " (2)"},
    {"from-2", "", " (2)"},
    {"from-1", "", " (1)"},
    {"none", "", ""},
}};

Answer counters(LayoutSite& site) {
  const lw::ItemId one = addNull(site.scene, kTwin).null;
  const lw::ItemId two = addNull(site.scene, kTwin).null;
  const std::string first = site.scene.nameOf(one);
  const std::string second = site.scene.nameOf(two);
  const std::string seen = "two nulls of one name are called \"" + first + "\" and \"" + second + "\"";
  for (const Counting& counting : kCountings) {
    if (first == std::string(kTwin) + counting.first && second == std::string(kTwin) + counting.second)
      return told(counting.value, seen);
  }
  return other(seen);
}

// Of every kind that there is.
Items someItems(LayoutSite& site) {
  Items some{site.nulls().first().null, site.rig().first(), site.rig().bone(kRigRoot)};
  for (const lw::ItemType type : {lw::kItemLight, lw::kItemCamera}) {
    const Items all = site.scene.all(type);
    some.insert(some.end(), all.begin(), all.end());
  }
  return some;
}

std::string listed(const Items& items, std::uint32_t (*bits)(lw::ItemId)) {
  std::string text;
  for (lw::ItemId item : items) text += (text.empty() ? "" : ", ") + hexadecimal(bits(item));
  return text;
}

Answer itemNumbers(LayoutSite& site) {
  constexpr std::uint32_t kHighestBit = 0x80000000;
  constexpr std::uint32_t kNearZero = 0x1000000;
  const Items some = someItems(site);
  const std::string seen = "the low 32 bits of items are " + listed(some, lowBits);
  const auto any = [&](auto&& is) {
    return std::any_of(some.begin(), some.end(), [&](lw::ItemId item) { return is(lowBits(item)); });
  };
  if (any([](std::uint32_t number) { return number >= kHighestBit; })) return told("high", seen);
  return told(any([](std::uint32_t number) { return number < kNearZero; }) ? "small" : "apart", seen);
}

Answer itemHighBits(LayoutSite& site) {
  const Items some = someItems(site);
  const std::string seen = "the high 32 bits of items are " + listed(some, highBits);
  const auto all = [&](std::uint32_t bits) {
    return std::all_of(some.begin(), some.end(), [&](lw::ItemId item) { return highBits(item) == bits; });
  };
  if (all(0)) return told("zero", seen);
  return told(all(0xFFFFFFFF) ? "ones" : "pattern", seen);
}

Answer otherPlugin(LayoutSite& site) { return told(site.nulls().others(), site.nulls().seenOfOthers()); }

constexpr std::array<Question<LayoutSite>, 8> kItemQuestions{{
    {"other-plugin", otherPlugin},
    {"top-parent", topParent},
    {"null-file", nullFile},
    {"no-weight-map", noWeightMap},
    {"layer-base", layerBase},
    {"counters", counters},
    {"item-numbers", itemNumbers},
    {"item-high-bits", itemHighBits},
}};

}  // namespace

LayoutQuestions itemQuestions() { return kItemQuestions; }

}  // namespace probe::layout
