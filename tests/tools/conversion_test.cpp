// The conversion as a whole: which objects, which layers, what is switched and restored, and what happens when something
// fails.
#include <algorithm>
#include <cstdio>
#include <tuple>

#include "objectfile/file_bytes.h"
#include "standin/core/globals.h"
#include "tests/tools/conversion_fixture.h"

namespace standin {
namespace {

class Conversion : public ConversionTest {
 protected:
  explicit Conversion(const LayoutOptions& options = {}) : ConversionTest(options) {}

  // A rig of one chain in a layer of that number and name.
  static ObjectFile chainIn(std::uint16_t number, const std::string& layerName, const std::string& bone,
                            const StoredSettings& settings) {
    RigBuilder rig;
    rig.layer(number, layerName);
    store(rig, rig.root(bone, {0, 0, 0}, {0, 1, 0}), settings);
    return rig.take();
  }

  // What the host's own command does, before the tool is used.
  void makeBones(const std::vector<Item*>& items) {
    host.select(items);
    for (const char* command : {"AutoConfirm 1", "SkelegonsToBones", "AutoConfirm 0"}) EXPECT_TRUE(host.command(command));
  }

  std::string idText(const Item& item) const {
    char text[16];
    std::snprintf(text, sizeof text, "0x%x", item.number);
    return text;
  }

  void expectEverythingSwitchedBack() {
    EXPECT_TRUE(host.state().ikEnabled);
    EXPECT_TRUE(host.state().motionControllersEnabled);
    EXPECT_TRUE(host.state().deformationsEnabled);
    EXPECT_EQ(host.state().autoConfirm, 0);
  }
};

TEST_F(Conversion, GivesABoneItsStoredSetting) {
  convert(load(twoBones({{13, "2"}})));
  EXPECT_EQ(item("Bone").bone.falloff, 2);
}

TEST_F(Conversion, AppliesToExistingBonesWithoutMakingNewOnes) {
  const std::vector<Item*> items = load(twoBones({{13, "2"}}));
  makeBones(items);
  host.select(items);
  run(/*makeBones=*/false);
  EXPECT_EQ(countOf("SkelegonsToBones"), 1u);  // the one before
  EXPECT_EQ(item("Bone").bone.falloff, 2);
}

TEST_F(Conversion, TogglesNothingTheSecondTime) {
  const std::vector<Item*> items = load(twoBones({
      // clang-format off
      {27, "0"}, {33, "1"}, {36, "1"}, {40, "1"}, {44, "1"}, {46, "1"}, {26, "1"}, {48, "1"}, {54, "1"}, {55, "goal"},
      {59, "0"}, {66, "1"}, {67, "1"}, {68, "0"}, {77, "1"}, {96, "1"}, {114, "1"},
      // clang-format on
  }));
  convert(items);
  const std::size_t before = commands().size();
  host.select(items);
  run(/*makeBones=*/false);
  const std::vector<std::string> all = commands();
  for (std::size_t i = before; i < all.size(); ++i) {
    const bool hasArgument = all[i].find(' ') != std::string::npos;
    EXPECT_TRUE(hasArgument || all[i] == "RefreshNow" || all[i] == "RecordPivotRotation") << all[i];
  }
}

TEST_F(Conversion, RecordsThePivotRotationOnlyWhenAsked) {
  host.select(load(twoBones({})));
  run(/*makeBones=*/true, /*recordPivot=*/false);
  EXPECT_EQ(countOf("RecordPivotRotation"), 0u);
}

TEST_F(Conversion, ZeroesTheRotationAfterRecordingIt) {
  convert(load(twoBones({})));
  EXPECT_EQ(countOf("RecordPivotRotation"), 2u);
  EXPECT_EQ(Scene::motionAt(item("Root"), kAxisH, 0), (Vec3{0, 0, 0}));
}

TEST_F(Conversion, MatchesTheOnlyLayerZeroByTheFileName) {
  convert(load(chainIn(0, "Anything", "Bone", {{13, "2"}}), "arm.lwo"));
  EXPECT_EQ(item("Bone").bone.falloff, 2);
}

TEST_F(Conversion, MatchesTheOnlyLayerOfAnotherNumberByItsOwnName) {
  convert(load(chainIn(2, "Tail", "Bone", {{13, "2"}}), "arm.lwo"));
  EXPECT_EQ(item("Bone").bone.falloff, 2);
}

// The number of the first layer is 0, or 1 where the host counts from 1.
class LayersFromOne : public Conversion {
 protected:
  static LayoutOptions fromOne() {
    LayoutOptions options;
    options.layerBase = 1;
    return options;
  }
  LayersFromOne() : Conversion(fromOne()) {}
};

TEST_F(LayersFromOne, AreMatchedByTheFileNameToo) {
  convert(load(chainIn(0, "Anything", "Bone", {{13, "2"}, {52, "[file]:tar"}}), "arm.lwo"));
  EXPECT_EQ(item("Bone").bone.falloff, 2);
  EXPECT_TRUE(has("arm:tar"));
}

// Of such an object nothing is known, deliberately: the file that was read last is read again, and the object's own name is
// not the name of that.
TEST_F(Conversion, GivesNothingOfTheFileBeforeToAnObjectWhosePathIsTooLong) {
  const std::vector<Item*> before = load(chainIn(0, "", "Bone", {{13, "2"}, {26, "1"}}), "before.lwo");
  const std::string longPath = folder.file(std::string(260, 'p')) + "/after.lwo";
  const std::vector<Item*> after = host.scene().addObject(chainIn(0, "", "Other", {}), longPath);
  convert({before[0], after[0]});
  EXPECT_EQ(countOf("BoneFalloffType"), 1u);
  EXPECT_TRUE(statusSays("Orlo:SkelegonOptimize done."));
}

TEST_F(Conversion, StopsAtAPathThatIsTooLongWhenNothingWasReadBefore) {
  convert(host.scene().addObject(chainIn(0, "", "Bone", {{13, "2"}}), folder.file(std::string(260, 'p')) + "/first.lwo"));
  EXPECT_TRUE(statusSays("*** ERROR:  ***")) << host.transcript().text();
}

// What the host loaded is sound; what lies on the disk when it is converted has no chunk with points.
TEST_F(Conversion, ReadsTheSettingsOfSkelegonsWhosePointsAreNotInTheFile) {
  const std::vector<Item*> items = load(chainIn(0, "", "Bone", {{13, "2"}}));
  const std::string path = folder.file("rig.lwo");
  std::string bytes = *readFileBytes(path);
  bytes.replace(bytes.find("PNTS"), 4, "XXXX");
  ASSERT_FALSE(writeFileBytes(path, bytes).has_value());
  convert(items);
  EXPECT_EQ(item("Bone").bone.falloff, 2);
}

TEST_F(Conversion, CutsTheFileNameBeforeItsLastFullStopOnly) {
  convert(load(chainIn(0, "", "Bone", {{13, "2"}}), "arm.v2.lwo"));
  EXPECT_EQ(item("Bone").bone.falloff, 2);
}

TEST_F(Conversion, PassesOverALayerWhoseNameHasABlankWithoutAWord) {
  RigBuilder rig;
  rig.layer(0, "Left Arm");
  store(rig, rig.root("Bone", {0, 0, 0}, {0, 1, 0}), {{13, "2"}});
  rig.layer(1, "Other");
  rig.root("Else", {0, 0, 0}, {0, 1, 0});
  convert({load(rig.take())[0]});
  EXPECT_EQ(item("Bone").bone.falloff, BoneSettings().falloff);
  EXPECT_EQ(statusTexts().size(), 2u);  // start and done
}

TEST_F(Conversion, SkipsAFileThatIsNamedInCapitals) {
  convert(load(twoBones({{13, "2"}}), "rig.LWO"));
  EXPECT_EQ(countOf("SkelegonsToBones"), 0u);
}

TEST_F(Conversion, SkipsAFileWithAFurtherExtension) {
  convert(load(twoBones({{13, "2"}}), "rig.lwo.bak"));
  EXPECT_EQ(countOf("SkelegonsToBones"), 0u);
}

TEST_F(Conversion, SkipsItemsThatAreNoObjectsOfAFile) {
  Scene& scene = host.scene();
  convert({&scene.addNull("Null"), &scene.addLight("Light"), &scene.addCamera("Camera")});
  EXPECT_EQ(countOf("SkelegonsToBones"), 0u);
}

TEST_F(Conversion, PutsTheObjectsNameForThePlaceholder) {
  RigBuilder rig;
  rig.layer(0, "Body");
  store(rig, rig.root("Bone", {0, 0, 0}, {0, 1, 0}), {{52, "[file]:Goal"}});
  rig.layer(1, "Goal");
  rig.box({0, 0, 0}, {1, 1, 1});
  convert(load(rig.take(), "Robot.lwo"));
  EXPECT_EQ(item("Bone").settings.target, &item("Robot:Goal"));
}

TEST_F(Conversion, SkipsASkelegonWithAnEmptyName) {
  convert(load(twoBones({{13, "2"}, {52, "tar"}})));
  host.select({});
  RigBuilder rig = oneLayer();
  rig.between(rig.point({0, 0, 0}), rig.point({0, 1, 0}), "");
  const std::size_t before = statusTexts().size();
  convert(load(rig.take(), "empty.lwo"));
  EXPECT_EQ(statusTexts().size() - before, 4u);  // start, progress, done, done: no "item not found"
}

TEST_F(Conversion, SkipsASkelegonWithoutANameTagToo) {
  RigBuilder rig = oneLayer();
  rig.between(rig.point({0, 0, 0}), rig.point({0, 1, 0}), std::nullopt);
  convert(load(rig.take()));
  EXPECT_EQ(statusTexts().size(), 4u);
}

TEST_F(Conversion, SaysWhichBoneIsMissingAndGoesOn) {
  const std::vector<Item*> items = load(twoBones({{13, "2"}}));
  makeBones(items);
  host.scene().remove(item("Root"));
  host.select(items);
  run(/*makeBones=*/false);
  EXPECT_TRUE(statusSays("item not found ! (Root)"));
  EXPECT_EQ(item("Bone").bone.falloff, 2);
}

TEST_F(Conversion, TellsItsProgressByTheSkelegonsBefore) {
  convert(load(twoBones({})));
  EXPECT_EQ(countOf("StatusMsg {0.00}Now setting bone properties..."), 1u);
  EXPECT_EQ(countOf("StatusMsg {0.50}Now setting bone properties..."), 1u);
  EXPECT_EQ(countOf("StatusMsg {1.00}Now setting bone properties...done."), 1u);
}

TEST_F(Conversion, BeginsAndEndsWithTheToolsName) {
  convert(load(twoBones({})));
  EXPECT_EQ(statusTexts().front(), "Orlo:SkelegonOptimize start...");
  EXPECT_EQ(statusTexts().back(), "Orlo:SkelegonOptimize done.");
}

TEST_F(Conversion, RestoresTheSelectionFromTheLastItemToTheFirst) {
  Item& a = host.scene().addNull("A");
  Item& b = host.scene().addNull("B");
  Item& c = host.scene().addNull("C");
  convert({&a, &b, &c});
  const std::vector<std::string> sent = commands();
  const auto at = std::find(sent.begin(), sent.end(), "SelectItem " + idText(c));
  ASSERT_NE(at, sent.end());
  EXPECT_EQ(*(at + 1), "AddToSelection " + idText(b));
  EXPECT_EQ(*(at + 2), "AddToSelection " + idText(a));
}

TEST_F(Conversion, SwitchesIKControllersAndDeformationsOnWhateverTheyWere) {
  host.state().ikEnabled = false;
  convert(load(twoBones({})));
  expectEverythingSwitchedBack();
}

TEST_F(Conversion, StopsAtAFileThatCannotBeRead) {
  const std::vector<Item*> broken = load(twoBones({}), "broken.lwo");
  const std::vector<Item*> sound = load(chainIn(0, "", "Sound", {{13, "2"}}), "sound.lwo");
  std::filesystem::resize_file(pathFromUtf8(folder.file("broken.lwo")), 40);
  convert({broken[0], sound[0]});
  EXPECT_FALSE(has("Sound"));
  EXPECT_TRUE(statusSays("*** ERROR:  ***")) << host.transcript().text();
  EXPECT_TRUE(statusSays("Orlo:SkelegonOptimize done."));
  expectEverythingSwitchedBack();
}

TEST_F(Conversion, GoesOnWithTheNextObjectAfterABoneThatFailed) {
  const std::vector<Item*> first = load(chainIn(0, "", "First", {{12, "nowhere"}}), "first.lwo");
  const std::vector<Item*> second = load(chainIn(0, "", "Second", {{13, "2"}}), "second.lwo");
  convert({first[0], second[0]});
  EXPECT_TRUE(statusSays("bone_set_params(): !(First)"));
  EXPECT_EQ(item("Second").bone.falloff, 2);
}

TEST_F(Conversion, LeavesTheRestOfALayerAfterABoneThatFailed) {
  convert(load(twoBones({{13, "2"}}, {{12, "nowhere"}})));
  EXPECT_EQ(item("Bone").bone.falloff, BoneSettings().falloff);
}

TEST_F(Conversion, ReportsARefusedCommandAndGoesOn) {
  convert(load(twoBones({{16, "77"}, {13, "2"}, {31, "50"}})));
  EXPECT_TRUE(statusSays("*** ERROR: eval( \"BoneMode 77\" ) !(0) ***")) << host.transcript().text();
  EXPECT_EQ(item("Bone").bone.strength, 0.5);
}

// A name is a text wherever it goes, never a format.
TEST_F(Conversion, SendsPercentSignsInNamesAsTheyAre) {
  convert(load(twoBones({{52, "100%s %d%n"}, {28, "%x map"}})));
  EXPECT_EQ(countOf("AddNull 100%s %d%n"), 1u);
  EXPECT_EQ(item("Bone").bone.weightMap, "%x map");
}

TEST_F(Conversion, FindsAJapaneseObjectByItsPathAndItsBones) {
  RigBuilder rig = oneLayer();
  store(rig, rig.root("頭", {0, 0, 0}, {0, 1, 0}), {{13, "2"}, {52, "頭_目標"}, {28, "重み"}});
  convert(load(rig.take(), "表示ソ.lwo"));
  EXPECT_EQ(item("頭").bone.falloff, 2);
  EXPECT_EQ(item("頭").settings.target, &item("頭_目標"));
  EXPECT_EQ(item("頭").bone.weightMap, "重み");
}

// A command of more than 511 bytes becomes an empty one, which throws; the run ends as any throw ends it.
class ThrowingConversion : public Conversion {
 protected:
  void SetUp() override {
    Conversion::SetUp();
    convert(load(twoBones({{13, "2"}}, {{52, std::string(600, 'n')}})));
  }
};

TEST_F(ThrowingConversion, EndsTheRun) { EXPECT_EQ(item("Bone").bone.falloff, BoneSettings().falloff); }

TEST_F(ThrowingConversion, SaysWhatWasEmpty) {
  EXPECT_TRUE(statusSays("*** ERROR: eval( \"\" ) ***")) << host.transcript().text();
}

TEST_F(ThrowingConversion, SwitchesEverythingBack) { expectEverythingSwitchedBack(); }

TEST_F(ThrowingConversion, RestoresTheSelection) {
  ASSERT_EQ(host.scene().selection().size(), 1u);
  EXPECT_EQ(host.scene().nameOf(*host.scene().selection()[0]), "rig");
}

TEST_F(ThrowingConversion, LetsTheNextRunWork) {
  convert(load(chainIn(0, "", "Next", {{13, "2"}}), "next.lwo"));
  EXPECT_EQ(item("Next").bone.falloff, 2);
}

TEST_F(Conversion, SwitchesAutoConfirmOffWhenAThrowComesInBetween) {
  const std::vector<Item*> items = load(twoBones({}));
  host.select(items);
  Panel* const panel = openTool();
  // The one service asked for anew in a run is gone once the bones are to be made.
  globals().withhold("LW Time Info");
  std::ignore = person::press(panel->find(ControlKind::Button, 0));
  expectEverythingSwitchedBack();
}

TEST_F(Conversion, EndsWithoutTheInterfaceServiceAndSwitchesBack) {
  host.select(load(twoBones({})));
  Panel* const panel = openTool();
  globals().withhold("LW Interface Info 8");
  EXPECT_TRUE(person::press(panel->find(ControlKind::Button, 0)));
  EXPECT_TRUE(statusSays("*** ERROR: g_global( LWINTERFACEINFO_GLOBAL, GFUSE_TRANSIENT ) ***")) << host.transcript().text();
  expectEverythingSwitchedBack();
}

TEST_F(Conversion, AnswersNamesAndLayersOf64Kilobytes) {
  const std::string longName(65536, 'x');
  RigBuilder rig;
  rig.layer(0, longName);
  rig.root(longName, {0, 0, 0}, {0, 1, 0});
  rig.layer(1, longName + " (7) :");
  rig.root("Bone", {0, 0, 0}, {0, 1, 0});
  convert(load(rig.take()));
  EXPECT_TRUE(statusSays("Orlo:SkelegonOptimize done."));
}

TEST_F(Conversion, MakesNoSecondPanelWhenOpenedAgain) {
  Panel* const first = openTool();
  EXPECT_EQ(openTool(), first);
  EXPECT_EQ(panels().all().size(), 1u);
}

TEST_F(Conversion, KeepsItsOptionsWhenThePanelIsOpenedAgain) {
  Panel* const panel = openTool();
  ASSERT_TRUE(person::switchTo(panel->find(ControlKind::Bool, 1), false));
  ASSERT_TRUE(person::close(panel));
  openTool();
  EXPECT_EQ(panel->find(ControlKind::Bool, 0)->integer, 1);
  EXPECT_EQ(panel->find(ControlKind::Bool, 1)->integer, 0);
}

TEST_F(Conversion, ShowsItsPanelInTheHostsLanguage) {
  host.setLocale(0x10411);  // only the low 16 bits count
  Panel* const panel = openTool();
  EXPECT_NE(panel->find("SkelegonToBoneを実行する"), nullptr);
  EXPECT_NE(panel->find("ボーンの中心点回転記録を実行する"), nullptr);
  EXPECT_NE(panel->find("実行"), nullptr);
}

TEST_F(Conversion, SpeaksTheHostsLanguageWhenItIsOpenedAgain) {
  ASSERT_TRUE(person::switchTo(openTool()->find(ControlKind::Bool, 1), false));
  ASSERT_TRUE(person::close(panels().find(kConversionTool)));
  host.setLocale(0x411);
  Panel* const panel = openTool();
  EXPECT_NE(panel->find("実行"), nullptr);
  EXPECT_EQ(panel->find(ControlKind::Bool, 0)->integer, 1);
  EXPECT_EQ(panel->find(ControlKind::Bool, 1)->integer, 0);
  EXPECT_EQ(panels().all().size(), 1U);
}

TEST_F(Conversion, KeepsItsLanguageWhileItIsOpen) {
  const Panel* const first = openTool();
  host.setLocale(0x411);
  EXPECT_EQ(openTool(), first);
  EXPECT_NE(first->find("Run"), nullptr);
}

TEST_F(Conversion, KeepsThePanelThatItHasWhenTheHostRefusesOneInAnotherLanguage) {
  ASSERT_TRUE(person::switchTo(openTool()->find(ControlKind::Bool, 1), false));
  ASSERT_TRUE(person::close(panels().find(kConversionTool)));
  host.setLocale(0x411);
  witness().refuseNext("panel addControl");
  openTool();
  EXPECT_EQ(panels().all().size(), 1U);
  EXPECT_NE(openTool()->find("実行"), nullptr);
  EXPECT_EQ(panels().find(kConversionTool)->find(ControlKind::Bool, 1)->integer, 0);
}

// Whatever it answers: the hooks tell, and the next language finds the panel closed.
TEST_F(Conversion, WorksWhereOpenAnswersZero) {
  panels().options.openAnswer = 0;
  host.select(load(twoBones({{13, "2"}})));
  run();
  EXPECT_EQ(item("Bone").bone.falloff, 2);
  openTool();
  ASSERT_TRUE(person::close(panels().find(kConversionTool)));
  host.setLocale(0x411);
  EXPECT_NE(openTool()->find("実行"), nullptr);
}

TEST_F(Conversion, LaysItsPanelOutAsDesigned) {
  Panel* const panel = openTool();
  EXPECT_EQ(panel->title.read(), "Orlo:SkelegonOptimize(1.20) ");
  EXPECT_EQ(panel->width, 260);
  EXPECT_EQ(panel->height, 100);
  EXPECT_EQ(panel->openFlags, 64);
  const Control* const button = panel->find(ControlKind::Button, 0);
  EXPECT_EQ(button->x, 165 - button->labelWidth());
  EXPECT_EQ(button->y, 70);
}

// A run on an object that needs nearly everything, with the n-th host call of it failing.
struct FailedRun {
  std::string faults;
  bool happened = false;
  bool switchedBack = false;
  std::string refused;
};

FailedRun runWithFailure(const std::string& path, std::uint64_t n) {
  LayoutHost host;
  ModuleFile module;
  EXPECT_EQ(module.load(modulePath()), "");
  host.select(host.loadObject(path));
  EXPECT_EQ(host.activate(module, kConversionTool), 0);
  witness().refuseCall(n);
  EXPECT_TRUE(person::press(panels().find(kConversionTool)->find(ControlKind::Button, 0)));
  FailedRun run;
  run.happened = witness().refusalHappened();
  run.refused = witness().refusedFunction();
  // When the refused call is itself one of those that switch back, nothing more can be asked of the module.
  run.switchedBack = host.state().autoConfirm == 0 && host.state().ikEnabled && host.state().motionControllersEnabled &&
                     host.state().deformationsEnabled;
  panels().moduleUnloaded();
  module.unload();
  run.faults = witness().report();
  return run;
}

TEST(ConversionWithAFailingHost, BreaksNoRuleWhicheverCallFails) {
  const TemporaryFolder folder;
  const std::string path = folder.file("rig.lwo");
  ASSERT_FALSE(
      writeObject(
          twoBones({{28, "Map"}, {52, "tar"}, {130, "Root"}, {55, "goal"}, {62, "1"}, {110, "scl"}, {136, "1"}, {95, "4"}}),
          path)
          .has_value());
  std::uint64_t n = 1;
  for (; n < 5000; ++n) {
    const FailedRun run = runWithFailure(path, n);
    if (!run.happened) break;
    EXPECT_EQ(run.faults, "") << n << " " << run.refused;
    EXPECT_TRUE(run.switchedBack || run.refused == "LW Command Interface") << n << " " << run.refused;
  }
  EXPECT_GT(n, 300u);
  EXPECT_LT(n, 5000u);
}

}  // namespace
}  // namespace standin
