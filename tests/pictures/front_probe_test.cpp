// The probe's panels as real windows, with OpenGL behind their area.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "objectfile/file_bytes.h"
#include "objectfile/temporary_folder.h"
#include "standin/core/program_folder.h"
#include "standin/measure/hands.h"
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
    ASSERT_EQ("", module.load(utf8Of(pathFromUtf8(programFolder()).parent_path() / VARNEL_PROBE)));
    ASSERT_EQ(0, host.activate(module, "Varnel:HostFacts"));
    Panel& own = *panels().find("Varnel:HostFacts");
    must(person::type(own.find("File"), file()));
    must(person::press(own.find("Start")));
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

TEST_F(FrontProbe, PaintsTwoHalvesToPointAt) {
  PlayedModeler host(HostOptions{});
  WindowsFront front;
  Driver driver(front);
  start(host);
  front.settle();
  must(person::press(panels().find("Varnel probe 1")->find("Next")));
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
