// The probe's panels as real windows, with OpenGL behind their area.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "objectfile/file_bytes.h"
#include "objectfile/temporary_folder.h"
#include "standin/core/program_folder.h"
#include "standin/measure/hands.h"
#include "standin/modeler/mesh_edit.h"
#include "standin/variants/played_host.h"
#include "standin/windows/driver.h"

namespace standin {
namespace {

struct FrontProbe : testing::TestWithParam<const char*> {
  void TearDown() override {
    panels().moduleUnloaded();
    module.unload();
    EXPECT_EQ("", witness().report());
  }
  void start(PlayedModeler& host) {
    witness().excuse(kSetsATag, kTagWhileSelecting);  // which the probe does to see the answer
    ASSERT_EQ("", module.load(utf8Of(pathFromUtf8(programFolder()).parent_path() / VARNEL_PROBE)));
    ASSERT_EQ(0, host.activate(module, "Varnel:HostFacts"));
    Panel& own = *panels().find("Varnel:HostFacts");
    mustBeDone(person::type(own.find("File"), file()));
    mustBeDone(person::press(own.find("Start")));
  }
  std::string file() const { return folder.path() + "/facts.json"; }
  std::string told(const std::string& name) const {
    const auto facts = nlohmann::json::parse(*readFileBytes(file()));
    for (const auto& fact : facts.at("facts")) {
      if (fact.at("name") == name) return fact.at("value").is_string() ? fact.at("value") : fact.at("seen");
    }
    return {};
  }

  TemporaryFolder folder;
  ModuleFile module;
};

TEST_P(FrontProbe, TellsWhetherTheContextIsCurrentInHooks) {
  HostChoice choice;
  ASSERT_TRUE(choice.choose("context", GetParam()));
  PlayedModeler host(choice.options());
  WindowsFront front;
  start(host);
  front.settle();
  playHands();
  front.settle();
  EXPECT_EQ(told("context"), GetParam());
  EXPECT_EQ(told("painter"), "draw");
  EXPECT_EQ(told("popup-functions"), "menu");
}

INSTANTIATE_TEST_SUITE_P(Contexts, FrontProbe, testing::Values("callbacks", "hooks"));

// Mouse and keys as the system sends them, to the windows of the panels.
TEST_F(FrontProbe, TellsWhatRealHandsDoAsItTellsThatOfAPerson) {
  PlayedModeler host(HostOptions{});
  WindowsFront front;
  Driver driver(front);
  start(host);
  const auto shown = []() -> Panel& { return *panels().find("Varnel probe "); };
  const auto press = [&](const char* button) { mustBeDone(driver.click(*shown().find(button))); };
  press("Next");

  const Rectangle area = shown().find(ControlKind::OpenGL)->hot();
  const POINT left{area.x + area.width / 4, area.y + area.height / 2};
  const POINT right{area.x + area.width * 3 / 4, left.y};
  const Held shift{.shift = true};
  mustBeDone(driver.clickAt(shown(), left.x, left.y, MouseButton::Left, shift, 2));
  mustBeDone(driver.drag(shown(), right, left, 4, shift));
  mustBeDone(driver.clickAt(shown(), area.right() + 40, left.y));
  press("Done");

  mustBeDone(driver.choose(*shown().find("List"), 1));
  for (const auto& [field, text] : {std::pair{"Whole number", "150"}, {"Percent", "150"}, {"Angle", "30"}}) {
    mustBeDone(driver.type(*shown().find(field), text));
    driver.key(VK_TAB);
  }
  press("Done");

  const Rectangle last = shown().find(ControlKind::OpenGL)->hot();
  mustBeDone(driver.drag(shown(), {last.x + 20, last.y + 20}, {last.right() - 20, last.y + 20}));
  mustBeDone(driver.wheel(shown(), last.x + 20, last.y + 20, 1));
  press("Done");

  using Told = std::pair<const char*, const char*>;
  for (const auto& [name, value] :
       {Told{"mouse", "event"}, Told{"clicks", "place"}, Told{"qualifiers", "last"}, Told{"mouse-origin", "panel"},
        Told{"same-choice", "fires"}, Told{"typing", "at-the-end"}, Told{"range", "whole-numbers"},
        Told{"range-unit", "shown"}, Told{"wheel", "up"}, Told{"drag-hook", "motion"}, Told{"mouse-order", "hooks"},
        Told{"context", "callbacks"}})
    EXPECT_EQ(told(name), value) << name;
}

TEST_F(FrontProbe, PaintsTwoHalvesToPointAt) {
  PlayedModeler host(HostOptions{});
  WindowsFront front;
  Driver driver(front);
  start(host);
  front.settle();
  mustBeDone(person::press(panels().find("Varnel probe 1")->find("Next")));
  front.settle();
  const Picture seen = driver.picture(*panels().find("Varnel probe 2")->find(ControlKind::OpenGL));
  const int middle = seen.width / 2;
  ASSERT_GT(middle, 0);
  EXPECT_EQ(seen.at(2, 2), seen.at(middle - 2, seen.height - 3));
  EXPECT_EQ(seen.at(middle + 2, 2), seen.at(seen.width - 3, seen.height - 3));
  EXPECT_NE(seen.at(middle - 2, 2), seen.at(middle + 2, 2));
}

}  // namespace
}  // namespace standin
