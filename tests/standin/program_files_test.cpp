// What the program writes: nothing that is there is replaced unasked, and nothing that is protected at all.
#include "tests/standin/program_fixture.h"

namespace standin {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kLizard = "rigs/lizard.lwo";

class WrittenFiles : public TypedLines {
 protected:
  void SetUp() override { makeRigs(); }

  static void protect(const char* path) {
    fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
  }
  static void release(const char* path) { fs::permissions(path, fs::perms::owner_write, fs::perm_options::add); }
};

TEST_F(WrittenFiles, RigsAreNotWrittenOverUnasked) {
  const std::string shipped = bytesOf(kLizard);
  write(kLizard, "mine");
  expectRefused("varnel rigs rigs", "lizard.lwo exists and is not written over");
  EXPECT_THAT(error, HasSubstr("--force"));
  EXPECT_EQ(bytesOf(kLizard), "mine");
  EXPECT_EQ(type("varnel rigs rigs --force"), 0) << error;
  EXPECT_TRUE(bytesOf(kLizard) == shipped);
}

TEST_F(WrittenFiles, NoneOfTheRigsIsWrittenWhenOneIsThere) {
  const fs::path other = pathFromUtf8("rigs/人形.lwo");
  fs::remove(kLizard);
  ASSERT_TRUE(fs::exists(other));
  EXPECT_EQ(type("varnel rigs rigs"), 2);
  EXPECT_FALSE(fs::exists(kLizard));
}

TEST_F(WrittenFiles, AnExportReplacesAFileWhenAsked) {
  write("lizard.json", "mine");
  expectRefused("varnel export rigs/lizard.lwo -o lizard.json", "lizard.json exists and is not written over; --force");
  EXPECT_EQ(bytesOf("lizard.json"), "mine");
  EXPECT_EQ(type("varnel export rigs/lizard.lwo -o lizard.json --force"), 0) << error;
  EXPECT_THAT(bytesOf("lizard.json"), HasSubstr("varnel settings"));
}

// A slip of who types: the rig would be gone.
TEST_F(WrittenFiles, AnObjectIsNotReplacedByWhatIsReadFromIt) {
  const std::string rig = bytesOf("rigs/lizard.lwo");
  write("rigs/lizard.html", rig);
  for (const char* const line :
       {"varnel picture rigs/lizard.lwo rigs/lizard.lwo --force",
        "varnel export rigs/lizard.lwo -o rigs/../rigs/lizard.lwo --force", "varnel report rigs/lizard.html -o rigs --force",
        "varnel report rigs/lizard.lwo --against rigs/lizard.html -o rigs --force"}) {
    expectRefused(line, "is read, and is not written over");
  }
  EXPECT_TRUE(bytesOf("rigs/lizard.lwo") == rig);
  EXPECT_TRUE(bytesOf("rigs/lizard.html") == rig);
}

TEST_F(WrittenFiles, AnImportReplacesAnotherFileWhenAsked) {
  exportAnotherStrength(kLizard, "changed.json");
  write("other.lwo", "mine");
  expectRefused("varnel import rigs/lizard.lwo changed.json -o other.lwo", "other.lwo exists");
  EXPECT_EQ(bytesOf("other.lwo"), "mine");
  EXPECT_EQ(type("varnel import rigs/lizard.lwo changed.json -o other.lwo --force"), 0) << error;
  EXPECT_EQ(type("varnel diff rigs/lizard.lwo other.lwo"), 1) << error;
}

TEST_F(WrittenFiles, AReadOnlyObjectStaysAsItIsInPlace) {
  exportAnotherStrength(kLizard, "changed.json");
  const std::string before = bytesOf(kLizard);
  protect(kLizard);
  expectRefused("varnel import rigs/lizard.lwo changed.json --in-place", "it is read-only");
  EXPECT_TRUE(bytesOf(kLizard) == before);
  release(kLizard);
  EXPECT_EQ(type("varnel import rigs/lizard.lwo changed.json --in-place"), 0) << error;
  EXPECT_FALSE(bytesOf(kLizard) == before);
}

TEST_F(WrittenFiles, AReadOnlyFileIsNotReplacedByForceEither) {
  write("lizard.json", "mine");
  protect("lizard.json");
  expectRefused("varnel export rigs/lizard.lwo -o lizard.json --force", "it is read-only");
  EXPECT_EQ(bytesOf("lizard.json"), "mine");
  release("lizard.json");
}

TEST_F(WrittenFiles, ReportsAreNotWrittenOverUnaskedNorTheChecksRunInVain) {
  fs::create_directory("report");
  write("report/report.html", "mine");
  expectRefused("varnel validate --only descriptor --report report", "report.html exists and is not written over");
  EXPECT_EQ(out, "");
  EXPECT_EQ(bytesOf("report/report.html"), "mine");
  EXPECT_FALSE(fs::exists("report/report.txt"));
  EXPECT_EQ(type("varnel validate --only descriptor --report report --force"), 0) << error;
  EXPECT_THAT(bytesOf("report/report.html"), HasSubstr("descriptor"));
}

TEST_F(WrittenFiles, AFailureNamesTheFileThatWasToBeWritten) {
  expectRefused("varnel export rigs/lizard.lwo -o missing/lizard.json", "lizard.json: No such file or directory");
  EXPECT_THAT(error, Not(HasSubstr(".varnel-")));
}

// Version control hands over copies with names of their own, and shows what differs.
TEST_F(WrittenFiles, ATextForVersionControlDoesNotFailAndNamesNoFile) {
  write("first.lwo", "no object at all");
  write("second.lwo", "no object at all");
  EXPECT_EQ(type("varnel export --textconv first.lwo"), 0) << error;
  const std::string first = out;
  EXPECT_THAT(first, testing::MatchesRegex("\\(not readable: .+\\)\n"));
  EXPECT_EQ(type("varnel export --textconv second.lwo"), 0) << error;
  EXPECT_EQ(out, first);
  EXPECT_EQ(error, "");
  expectRefused("varnel export first.lwo", "first.lwo: ");
}

TEST_F(WrittenFiles, ATextForVersionControlIsTheExportOfAnObjectThatCanBeRead) {
  EXPECT_EQ(type("varnel export rigs/lizard.lwo"), 0);
  const std::string exported = out;
  EXPECT_EQ(type("varnel export --textconv rigs/lizard.lwo"), 0) << error;
  EXPECT_TRUE(out == exported);
}

#ifdef _WIN32
TEST_F(WrittenFiles, PicturesAreNotWrittenOverUnasked) {
  fs::create_directory("shots");
  write("shots/renamer-en-simple.png", "mine");
  expectRefused("varnel pictures shots --only renamer", "renamer-en-simple.png exists and is not written over");
  EXPECT_EQ(bytesOf("shots/renamer-en-simple.png"), "mine");
}
#endif

}  // namespace
}  // namespace standin
