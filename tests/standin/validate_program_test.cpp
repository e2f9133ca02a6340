// The subcommand: exit codes, selection, reports.
#include "standin/validate/child_process.h"
#include "tests/standin/validate_fixture.h"

namespace standin::validate {
namespace {

class ValidateCommand : public Validation {
 protected:
  // The exit code; what was printed is in `output`.
  int varnel(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "validate");
    const std::string file = folder_.file("output.txt");
    std::error_code ignored;
    std::filesystem::remove(pathFromUtf8(file), ignored);
    ChildProcess process(programPath(), arguments, file);
    EXPECT_EQ(process.why(), "");
    const auto end = process.wait(120000);
    output = *readFileBytes(file);
    return end && end->ofItself ? end->code : -1;
  }

  std::string output;
};

TEST_F(ValidateCommand, GivesZeroForASoundModule) {
  EXPECT_EQ(varnel({modulePath(), "--only", "descriptor,servers"}), 0) << output;
  EXPECT_NE(output.find("pass   servers"), std::string::npos) << output;
}

TEST_F(ValidateCommand, GivesOneForABadModule) {
  EXPECT_EQ(varnel({sampleModule("sample_wrong_sync"), "--only", "descriptor"}), 1) << output;
}

TEST_F(ValidateCommand, RefusesAnUnknownCheck) {
  EXPECT_EQ(varnel({modulePath(), "--only", "nonsense"}), 2);
  EXPECT_NE(output.find("there is no check \"nonsense\""), std::string::npos) << output;
}

TEST_F(ValidateCommand, RefusesAnEmptySelection) {
  EXPECT_EQ(varnel({modulePath(), "--level", "7-3"}), 2);
  EXPECT_NE(output.find("the selection is empty"), std::string::npos) << output;
}

TEST_F(ValidateCommand, RefusesWhatIsNoLevel) {
  for (const char* const level : {"0", "12", "x", "3-", "-3", "1-13"}) {
    EXPECT_EQ(varnel({modulePath(), std::string("--level=") + level}), 2) << level;
  }
}

TEST_F(ValidateCommand, RefusesAMissingFile) {
  EXPECT_EQ(varnel({"no-such-module.p", "--level", "1"}), 2);
  EXPECT_NE(output.find("there is no file"), std::string::npos) << output;
}

TEST_F(ValidateCommand, SplitsTheHostsByArea) {
  EXPECT_EQ(varnel({"--list", "--level", "11-11"}), 0);
  for (const VariantArea& area : variantAreas()) {
    EXPECT_NE(output.find(std::string("hosts-") + area.name + "\n"), std::string::npos) << area.name;
  }
  EXPECT_NE(output.find("hosts-mixed\n"), std::string::npos) << output;
}

TEST_F(ValidateCommand, PlaysOnTheHostsThatAreNamed) {
  EXPECT_EQ(varnel({"--host", "sets=fire", "--host", "new-bones=selected", modulePath(), "--only", "trip-typical",
                    "--report", folder_.file("report")}),
            0)
      << output;
  EXPECT_NE(readFileBytes(folder_.file("report/report.txt"))->find("on      sets=fire new-bones=selected"),
            std::string::npos);
}

TEST_F(ValidateCommand, RefusesAnUnknownHostAndNamesThoseThatThereAre) {
  EXPECT_EQ(varnel({modulePath(), "--host", "nonsense=1"}), 2);
  EXPECT_NE(output.find("hosts do not differ in \"nonsense\""), std::string::npos) << output;
  EXPECT_NE(output.find("new-bones"), std::string::npos) << output;
}

TEST_F(ValidateCommand, RefusesAnUnknownValueAndNamesThoseThatThereAre) {
  EXPECT_EQ(varnel({modulePath(), "--host", "sets=nonsense"}), 2);
  EXPECT_NE(output.find("the values of sets are silent, fire"), std::string::npos) << output;
}

TEST_F(ValidateCommand, ListsTheChecksOfALevel) {
  EXPECT_EQ(varnel({"--list", "--level", "3-3"}), 0);
  EXPECT_NE(output.find("withheld"), std::string::npos) << output;
  EXPECT_EQ(output.find("descriptor"), std::string::npos) << output;
}

TEST_F(ValidateCommand, WritesBothReports) {
  const std::string folder = folder_.file("report");
  EXPECT_EQ(varnel({modulePath(), "--only", "descriptor", "--report", folder, "--seed", "123"}), 0) << output;
  EXPECT_NE(readFileBytes(folder + "/report.txt")->find("seed    123"), std::string::npos);
  EXPECT_NE(readFileBytes(folder + "/report.html")->find("descriptor"), std::string::npos);
}

}  // namespace
}  // namespace standin::validate
