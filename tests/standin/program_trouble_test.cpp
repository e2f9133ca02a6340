// Whatever goes wrong outside of the program, it ends with one line that says what and why, and with 2.
#include <iostream>
#include <new>
#include <sstream>
#include <stdexcept>

#include "program/run_program.h"
#include "tests/standin/program_fixture.h"

namespace standin {
namespace {

using testing::HasSubstr;

class ProgramTrouble : public TypedLines {
 protected:
  void SetUp() override { makeRigs(); }
};

#ifndef _WIN32

TEST_F(ProgramTrouble, AFullDiskIsToldByEveryCommand) {
  for (const char* const line :
       {"varnel export rigs/lizard.lwo", "varnel export --textconv rigs/lizard.lwo", "varnel inspect rigs/lizard.lwo",
        "varnel inspect --json rigs/lizard.lwo", "varnel commands rigs/lizard.lwo", "varnel convert rigs/lizard.lwo",
        "varnel diff rigs/lizard.lwo rigs/人形.lwo", "varnel rigs more-rigs", "varnel trip", "varnel rename",
        "varnel panels --lang en", "varnel hosts", "varnel probe facts",
        "varnel host " VARNEL_REPOSITORY "/tests/data/host-facts.json", "varnel validate --list", "varnel --help",
        "varnel export --help", "varnel --version"}) {
    EXPECT_EQ(type(std::string(line) + " >/dev/full"), 2) << line;
    EXPECT_THAT(error, HasSubstr("varnel: the output could not be written: No space left on device\n")) << line;
  }
}

TEST_F(ProgramTrouble, AnOutputThatIsClosedIsTold) {
  expectRefused("varnel export rigs/lizard.lwo >&-", "could not be written: Bad file descriptor");
}

TEST_F(ProgramTrouble, AFullDiskIsToldOfAFile) {
  const std::optional<Failure> failure = writeFileBytes("/dev/full", "bytes");
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->text, "cannot write /dev/full: No space left on device");
}

// As on a disk that has no room for a second one.
TEST_F(ProgramTrouble, AnObjectThatHasNoRoomOnTheDiskStaysAsItWas) {
  const std::string before = bytesOf("rigs/lizard.lwo");
  ASSERT_EQ(type("varnel export rigs/lizard.lwo | sed 's/\"Strength\": [0-9.]*/\"Strength\": 12.5/' >changed.json"), 0);
  expectRefused("trap '' XFSZ; ulimit -f 1; varnel import rigs/lizard.lwo changed.json --in-place",
                "cannot write " + std::filesystem::canonical("rigs/lizard.lwo").string() + ": File too large");
  EXPECT_TRUE(bytesOf("rigs/lizard.lwo") == before);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator("rigs"), {}), 2);
}

TEST_F(ProgramTrouble, AMissingPlaceForTemporaryFilesIsNamed) {
  for (const char* const line : {"varnel trip", "varnel convert --shipped", "varnel validate --only descriptor"}) {
    expectRefused(std::string("TMPDIR=/nowhere ") + line, "temporary files: /nowhere: No such file or directory");
  }
}

TEST_F(ProgramTrouble, AConversionOfFilesNeedsNoPlaceForTemporaryFiles) {
  EXPECT_EQ(type("TMPDIR=/nowhere varnel convert rigs/lizard.lwo"), 0) << error;
}

// As names are after unpacking in a wrong code page.
TEST_F(ProgramTrouble, ANameThatIsNoTextDoesNotEndAnInspection) {
  const std::string name = "\x90l.lwo";
  write(name, bytesOf("rigs/lizard.lwo"));
  EXPECT_EQ(type("varnel inspect --lang en '" + name + "' rigs/lizard.lwo"), 0) << error;
  EXPECT_THAT(out, HasSubstr("\nrigs/lizard.lwo: 0 problems"));
}

TEST_F(ProgramTrouble, ANameAsLongAsTheSystemAllowsIsWritten) {
  const std::string name = std::string(250, 'n') + ".json";
  EXPECT_EQ(type("varnel export rigs/lizard.lwo -o " + name), 0) << error;
  EXPECT_THAT(bytesOf(name), HasSubstr("varnel settings"));
}

TEST_F(ProgramTrouble, AFolderThatTakesNoReportIsNamedBeforeTheChecks) {
  expectRefused("varnel validate --only descriptor --report /proc/self", "cannot write /proc/self: ");
  EXPECT_EQ(out, "");
}

TEST_F(ProgramTrouble, WindowsThatThereAreNotAreToldLikeAllTroubles) {
  expectRefused("varnel desk", "varnel: desk needs the Windows build");
}

TEST_F(ProgramTrouble, AFolderThatCannotBeWrittenIntoIsNamed) {
  expectRefused("varnel rigs /proc/rigs", "/proc/rigs cannot be made: No such file or directory");
}

// Not with the sanitizers, whose own memory takes more than any limit leaves.
#ifndef VARNEL_SANITIZE
TEST_F(ProgramTrouble, AFileThatIsLargerThanTheMemoryIsNamed) {
  write("large.lwo", "FORM");
  std::filesystem::resize_file("large.lwo", 3'000'000'000);  // takes no room on the disk
  for (const char* const line : {"varnel inspect large.lwo", "varnel export large.lwo", "varnel diff large.lwo large.lwo"}) {
    expectRefused(std::string("ulimit -v 2000000; ") + line, "cannot read large.lwo: Cannot allocate memory");
  }
}
#endif

#endif

TEST_F(ProgramTrouble, AFolderGivenAsAFileIsNamed) {
  write("lizard.json", "{}");
  for (const char* const line :
       {"varnel inspect rigs", "varnel commands rigs", "varnel diff rigs rigs/lizard.lwo", "varnel export rigs",
        "varnel import rigs lizard.json -o new.lwo", "varnel import rigs/lizard.lwo rigs -o new.lwo"}) {
    expectRefused(line, "cannot read rigs: Is a directory");
  }
  expectRefused("varnel validate --only descriptor rigs", "rigs: Is a directory");
  expectRefused("varnel commands rigs/lizard.lwo --module rigs", "there is no file \"rigs\"");
}

TEST_F(ProgramTrouble, AFolderAmongTheFilesDoesNotEndAConversion) {
  EXPECT_NE(type("varnel convert rigs rigs/lizard.lwo"), 0);
  EXPECT_THAT(out + error, HasSubstr("cannot read rigs: Is a directory"));
  EXPECT_THAT(out, HasSubstr("commands: "));
}

TEST_F(ProgramTrouble, AFileGivenAsAFolderIsNamed) {
  expectRefused("varnel rigs rigs/lizard.lwo", "the folder rigs/lizard.lwo cannot be made: ");
  expectRefused("varnel validate --only descriptor --report rigs/lizard.lwo", "the folder rigs/lizard.lwo cannot be made: ");
  EXPECT_EQ(out, "");
}

// ---------------------------------------------------------------------------------------------------------------------
// What nobody thought of

class EndOfTheProgram : public testing::Test {
 protected:
  template <class Run>
  int end(Run&& run) {
    const auto before = std::cerr.rdbuf(text_.rdbuf());
    const int code = runProgram(run);
    std::cerr.rdbuf(before);
    return code;
  }
  std::ostringstream text_;
};

TEST_F(EndOfTheProgram, GivesTheCommandsExitCode) {
  EXPECT_EQ(end([] { return 1; }), 1);
  EXPECT_EQ(text_.str(), "");
}

TEST_F(EndOfTheProgram, TellsOfRefusedMemory) {
  EXPECT_EQ(end([]() -> int { throw std::bad_alloc(); }), 2);
  EXPECT_THAT(text_.str(), testing::MatchesRegex("varnel: there is not enough memory for this: .+\n"));
}

TEST_F(EndOfTheProgram, TellsOfAFileThatTheSystemRefused) {
  EXPECT_EQ(end([]() -> int {
              throw std::filesystem::filesystem_error("looking", "a/place",
                                                      std::make_error_code(std::errc::permission_denied));
            }),
            2);
  EXPECT_EQ(text_.str(), "varnel: a/place: Permission denied\n");
}

TEST_F(EndOfTheProgram, TellsWhatAnExceptionSays) {
  EXPECT_EQ(end([]() -> int { throw std::logic_error("out of sorts"); }), 2);
  EXPECT_EQ(text_.str(), "varnel: out of sorts\n");
  EXPECT_EQ(end([]() -> int { throw 5; }), 2);
}

}  // namespace
}  // namespace standin
