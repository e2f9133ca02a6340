// A stand-in Modeler with the built module in it, and what a user of the property panel does.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "modeler/property/property_controls.h"
#include "modeler/property/property_layout.h"
#include "standin/panels/geometry.h"
#include "tests/tools/modeler_session.h"

namespace varnel::test {

enum Page { kGroupPage, kBonePage, kIKPage, kControllersPage };
enum Group { kPositionGroup, kRotationGroup, kScaleGroup };

class PropertySession : public ModelerSession {
 public:
  PropertySession() : ModelerSession(panelRig()) {}

  void openTool() { runTool(kPropertyTool); }
  void openWith(const Names& selected) {
    host.select(selected);
    openTool();
  }

  // Controls by number, and by the setting that they show.
  Control* control(std::size_t number) const { return panel->at(static_cast<int>(number)); }
  Control* control(Slot slot) const { return control(mst::controlOf(slot).value()); }
  // What stands n controls behind a setting's: its fill button, its chooser.
  Control* behind(Slot slot, std::size_t n = 1) const { return control(mst::controlOf(slot).value() + n); }

  void showPage(Page page) { EXPECT_TRUE(person::choose(control(mst::control::kPages), page)); }
  void showGroup(Group group) {
    showPage(kControllersPage);
    EXPECT_TRUE(person::choose(control(mst::control::kGroups), group));
  }
  // Brings a control into sight.
  void show(std::size_t number) {
    if (number < 9) return;
    if (number < 13) return showPage(kGroupPage);
    if (number < 47) return showPage(kBonePage);
    if (number < 85) return showPage(kIKPage);
    if (number < 91) return showPage(kControllersPage);
    showGroup(number < 125 ? kPositionGroup : number < 159 ? kRotationGroup : kScaleGroup);
  }
  void show(Slot slot) { show(mst::controlOf(slot).value()); }

  void type(Slot slot, std::string_view text) {
    show(slot);
    EXPECT_TRUE(person::type(control(slot), text));
  }
  // A number as the field shows it: percent, degrees, metres.
  void enter(Slot slot, double shown) {
    show(slot);
    EXPECT_TRUE(person::enter(control(slot), shown));
  }
  void choose(Slot slot, int index) {
    show(slot);
    EXPECT_TRUE(person::choose(control(slot), index));
  }
  void toggle(Slot slot) {
    show(slot);
    EXPECT_TRUE(person::toggle(control(slot)));
  }
  void press(std::size_t number) {
    show(number);
    EXPECT_TRUE(person::press(control(number)));
  }
  void pressBehind(Slot slot, std::size_t n = 1) { press(mst::controlOf(slot).value() + n); }
  void chooseBehind(Slot slot, std::string_view item) {
    show(slot);
    EXPECT_TRUE(person::choose(behind(slot), item));
  }
  void sync() { press(mst::control::kSync); }

  bool isVisible(std::size_t number) const { return standin::isVisible(*control(number)); }
  std::string shown(Slot slot) const { return control(slot)->shown(); }
};

class PropertyPanel : public testing::Test, protected PropertySession {};

}  // namespace varnel::test
