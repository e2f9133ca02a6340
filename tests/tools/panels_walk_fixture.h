// A stand-in Modeler with the built module in it, the module's three panels, and what a walk expects of all of them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "modeler/property/property_controls.h"
#include "modeler/renamer/renamer_controls.h"
#include "objectfile/rig_builder.h"
#include "standin/panels/geometry.h"
#include "tests/tools/modeler_session.h"
#include "tests/tools/panels_walk_mesh.h"
#include "tests/tools/panels_walk_tree.h"

namespace varnel::test {

using Item = mst::RenamerItem;

inline const Names kWalkLayers = {"Body", "尾"};
inline const Names kWalkMaps = {"Spine", "Head", "腰"};

// Two layers with branches, and with Japanese, equal, empty and missing names. Heads lie at different places but where two
// skelegons begin in one point.
//
//   Hips - Chest - Head              腕_L_01 - 腕_L_02      (none)
//               \ Same - Bone10      尾2 - 尾10 - ""        Same
//                     \ Bone2
//                     \ Bone2
inline standin::ObjectFile walkRig() {
  standin::RigBuilder rig;
  rig.layer(0, kWalkLayers[0]);
  rig.face({rig.point({0, 0, 0}), rig.point({1, 0, 0}), rig.point({0, 1, 0})}, "Skin");
  for (const std::string& map : kWalkMaps) rig.weightMap(map, {{1, 1.0F}});
  const auto hips = rig.root("Hips", {0.5F, 1, 0.25F}, {0.25F, 2, 0.5F});
  const auto chest = rig.child(hips, "Chest", {-0.5F, 3.5F, 0.75F});
  const auto arm = rig.child(chest, "Same", {-2.25F, 4, -1});
  rig.child(arm, "Bone10", {-3, 4.25F, -2});
  rig.child(arm, "Bone2", {-3.5F, 5, -3});
  rig.child(arm, "Bone2", {-4, 4.5F, -3.25F});
  rig.child(chest, "Head", {0, 5, 0.5F});
  rig.chain({"腕_L_01", "腕_L_02"}, {{2, 3, -0.25F}, {3.25F, 2.5F, 1.5F}, {4, 2, 2}});
  rig.layer(1, kWalkLayers[1]);
  rig.between(rig.point({1.5F, -1, 3}), rig.point({1, -2, 3.5F}), std::nullopt);
  rig.chain({"尾2", "尾10", ""}, {{-1.25F, -2, 4}, {-1.5F, -2.75F, 5}, {-1.75F, -3.5F, 6}, {-1, -4, 7}});
  rig.root("Same", {-4.5F, 0.75F, -4}, {-5, 1, -5});
  return rig.take();
}

// The panels see what others did when they are told of it, when they are opened, or when the user asks for it. `isFresh`:
// the panel is open and has seen everything.
class ThreePanels : public testing::Test, protected ModelerSession {
 protected:
  ThreePanels() : ModelerSession(walkRig()), mesh(*object), tree(kWalkLayers, kWalkMaps) { showLayers({0, 1}); }

  // --- the panels ----------------------------------------------------------------------------------------------------------

  struct Window {
    Panel* panel = nullptr;
    bool isFresh = false;

    bool isOpen() const { return panel != nullptr && panel->isOpen(); }
    bool isSeeing() const { return isOpen() && isFresh; }
    bool isStale() const { return isOpen() && !isFresh; }
    Control* at(std::size_t number) const { return panel->at(static_cast<int>(number)); }
  };

  void openSelector() {
    const bool wasOpen = selector.isOpen();
    selector.panel = runTool(kSelectorTool);
    if (!wasOpen) {
      tree.forgetAnchor();
      tree.setView(treeControl()->hotWidth, treeControl()->hotHeight);
    }
    treeHears();
  }
  // A new panel, whether one was open or not: the others hear nothing of it.
  void openProperties() {
    properties.panel = runTool(kPropertyTool);
    chosen.reset();
    propertiesHear();
  }
  void openRenamer() { renamer.panel = runTool(kRenamerTool); }

  Control* treeControl() const { return selector.panel->find(standin::ControlKind::OpenGL); }
  Control* at(Item item) const { return renamer.at(mst::indexOf(item)); }
  Control* field(std::size_t number) const { return properties.at(number); }

  void showLayers(const std::vector<int>& front) {
    host.showLayers(front);
    mesh.showLayers(front);
    nobodyHears();
  }

  // A panel looks at the mesh again.
  void treeHears() {
    if (!selector.isOpen()) return;
    tree.scan(mesh);
    selector.isFresh = true;
  }
  void propertiesHear() {
    if (!properties.isOpen()) return;
    const walk::Places selected = mesh.selected();
    if (chosen && std::find(selected.begin(), selected.end(), *chosen) == selected.end()) chosen.reset();
    properties.isFresh = true;
  }
  void bothHear() {
    propertiesHear();
    treeHears();
  }
  // The mesh changed in a way that tells no panel.
  void nobodyHears() { selector.isFresh = properties.isFresh = false; }

  // --- comparing -----------------------------------------------------------------------------------------------------------

  // What is stored for a setting, as the panel reads it.
  static std::string storedValue(const walk::Skelegon* skelegon, Slot slot) {
    const std::string byDefault(skg::SlotDefaults(slot));
    if (skelegon == nullptr) return byDefault;
    std::string text = skelegon->text(skg::SlotTagId(slot));
    if (text.empty() && slot == Slot::Colour) text = skelegon->text(walk::kColourCopy);
    return text.empty() ? byDefault : text;
  }

  static std::string realText(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.6f", value);
    return text;
  }

  // The value of a control as it would be stored.
  static std::string valueOf(const mst::PropertyRow& row, const Control& control) {
    switch (mst::ControlSlotMap(row.number).value) {
      case mst::ValueKind::Integer: return std::to_string(control.integer);
      case mst::ValueKind::Real: return realText(control.real);
      case mst::ValueKind::Colour: return std::string(skg::BoneColourNames.at(static_cast<std::size_t>(control.integer)));
      case mst::ValueKind::Text:
      case mst::ValueKind::None: break;
    }
    return control.text;
  }

  void expectPropertiesAsMesh() const {
    const walk::Places selected = mesh.selected();
    const bool isEdited = selected.size() == 1;
    EXPECT_EQ(standin::isVisible(*field(mst::control::kNameEdit)), isEdited) << selected.size() << " are selected";
    EXPECT_EQ(standin::isVisible(*field(mst::control::kNamePopup)), !isEdited) << selected.size() << " are selected";
    EXPECT_EQ(field(mst::control::kNamePopup)->items(), namesBehind({}, selected));

    const walk::Skelegon* const shown = selected.empty() ? nullptr : &mesh[chosen.value_or(selected.front())];
    EXPECT_EQ(field(mst::control::kNameEdit)->text, shown == nullptr ? "" : shown->name());
    for (const mst::PropertyRow& row : mst::controlTable()) {
      if (!row.slot) continue;
      const bool isReal = mst::ControlSlotMap(row.number).value == mst::ValueKind::Real;
      const std::string expected = storedValue(shown, *row.slot);
      EXPECT_EQ(valueOf(row, *field(row.number)), isReal ? realText(std::strtod(expected.c_str(), nullptr)) : expected)
          << "control " << row.number;
    }

    Names items = {"(none)"}, maps = {"(none)"};
    for (const std::string& layer : kWalkLayers) items.push_back("[file]:" + layer);
    EXPECT_EQ(field(kParentChooser)->items(), namesBehind(items, mesh.inFront()));
    maps.insert(maps.end(), kWalkMaps.begin(), kWalkMaps.end());
    EXPECT_EQ(field(kMapChooser)->items(), maps);
  }

  // The rows of the selector cannot be asked for what they hold: the next press shows it.
  void expectEverythingAgrees() {
    mesh.expectAsExpected();
    EXPECT_EQ(standin::witness().report(), "");
    Names errors;
    for (const standin::Message& message : host.messages()) {
      if (message.kind == standin::MessageKind::Error) errors.push_back(message.first);
    }
    EXPECT_EQ(errors, std::exchange(errorsExpected, {}));
    host.forgetRecords();
    if (properties.isSeeing()) expectPropertiesAsMesh();
    if (renamer.isOpen()) {
      EXPECT_EQ(at(Item::RegisteredCount)->integer, static_cast<int>(registered.size()));
    }
  }

  Names namesBehind(Names names, const walk::Places& places) const {
    for (const std::size_t place : places) names.push_back(mesh[place].name());
    return names;
  }

  static constexpr std::size_t kMapChooser = 16;
  static constexpr std::size_t kParentChooser = 48;

  Window selector, renamer, properties;

  walk::Mesh mesh;
  walk::Tree tree;
  std::optional<std::size_t>
      chosen;  // the skelegon chosen in the property panel; it shows the first that is selected without
  std::vector<skg::PolygonId> registered;
  Names errorsExpected;
};

}  // namespace varnel::test
