// The lizard's skelegons and their settings.
#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "objectfile/lizard_body.h"
#include "objectfile/rig_builder.h"
#include "objectfile/sample_rigs.h"

namespace standin {
namespace {

using Skelegon = RigBuilder::Skelegon;

struct Spine {
  Skelegon root, middle, chest, neck, head, jaw;
};

Spine addSpine(RigBuilder& rig) {
  Spine s;
  s.root = rig.root("Root", {0, 0.4F, 0.6F}, {0, 0.4F, 0.3F});
  s.middle = rig.child(s.root, "Spine_01", {0, 0.4F, 0});
  s.chest = rig.child(s.middle, "Spine_02", {0, 0.4F, -0.4F});
  s.neck = rig.child(s.chest, "Neck", {0, 0.5F, -0.6F});
  s.head = rig.child(s.neck, "Head", {0, 0.55F, -0.9F});
  s.jaw = rig.child(s.neck, "Jaw", {0, 0.45F, -0.85F});
  return s;
}

void setTrunk(RigBuilder& rig, const Spine& s) {
  rig.colour(s.root, "Green");
  rig.settings(s.root,
               {{50, "150.000000"}, {51, "[file]:Lizard"}, {142, "Root_initpos"}, {143, "1"}, {151, "0"}, {158, "Red"}});
  // range and twist
  rig.settings(s.middle, {{26, "1"}, {33, "1"}, {34, "10.000000"}, {35, "250.000000"}, {48, "1"}, {49, "75.000000"}});
  // joint compensation, muscles and bulges
  rig.settings(s.chest, {{36, "1"},
                         {37, "80.000000"},
                         {38, "1"},
                         {39, "60.000000"},
                         {40, "1"},
                         {41, "30.000000"},
                         {42, "1"},
                         {43, "35.000000"},
                         {44, "1"},
                         {45, "20.000000"},
                         {46, "1"},
                         {47, "15.000000"}});
}

void setNeck(RigBuilder& rig, const Skelegon& neck) {
  // the position item and the three position axes
  rig.settings(
      neck,
      {{72, "1"}, {73, "Neck_pos"}, {74, "1"}, {75, "50.000000"}, {133, "Root"}, {139, "1"}, {148, "0"}, {155, "Blue"}});
  rig.settings(neck, {{76, "6"}, {77, "1"}, {78, "-0.500000"}, {79, "0.500000"}, {80, "2.000000"}});
  rig.settings(neck, {{81, "6"}, {82, "1"}, {83, "-0.250000"}, {84, "0.250000"}, {85, "2.500000"}});
  rig.settings(neck, {{86, "6"}, {87, "1"}, {88, "-0.125000"}, {89, "0.125000"}, {90, "3.000000"}});
  rig.settings(neck, {{159, "1"},
                      {160, "0.500000"},
                      {161, "0.100000"},
                      {162, "2"},
                      {163, "-0.500000"},
                      {164, "0.200000"},
                      {165, "0"},
                      {166, "1.500000"},
                      {167, "-0.300000"}});
}

void setHead(RigBuilder& rig, const Skelegon& head) {
  // weights, the target item and the limits of the rotation
  rig.tag(head, lw::kTagBoneWeight, "Head");
  rig.colour(head, "Purple");
  rig.settings(head, {{186, "2"}});
  rig.settings(head, {{52, "Head_tar"}, {130, "[file]:Lizard"}, {136, "1"}, {145, "0"}, {152, "Cyan"}});
  rig.settings(head, {{95, "1"},
                      {96, "1"},
                      {97, "-1.570796"},
                      {98, "1.570796"},
                      {101, "1"},
                      {102, "-0.785398"},
                      {103, "0.785398"},
                      {106, "1"},
                      {107, "-0.523599"},
                      {108, "0.523599"}});
}

void setJaw(RigBuilder& rig, const Skelegon& jaw) {
  // the scale item and the three scale axes
  rig.settings(jaw,
               {{110, "Jaw_scl"}, {111, "1"}, {112, "25.000000"}, {135, "Head"}, {141, "1"}, {150, "0"}, {157, "Magen"}});
  rig.settings(jaw, {{113, "6"}, {114, "1"}, {115, "0.500000"}, {116, "2.000000"}, {117, "1.250000"}});
  rig.settings(jaw, {{118, "6"}, {119, "1"}, {120, "0.250000"}, {121, "4.000000"}, {122, "1.500000"}});
  rig.settings(jaw, {{123, "3"}, {124, "1"}, {125, "0.750000"}, {126, "1.750000"}, {127, "1.750000"}});
  rig.settings(jaw, {{177, "7"},
                     {178, "0.500000"},
                     {179, "0.250000"},
                     {180, "8"},
                     {181, "2.000000"},
                     {182, "-0.250000"},
                     {183, "6"},
                     {184, "1.500000"},
                     {185, "0.750000"}});
}

// The four points of a leg of the left side: it goes out from the trunk, then down, and the foot points ahead.
using LegPoints = std::array<FilePoint, 4>;
constexpr LegPoints kFrontLeg = {
    {{0.14F, 0.37F, -0.36F}, {0.39F, 0.39F, -0.28F}, {0.46F, 0.06F, -0.36F}, {0.5F, 0.02F, -0.5F}}};
constexpr LegPoints kHindLeg = {{{0.13F, 0.38F, 0.49F}, {0.39F, 0.4F, 0.39F}, {0.46F, 0.06F, 0.52F}, {0.51F, 0.02F, 0.34F}}};

// Three skelegons from a point of their own, tied to the trunk by the parent setting. On the right side X is turned round.
std::vector<Skelegon> addLeg(RigBuilder& rig, const std::string& name, const LegPoints& points, float side,
                             const char* parent) {
  std::vector<FilePoint> positions(points.begin(), points.end());
  for (FilePoint& position : positions) position[0] *= side;
  auto leg = rig.chain({name + "_01", name + "_02", name + "_03"}, positions);
  rig.settings(leg[0], {{51, parent}});
  return leg;
}

// Solved by the host from the goal at the foot; the knee points at a pole.
void setFrontLeg(RigBuilder& rig, const std::vector<Skelegon>& leg, const std::string& name) {
  for (const Skelegon& part : {leg[0], leg[1]}) {
    rig.settings(part, {{95, "3"}, {99, "0.500000"}, {100, "3"}, {104, "0.750000"}, {105, "3"}, {109, "0.250000"}});
  }
  rig.tag(leg[0], settingTag(53), name + "_pole");
  rig.settings(leg[0], {{131, "Spine_02"}, {137, "1"}, {146, "0"}, {153, "Orang"}});
  rig.settings(leg[1], {{54, "1"}, {59, "0"}, {60, "50.000000"}});
  rig.tag(leg[2], settingTag(55), name + "_goal");
  rig.settings(leg[2], {{56, "0"},
                        {57, "3"},
                        {58, "12"},
                        {61, "100.000000"},
                        {62, "1"},
                        {63, "2"},
                        {64, "10.000000"},
                        {65, "90.000000"},
                        {66, "1"},
                        {67, "1"},
                        {68, "0"},
                        {132, "[file]:Lizard"},
                        {138, "1"},
                        {147, "0"},
                        {154, "White"}});
}

// Follows the turning of another item; the foot keeps to a path.
void setHindLeg(RigBuilder& rig, const std::vector<Skelegon>& leg, const std::string& name) {
  rig.tag(leg[0], settingTag(92), name + "_rot");
  rig.settings(leg[0], {{91, "1"}, {93, "1"}, {94, "40.000000"}, {134, "Root"}, {140, "1"}, {149, "0"}, {156, "DkBlu"}});
  rig.settings(leg[0], {{95, "6"},
                        {100, "6"},
                        {105, "6"},
                        {168, "4"},
                        {169, "-1.000000"},
                        {170, "0.500000"},
                        {171, "5"},
                        {172, "2.000000"},
                        {173, "-0.500000"},
                        {174, "3"},
                        {175, "0.500000"},
                        {176, "0.250000"}});
  rig.settings(leg[1], {{31, "50.000000"}, {32, "0"}});
  rig.settings(leg[2], {{100, "4"}, {69, "0.100000"}, {70, "20.000000"}, {71, "0.002000"}, {27, "0"}, {128, "0"}});
}

// It sinks to the ground.
constexpr std::array<FilePoint, 7> kTail = {{{0, 0.4F, 0.6F},
                                             {0, 0.352F, 0.79F},
                                             {0, 0.258F, 0.98F},
                                             {0, 0.17F, 1.18F},
                                             {0, 0.108F, 1.38F},
                                             {0, 0.076F, 1.59F},
                                             {0, 0.06F, 1.8F}}};

void addTail(RigBuilder& rig) {
  std::vector<std::string> names;
  for (int i = 1; i <= 6; ++i) names.push_back("Tail_0" + std::to_string(i));
  const auto tail = rig.chain(names, {kTail.begin(), kTail.end()});
  // The object-wide settings are the same on all skelegons of a layer.
  for (const Skelegon& part : tail) rig.settings(part, {{12, "[file]:Lizard"}, {13, "1"}, {16, "1"}});
  rig.settings(tail[0], {{51, "Root"}});
  rig.tag(tail[0], lw::kTagBoneWeight, "Tail_01");
}

void addTrunkBoxes(RigBuilder& rig) {
  const std::uint32_t trunk = rig.box({-0.2F, 0.25F, -0.5F}, {0.2F, 0.55F, 0.6F});
  const std::uint32_t skull = rig.box({-0.1F, 0.45F, -0.9F}, {0.1F, 0.65F, -0.6F});
  rig.weightMap("Head", {{skull, 1.0F}, {skull + 1, 1.0F}, {skull + 2, 1.0F}, {skull + 3, 1.0F}, {trunk, 0.25F}});
  rig.weightMap("Root", {{trunk + 4, 1.0F}, {trunk + 5, 1.0F}});
}

void addTailBox(RigBuilder& rig) {
  const std::uint32_t first = rig.box({-0.1F, 0, 0.6F}, {0.1F, 0.5F, 1.8F});
  rig.weightMap("Tail_01", {{first, 1.0F}, {first + 1, 1.0F}, {first + 2, 0.5F}, {first + 3, 0.5F}});
}

// The skelegons with their settings, and the boxes when they are wanted.
ObjectFile makeLizard(bool withBoxes) {
  RigBuilder rig;
  rig.layer(0, "Lizard");
  if (withBoxes) addTrunkBoxes(rig);
  const Spine spine = addSpine(rig);
  setTrunk(rig, spine);
  setNeck(rig, spine.neck);
  setHead(rig, spine.head);
  setJaw(rig, spine.jaw);
  for (const auto& [letter, side] : {std::pair{"L", 1.0F}, std::pair{"R", -1.0F}}) {
    const std::string front = std::string("FrontLeg_") + letter;
    setFrontLeg(rig, addLeg(rig, front, kFrontLeg, side, "Spine_02"), front);
    const std::string hind = std::string("HindLeg_") + letter;
    setHindLeg(rig, addLeg(rig, hind, kHindLeg, side, "Root"), hind);
  }
  for (std::size_t i = 0; i < rig.object().layers[0].polygonCount(lw::kTypeBone); ++i) {
    rig.settings({0, i, 0, 0}, {{13, "2"}, {16, "3"}, {17, "6"}});
  }

  rig.layer(1, "Tail", {}, 0);
  if (withBoxes) addTailBox(rig);
  addTail(rig);
  rig.leaveOtherColoursAlone();
  return rig.take();
}

}  // namespace

ObjectFile makeDemoRig() {
  ObjectFile rig = makeLizard(false);
  addLizardBody(rig);
  return rig;
}

ObjectFile makeBoxedLizard() { return makeLizard(true); }

}  // namespace standin
