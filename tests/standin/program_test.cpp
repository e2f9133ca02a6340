// What all commands of the program have in common.
#include <gmock/gmock.h>

#include "tests/standin/program_fixture.h"
#include "tests/standin/rigs_fixture.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace standin {
namespace {

using rigs::SoundRig;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class TheProgram : public TypedLines {
 protected:
  void SetUp() override {
    SoundRig rig;
    rig.set(rig.hand, 52, "Reach");  // a null that the conversion makes
    EXPECT_FALSE(writeObject(rig.object(), "rig.lwo"));
  }
};

TEST_F(TheProgram, NamesAnUnknownCommandAndTheNearest) {
  EXPECT_EQ(type("varnel convrt rig.lwo"), 2);
  EXPECT_THAT(error, StartsWith("varnel: there is no command \"convrt\"; did you mean \"convert\"?\n"));
  EXPECT_THAT(out, IsEmpty());
}

TEST_F(TheProgram, NamesAnUnknownCommandThatNoneIsNear) {
  EXPECT_EQ(type("varnel xyzzy"), 2);
  EXPECT_THAT(error, AllOf(StartsWith("varnel: there is no command \"xyzzy\"\n"), HasSubstr("varnel --help")));
}

TEST_F(TheProgram, DoesNotOfferWhatTheHelpHides) {
  EXPECT_EQ(type("varnel validate-chck"), 2);
  EXPECT_THAT(error, Not(HasSubstr("validate-check")));
}

TEST_F(TheProgram, NamesAnOptionBeforeTheCommand) {
  EXPECT_EQ(type("varnel --lang ja inspect rig.lwo"), 2);
  EXPECT_THAT(error, StartsWith("varnel: the option --lang cannot stand before the command; options stand behind it\n"));
  EXPECT_EQ(type("varnel --help inspect"), 0) << error;
}

// Each with words that it cannot do.
class AnyCommand : public TypedLines, public testing::WithParamInterface<std::string> {};

TEST_P(AnyCommand, TellsItsTroubleOnTheErrorStreamAndEndsWithTwo) {
  EXPECT_EQ(type("varnel " + GetParam()), 2);
  EXPECT_THAT(error, AllOf(StartsWith("varnel: "), HasSubstr("missing")));
  EXPECT_THAT(out, Not(HasSubstr("missing.p")));
}

INSTANTIATE_TEST_SUITE_P(WithoutItsFile, AnyCommand,
                         testing::Values("convert missing.lwo", "convert --shipped --module missing.p",
                                         "commands missing.lwo", "inspect missing.lwo", "diff missing.lwo missing.lwo",
                                         "export missing.lwo", "import missing.lwo missing.json --in-place",
                                         "trip --module missing.p", "rename --module missing.p", "panels --module missing.p",
                                         "validate missing.p", "inspect rig.lwo --missing", "hosts missing"),
                         [](const auto& info) {
                           return info.param.substr(0, info.param.find(' ')) + std::to_string(info.index);
                         });

#if defined(_WIN32)

TEST_F(TheProgram, SpeaksTheLanguageOfTheSystem) {
  const bool isJapanese = PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_JAPANESE;
  EXPECT_EQ(type("varnel inspect rig.lwo"), 0);
  EXPECT_THAT(out, HasSubstr(isJapanese ? "フォールオフ種" : "Falloff Type"));
}

#else

TEST_F(TheProgram, SpeaksTheLanguageOfTheSystem) {
  const Environment all("LC_ALL", "");
  const Environment messages("LC_MESSAGES", "");
  for (const auto& [language, text] :
       {std::pair("ja_JP.UTF-8", "フォールオフ種"), std::pair("fr_FR.UTF-8", "Falloff Type")}) {
    const Environment lang("LANG", language);
    EXPECT_EQ(type("varnel inspect rig.lwo"), 0);
    EXPECT_THAT(out, HasSubstr(text));
  }
}

TEST_F(TheProgram, TakesLcAllBeforeLang) {
  const Environment lang("LANG", "ja_JP.UTF-8");
  const Environment all("LC_ALL", "C");
  EXPECT_EQ(type("varnel inspect rig.lwo"), 0);
  EXPECT_THAT(out, HasSubstr("Falloff Type"));
}

// What the program writes to a terminal that is its error stream.
TEST_F(TheProgram, TellsOnATerminalHowFarItIs) {
  const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
  ASSERT_TRUE(terminal >= 0 && grantpt(terminal) == 0 && unlockpt(terminal) == 0);
  const std::string name = ptsname(terminal);
  // Held open, so that what was written is still there when the program has gone.
  const int other = open(name.c_str(), O_RDWR | O_NOCTTY);
  EXPECT_EQ(type("varnel convert rig.lwo 2>" + name), 0);
  std::string shown(65536, '\0');
  const ssize_t size = read(terminal, shown.data(), shown.size());
  shown.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
  close(other);
  close(terminal);
  EXPECT_THAT(shown, AllOf(HasSubstr("rig.lwo: converting, 50 %"), testing::EndsWith(" \r")));
}

#endif

TEST_F(TheProgram, LetsALanguageBeNamed) {
#if !defined(_WIN32)
  const Environment all("LC_ALL", "ja_JP.UTF-8");
#endif
  EXPECT_EQ(type("varnel inspect --lang en rig.lwo"), 0);
  EXPECT_THAT(out, HasSubstr("Falloff Type"));
}

}  // namespace
}  // namespace standin
