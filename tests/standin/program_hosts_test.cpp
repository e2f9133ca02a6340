// Hosts as they are typed: names with values, and files of facts.
#include "standin/variants/variants.h"
#include "tests/standin/program_fixture.h"

namespace standin {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class PlayedFacts : public TypedLines {
 protected:
  void SetUp() override {
    makeRigs();
    write("facts.json", bytesOf(std::string(VARNEL_REPOSITORY) + "/tests/data/host-facts.json"));
  }

  // A file of facts that tells these alone.
  void writeFacts(const std::string& name, const std::string& facts) {
    write(name,
          "{\"format\": \"varnel host facts\", \"version\": 1, \"probe\": \"1.20\", \"program\": \"Modeler\", \"host\": {}, "
          "\"date\": \"2026-11-22\", \"facts\": [" +
              facts + "], \"figures\": []}");
  }

  // The validator's report says where it played.
  std::string hostOf(const std::string& options) {
    EXPECT_EQ(type("varnel validate --only descriptor --report report --force " + options), 0) << options << error;
    const std::string report = bytesOf("report/report.txt");
    const std::size_t from = report.find("\non ");
    if (from == std::string::npos) return {};
    const std::size_t word = report.find_first_not_of(' ', from + 3);
    return report.substr(word, report.find_first_of("\r\n", word) - word);
  }
};

TEST_F(PlayedFacts, AreTheHostOfEveryCommandThatPlaysOne) {
  writeFacts("facts.json", R"({"name": "skelegons-after", "value": "stay", "seen": "they stayed"})");
  for (const char* const line :
       {"varnel convert rigs/lizard.lwo", "varnel commands rigs/lizard.lwo", "varnel picture --after rigs/lizard.lwo",
        "varnel trip", "varnel rename", "varnel panels --lang en", "varnel validate --only descriptor"}) {
    EXPECT_EQ(type(std::string(line) + " --host facts.json"), 0) << line << error;
    EXPECT_EQ(type(std::string(line) + " --host damaged.json"), 2) << line;
  }
}

TEST_F(PlayedFacts, AreSeenInTheScene) {
  writeFacts("padded.json", R"({"name": "padding", "value": "3", "seen": "3 pixels"})");
  ASSERT_EQ(type("varnel panels --lang en"), 0);
  const std::string before = out;
  ASSERT_EQ(type("varnel panels --lang en --host padding=3"), 0);
  ASSERT_NE(out, before);
  const std::string padded = out;
  ASSERT_EQ(type("varnel panels --lang en --host padded.json"), 0);
  EXPECT_EQ(out, padded);
}

TEST_F(PlayedFacts, WinOverWhatStandsBeforeThem) {
  EXPECT_EQ(hostOf("--host new-bones=none --host facts.json"), "new-null=added new-bones=selected");
}

TEST_F(PlayedFacts, GiveWayToWhatStandsBehindThem) {
  EXPECT_EQ(hostOf("--host facts.json --host new-bones=none"), "new-null=added new-bones=none");
}

TEST_F(PlayedFacts, OfBothProgramsArePlayedTogether) {
  writeFacts("modeler.json", R"({"name": "empty-tag", "value": "removed", "seen": "it was gone"})");
  EXPECT_EQ(hostOf("--host modeler.json --host facts.json"), "empty-tag=removed new-null=added new-bones=selected");
}

TEST_F(PlayedFacts, ThatContradictEachOtherAreTold) {
  writeFacts("modeler.json", R"({"name": "locale", "value": "comma", "seen": "3,5"})");
  writeFacts("layout.json", R"({"name": "locale", "value": "c", "seen": "3.5"})");
  ASSERT_EQ(type("varnel trip --host modeler.json --host layout.json"), 0);
  EXPECT_THAT(error,
              HasSubstr("varnel: layout.json: \"locale\" is \"c\" there, which is played, and was \"comma\" before\n"));
}

TEST_F(PlayedFacts, ThatCannotBePlayedAreToldOnce) {
  ASSERT_EQ(type("varnel convert rigs/lizard.lwo rigs/人形.lwo --host facts.json"), 0) << error;
  EXPECT_EQ(std::count(error.begin(), error.end(), '\n'), 3) << error;
  EXPECT_THAT(error, HasSubstr("varnel: facts.json: \"layer-base\" is \"other\" there and not played"));
  EXPECT_THAT(error, HasSubstr("varnel: facts.json: \"counters\" is \"from-9\" there and not played"));
  EXPECT_THAT(error, HasSubstr("varnel: facts.json: \"bone-lights\" is \"bright\" there and not played"));
}

TEST_F(PlayedFacts, MayBeInAFileOfAnyName) {
  write("facts", bytesOf("facts.json"));
  EXPECT_EQ(hostOf("--host facts"), "new-null=added new-bones=selected");
}

TEST_F(PlayedFacts, ThatAreDamagedAreRefusedWhole) {
  const std::string bytes = bytesOf("facts.json");
  write("facts.json", bytes.substr(0, bytes.size() / 2));
  EXPECT_EQ(type("varnel trip --host facts.json"), 2);
  EXPECT_THAT(error, HasSubstr("facts.json: "));
  EXPECT_THAT(out, IsEmpty());
  EXPECT_EQ(type("varnel trip --host nowhere.JSON"), 2);
  EXPECT_THAT(error, HasSubstr("nowhere.JSON"));
}

// A default that was measured is not played otherwise: where all is known, one host is left of the fifty mixtures.
TEST_F(PlayedFacts, StayInTheValidatorsHosts) {
  std::string facts;
  for (const HostVariant* row : allVariants()) {
    facts.append(facts.empty() ? "" : ", ").append("{\"seen\": \"\", \"name\": \"").append(row->name);
    facts.append("\", \"value\": \"").append(row->values.front().name).append("\"}");
  }
  writeFacts("all.json", facts);
  ASSERT_EQ(type("varnel validate --only hosts-layout --quick --host all.json"), 0) << error;
  EXPECT_THAT(out, HasSubstr("leaves none of these open"));
}

// By chance: each number is another ten things that differ.
TEST_F(PlayedFacts, LeadTheProbeToTheSameFiles) {
  for (const std::string seed : {"1", "2", "3"}) {
    ASSERT_EQ(type("varnel probe first --force --seed " + seed), 0) << out << error;
    ASSERT_EQ(type("varnel probe again --force --host first/modeler.json --host first/layout.json"), 0) << out << error;
    for (const std::string file : {"/modeler.json", "/layout.json"}) {
      EXPECT_EQ(bytesOf("again" + file), bytesOf("first" + file)) << seed;
    }
  }
}

TEST_F(PlayedFacts, ThatAreNeitherAFileNorAVariantAreRefusedShortly) {
  EXPECT_EQ(type("varnel trip --host nowhere"), 2);
  EXPECT_THAT(error, HasSubstr("--host: \"nowhere\" is neither NAME=VALUE nor a file; \"varnel hosts\" lists the names\n"));
}

// All or none: a file that is there is found before the other one is written.
TEST_F(PlayedFacts, AreMeasuredOnlyWhereBothFilesMayBeWritten) {
  std::filesystem::create_directory("measured");
  write("measured/layout.json", "mine");
  expectRefused("varnel probe measured", "layout.json exists and is not written over; --force writes over it");
  EXPECT_FALSE(std::filesystem::exists("measured/modeler.json"));
  EXPECT_EQ(bytesOf("measured/layout.json"), "mine");
}

class ShownFacts : public PlayedFacts {};

TEST_F(ShownFacts, OfSeveralFilesStandUnderTheirNames) {
  writeFacts("modeler.json", R"({"name": "empty-tag", "value": "removed", "seen": "it was gone"})");
  ASSERT_EQ(type("varnel host modeler.json facts.json"), 0) << error;
  EXPECT_THAT(out, HasSubstr("modeler.json\nModeler of an unknown release\n"));
  EXPECT_THAT(out, HasSubstr("\nfacts.json\nLayout 15.0.3, build 3155"));
  EXPECT_THAT(out, HasSubstr("  empty-tag\n"));
  EXPECT_THAT(out, HasSubstr("  new-bones\n"));
}

TEST_F(ShownFacts, OfADamagedFileAreNone) {
  write("damaged.json", "{");
  EXPECT_EQ(type("varnel host facts.json damaged.json"), 2);
  EXPECT_THAT(out, IsEmpty());
  EXPECT_THAT(error, HasSubstr("varnel: damaged.json: "));
  expectRefused("varnel host nowhere.json", "nowhere.json");
}

}  // namespace
}  // namespace standin
