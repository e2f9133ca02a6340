// The conversion tool's panel on a host that loses what belongs to its controls.
#include "tests/tools/conversion_fixture.h"

namespace standin {
namespace {

using ConversionOddHost = ConversionTest;

TEST_F(ConversionOddHost, AnOptionWithoutItsSettingsChangesNothing) {
  host.select(load(twoBones({{13, "2"}})));
  Panel* const panel = openTool();
  ASSERT_NE(panel, nullptr);
  Control* const makesBones = panel->find(ControlKind::Bool, 0);
  makesBones->user = nullptr;
  ASSERT_TRUE(person::toggle(makesBones));
  ASSERT_TRUE(person::press(panel->find(ControlKind::Button, 0)));
  EXPECT_EQ(item("Bone").bone.falloff, 2);  // bones were made, as it was before
}

TEST_F(ConversionOddHost, AnOptionsEventWithAnotherControlChangesNothing) {
  host.select(load(twoBones({{13, "2"}})));
  Panel* const panel = openTool();
  ASSERT_NE(panel, nullptr);
  Control* const makesBones = panel->find(ControlKind::Bool, 0);
  makesBones->integer = 0;
  callModule("control event callback",
             [&] { makesBones->event(panel->find(ControlKind::Button, 0)->face, makesBones->user); });
  ASSERT_TRUE(person::press(panel->find(ControlKind::Button, 0)));
  EXPECT_EQ(item("Bone").bone.falloff, 2);
}

TEST_F(ConversionOddHost, AButtonWithoutItsSettingsDoesNothing) {
  host.select(load(twoBones({})));
  Panel* const panel = openTool();
  ASSERT_NE(panel, nullptr);
  panel->find(ControlKind::Button, 0)->user = nullptr;
  ASSERT_TRUE(person::press(panel->find(ControlKind::Button, 0)));
  EXPECT_TRUE(commands().empty());
}

}  // namespace
}  // namespace standin
