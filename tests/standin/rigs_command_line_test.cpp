// The subcommands as they are typed: what they print, what they write and their exit codes.
#include <gmock/gmock.h>

#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "objectfile/temporary_folder.h"
#include "objectfile/whole_file.h"
#include "program/subcommands.h"
#include "program/support.h"
#include "rigs/code_page.h"
#include "tests/standin/rigs_fixture.h"

namespace standin {
namespace {

using rigs::SoundRig;
using testing::HasSubstr;
using testing::IsEmpty;

// What goes to a stream while this lives.
class Caught {
 public:
  explicit Caught(std::ostream& stream) : stream_(stream), before_(stream.rdbuf(text_.rdbuf())) {}
  ~Caught() { stream_.rdbuf(before_); }
  Caught(const Caught&) = delete;
  Caught& operator=(const Caught&) = delete;
  std::string text() const { return text_.str(); }

 private:
  std::ostream& stream_;
  std::ostringstream text_;
  std::streambuf* before_;
};

// Nothing of it is refused by Layout: its target is a null that the conversion makes.
SoundRig wellRig() {
  SoundRig rig;
  rig.set(rig.hand, 52, "Reach");
  return rig;
}

class RigCommandLine : public testing::Test {
 protected:
  // Runs "varnel WORDS", in English unless the words say so, whatever the system speaks; the exit code.
  int run(std::vector<std::string> words) {
    const bool speaks = words.front() != "export" && words.front() != "rigs";
    const bool isHelp = std::find(words.begin(), words.end(), "--help") != words.end();
    const bool isNamed = std::find(words.begin(), words.end(), "--lang") != words.end();
    if (speaks && !isHelp && !isNamed) words.insert(words.begin() + 1, {"--lang", "en"});
    const Program program{
        .commands = {inspectCommand(), commandsCommand(), diffCommand(), exportCommand(), importCommand(), rigsCommand()},
    };
    const Caught out(std::cout);
    const Caught error(std::cerr);
    const int result = runCommandLine(program, std::move(words));
    out_ = out.text();
    error_ = error.text();
    return result;
  }

  std::string write(const std::string& name, const SoundRig& rig) {
    const std::string path = folder_.file(name);
    EXPECT_FALSE(writeObject(rig.object(), path));
    return path;
  }
  std::string write(const std::string& name, const std::string& bytes) {
    const std::string path = folder_.file(name);
    EXPECT_FALSE(writeFileBytes(path, bytes));
    return path;
  }
  static std::string bytesOf(const std::string& path) { return *readFileBytes(path); }
  std::size_t filesInFolder() const {
    const std::filesystem::directory_iterator entries(pathFromUtf8(folder_.path()));
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
  }

  TemporaryFolder folder_;
  std::string out_;
  std::string error_;
};

TEST_F(RigCommandLine, InspectPrintsTreeAndFindings) {
  EXPECT_EQ(run({"inspect", write("頭.lwo", SoundRig())}), 0);
  EXPECT_THAT(out_, HasSubstr("in Layout \"頭\""));
  EXPECT_THAT(out_, HasSubstr("Strength: 80 %"));
}

TEST_F(RigCommandLine, InspectIsStrictOnlyWhenAsked) {
  SoundRig rig;
  const std::string sound = write("rig.lwo", rig);
  rig.set(rig.root, 31, "strong");
  const std::string poor = write("poor.lwo", rig);
  EXPECT_EQ(run({"inspect", poor}), 0);
  EXPECT_EQ(run({"inspect", "--strict", "--ignore", "parent-missing", poor}), 1);
  EXPECT_EQ(run({"inspect", "--strict", "--ignore", "parent-missing,number-unreadable", poor}), 0);
  EXPECT_EQ(run({"inspect", "--strict", sound}), 0);
}

TEST_F(RigCommandLine, InspectIsNotStrictWithNotes) {
  SoundRig rig;
  rig.set(rig.root, 33, "1");  // arrives as a hundredth, which may be meant
  const std::string file = write("rig.lwo", rig);
  EXPECT_EQ(run({"inspect", "--strict", "--code-page", "932", file}), 0);
  EXPECT_THAT(out_, HasSubstr("note [limited-range]"));
  EXPECT_THAT(out_, testing::EndsWith("\n" + file + ": 0 problems, 1 note (code page 932)\n"));
}

TEST_F(RigCommandLine, InspectSumsUpEachFile) {
  const std::string sound = write("rig.lwo", SoundRig());
  const std::string other = write("other.lwo", SoundRig());  // which has no item "rig" to be a parent
  EXPECT_EQ(run({"inspect", sound, other}), 0);
  EXPECT_THAT(out_, HasSubstr("\n" + sound + ": 0 problems, 0 notes "));
  EXPECT_THAT(out_, HasSubstr("\n" + other + ": 1 problem, 0 notes "));
}

TEST_F(RigCommandLine, InspectLeavesTheTreeOutWhenAskedForFindings) {
  SoundRig rig;
  rig.set(rig.root, 33, "1");
  const std::string file = write("rig.lwo", rig);
  EXPECT_EQ(run({"inspect", "--findings", file}), 0);
  EXPECT_THAT(out_, testing::StartsWith("== " + file + "\n  note [limited-range] "));
  EXPECT_EQ(std::count(out_.begin(), out_.end(), '\n'), 3);
  EXPECT_EQ(run({"inspect", "--findings", "--json", file}), 0);
  const auto json = nlohmann::json::parse(out_);
  EXPECT_FALSE(json[0].contains("layers"));
  EXPECT_EQ(json[0]["findings"].size(), 1U);
}

TEST_F(RigCommandLine, InspectShowsOneSkelegonAlone) {
  SoundRig rig;
  rig.set(rig.root, 31, "strong");
  rig.set(rig.hand, 33, "1");
  const std::string file = write("rig.lwo", rig);
  EXPECT_EQ(run({"inspect", "--strict", "--skelegon", "Hand", file}), 0);
  EXPECT_THAT(out_, HasSubstr("\n  Hand\n     Bone Active: off\n"));
  EXPECT_THAT(out_, HasSubstr("[limited-range] Rig / Hand"));
  EXPECT_THAT(out_, testing::Not(HasSubstr("strong")));
  EXPECT_EQ(run({"inspect", "--json", "--skelegon", "Hand", file}), 0);
  const auto json = nlohmann::json::parse(out_);
  ASSERT_EQ(json[0]["layers"][0]["skelegons"].size(), 1U);
  EXPECT_EQ(json[0]["layers"][0]["skelegons"][0]["name"], "Hand");
}

TEST_F(RigCommandLine, InspectTellsOfTheLayerWithTheSkelegon) {
  SoundRig rig;
  rig.builder.layer(1, "Left Arm");
  rig.builder.settings(rig.builder.root("Arm", {0, 0, 0}, {1, 0, 0}), {{129, "Red"}});
  const std::string file = write("rig.lwo", rig);
  run({"inspect", "--skelegon", "Arm", file});
  EXPECT_THAT(out_, HasSubstr("[layer-name] Left Arm"));
  run({"inspect", "--skelegon", "Root", file});
  EXPECT_THAT(out_, testing::Not(HasSubstr("[layer-name]")));
}

TEST_F(RigCommandLine, InspectSaysWhenNoSkelegonHasTheName) {
  const std::string file = write("rig.lwo", SoundRig());
  EXPECT_EQ(run({"inspect", "--skelegon", "Wing", file}), 2);
  EXPECT_THAT(error_, HasSubstr("rig.lwo: no skelegon is called Wing"));
  EXPECT_THAT(out_, IsEmpty());
}

// "頭" and "腰" as a host with that code page stores them.
TEST_F(RigCommandLine, InspectReadsNamesInTheJapaneseCodePage) {
  if (!rigs::CodePage(932).isKnown()) GTEST_SKIP() << "this system has no tables of code page 932";
  RigBuilder builder;
  builder.layer(0, "\x91\xcc");
  const auto root = builder.root("\x8d\x98", {0, 0, 0}, {0, 1, 0});
  builder.settings(root, {{55, "\x93\xaa_goal"}, {129, "Red"}});
  const std::string file = folder_.file("リグ.lwo");
  ASSERT_FALSE(writeObject(builder.object(), file));
  EXPECT_EQ(run({"inspect", "--code-page", "932", "--skelegon", "腰", file}), 0) << error_;
  EXPECT_THAT(out_, HasSubstr("== " + file + " (read in code page 932)\n"));
  EXPECT_THAT(out_, HasSubstr("layer 0 \"体\", in Layout \"リグ\""));
  EXPECT_THAT(out_, HasSubstr("\n  腰\n     Goal Object: 頭_goal\n"));
  EXPECT_THAT(out_, HasSubstr("[becomes-null] 体 / 腰 / Goal Object: nothing in the file bears the name \"頭_goal\""));
  EXPECT_THAT(out_, HasSubstr("note [text-code-page]"));
  EXPECT_EQ(run({"inspect", "--json", file}), 0);
  const auto json = nlohmann::json::parse(out_);
  EXPECT_EQ(json[0]["decodedFrom"], 932);
  EXPECT_EQ(json[0]["layers"][0]["skelegons"][0]["name"], "腰");
}

TEST_F(RigCommandLine, TheShippedRigsHaveNoProblem) {
  const std::string rigs = folder_.file("rigs");
  EXPECT_EQ(run({"rigs", rigs}), 0) << error_;
  const std::vector<std::string> names = {"lizard.lwo", "人形.lwo"};
  EXPECT_EQ(std::count(out_.begin(), out_.end(), '\n'), static_cast<std::ptrdiff_t>(names.size())) << "and no others";
  for (const std::string& name : names) {
    EXPECT_EQ(run({"inspect", "--strict", "--findings", "--code-page", "932", rigs + "/" + name}), 0) << out_;
    EXPECT_THAT(out_, HasSubstr(name + ": 0 problems, "));
  }
}

TEST_F(RigCommandLine, InspectTakesTheCodePageThatIsNamed) {
  SoundRig rig;
  rig.builder.tag(rig.root, lw::kTagBoneWeight, "頭");
  const std::string file = write("rig.lwo", rig);
  EXPECT_EQ(run({"inspect", "--strict", "--code-page", "932", file}), 0);
  EXPECT_EQ(run({"inspect", "--strict", "--code-page", "utf-8", file}), 0);
  EXPECT_EQ(run({"inspect", "--strict", "--code-page", "1252", file}), 1);
  EXPECT_EQ(run({"inspect", "--code-page", "4711", file}), 2);
  EXPECT_EQ(run({"inspect", "--code-page", "932x", file}), 2);
}

TEST_F(RigCommandLine, InspectGoesOnAfterAFileThatCannotBeRead) {
  const std::string damaged = write("damaged.lwo", std::string("FORM\0\0", 6));
  EXPECT_EQ(run({"inspect", "--strict", damaged, folder_.file("missing.lwo"), write("rig.lwo", SoundRig())}), 2);
  EXPECT_THAT(error_, HasSubstr("damaged.lwo: shorter than the head"));
  EXPECT_THAT(error_, HasSubstr("cannot open"));
  EXPECT_THAT(out_, HasSubstr("Strength: 80 %"));
}

TEST_F(RigCommandLine, InspectTellsOfATextThatIsMissing) {
  EXPECT_EQ(run({"inspect", "--strict", std::string(VARNEL_REPOSITORY) + "/tests/data/stored-beyond.lwo"}), 1);
  EXPECT_THAT(out_, HasSubstr("[text-missing]"));
}

TEST_F(RigCommandLine, InspectPrintsJsonAlsoOfTrouble) {
  EXPECT_EQ(run({"inspect", "--json", "--lang", "ja", write("rig.lwo", SoundRig()), folder_.file("missing.lwo")}), 2);
  const auto json = nlohmann::json::parse(out_);
  EXPECT_EQ(json[0]["layers"][0]["skelegons"][0]["settings"][0]["name"], "フォールオフ種");
  EXPECT_THAT(json[1]["trouble"].get<std::string>(), HasSubstr("cannot open"));
}

TEST_F(RigCommandLine, CommandsAreThoseOfTheModule) {
  EXPECT_EQ(run({"commands", write("rig.lwo", wellRig())}), 0) << error_;
  EXPECT_THAT(out_, HasSubstr("\nSkelegonsToBones\n"));
  EXPECT_THAT(out_, HasSubstr("\nBoneFalloffType 3\n"));
  EXPECT_THAT(out_, HasSubstr("\nBoneStrength 0.8000000000\n"));
  EXPECT_THAT(out_, HasSubstr("\nRecordPivotRotation\n"));
}

TEST_F(RigCommandLine, CommandsHeedTheOptionsOfThePanel) {
  const std::string file = write("rig.lwo", wellRig());
  EXPECT_EQ(run({"commands", "--no-pivot", file}), 0);
  EXPECT_THAT(out_, testing::Not(HasSubstr("RecordPivotRotation")));
  EXPECT_EQ(run({"commands", "--no-skelegons", file}), 1);  // no bone has the name
  EXPECT_THAT(out_, testing::Not(HasSubstr("SkelegonsToBones")));
  EXPECT_THAT(out_, HasSubstr("item not found ! (Root)"));
}

TEST_F(RigCommandLine, CommandsAsJsonSayWhatBecameOfThem) {
  EXPECT_EQ(run({"commands", "--json", write("rig.lwo", wellRig())}), 0);
  const auto json = nlohmann::json::parse(out_);
  EXPECT_EQ(json[0], (nlohmann::json{{"command", "StatusMsg Orlo:SkelegonOptimize start..."}, {"result", "accepted"}}));
}

TEST_F(RigCommandLine, CommandsOfAMissingFileOrModuleAreTrouble) {
  EXPECT_EQ(run({"commands", folder_.file("missing.lwo")}), 2);
  EXPECT_EQ(run({"commands", write("rig.lwo", wellRig()), "--module", folder_.file("missing.p")}), 2);
  EXPECT_THAT(out_, IsEmpty());
}

// What the finding of that name foretells: the last length that is sent, and the first that ends the run.
TEST_F(RigCommandLine, ACommandThatIsTooLongEndsTheConversionAsInspectSays) {
  SoundRig rig = wellRig();
  rig.builder.tag(rig.root, lw::kTagBoneWeight, std::string(493, 'x'));
  EXPECT_EQ(run({"commands", write("short.lwo", rig)}), 0);
  EXPECT_THAT(out_, HasSubstr("BoneWeightMapName xxx"));
  EXPECT_THAT(out_, HasSubstr("BoneStrength"));
  rig.builder.tag(rig.root, lw::kTagBoneWeight, std::string(494, 'x'));
  const std::string file = write("long.lwo", rig);
  EXPECT_EQ(run({"commands", file}), 1);
  EXPECT_THAT(out_, testing::Not(HasSubstr("BoneStrength")));
  run({"inspect", file});
  EXPECT_THAT(out_, HasSubstr("[command-too-long]"));
}

TEST_F(RigCommandLine, DiffTellsByItsExitCode) {
  SoundRig rig;
  const std::string before = write("before.lwo", rig);
  const std::string same = write("same.lwo", rig);
  rig.set(rig.root, 31, "50.000000");
  const std::string after = write("after.lwo", rig);
  EXPECT_EQ(run({"diff", before, same}), 0);
  EXPECT_THAT(out_, IsEmpty());
  EXPECT_EQ(run({"diff", before, after}), 1);
  EXPECT_EQ(out_, "--- " + before + "\n+++ " + after + "\nRig / Root\n  Strength: 80 % -> 50 %\n");
  EXPECT_EQ(run({"diff", before, folder_.file("missing.lwo")}), 2);
}

TEST_F(RigCommandLine, DiffTakesTheNullDeviceForARigThatIsNotThere) {
  EXPECT_EQ(run({"diff", "--json", "/dev/null", write("rig.lwo", SoundRig())}), 1);
  const auto json = nlohmann::json::parse(out_);
  EXPECT_EQ(json[0]["kind"], "layer-added");
  EXPECT_EQ(json[1]["kind"], "added");
  EXPECT_EQ(json[2]["from"], nullptr);
  EXPECT_EQ(json[2]["to"], "Inverse Distance^4");
}

TEST_F(RigCommandLine, ExportAndImportGiveTheFileBack) {
  const std::string file = write("rig.lwo", SoundRig());
  const std::string json = folder_.file("rig.json");
  const std::string copy = folder_.file("写し.lwo");
  EXPECT_EQ(run({"export", file, "-o", json}), 0);
  EXPECT_EQ(run({"import", file, json, "-o", copy}), 0) << error_;
  EXPECT_THAT(out_, HasSubstr("0 tags changed"));
  EXPECT_TRUE(bytesOf(copy) == bytesOf(file));
  EXPECT_EQ(run({"export", file}), 0);
  EXPECT_EQ(out_, bytesOf(json));
}

TEST_F(RigCommandLine, NoFileIsWrittenOverUnasked) {
  const std::string file = write("rig.lwo", SoundRig());
  const std::string json = write("rig.json", "kept");
  EXPECT_EQ(run({"export", file, "-o", json}), 2);
  EXPECT_EQ(bytesOf(json), "kept");
  EXPECT_THAT(error_, HasSubstr("exists and is not written over"));

  const std::string before = bytesOf(file);
  const std::string settings = folder_.file("settings.json");
  run({"export", file, "-o", settings});
  EXPECT_EQ(run({"import", file, settings, "-o", file}), 2);
  EXPECT_EQ(run({"import", file, settings}), 2);
  EXPECT_NE(run({"import", file, settings, "-o", folder_.file("new.lwo"), "--in-place"}), 0);
  EXPECT_TRUE(bytesOf(file) == before);
  EXPECT_EQ(filesInFolder(), 3U);
}

TEST_F(RigCommandLine, ImportInPlaceKeepsPermissionsAndLeavesNoOtherFile) {
  namespace fs = std::filesystem;
  SoundRig rig;
  const std::string file = write("rig.lwo", rig);
  rig.set(rig.root, 31, "50.000000");
  const std::string other = write("other.lwo", rig);
  const std::string json = folder_.file("rig.json");
  run({"export", other, "-o", json});
  fs::permissions(pathFromUtf8(file), fs::perms::owner_read | fs::perms::owner_write);
  const fs::perms before = fs::status(pathFromUtf8(file)).permissions();
  EXPECT_EQ(run({"import", file, json, "--in-place"}), 0) << error_;
  EXPECT_THAT(out_, HasSubstr("1 tag changed"));
  EXPECT_EQ(run({"diff", file, other}), 0);
  EXPECT_EQ(fs::status(pathFromUtf8(file)).permissions(), before);
  EXPECT_EQ(filesInFolder(), 3U);
}

TEST_F(RigCommandLine, ADryRunShowsWhatWouldChangeAndWritesNothing) {
  SoundRig rig;
  const std::string file = write("rig.lwo", rig);
  const std::string before = bytesOf(file);
  rig.set(rig.root, 31, "50.000000");
  const std::string json = folder_.file("rig.json");
  run({"export", write("other.lwo", rig), "-o", json});
  EXPECT_EQ(run({"import", file, json, "--dry-run"}), 0) << error_;
  EXPECT_EQ(out_, "Rig / Root\n  Strength: 80 % -> 50 %\n1 tag would be changed\n");
  EXPECT_EQ(run({"import", file, json, "--dry-run", "--in-place"}), 0) << error_;
  EXPECT_TRUE(bytesOf(file) == before);
  EXPECT_EQ(filesInFolder(), 3U);
}

TEST_F(RigCommandLine, MergingAPartOfTheSettingsKeepsTheRest) {
  const std::string file = write("rig.lwo", SoundRig());
  const std::string json =
      write("part.json", R"({"format": "varnel settings", "version": 1, "layers": [{"number": 0, "name": "Rig",
      "skelegons": [{"name": "Root", "settings": {"Strength": 50}}]}]})");
  EXPECT_EQ(run({"import", file, json, "--merge", "--in-place"}), 0) << error_;
  EXPECT_THAT(out_, HasSubstr("1 tag changed"));
}

TEST_F(RigCommandLine, ExportWritesItsSchemaWithoutARig) {
  EXPECT_EQ(run({"export", "--schema"}), 0) << error_;
  EXPECT_THAT(out_, HasSubstr("json-schema.org"));
  EXPECT_EQ(run({"export"}), 2);
  EXPECT_THAT(error_, HasSubstr("name the object file"));
}

TEST_F(RigCommandLine, ARefusedImportTouchesNothing) {
  const std::string file = write("rig.lwo", SoundRig());
  const std::string before = bytesOf(file);
  const std::string json = write("bad.json", R"({"format": "varnel settings", "version": 1, "layers": 5})");
  EXPECT_EQ(run({"import", file, json, "--in-place"}), 2);
  EXPECT_EQ(run({"import", file, json, "-o", folder_.file("new.lwo")}), 2);
  EXPECT_THAT(error_, HasSubstr("bad.json: layers has to be a list"));
  EXPECT_TRUE(bytesOf(file) == before);
  EXPECT_EQ(filesInFolder(), 2U);
}

TEST_F(RigCommandLine, ALinkIsFollowedWhenAFileIsReplaced) {
  namespace fs = std::filesystem;
  const std::string file = write("file", "old");
  const std::string link = folder_.file("link");
  std::error_code error;
  fs::create_symlink(pathFromUtf8(file), pathFromUtf8(link), error);
  if (error) GTEST_SKIP() << "no links here: " << error.message();
  EXPECT_FALSE(replaceFile(link, "new"));
  EXPECT_TRUE(fs::is_symlink(pathFromUtf8(link)));
  EXPECT_EQ(bytesOf(file), "new");
}

TEST_F(RigCommandLine, AFolderIsNotReplaced) {
  EXPECT_TRUE(replaceFile(folder_.path(), "new"));
  EXPECT_TRUE(replaceFile(folder_.file("missing"), "new"));
  EXPECT_EQ(filesInFolder(), 0U);
}

TEST_F(RigCommandLine, EveryCommandHelpsWithExamples) {
  for (const char* command : {"inspect", "commands", "diff", "export", "import"}) {
    EXPECT_EQ(run({command, "--help"}), 0);
    EXPECT_THAT(out_, HasSubstr(std::string("varnel ") + command));
  }
}

}  // namespace
}  // namespace standin
