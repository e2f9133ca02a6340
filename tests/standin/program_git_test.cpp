// The manual's recipe for version control, in a repository whose history holds an object that cannot be read.
#include <sstream>

#include "tests/standin/program_fixture.h"

namespace standin {
namespace {

using testing::HasSubstr;
using testing::Not;

// The blocks of code under the manual's heading, as what there is to type and what to write into .gitattributes.
struct Recipe {
  std::string attributes;
  std::string textconv;
};

Recipe recipeOf(const std::string& language) {
  std::istringstream manual(*readFileBytes(std::string(VARNEL_REPOSITORY) + "/docs/manual/" + language + "/tools.md"));
  Recipe recipe;
  for (std::string line; std::getline(manual, line);) {
    if (line.starts_with("*.lwo ")) recipe.attributes = line;
    if (line.starts_with("git config diff.varnel.textconv ")) recipe.textconv = line;
  }
  return recipe;
}

class Repository : public TypedLines {
 protected:
  void SetUp() override {
    if (type("git --version") != 0) GTEST_SKIP() << "no git here";
    // Nobody's own settings.
    setenv("GIT_CONFIG_GLOBAL", "/dev/null", 1);
    setenv("GIT_CONFIG_NOSYSTEM", "1", 1);
    for (const char* const who : {"AUTHOR", "COMMITTER"}) {
      setenv((std::string("GIT_") + who + "_NAME").c_str(), "Rigger", 1);
      setenv((std::string("GIT_") + who + "_EMAIL").c_str(), "rigger@example.com", 1);
    }
    must("git init -q .");
    must("varnel rigs .");
    exportAnotherStrength("lizard.lwo", "settings.json");
    must("mv lizard.lwo rig.lwo && rm *形.lwo");
    must("varnel import rig.lwo settings.json -o changed.lwo");
  }

  void must(const std::string& line) { ASSERT_EQ(type(line), 0) << line << "\n" << out << error; }

  void follow(const std::string& language) {
    const Recipe recipe = recipeOf(language);
    ASSERT_NE(recipe.textconv, "") << language;
    write(".gitattributes", recipe.attributes + "\n");
    must(recipe.textconv);
  }

  // A rig, then something that is none under its name, then the rig with other settings.
  void makeHistory() {
    must("git add rig.lwo && git commit -q -m 'a rig'");
    must("cp rig.lwo keep.lwo && printf 'cut off' >rig.lwo && git commit -q -m 'cut off' rig.lwo");
    must("cp changed.lwo rig.lwo && git commit -q -m 'settings' rig.lwo");
  }
};

TEST_F(Repository, AnObjectThatCannotBeReadDoesNotEndTheHistory) {
  for (const char* const language : {"en", "ja"}) {
    follow(language);
    if (language == std::string("en")) makeHistory();
    EXPECT_EQ(type("git log -p -- rig.lwo"), 0) << error;
    EXPECT_THAT(out, HasSubstr("+(not readable: "));
    EXPECT_THAT(out, HasSubstr("-(not readable: "));
    EXPECT_THAT(out, HasSubstr("\"Strength\": 12.5"));
    EXPECT_THAT(out, HasSubstr("a rig"));
    EXPECT_EQ(error, "");
  }
}

TEST_F(Repository, DifferencesShowSettings) {
  follow("en");
  makeHistory();
  EXPECT_EQ(type("git diff HEAD~2 HEAD -- rig.lwo"), 0) << error;
  EXPECT_THAT(out, testing::ContainsRegex("\n\\+ .*\"Strength\": 12.5"));
  EXPECT_THAT(out, Not(HasSubstr("Binary files")));
  EXPECT_EQ(type("git diff HEAD~1 HEAD -- rig.lwo"), 0) << error;
  EXPECT_THAT(out, HasSubstr("-(not readable: "));
}

}  // namespace
}  // namespace standin
