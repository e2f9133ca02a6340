// What the probe leaves in Layout: what was there, also where the host refuses.
#include <set>

#include "layout/bone_commands.h"
#include "standin/core/witness.h"
#include "standin/panels/person.h"
#include "standin/variants/played_host.h"
#include "tests/probe/probe_fixture.h"

namespace standin {
namespace {

// A scene with a light and a camera, as every scene has them, and the probe's panel in it.
class LayoutUnderProbe : public Probing {
 protected:
  LayoutUnderProbe() : light_(host_.scene().addLight("Light")), camera_(host_.scene().addCamera("Camera")) {
    EXPECT_EQ(probe_.load(probePath()), "");
    host_.activate(probe_, "Varnel:HostFacts");
    host_.select({&camera_, &light_});
  }
  ~LayoutUnderProbe() override {
    panels().moduleUnloaded();
    probe_.unload();
  }

  // What the file holds.
  std::string measured() {
    Panel* const panel = panels().find("Varnel:HostFacts");
    EXPECT_TRUE(person::type(panel->find("File"), folder_.file("facts.json")));
    EXPECT_TRUE(person::press(panel->find("Start")));
    const Outcome<std::string> bytes = readFileBytes(folder_.file("facts.json"));
    return bytes ? *bytes : std::string();
  }

  testing::AssertionResult isAsBefore() {
    if (!host_.scene().objects().empty()) return testing::AssertionFailure() << "the scene has objects";
    if (host_.state().autoConfirm != 0) return testing::AssertionFailure() << "the host confirms by itself";
    const bool hasItsSwitches = host_.state().ikEnabled && host_.state().motionControllersEnabled;
    if (!hasItsSwitches) return testing::AssertionFailure() << "a switch is off";
    if (!witness().faults().empty()) return testing::AssertionFailure() << witness().report();
    return testing::AssertionSuccess();
  }

  PlayedLayout host_{HostOptions{}};
  Item& light_;
  Item& camera_;

 private:
  ModuleFile probe_;
  TemporaryFolder folder_;
};

TEST_F(LayoutUnderProbe, IsMeasuredAndLeftAsItWas) {
  EXPECT_EQ(valueIn(measured(), "new-null"), "selected");
  EXPECT_TRUE(isAsBefore());
  EXPECT_TRUE(light_.alive && camera_.alive);
}

TEST_F(LayoutUnderProbe, HasItsSelectionBack) {
  measured();
  EXPECT_EQ(host_.scene().selection().size(), 2U);
  EXPECT_TRUE(light_.selected && camera_.selected);
}

TEST_F(LayoutUnderProbe, HasItsSwitchesBack) {
  host_.state().ikEnabled = false;
  host_.state().deformationsEnabled = false;
  measured();
  EXPECT_FALSE(host_.state().ikEnabled);
  EXPECT_TRUE(host_.state().motionControllersEnabled);
  EXPECT_FALSE(host_.state().deformationsEnabled);
}

TEST_F(LayoutUnderProbe, IsNotTouchedWhereTheSceneHasObjects) {
  Item& null = host_.scene().addNull("Mine");
  const std::size_t sent = host_.transcript().events().size();
  EXPECT_EQ(measured(), "");
  EXPECT_TRUE(null.alive);
  EXPECT_EQ(host_.transcript().events().size(), sent);
}

// With a light selected nothing is ever left unselected but when the last selected item goes.
TEST_F(LayoutUnderProbe, TellsTheEmptySelectionWhereSomethingIsSelectedAtFirst) {
  EXPECT_EQ(valueIn(measured(), "empty-selection"), "list");
}

// The host can refuse any one call, and the next time not.
TEST_F(LayoutUnderProbe, IsLeftEmptyWhicheverCallIsRefused) {
  const std::uint64_t before = witness().calls();
  measured();
  const std::uint64_t calls = witness().calls() - before;
  constexpr std::uint64_t kStride = 23;  // all of them take a minute
  for (std::uint64_t n = 1; n < calls; n += kStride) {
    witness().refuseCall(n);
    measured();
    ASSERT_TRUE(isAsBefore()) << "with call " << n << " refused: " << witness().refusedFunction();
  }
}

TEST_F(LayoutUnderProbe, IsToldInPartWithoutAService) {
  globals().withhold("Animation Envelopes 4");
  const std::string facts = measured();
  EXPECT_EQ(valueIn(facts, "keys"), "");
  EXPECT_EQ(valueIn(facts, "channels"), "direct");
  EXPECT_TRUE(isAsBefore());
}

TEST_F(LayoutUnderProbe, IsNotTouchedWhereTheHostDoesNotTellItsState) {
  globals().withhold("LW Interface Info 8");
  const std::size_t sent = host_.transcript().events().size();
  const std::string facts = measured();
  EXPECT_EQ(host_.transcript().events().size(), sent);
  for (const HostVariant& row : layoutVariants()) {
    EXPECT_EQ(seenIn(facts, row.name), "the host does not offer \"LW Interface Info 8\"") << row.name;
  }
}

std::set<std::string> namesOfFigures(const std::string& facts) {
  std::set<std::string> names;
  const auto file = nlohmann::json::parse(facts);
  for (const auto& figure : file.at("figures")) {
    const std::string name = figure.at("name");
    names.insert(name.substr(0, name.find(' ')));
  }
  return names;
}

std::set<std::string> commandsOfTheProduct() {
  std::set<std::string> names{"ItemVisibility", "ItemColor", "ApplyServer"};
  for (const lwp::BoneCommand& command : lwp::boneCommands()) {
    if (command.sends != lwp::Sends::AxisGroup) names.insert(command.name);
  }
  for (const lwp::AxisRow& row : lwp::axisRows()) {
    const std::string axis = row.name;
    names.insert(
        {axis + "Controller", "Limit" + axis, axis + "Limits", axis + "Stiffness", axis + "Follow", axis + "Transform"});
  }
  return names;
}

TEST_F(LayoutUnderProbe, IsAskedForEachCommandThatTheProductSends) {
  const std::set<std::string> tried = namesOfFigures(measured());
  for (const std::string& command : commandsOfTheProduct()) EXPECT_TRUE(tried.contains(command)) << command;
}

}  // namespace
}  // namespace standin
