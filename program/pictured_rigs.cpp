#include "program/pictured_rigs.h"

#include <algorithm>
#include <span>

#include "objectfile/sample_rigs.h"
#include "program/support.h"

namespace standin {
namespace {

constexpr const char* kFilledSkelegon = "FrontLeg_L_01";
constexpr std::uint8_t kColour = 129;  // which the program stores a second time, as its own

struct FilledRow {
  std::uint8_t number;
  const char* text;
};

// Of the whole layer: the page "Group".
constexpr FilledRow kOfTheLayer[] = {
    {12, "Lizard_Rig"},
    {13, "2"},
    {16, "3"},
    {17, "6"},
};

// Of the one skelegon, page by page. Of a linked item: name, parent, shape, visibility, colour. Of an axis: controller, limits,
// stiffness, what is followed, factor, offset.
// clang-format off
constexpr FilledRow kOfTheSkelegon[] = {
    // Bone Property
    {26, "1"},
    {29, "1"}, {30, "1"},
    {31, "80.000000"},
    {33, "1"}, {34, "0.050000"}, {35, "0.300000"},
    {36, "1"}, {37, "75.000000"}, {38, "1"}, {39, "50.000000"},
    {40, "1"}, {41, "60.000000"}, {42, "1"}, {43, "35.000000"},
    {44, "1"}, {45, "20.000000"}, {46, "1"}, {47, "15.000000"},
    {48, "1"}, {49, "40.000000"},
    {129, "Green"}, {50, "150.000000"},
    {142, "FrontLeg_L_initpos"}, {143, "1"}, {151, "0"}, {158, "Red"},
    // IK Option
    {51, "Spine_02"},
    {52, "FrontLeg_L_tar"}, {130, "[file]:Lizard"}, {136, "1"}, {145, "0"}, {152, "Cyan"},
    {53, "FrontLeg_L_pole"}, {131, "Spine_01"}, {137, "1"}, {153, "Orang"},
    {186, "2"}, {54, "1"},
    {55, "FrontLeg_L_goal"}, {132, "[file]:Lizard"}, {138, "1"}, {154, "White"},
    {56, "1"}, {57, "3"}, {58, "12"},
    {60, "50.000000"}, {61, "2.000000"},
    {62, "1"}, {63, "1"}, {64, "10.000000"}, {65, "90.000000"},
    {66, "1"}, {67, "1"}, {68, "0"},
    // Controllers and Limits: position
    {69, "0.100000"}, {70, "20.000000"}, {71, "0.002000"},
    {73, "FrontLeg_L_pos"}, {133, "Spine_02"}, {139, "1"}, {148, "0"}, {155, "Blue"},
    {72, "1"}, {74, "1"}, {75, "50.000000"},
    {76, "6"}, {77, "1"}, {78, "-0.500000"}, {79, "0.500000"}, {80, "2.000000"},
        {159, "2"}, {160, "0.500000"}, {161, "0.100000"},
    {81, "6"}, {82, "1"}, {83, "-0.250000"}, {84, "0.250000"}, {85, "2.500000"},
        {162, "0"}, {163, "-0.500000"}, {164, "0.200000"},
    {86, "6"}, {87, "1"}, {88, "-0.125000"}, {89, "0.125000"}, {90, "3.000000"},
        {165, "4"}, {166, "1.500000"}, {167, "-0.300000"},
    // rotation
    {92, "FrontLeg_L_rot"}, {134, "[file]:Lizard"}, {140, "1"}, {156, "DkBlu"},
    {91, "1"}, {93, "1"}, {94, "40.000000"},
    {95, "6"}, {96, "1"}, {97, "-1.570796"}, {98, "1.570796"}, {99, "0.500000"},
        {168, "4"}, {169, "-1.000000"}, {170, "0.500000"},
    {100, "3"}, {101, "1"}, {102, "-0.785398"}, {103, "0.785398"}, {104, "0.750000"},
        {171, "5"}, {172, "2.000000"}, {173, "-0.500000"},
    {105, "6"}, {106, "1"}, {107, "-0.523599"}, {108, "0.523599"}, {109, "0.250000"},
        {174, "3"}, {175, "0.500000"}, {176, "0.250000"},
    // scale
    {110, "FrontLeg_L_scl"}, {135, "Spine_02"}, {141, "1"}, {150, "0"}, {157, "Magen"},
    {111, "1"}, {112, "25.000000"},
    {113, "6"}, {114, "1"}, {115, "0.500000"}, {116, "2.000000"}, {117, "1.250000"},
        {177, "7"}, {178, "0.500000"}, {179, "0.250000"},
    {118, "6"}, {119, "1"}, {120, "0.250000"}, {121, "4.000000"}, {122, "1.500000"},
        {180, "8"}, {181, "2.000000"}, {182, "-0.250000"},
    {123, "6"}, {124, "1"}, {125, "0.750000"}, {126, "1.750000"}, {127, "1.750000"},
        {183, "6"}, {184, "1.500000"}, {185, "0.750000"},
};
// clang-format on

ObjectPolygon& skelegonNamed(ObjectLayer& layer, const std::string& name) {
  auto& skelegons = layer.group(lw::kTypeBone).polygons;
  const auto found = std::find_if(skelegons.begin(), skelegons.end(), [&](const ObjectPolygon& skelegon) {
    const std::string* const own = skelegon.tag(lw::kTagBone);
    return own != nullptr && *own == name;
  });
  if (found == skelegons.end()) throw Trouble{name + " is missing"};
  return *found;
}

}  // namespace

PicturedRig::PicturedRig(std::string_view language) : isJapanese_(language == "ja") {}

std::string PicturedRig::name(const char* english) const { return isJapanese_ ? lizardNameInJapanese(english) : english; }

std::string PicturedRig::filledSkelegon() const { return name(kFilledSkelegon); }

ObjectFile PicturedRig::plain() const { return isJapanese_ ? makeJapaneseLizard() : makeDemoRig(); }

ObjectFile PicturedRig::filled() const {
  ObjectFile object = plain();
  ObjectLayer& layer = object.layers[0];
  const auto store = [&](ObjectPolygon& skelegon, std::span<const FilledRow> rows) {
    for (const FilledRow& row : rows) skelegon.setTag(settingTag(row.number), name(row.text));
  };
  for (ObjectPolygon& skelegon : layer.group(lw::kTypeBone).polygons) store(skelegon, kOfTheLayer);
  ObjectPolygon& filled = skelegonNamed(layer, filledSkelegon());
  store(filled, kOfTheSkelegon);
  filled.setTag(lw::kTagColour, *filled.tag(settingTag(kColour)));
  return object;
}

}  // namespace standin
