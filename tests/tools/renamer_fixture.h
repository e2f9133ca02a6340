// A stand-in Modeler with the built module in it, and what a user of the renamer does.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "modeler/renamer/rename_rules.h"
#include "modeler/renamer/renamer_controls.h"
#include "modeler/renamer/renamer_layout.h"
#include "objectfile/rig_builder.h"
#include "standin/panels/geometry.h"
#include "tests/tools/modeler_session.h"

namespace varnel::test {

using mst::RenameMode;
using mst::RenameTarget;
using Item = mst::RenamerItem;
using Slots = std::vector<std::size_t>;

inline constexpr const char* kNeedSelection = "Need select the skelegon!";
inline constexpr const char* kDuplicated = "Skelegon names are duplicated!";

inline constexpr RenameMode kEveryMode[] = {
    RenameMode::Change,  RenameMode::Prefix, RenameMode::Suffix, RenameMode::Replace, RenameMode::RegularExpression,
    RenameMode::Advanced};

// Layer 0: a face, two arms of three skelegons from the shoulder out, the left one first. Layer 1: Root with two branches,
// of which one branches again.
//
//   Arm_L_01 - Arm_L_02 - Arm_L_03      Root - Spine - Head
//   Arm_R_01 - Arm_R_02 - Arm_R_03           \ Tail - TailTip
//                                                   \ TailFin
inline standin::ObjectFile renamerRig() {
  standin::RigBuilder rig;
  rig.layer(0, "Arms");
  rig.face({rig.point({0, 0, 0}), rig.point({1, 0, 0}), rig.point({0, 1, 0})}, "Skin");
  rig.chain({"Arm_L_01", "Arm_L_02", "Arm_L_03"}, {{1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}});
  rig.chain({"Arm_R_01", "Arm_R_02", "Arm_R_03"}, {{-1, 0, 0}, {-2, 0, 0}, {-3, 0, 0}, {-4, 0, 0}});
  rig.layer(1, "Body");
  const auto root = rig.root("Root", {0, 0, 5}, {0, 0, 6});
  const auto spine = rig.child(root, "Spine", {0, 1, 6});
  const auto tail = rig.child(root, "Tail", {0, -1, 6});
  rig.child(spine, "Head", {0, 2, 6});
  rig.child(tail, "TailTip", {0, -2, 6});
  rig.child(tail, "TailFin", {1, -2, 6});
  return rig.take();
}

inline const Names kLeftArm = {"Arm_L_01", "Arm_L_02", "Arm_L_03"};
inline const Names kRightArm = {"Arm_R_01", "Arm_R_02", "Arm_R_03"};

class RenamerSession : public ModelerSession {
 public:
  explicit RenamerSession(standin::ObjectFile file = renamerRig()) : ModelerSession(std::move(file)) {}

  // Another object beside the first; it becomes the current one.
  void load(standin::ObjectFile file) {
    object = &host.add(std::move(file), "other.lwo");
    host.showAllLayers();
    host.forgetRecords();
  }

  void openTool() { runTool(kRenamerTool); }
  void openIn(RenameMode mode) {
    openTool();
    chooseMode(mode);
  }

  Control* at(Item item) const { return panel->at(static_cast<int>(mst::indexOf(item))); }
  bool isVisible(Item item) const { return standin::isVisible(*at(item)); }

  void chooseMode(RenameMode mode) { choose(Item::Mode, static_cast<int>(mode)); }
  void choose(Item item, int index) { EXPECT_TRUE(person::choose(at(item), index)); }
  void chooseTarget(RenameTarget target) { choose(Item::Target, static_cast<int>(target)); }
  void type(Item item, std::string_view text) { EXPECT_TRUE(person::type(at(item), text)); }
  void switchOn(Item item, bool on = true) { EXPECT_TRUE(person::switchTo(at(item), on)); }
  void press(Item item) { EXPECT_TRUE(person::press(at(item))); }
  void run() { press(Item::Run); }
  // Selects these and presses "Add".
  void registerThese(const Names& names) {
    host.select(names);
    press(Item::Add);
  }

  // A simple run over a selection, from the first click to the last.
  void runSimple(RenameMode mode, std::string_view first, std::string_view second = {}, bool withProperties = false) {
    openIn(mode);
    type(Item::FirstText, first);
    if (isVisible(Item::SecondText)) type(Item::SecondText, second);
    switchOn(Item::BoneProperty, withProperties);
    run();
  }

  // The advanced layout with a base name and both counters.
  void openCounting(std::string_view baseName, int rowStart, int rowDigits) {
    openIn(RenameMode::Advanced);
    switchOn(Item::BaseNameOn);
    type(Item::BaseName, baseName);
    switchOn(Item::ColumnOn);
    switchOn(Item::RowOn);
    EXPECT_TRUE(person::enter(at(Item::RowStart), rowStart));
    EXPECT_TRUE(person::enter(at(Item::RowDigits), rowDigits));
  }

  // Names in scan order; "(none)" for a skelegon without a name tag.
  Names names() const {
    Names all;
    for (const standin::MeshPolygon* polygon : object->skelegons()) {
      const std::string* const name = polygon->content.tag(lw::kTagBone);
      all.push_back(name == nullptr ? "(none)" : *name);
    }
    return all;
  }
  // The first so many of them.
  Names names(std::size_t count) const {
    Names some = names();
    some.resize(std::min(count, some.size()));
    return some;
  }

  // Which settings a skelegon's tags hold, in the order in which the tags came to it.
  Slots slotsInFileOrder(std::string_view name) const {
    Slots slots;
    for (const standin::PolygonTag& tag : object->skelegon(name)->content.tags) {
      for (std::size_t slot = 0; slot < skg::kSlotCount; ++slot) {
        if (skg::SlotTagId(slot) == tag.type) slots.push_back(slot);
      }
    }
    return slots;
  }

  // The one message that was shown: its first line.
  std::string onlyMessage() const {
    if (host.messages().size() != 1) return std::to_string(host.messages().size()) + " messages";
    const standin::Message& message = host.messages().front();
    EXPECT_EQ(message.kind, standin::MessageKind::Error);
    EXPECT_EQ(message.second, "");
    return message.first;
  }
};

class Renamer : public testing::Test, protected RenamerSession {};

}  // namespace varnel::test
