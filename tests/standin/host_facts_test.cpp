// Files of facts: read whole or refused, settled on a host, shown.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "objectfile/file_bytes.h"
#include "program/host_facts.h"

namespace standin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

std::string sampleBytes() { return *readFileBytes(std::string(VARNEL_REPOSITORY) + "/tests/data/host-facts.json"); }

HostFacts sample() {
  const Outcome<HostFacts> facts = parseHostFacts(sampleBytes());
  EXPECT_TRUE(facts) << facts.why();
  return facts ? *facts : HostFacts();
}

// The sample with one text in place of another.
std::string with(const std::string& before, const std::string& after) {
  std::string bytes = sampleBytes();
  const std::size_t at = bytes.find(before);
  EXPECT_NE(at, std::string::npos) << before;
  return at == std::string::npos ? bytes : bytes.replace(at, before.size(), after);
}

std::string whyRefused(const std::string& bytes) {
  const Outcome<HostFacts> facts = parseHostFacts(bytes);
  return facts ? "it was not refused" : facts.why();
}

TEST(HostFactsFile, TellsWhoMeasuredWhatAndWhen) {
  const HostFacts facts = sample();
  EXPECT_EQ(facts.program, "Layout");
  EXPECT_EQ(facts.host, "15.0.3, build 3155, year 2023, language 0x411, word 0x0f000003");
  EXPECT_EQ(facts.date, "2026-11-22");
  EXPECT_EQ(facts.probe, "1.20");
}

TEST(HostFactsFile, KeepsAnswersInTheirOrder) {
  const HostFacts facts = sample();
  ASSERT_EQ(facts.facts.size(), 7U);
  EXPECT_EQ(facts.facts[1].name, "new-null");
  EXPECT_EQ(facts.facts[1].value, "added");
  EXPECT_THAT(facts.facts[1].seen, HasSubstr("the bone before"));
}

TEST(HostFactsFile, KnowsWhatWasNotTold) {
  const HostFacts facts = sample();
  EXPECT_FALSE(facts.facts.at(5).value);
  EXPECT_EQ(facts.facts.at(5).seen, "only eyes can tell");
}

TEST(HostFactsFile, MayLackWhatTheHostDidNotTellOfItself) {
  const Outcome<HostFacts> facts = parseHostFacts(with("\"release\": \"15.0.3\", \"build\": 3155", "\"build\": null"));
  ASSERT_TRUE(facts) << facts.why();
  EXPECT_EQ(facts->host, "year 2023, language 0x411, word 0x0f000003");
}

TEST(HostFactsFile, MayHoldMoreThanThisProgramReads) {
  EXPECT_TRUE(parseHostFacts(with("\"probe\"", "\"colour\": [1], \"probe\"")));
  EXPECT_TRUE(parseHostFacts(with("\"value\": \"c\"", "\"sure\": true, \"value\": \"c\"")));
}

TEST(HostFactsFile, IsRefusedWhenItIsCut) {
  const std::string bytes = sampleBytes();
  for (std::size_t length = 0; length + 2 < bytes.size(); length += 7) {
    EXPECT_FALSE(parseHostFacts(bytes.substr(0, length))) << length;
  }
}

TEST(HostFactsFile, SaysWhatADamagedFileIsInPlainWords) {
  EXPECT_EQ(whyRefused(""), "the file is empty");
  for (const std::string& bytes : {sampleBytes().substr(0, 300), std::string("FORM"), std::string("\n")})
    EXPECT_THAT(whyRefused(bytes), HasSubstr("it is no file of host facts, or a damaged one: ")) << bytes;
}

TEST(HostFactsFile, IsReadAsEditorsLeaveIt) {
  std::string lines = "\xEF\xBB\xBF";
  for (const char c : sampleBytes()) lines += c == '\n' ? "\r\n" : std::string(1, c);
  EXPECT_TRUE(parseHostFacts(lines));
}

TEST(HostFactsFile, IsRefusedWhenItIsSomethingElse) {
  for (const char* const bytes : {"[]", "{}", "3", "{\"format\": 7}", "{\"format\": \"varnel settings\"}"}) {
    EXPECT_EQ(whyRefused(bytes), "it is no file of host facts") << bytes;
  }
}

TEST(HostFactsFile, IsRefusedWhenItsVersionIsAnother) {
  EXPECT_EQ(whyRefused(with("\"version\": 1", "\"version\": 2")), "it is of version 2, and this program reads version 1");
  EXPECT_THAT(whyRefused(with("\"version\": 1,", "")), HasSubstr("it has no \"version\""));
}

TEST(HostFactsFile, IsRefusedWhenAPartIsMissingOrOfAnotherKind) {
  EXPECT_EQ(whyRefused(with("\"date\": \"2026-11-22\",", "")), "it has no \"date\"");
  EXPECT_EQ(whyRefused(with("\"2026-11-22\"", "20261122")), "\"date\" of it is no text");
  EXPECT_EQ(whyRefused(with("{\"release\"", "[], \"host was\": {\"release\"")), "\"host\" is no object");
  EXPECT_THAT(whyRefused(with("3155", "{}")), HasSubstr("\"build\" of \"host\""));
  EXPECT_EQ(whyRefused(with("\"facts\": [", "\"facts\": 3, \"were\": [")), "\"facts\" is no list");
  EXPECT_EQ(whyRefused(with("\"facts\": [", "\"facts\": [4, ")), "\"facts\" holds something that is no object");
  EXPECT_EQ(whyRefused(with("\"name\": \"locale\", ", "")), "an entry of \"facts\" has no \"name\"");
  EXPECT_EQ(whyRefused(with("\"name\": \"locale\"", "\"name\": \"\"")), "an entry of \"facts\" has an empty name");
  EXPECT_EQ(whyRefused(with("\"value\": \"c\", ", "")), "\"locale\" has no \"value\"");
  EXPECT_EQ(whyRefused(with("\"value\": \"c\"", "\"value\": 1")), "\"value\" of \"locale\" is no text");
  EXPECT_EQ(whyRefused(with("\"seen\": \"only eyes can tell\"", "\"seen\": null")), "\"seen\" of \"erasing\" is no text");
}

TEST(HostFactsFile, IsRefusedWhenItAnswersTwice) {
  EXPECT_EQ(whyRefused(with("\"new-null\"", "\"locale\"")), "\"facts\" tells of \"locale\" twice");
}

// ---------------------------------------------------------------------------------------------------------------------

TEST(SettledFacts, AreTheHostThatIsPlayed) {
  HostChoice choice;
  static_cast<void>(settle(choice, sample()));
  EXPECT_THAT(choice.words(), ElementsAre("locale=c", "new-null=added", "new-bones=selected"));
}

TEST(SettledFacts, TakeTheLaterOfTwoAnswersAndSaySo) {
  HostChoice choice;
  ASSERT_EQ(choice.take("new-bones=none"), "");
  ASSERT_EQ(choice.take("new-null=added"), "");
  const std::vector<std::string> remarks = settle(choice, sample());
  EXPECT_STREQ(choice.settled("new-bones"), "selected");
  EXPECT_THAT(remarks, testing::Contains("\"new-bones\" is \"selected\" there, which is played, and was \"none\" before"));
  EXPECT_THAT(remarks, Not(testing::Contains(HasSubstr("new-null"))));
}

TEST(SettledFacts, NameAnswersThatCannotBePlayed) {
  HostChoice choice;
  EXPECT_THAT(settle(choice, sample()),
              ElementsAre("\"layer-base\" is \"other\" there and not played: no host of the table is so. What was seen: the "
                          "first layer of a file of two was called 7",
                          HasSubstr("\"counters\" is \"from-9\" there and not played"),
                          "\"bone-lights\" is \"bright\" there and not played: this program does not know it"));
}

TEST(SettledFacts, LeaveWhatWasNotToldAsItWas) {
  HostChoice choice;
  ASSERT_EQ(choice.take("erasing=spares"), "");
  static_cast<void>(settle(choice, sample()));
  EXPECT_STREQ(choice.settled("erasing"), "spares");
}

// ---------------------------------------------------------------------------------------------------------------------

// What stands below the heading, up to the next.
std::string sectionOf(const std::string& text, const std::string& heading) {
  const std::size_t from = text.find("\n" + heading);
  if (from == std::string::npos) return "there is no section of that heading";
  return text.substr(from, text.find("\n\n", from) - from);
}

TEST(HostFactsText, ShowsWhatDiffersAndWhatVarnelDoesAboutIt) {
  const std::string text = sectionOf(hostFactsText(sample()), "Other than assumed (2)");
  EXPECT_THAT(text, HasSubstr("  new-bones\n"
                              "      what may differ   Whether SkelegonsToBones selects the new bones\n"
                              "      assumed           left\n"
                              "      there             selected\n"
                              "      seen              after SkelegonsToBones 3 bones were selected\n"
                              "      what Varnel does  selects each bone itself and restores the selection"));
  EXPECT_THAT(text, HasSubstr("  new-null\n"));
}

TEST(HostFactsText, SetsApartAnswersThatTheTableDoesNotHave) {
  const std::string text = sectionOf(hostFactsText(sample()), "Answers that no host of the table gives");
  EXPECT_THAT(text, HasSubstr("not played (3)"));
  for (const char* name : {"  layer-base\n", "  counters\n", "  bone-lights\n", "a newer question"}) {
    EXPECT_THAT(text, HasSubstr(name));
  }
}

TEST(HostFactsText, SaysWhyAnAnswerIsMissing) {
  EXPECT_THAT(sectionOf(hostFactsText(sample()), "Not told, and why (1)"), HasSubstr("  erasing: only eyes can tell"));
}

TEST(HostFactsText, NamesWhatIsAsAssumedAndWhatWasNotAsked) {
  const std::string text = hostFactsText(sample());
  EXPECT_THAT(sectionOf(text, "As assumed (1)"), HasSubstr("  locale"));
  const std::string unasked = sectionOf(text, "Not asked there");
  EXPECT_THAT(unasked, HasSubstr("(" + std::to_string(allVariants().size() - 6) + ")"));
  EXPECT_THAT(unasked, HasSubstr("sets, open-answer"));
}

TEST(HostFactsText, ShowsFigures) {
  EXPECT_THAT(hostFactsText(sample()), HasSubstr("\nFigures (1)\n  falloff: BoneFalloffType 3 was read back as 2\n"));
}

TEST(HostFactsText, LeavesOutSectionsThatAreEmpty) {
  EXPECT_THAT(hostFactsText({}), Not(HasSubstr("Other than assumed")));
  EXPECT_THAT(hostFactsText({}), Not(HasSubstr("Figures")));
}

// A file is anybody's.
TEST(HostFactsText, ShowsControlCharactersAsNumbers) {
  HostFacts facts;
  facts.facts.push_back({"sets", "fire", "a\x1B[31m"});
  EXPECT_THAT(hostFactsText(facts), HasSubstr("a\\x1b[31m"));
}

}  // namespace
}  // namespace standin
