// The file that the probe writes: where, when, and what stands at its head.
#include <vector>

#include "tests/probe/hands_fixture.h"

namespace standin {
namespace {

TEST_F(ProbeInHands, AFileThatIsThereIsKeptUntilTheUserStartsAgain) {
  ASSERT_FALSE(writeFileBytes(folder.path() + "/facts.json", "mine"));
  pressStart();
  EXPECT_EQ(shown(), nullptr);
  EXPECT_EQ(*readFileBytes(folder.path() + "/facts.json"), "mine");
  EXPECT_EQ(own()->find("Now")->shown(), "There is such a file. Press Start again to write over it.");
  pressStart();
  EXPECT_NE(shown(), nullptr);
  EXPECT_NE(*readFileBytes(folder.path() + "/facts.json"), "mine");
}

TEST_F(ProbeInHands, APlaceThatCannotBeWrittenIsToldBeforeAnythingIsMeasured) {
  mustBeDone(person::type(own()->find("File"), folder.path() + "/nowhere/facts.json"));
  start();
  EXPECT_EQ(shown(), nullptr);
  EXPECT_NE(own()->find("Now")->shown().find("nowhere"), std::string::npos);
  EXPECT_TRUE(host->commands().empty());
}

// Much was done by hand for it.
TEST_F(ProbeInHands, AFileThatIsDoneIsKeptUntilTheUserStartsTwice) {
  start();
  playHands();
  const std::string done = facts();
  pressStart();
  EXPECT_EQ(shown(), nullptr);
  EXPECT_EQ(facts(), done);
  EXPECT_EQ(own()->find("Now")->shown(), "There is such a file. Press Start again to write over it.");
}

TEST_F(ProbeInHands, AFileThatMayNotBeWrittenOverIsToldBeforeAnythingIsMeasured) {
  const std::string path = folder.path() + "/facts.json";
  ASSERT_FALSE(writeFileBytes(path, "mine"));
  std::filesystem::permissions(pathFromUtf8(path), std::filesystem::perms::owner_read);
  pressStart();
  pressStart();
  EXPECT_EQ(own()->find("Now")->shown(), "cannot write " + path + ": it is read-only");
  EXPECT_TRUE(host->commands().empty());
  std::filesystem::permissions(pathFromUtf8(path), std::filesystem::perms::owner_all);
}

TEST_F(ProbeInHands, WithoutAFileNameNothingIsMeasured) {
  mustBeDone(person::type(own()->find("File"), ""));
  pressStart();
  EXPECT_EQ(own()->find("Now")->shown(), "Name a file, not only a folder.");
  EXPECT_TRUE(host->commands().empty());
}

// The host's current folder is a place where nobody looks.
TEST_F(ProbeInHands, AFileWithoutAFolderIsLookedForInTheUsers) {
  const std::string name = "varnel-modeler.json";
  ASSERT_TRUE(usualFile.ends_with(name)) << usualFile;
  const std::string usersFolder = usualFile.substr(0, usualFile.size() - name.size());
  mustBeDone(person::type(own()->find("File"), "no such folder/facts.json"));
  pressStart();
  EXPECT_NE(own()->find("Now")->shown().find(usersFolder), std::string::npos) << own()->find("Now")->shown();
}

TEST_F(ProbeInHands, AFileWithLettersOfAnyLanguageIsWritten) {
  const std::string path = folder.path() + "/実測 facts.json";
  mustBeDone(person::type(own()->find("File"), path));
  pressStart();
  EXPECT_TRUE(readFileBytes(path)) << own()->find("Now")->shown();
}

TEST_F(ProbeInHands, AFolderIsNoPlaceForTheFile) {
  for (const std::string& path : {folder.path(), folder.path() + "/", std::string()}) {
    mustBeDone(person::type(own()->find("File"), path));
    pressStart();
    EXPECT_EQ(own()->find("Now")->shown(), "Name a file, not only a folder.") << path;
    EXPECT_TRUE(host->commands().empty());
  }
}

TEST_F(ProbeInHands, WhoDoesNotGoOnHasAFileThatTellsIt) {
  start();
  EXPECT_EQ(valueIn(facts(), "sets"), "silent");
  EXPECT_EQ(seen("mouse"), "the user did not come to this");
}

std::vector<std::string> namesIn(const std::string& facts) {
  std::vector<std::string> names;
  const auto file = nlohmann::json::parse(facts);
  for (const auto& fact : file.at("facts")) names.push_back(fact.at("name"));
  return names;
}

TEST_F(ProbeInHands, WhoDoesNotGoOnHasAFileOfAllQuestions) {
  start();
  const std::vector<std::string> early = namesIn(facts());
  playHands();
  EXPECT_EQ(early, namesIn(facts()));
}

TEST_F(ProbeInHands, AnotherVersionOfTheProgramIsToldSo) {
  EXPECT_EQ(host->activate(*module, "Varnel:HostFacts", {}, lw::kModCommandVersion + 1), lw::kActivationBadVersion);
}

TEST_F(ProbeInHands, AProgramWithoutPanelsIsToldThatTheProbeCannotRun) {
  globals().withhold("LWPanelServices 3");
  EXPECT_EQ(host->activate(*module, "Varnel:HostFacts"), lw::kActivationBadGlobal);
}

// What the line says whenever it is drawn.
struct LinesOfNow : PanelListener {
  void drawn(Control& control, int /*mode*/) override {
    if (control.panel == panels().find("Varnel:HostFacts")) lines.push_back(control.shown());
  }
  std::vector<std::string> lines;
};

TEST_F(ProbeInHands, EachStepIsShownBeforeItIsDone) {
  LinesOfNow now;
  panels().listener = &now;
  start();
  panels().listener = nullptr;
  ASSERT_GE(now.lines.size(), 3U);
  EXPECT_EQ(now.lines[0], "Measuring what only eyes can tell");
  EXPECT_EQ(now.lines[1], "Measuring the process");
  EXPECT_EQ(now.lines[2], "Measuring objects and edits");
  EXPECT_EQ(now.lines.back(), "Now it needs your hand: see the panel \"Varnel probe 1 of 4\"");
}

TEST_F(ProbeInHands, TheFileTellsReleaseBuildYearAndLanguage) {
  end();
  HostOptions options;
  options.modeler.productInfo = 0x0AF1ABC1;
  options.modeler.localeInfo = 0x30411;
  begin(options);
  start();
  const auto told = nlohmann::json::parse(facts()).at("host");
  const nlohmann::json wanted{
      {"release", "15.1"}, {"build", 0xABC}, {"year", 2025}, {"language", "0x411"}, {"word", "0xaf1abc1"}};
  EXPECT_EQ(told, wanted);
}

// The year's bits count from that release on.
TEST_F(ProbeInHands, TheFileTellsNoYearOfAnotherRelease) {
  end();
  HostOptions options;
  options.modeler.productInfo = 0x0A21ABC1;
  begin(options);
  start();
  const auto told = nlohmann::json::parse(facts()).at("host");
  EXPECT_EQ(told.at("release"), "2.1");
  EXPECT_TRUE(told.at("year").is_null());
}

}  // namespace
}  // namespace standin
