// The probe's panels in Modeler, in the hands of a test.
#pragma once

#include <optional>
#include <string>

#include "standin/core/witness.h"
#include "standin/measure/hands.h"
#include "standin/panels/person.h"
#include "standin/variants/played_host.h"
#include "tests/probe/probe_fixture.h"

namespace standin {

struct ProbeInHands : testing::Test {
  void SetUp() override { begin(); }
  void TearDown() override { end(); }

  void begin(const HostOptions& options = {}) {
    host.emplace(options);
    excuseTrials();
    module.emplace();
    ASSERT_EQ(module->load(probePath()), "");
    activate();
    usualFile = own()->find("File")->shown();
    mustBeDone(person::type(own()->find("File"), folder.path() + "/facts.json"));
  }
  void end() {
    if (!host) return;
    panels().moduleUnloaded();
    module->unload();
    EXPECT_EQ(witness().report(), "");
    module.reset();
    host.reset();
  }
  void activate() { host->activate(*module, "Varnel:HostFacts"); }

  static Panel* own() { return panels().find("Varnel:HostFacts"); }
  // The one of the four that is open.
  static Panel* shown() {
    Panel* const panel = panels().find("Varnel probe ");
    return panel != nullptr && panel->isOpen() ? panel : nullptr;
  }
  static void press(const char* button) { mustBeDone(person::press(shown()->find(button))); }
  static void pressStart() { mustBeDone(person::press(own()->find("Start"))); }
  // Where no file is in the way.
  void start() {
    std::error_code ignored;
    std::filesystem::remove(pathFromUtf8(folder.path() + "/facts.json"), ignored);
    pressStart();
  }
  std::string facts() const {
    const Outcome<std::string> bytes = readFileBytes(folder.path() + "/facts.json");
    return bytes ? *bytes : "{\"facts\": []}";
  }
  std::string seen(const std::string& name) const { return seenIn(facts(), name); }

  TemporaryFolder folder;
  std::string usualFile;
  std::optional<PlayedModeler> host;
  std::optional<ModuleFile> module;
};

}  // namespace standin
