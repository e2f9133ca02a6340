// The examples in the program's help work as they stand, in a folder like that of the zip.
#include <sstream>
#include <vector>

#include "tests/standin/program_fixture.h"

namespace standin {
namespace {

using testing::HasSubstr;
using testing::Not;

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    while (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

// The words that lines begin with, from the heading of the commands on.
std::vector<std::string> commandsIn(const std::string& help) {
  std::vector<std::string> commands;
  bool areCommands = false;
  for (const std::string& line : linesOf(help)) {
    if (areCommands && line.starts_with("  ") && line.size() > 2 && line[2] != ' ') {
      commands.push_back(line.substr(2, line.find(' ', 2) - 2));
    }
    areCommands = areCommands || line == "Subcommands:";
  }
  return commands;
}

std::vector<std::string> examplesIn(const std::string& help) {
  std::vector<std::string> examples;
  for (const std::string& line : linesOf(help)) {
    if (line.starts_with("  varnel ")) examples.push_back(line.substr(2));
  }
  return examples;
}

// Some commands answer by their exit code: 1 is what they found, not that they failed.
bool asksAQuestion(const std::string& example) {
  return example.starts_with("varnel diff ") || example.find(" --strict") != std::string::npos;
}

// The error stream has the verdict, for what it printed is for other programs.
bool endsWithAVerdict(const std::string& example) { return example.starts_with("varnel commands"); }

// It waits for a person.
bool waitsForSomeone(const std::string& example) { return example.starts_with("varnel desk"); }

class HelpExamples : public TypedLines {
 protected:
  // What the zip holds.
  void SetUp() override {
    makeRigs();
    std::filesystem::copy_file(pathFromUtf8(modulePath()), moduleFileName());
  }

  void expectToWork(const std::string& example) {
    const int code = type(example);
    EXPECT_LE(code, asksAQuestion(example) ? 1 : 0) << example << "\n" << out << error;
    EXPECT_GE(code, 0) << example;
    EXPECT_TRUE(error.empty() || endsWithAVerdict(example)) << example << "\n" << error;
  }
};

TEST_F(HelpExamples, WorkAsTheyStand) {
  std::size_t count = 0;
  EXPECT_EQ(type("varnel --help"), 0);
  const std::vector<std::string> commands = commandsIn(out);
  EXPECT_GT(commands.size(), 10U);
  std::vector<std::string> examples = examplesIn(out);
  for (const std::string& command : commands) {
    EXPECT_EQ(type("varnel " + command + " --help"), 0);
    const std::vector<std::string> more = examplesIn(out);
    examples.insert(examples.end(), more.begin(), more.end());
  }
  for (const std::string& example : examples) {
    if (waitsForSomeone(example)) continue;
    // Each help stands alone: what an example needs, one above it has made.
    if (example.starts_with("varnel export") && example.find(" -o ") != std::string::npos) {
      std::filesystem::remove("lizard.json");
      std::filesystem::remove("lizard-2.lwo");
    }
    expectToWork(example);
    ++count;
  }
  EXPECT_GT(count, 15U);
}

TEST_F(HelpExamples, AnOptionThatMayStandSeveralTimesLeavesTheFilesBehindIt) {
  EXPECT_EQ(type("varnel inspect --ignore becomes-null --ignore name-twice,layer-name rigs/lizard.lwo"), 0) << error;
  EXPECT_THAT(out, HasSubstr("== rigs/lizard.lwo"));
  EXPECT_THAT(out, Not(HasSubstr("[becomes-null]")));
  EXPECT_EQ(type("varnel validate --only descriptor --only servers " + moduleFileName()), 0) << error;
  EXPECT_THAT(out, HasSubstr("pass   descriptor"));
  EXPECT_THAT(out, HasSubstr("pass   servers"));
}

TEST_F(HelpExamples, LanguagesAreNamedOneByOneOrWithCommas) {
  EXPECT_EQ(type("varnel panels --lang ja"), 0) << error;
  EXPECT_THAT(out, Not(HasSubstr("== selector, en")));
  for (const char* const words : {"--lang ja,en", "--lang ja --lang en"}) {
    EXPECT_EQ(type(std::string("varnel panels ") + words), 0) << error;
    EXPECT_THAT(out, HasSubstr("== selector, en"));
    EXPECT_THAT(out, HasSubstr("== selector, ja"));
  }
}

// By the shell on one system, by the program on the other.
TEST_F(HelpExamples, WildcardsStandForFiles) {
  write("rigs/lizard.lwobak", "another file");
  EXPECT_EQ(type("varnel inspect rigs/*.lwo"), 0) << error;
  EXPECT_THAT(out, HasSubstr("lizard.lwo\n"));
  EXPECT_THAT(out, HasSubstr("人形.lwo\n"));
  EXPECT_EQ(type("varnel inspect r*s/l?zard.lw?"), 0) << error;
  EXPECT_THAT(out, HasSubstr("lizard.lwo\n"));
  EXPECT_THAT(out, Not(HasSubstr("人形")));
  EXPECT_EQ(type("varnel inspect rigs/nothing*.lwo"), 2);
  EXPECT_THAT(error, HasSubstr("nothing*.lwo"));
}

#ifdef _WIN32
TEST_F(HelpExamples, WildcardsKnowNoCaseAndBothSlashes) {
  EXPECT_EQ(type("varnel inspect .\\RIGS\\LIZ*.LWO"), 0) << error;
  EXPECT_THAT(out, HasSubstr("lizard.lwo\n"));
}
#endif

}  // namespace
}  // namespace standin
