// What the host gets when it activates a server: versions, releases, missing services, languages.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <new>
#include <tuple>

#include "standin/core/globals.h"
#include "standin/core/service_names.h"
#include "standin/panels/services.h"
#include "tests/tools/conversion_fixture.h"

namespace standin {
namespace {

constexpr const char* kModelerServers[] = {"Orlo:SkelegonSelector", "Orlo:SkelegonRenamer", "Orlo:SkelegonProperty"};

// As the host sees the names come: one of them is asked for twice, the second time before the last one.
std::vector<std::string> inOrder(std::vector<std::string> names) {
  names.insert(names.end() - 1, "Instance Update");
  names.insert(names.begin(), "Product Info");
  return names;
}

class LayoutActivation : public ConversionTest {};

TEST_F(LayoutActivation, RefusesAnotherHostReleaseBeforeAskingForAnythingElse) {
  for (const std::uint32_t product : {0x08E00641u, 0x00000641u, 0x00000000u}) {
    globals().clearAsked();
    host.setProductInfo(product);
    EXPECT_EQ(host.activate(module, kConversionTool), 1);
    EXPECT_EQ(globals().asked(), std::vector<std::string>{"Product Info"});
  }
}

TEST_F(LayoutActivation, AsksForItsServicesInTheirOrderAndForTheLocaleAgain) {
  ASSERT_EQ(host.activate(module, kConversionTool), 0);
  std::vector<std::string> wanted = inOrder(layoutServices());
  wanted.emplace_back("Locale Info");
  EXPECT_EQ(globals().asked(), wanted);
}

// What is thrown outside the tool's run is no reason for the host to ask again either.
TEST_F(LayoutActivation, IsDoneThoughSomethingWasThrownBeforeItsTool) {
  globals().offer("Product Info", []() -> void* { throw std::bad_alloc(); });
  EXPECT_EQ(host.activate(module, kConversionTool), 0);
}

TEST_F(LayoutActivation, TellsThePanelServicesHowToLookUp) {
  ASSERT_EQ(host.activate(module, kConversionTool), 0);
  EXPECT_EQ(panelServices()->globalFun, Globals::lookup());
}

// As the host would call it, but with nothing to look services up by.
std::optional<int> activateWithoutLookup(ModuleFile& module, const char* server, int version, void* local) {
  const lw::ServerRecord* const record = module.server(server);
  if (record == nullptr) return std::nullopt;
  return callModule(server, [&] { return record->activate(version, nullptr, local, nullptr); });
}

TEST_F(LayoutActivation, GivesTwoWithoutALookupFunction) {
  EXPECT_EQ(activateWithoutLookup(module, kConversionTool, 7, nullptr), 2);
  EXPECT_TRUE(globals().asked().empty());
}

TEST_F(LayoutActivation, LooksAtTheVersionBeforeTheLookupFunction) {
  EXPECT_EQ(activateWithoutLookup(module, kConversionTool, 4, nullptr), 1);
}

TEST_F(LayoutActivation, ReportsARunOfItsPanelWhenALaterActivationBroughtNoLookupFunction) {
  host.select(load(twoBones({{13, "2"}})));
  Panel* const panel = openTool();
  ASSERT_NE(panel, nullptr);
  EXPECT_EQ(activateWithoutLookup(module, kConversionTool, 7, nullptr), 2);
  ASSERT_TRUE(person::press(panel->find(ControlKind::Button, 0)));
  EXPECT_TRUE(statusSays("*** ERROR: g_global( LWINTERFACEINFO_GLOBAL, GFUSE_TRANSIENT ) ***")) << host.transcript().text();
}

TEST_F(LayoutActivation, WorksAgainAfterAnActivationWithoutALookupFunction) {
  EXPECT_EQ(activateWithoutLookup(module, kConversionTool, 7, nullptr), 2);
  convert(load(twoBones({{13, "2"}})));
  EXPECT_EQ(item("Bone").bone.falloff, 2);
}

TEST_F(LayoutActivation, ReportsARunThatMadeNoPanelAndIsDoneAllTheSame) {
  // The lookups come first; one call further on the panel is created.
  ASSERT_EQ(host.activate(module, kConversionTool), 0);
  const std::uint64_t lookups = globals().asked().size();
  for (Panel* const panel : panels().all()) std::ignore = person::close(panel);
  panels().moduleUnloaded();
  module.unload();
  ASSERT_EQ(module.load(modulePath()), "");
  witness().refuseCall(lookups + 1);
  EXPECT_EQ(host.activate(module, kConversionTool), 0);
  EXPECT_EQ(witness().refusedFunction(), "panel create");
  EXPECT_TRUE(statusSays("*** ERROR:  ***")) << host.transcript().text();
}

// Modeler's services as far as an activation asks for them. Nothing behind them is called: the runs of these tests fail
// before.
class ModelerActivation : public testing::Test {
 protected:
  void SetUp() override {
    witness().reset();
    globals().reset();
    globals().offerPresence(modelerServices());
    globals().offerNumber("Product Info", kProductInfo);
    globals().offerNumber("Locale Info", kLocaleEnglish);
    command.data = &command;
    command.argument = "";
    command.evaluate = [](void*, const char*) { return 0; };
    command.editBegin2 = [](int, int, int, int) -> lw::MeshEditOp* { return nullptr; };
    command.undoGroupBegin = command.undoGroupEnd = [] {};
    ASSERT_EQ(module.load(modulePath()), "");
  }
  void TearDown() override {
    module.unload();
    EXPECT_EQ(witness().report(), "");
  }

  std::size_t timesAsked(const std::string& name) const {
    const auto& asked = globals().asked();
    return static_cast<std::size_t>(std::count(asked.begin(), asked.end(), name));
  }

  lw::LWModCommand command{};
  ModuleFile module;
};

TEST_F(ModelerActivation, RefusesAnotherHostReleaseBeforeAskingForAnythingElse) {
  globals().offerNumber("Product Info", 0x08E00641);
  for (const char* const server : kModelerServers) {
    globals().clearAsked();
    EXPECT_EQ(module.activate(server, 4, &command), 1) << server;
    EXPECT_EQ(globals().asked(), std::vector<std::string>{"Product Info"});
  }
}

TEST_F(ModelerActivation, AsksForItsServicesInTheirOrder) {
  globals().withhold("LW Light Info 6");  // the last one: everything before it is asked for
  for (const char* const server : {"Orlo:SkelegonRenamer", "Orlo:SkelegonProperty"}) {
    globals().clearAsked();
    EXPECT_EQ(module.activate(server, 4, &command), 2) << server;
    EXPECT_EQ(globals().asked(), inOrder(modelerServices())) << server;
  }
}

TEST_F(ModelerActivation, IsDoneThoughSomethingWasThrownBeforeItsTool) {
  for (const char* const server : kModelerServers) {
    globals().offer("Locale Info", []() -> void* { throw std::bad_alloc(); });
    EXPECT_EQ(module.activate(server, 4, &command), 0) << server;
  }
}

TEST_F(ModelerActivation, GivesTwoWithoutALookupFunction) {
  for (const char* const server : kModelerServers) {
    EXPECT_EQ(activateWithoutLookup(module, server, 4, &command), 2) << server;
    EXPECT_EQ(activateWithoutLookup(module, server, 7, &command), 1) << server;
  }
  EXPECT_TRUE(globals().asked().empty());
}

TEST_F(ModelerActivation, FillsTheLargerTableAfterAnActivationWithoutALookupFunction) {
  EXPECT_EQ(activateWithoutLookup(module, "Orlo:SkelegonSelector", 4, &command), 2);
  globals().withhold("LW Light Info 6");
  EXPECT_EQ(module.activate("Orlo:SkelegonSelector", 4, &command), 2);
  EXPECT_EQ(timesAsked("Texture Editor 3"), 1u);
}

TEST_F(ModelerActivation, LetsTheSelectorAskForTheLargerTableAlsoWhenSomethingIsMissing) {
  globals().withhold("LSUniversalRequester");
  EXPECT_EQ(module.activate("Orlo:SkelegonSelector", 4, &command), 2);
  EXPECT_EQ(timesAsked("Texture Editor 3"), 1u);
}

TEST_F(ModelerActivation, LetsTheRenamerGiveUpBeforeTheLargerTable) {
  globals().withhold("LSUniversalRequester");
  EXPECT_EQ(module.activate("Orlo:SkelegonRenamer", 4, &command), 2);
  EXPECT_EQ(timesAsked("Texture Editor 3"), 0u);
}

TEST_F(ModelerActivation, LeavesTheLargerTableOutOfThePropertyTool) {
  globals().withhold("LW Light Info 6");  // the last one: everything before it is asked for
  EXPECT_EQ(module.activate("Orlo:SkelegonProperty", 4, &command), 2);
  EXPECT_EQ(timesAsked("Texture Functions 6"), 0u);
}

TEST_F(ModelerActivation, FillsTheLargerTableOnce) {
  globals().withhold("LW Light Info 6");
  module.activate("Orlo:SkelegonSelector", 4, &command);
  module.activate("Orlo:SkelegonSelector", 4, &command);
  EXPECT_EQ(timesAsked("Texture Editor 3"), 1u);
}

TEST_F(ModelerActivation, AsksForTheLargerTableInItsOrder) {
  globals().withhold("LWM: Dynamic Monitor 2");
  module.activate("Orlo:SkelegonSelector", 4, &command);
  // clang-format off
  const std::vector<std::string> wanted = {
      "Product Info", "LWM: Dynamic Monitor 2", "LWM: State Query 5", "LWM: Dynamic Monitor 2", "Surface Functions 6",
      "Texture Functions 6", "LWVParmFuncs 4", "Animation Envelopes 4", "LW Item Info 9", "LW Object Info 14",
      "Scene Objects 9", "LW Scene Info 12", "NodeInputFuncs 5", "NodeOutputFuncs 4", "NodeFuncs 3", "NodeEditorFuncs 7",
      "Instance Update", "LW Light Info 6", "File Type Pattern", "Directory Info 2", "LWXPanel 3", "LWPanelServices 3",
      "Image Utility 6", "LW Image List 9", "LW Communication Ring", "File Request 3", "LW Interface Info 8",
      "LW Camera Info 10", "LW Viewport Info 9", "Channel Info 3", "LW Time Info", "Info Messages 4", "RasterServices 4",
      "ContextMenuServices 2", "LWColorSpace", "AOV Functions", "LW Backdrop Info 3", "LW Bone Info 7",
      "Buffer List Global 2", "BSDF Functions 2", "LW Camera Evaluation Funcs 4", "LW Compositing Info", "Dopetrack Proxy 2",
      "Fiber Info 2", "LW Fog Info", "ItemInstancerFuncs 2", "ItemInstanceInfo", "LWM: Dynamic Monitor", "LW List Info",
      "Particle Services 3", "LW Timer", "LW Base Funcs 2", "Color Picker", "File IO 5", "Mesh Functions 2",
      "LWShelfFuncs 2", "SurfaceEditor Functions 2", "Texture Editor 3",
  };
  // clang-format on
  EXPECT_EQ(globals().asked(), wanted);
}

TEST(Startup, GivesFour) {
  ModuleFile module;
  ASSERT_EQ(module.load(modulePath()), "");
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(module.startupResult()), 4U);
}

TEST(ServerTable, ListsFourServersWithoutFurtherTexts) {
  ModuleFile module;
  ASSERT_EQ(module.load(modulePath()), "");
  const char* const wanted[][2] = {{"CommandSequence", "Orlo:SkelegonSelector"},
                                   {"CommandSequence", "Orlo:SkelegonRenamer"},
                                   {"CommandSequence", "Orlo:SkelegonProperty"},
                                   {"LayoutGeneric", "Orlo:SkelegonOptimize"}};
  ASSERT_EQ(module.servers().size(), 4u);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_STREQ(module.servers()[i].className, wanted[i][0]);
    EXPECT_STREQ(module.servers()[i].name, wanted[i][1]);
    EXPECT_EQ(module.servers()[i].tagInfo, nullptr);
  }
}

}  // namespace
}  // namespace standin
