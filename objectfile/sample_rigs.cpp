#include "objectfile/sample_rigs.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "objectfile/rig_builder.h"

namespace standin {
namespace {

struct NameRow {
  const char* english;
  const char* japanese;
};
// Where one name begins with another the longer one stands first.
constexpr std::array kLizardNames{
    NameRow{"Lizard_Rig", "★トカゲ_骨"},
    NameRow{"Lizard", "トカゲ"},
    NameRow{"lizard", "トカゲ"},
    NameRow{"Root", "腰"},
    NameRow{"Spine_01", "背骨①"},
    NameRow{"Spine_02", "背骨②"},
    NameRow{"Neck", "首"},
    NameRow{"Head", "頭"},
    NameRow{"Jaw", "顎"},
    NameRow{"FrontLeg", "前足"},
    NameRow{"HindLeg", "後足"},
    NameRow{"Tail_06", "尾_06★"},
    NameRow{"Tail", "尾"},
};

}  // namespace

ObjectFile makeEverySettingRig() {
  ObjectFile object = makeBoxedLizard();
  for (ObjectPolygon& skelegon : object.layers[0].group(lw::kTypeBone).polygons) {
    if (*skelegon.tag(lw::kTagBone) != "Head") continue;
    for (const std::uint8_t number : std::initializer_list<std::uint8_t>{29, 30}) skelegon.setTag(settingTag(number), "1");
    skelegon.setTag(lw::kTagColour, "");
    skelegon.setTag(settingTag(129), "Cyan");
  }
  return object;
}

std::string lizardNameInJapanese(std::string text) {
  for (const NameRow& row : kLizardNames) {
    const std::string_view english = row.english;
    const std::string_view japanese = row.japanese;
    for (std::size_t at = text.find(english); at != std::string::npos; at = text.find(english, at + japanese.size())) {
      text.replace(at, english.size(), japanese);
    }
  }
  return text;
}

ObjectFile makeJapaneseLizard() {
  ObjectFile object = makeDemoRig();
  const auto translate = [](std::string& text) { text = lizardNameInJapanese(std::move(text)); };
  for (ObjectLayer& layer : object.layers) {
    translate(layer.name);
    for (VertexMap& map : layer.maps) translate(map.name);
    for (ObjectPolygon& skelegon : layer.group(lw::kTypeBone).polygons) {
      for (PolygonTag& tag : skelegon.tags) translate(tag.text);
    }
  }
  return object;
}

ObjectFile makeChainRig(std::size_t skelegons, std::size_t settingsEach) {
  constexpr std::size_t kDifferentNames = 50'000;
  constexpr std::array<RigBuilder::Setting, 20> kStored = {
      {{13, "2"},         {16, "1"},         {17, "6"},         {26, "1"},         {31, "50.000000"},
       {33, "1"},         {34, "10.000000"}, {35, "90.000000"}, {36, "1"},         {37, "75.000000"},
       {38, "1"},         {39, "80.000000"}, {40, "1"},         {41, "30.000000"}, {50, "200.000000"},
       {60, "25.000000"}, {77, "1"},         {78, "-0.500000"}, {79, "0.500000"},  {186, "2"}}};
  RigBuilder rig;
  rig.layer(0, "Chain");
  std::uint32_t last = rig.point({0, 0, 0});
  for (std::size_t i = 0; i < skelegons; ++i) {
    std::string number = std::to_string(i % kDifferentNames);
    number.insert(0, 5 - number.size(), '0');
    const std::uint32_t next = rig.point({0, static_cast<float>(i + 1), 0});
    const RigBuilder::Skelegon skelegon = rig.between(last, next, "Bone" + number);
    for (std::size_t s = 0; s < std::min(settingsEach, kStored.size()); ++s) rig.settings(skelegon, {kStored[s]});
    last = next;
  }
  return rig.take();
}

std::optional<Failure> writeDemoRig(const std::string& path) { return writeObject(makeDemoRig(), path); }
std::optional<Failure> writeJapaneseRig(const std::string& path) { return writeObject(makeJapaneseRig(), path); }

}  // namespace standin
