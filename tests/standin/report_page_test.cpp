// The pages of a report: each part is there, escaped and linked, however odd the rig is.
#include <gmock/gmock.h>

#include <set>

#include "program/sent_commands.h"
#include "rigs/findings.h"
#include "rigs/text.h"
#include "tests/standin/rigs_fixture.h"
#include "views/html.h"
#include "views/report_page.h"

namespace standin::views {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

std::size_t timesIn(const std::string& text, const std::string& part) {
  std::size_t times = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++times;
  return times;
}

// The tags of a page: each element that begins ends, within the one that it began in.
std::string firstFaultIn(const std::string& page) {
  const std::set<std::string> lone = {"meta", "!DOCTYPE", "path", "line", "circle"};
  std::vector<std::string> open;
  for (std::size_t at = page.find('<'); at != std::string::npos; at = page.find('<', at + 1)) {
    const std::size_t end = page.find('>', at);
    if (end == std::string::npos) return "a tag without an end";
    const std::string tag = page.substr(at + 1, end - at - 1);
    const std::string name = tag.substr(0, tag.find_first_of(" \n/", 1));
    if (tag.ends_with('/') || lone.count(name) != 0) continue;
    if (!tag.starts_with('/')) {
      open.push_back(name);
    } else if (open.empty() || '/' + open.back() != name) {
      return name + " where " + (open.empty() ? "nothing" : open.back()) + " is open";
    } else {
      open.pop_back();
    }
  }
  return open.empty() ? "" : open.back() + " stays open";
}

// Of a rig that is there without its file.
RigReport reportOn(rigs::Rig rig) {
  RigReport report;
  report.file.path = rig.fileName;
  report.file.rig = std::move(rig);
  report.file.findings = rigs::findingsOf(report.file.rig, rigs::CodePage(rigs::kUtf8CodePage));
  report.before.pictures = {{View::Front, "<svg id=\"before\"></svg>"}};
  report.conversion.wasMade = true;
  report.conversion.isSound = true;
  report.conversion.sceneBefore = "Objects\n";
  report.conversion.sceneAfter = "Objects\n  Root\n";
  report.conversion.after.pictures = {{View::Front, "<svg id=\"after\"></svg>"}};
  return report;
}

std::string pageOf(const RigReport& report, Language language = Language::English) {
  return reportPage(report, {language, {"../manual/"}, false});
}

// A chain of that many skelegons.
rigs::Rig chainOf(std::size_t count) {
  RigBuilder builder;
  builder.layer(0, "Rig");
  std::vector<std::string> names;
  std::vector<FilePoint> positions = {{0, 0, 0}};
  for (std::size_t i = 0; i < count; ++i) {
    names.push_back("Bone_" + std::to_string(i + 1));
    positions.push_back({0, 0, static_cast<float>(i + 1)});
  }
  builder.chain(names, positions);
  return rigs::colouredRigOf(builder.take());
}

// ---------------------------------------------------------------------------------------------------------------------

TEST(HtmlTexts, AreEscaped) { EXPECT_EQ(escaped("<b a=\"1\">R&D</b>"), "&lt;b a=&quot;1&quot;&gt;R&amp;D&lt;/b&gt;"); }

TEST(HtmlTexts, ShowWhatNoPageMayHold) {
  EXPECT_EQ(escaped(std::string("a\x01z\0", 4)), "a\\x01z\\x00");
  EXPECT_EQ(escaped("\xFF腰\x7F"), "\\xff腰\\x7f");
  EXPECT_EQ(escaped("\xC2\x85"), "\\xc2\\x85");
  EXPECT_THAT(escaped("a\xEF\xBF\xBE"), Not(HasSubstr("\xEF\xBF\xBE")));
}

TEST(HtmlTexts, KeepLineEndsAndTabs) { EXPECT_EQ(escaped("a\n\tb"), "a\n\tb"); }

TEST(HtmlLinks, HavePercentSignsForWhatCannotStandInThem) {
  EXPECT_EQ(linkTo("a b#1?50%&\".html"), "a%20b%231%3f50%25%26%22.html");
  EXPECT_EQ(linkTo("../manual/en"), "../manual/en");
  EXPECT_EQ(linkTo("人.html"), "%e4%ba%ba.html");
  EXPECT_EQ(linkTo("c:d\\e"), "c%3ad%5ce");
}

TEST(HtmlWriter, ClosesWhatItOpens) {
  Html html;
  {
    const auto outer = html.in("div", {{"class", "\"<"}});
    const auto inner = html.in("p");
    html.text("x");
  }
  EXPECT_EQ(html.take(), "<div class=\"&quot;&lt;\"><p>x</p>\n</div>\n");
}

// ---------------------------------------------------------------------------------------------------------------------

TEST(PageNames, AreThoseOfTheFiles) {
  EXPECT_THAT(pageNames({"rigs/lizard.lwo", "人形.lwo", "a.b.lwo"}), ElementsAre("lizard.html", "人形.html", "a.b.html"));
}

TEST(PageNames, OfEqualFilesAreCounted) {
  EXPECT_THAT(pageNames({"a/rig.lwo", "b/rig.lwo", "c/RIG.LWO"}), ElementsAre("rig.html", "rig-2.html", "RIG-3.html"));
}

TEST(PageNames, ThatAreCountedDoNotMeetOthers) {
  EXPECT_THAT(pageNames({"rig-2.lwo", "a/rig.lwo", "b/rig.lwo"}), ElementsAre("rig-2.html", "rig.html", "rig-3.html"));
}

TEST(PageNames, LeaveTheIndexFree) { EXPECT_THAT(pageNames({"Index.lwo"}), ElementsAre("Index-2.html")); }

TEST(PageNames, AreNoLongerThanSystemsAllow) {
  const std::string name = pageNames({std::string(250, 'x') + ".lwo"}).front();
  EXPECT_LT(name.size(), 230U);
  const std::string wide =
      pageNames({std::string(66, 'x') + "人人人人人人人人人人人人人人人人人人人人人人人人人人人人人人人人人人人人人人"
                                        "人人人人人人人人人人人人人人人人人人人人.lwo"})
          .front();
  EXPECT_TRUE(rigs::isUtf8(wide)) << wide;
}

// ---------------------------------------------------------------------------------------------------------------------

TEST(ReportPage, HasEveryPartUnderItsHeading) {
  const std::string page = pageOf(reportOn(rigs::SoundRig().rig()));
  for (const char* const part : {"pictures", "findings", "verdict", "skelegons", "scene", "sent"}) {
    EXPECT_THAT(page, HasSubstr(std::string("<section id=\"") + part + "\">"));
    EXPECT_THAT(page, HasSubstr(std::string("<a href=\"#") + part + "\">"));
  }
  EXPECT_THAT(page, Not(HasSubstr("id=\"changes\"")));
  EXPECT_EQ(firstFaultIn(page), "");
}

TEST(ReportPage, FetchesNothingAndRunsNoScript) {
  const std::string page = pageOf(reportOn(rigs::SoundRig().rig()));
  for (const char* const part : {"<script", "<link", "<img", "src=", "@import", "url(", "onclick"}) {
    EXPECT_THAT(page, Not(HasSubstr(part)));
  }
}

TEST(ReportPage, IsMadeForPhonesPaperAndTheDark) {
  const std::string page = pageOf(reportOn(rigs::SoundRig().rig()));
  EXPECT_THAT(page, HasSubstr("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">"));
  EXPECT_THAT(page, HasSubstr("@media (max-width: 700px)"));
  EXPECT_THAT(page, HasSubstr("@media print"));
  EXPECT_THAT(page, HasSubstr("@media (prefers-color-scheme: dark)"));
}

// By day, in the dark, and on paper even where the reader's system is dark.
TEST(ReportPage, GivesPicturesARedForEachGround) {
  const std::string page = pageOf(reportOn(rigs::SoundRig().rig()));
  EXPECT_EQ(timesIn(page, "--problem: #d1242f;"), 2U);
  EXPECT_EQ(timesIn(page, "--problem: "), 3U);
  EXPECT_GT(page.rfind("--problem: "), page.find("@media print"));
}

TEST(ReportPage, HasBothPicturesOfAViewBesideEachOther) {
  const std::string page = pageOf(reportOn(rigs::SoundRig().rig()));
  const std::size_t before = page.find("<figcaption>Front: before</figcaption><svg id=\"before\">");
  const std::size_t after = page.find("<figcaption>Front: after</figcaption><svg id=\"after\">");
  ASSERT_NE(before, std::string::npos) << page;
  ASSERT_NE(after, std::string::npos) << page;
  EXPECT_LT(before, after);
}

TEST(ReportPage, ShowsWhatEachSkelegonStoresThatIsNoDefault) {
  rigs::SoundRig rig;
  rig.set(rig.hand, 31, "100.000000");
  const std::string page = pageOf(reportOn(rig.rig()));
  const std::string root =
      page.substr(page.find("<tr id=\"s1\">"), page.find("<tr id=\"s2\">") - page.find("<tr id=\"s1\">"));
  EXPECT_THAT(root, HasSubstr(">Root</th>"));
  EXPECT_THAT(root, HasSubstr("<dt>Strength</dt><dd>80 %</dd>"));
  EXPECT_THAT(root, HasSubstr("<dd>Inverse Distance^4</dd>"));
  EXPECT_EQ(timesIn(page, "<dt>Strength</dt>"), 1U);
}

TEST(ReportPage, ShowsTheTreeByHowFarNamesStandIn) {
  const std::string page = pageOf(reportOn(chainOf(30)));
  EXPECT_THAT(page, HasSubstr("<tr id=\"s1\"><th scope=\"row\" class=\"d0\">Bone_1</th>"));
  EXPECT_THAT(page, HasSubstr("<tr id=\"s3\"><th scope=\"row\" class=\"d2\">Bone_3"));
  EXPECT_THAT(page, HasSubstr("<tr id=\"s30\"><th scope=\"row\" class=\"d9\">Bone_30"));
}

TEST(ReportPage, EscapesNamesWhereverTheyStand) {
  const std::string odd = "<i a=\"&\x01\">";
  RigBuilder builder;
  builder.layer(0, odd);
  builder.settings(builder.root(odd, {0, 0, 0}, {0, 1, 0}), {{52, "<i>"}, {13, "<i>"}, {129, "<i>"}});
  RigReport report = reportOn(rigs::rigOf(builder.object(), odd + ".lwo"));
  report.conversion.trouble = odd;
  report.conversion.sceneAfter = odd + "\n";
  report.conversion.sent = {{odd, {{odd, "rejected", odd, odd}}}};
  report.conversion.verdict = {{ReportText::PassedOver, odd}};
  report.changes = ReportedChanges{odd, rigs::differencesOf({}, report.file.rig, Language::English), {}, {}};
  const std::string page = pageOf(report);
  EXPECT_THAT(page, Not(HasSubstr("<i")));
  EXPECT_THAT(page, Not(HasSubstr("\x01")));
  EXPECT_GT(timesIn(page, "&lt;i a=&quot;&amp;\\x01&quot;&gt;"), 10U);
  EXPECT_EQ(firstFaultIn(page), "");
  EXPECT_EQ(firstFaultIn(indexPage({indexRowOf(report, odd, odd), {odd, {}, odd}}, Language::English)), "");
}

TEST(ReportPage, LeadsFromEachFindingToItsEntryInTheManual) {
  RigReport report = reportOn(rigs::SoundRig().rig());
  for (const Language language : {Language::English, Language::Japanese}) {
    for (const rigs::FindingRow& row : rigs::findingTable()) {
      report.file.findings = {{row.kind, 0, 0, nullptr, "text", "other", "7"}};
      const std::string link = "<a href=\"../" + rigs::manualEntryOf(row.kind, language) + "\">";
      const std::string page = pageOf(report, language);
      EXPECT_THAT(page, HasSubstr(link));
      EXPECT_THAT(page, HasSubstr(escaped(sentenceOf(report.file.findings.front(), language))));
    }
  }
}

TEST(ReportPage, NamesTheEntryWhereThereIsNoManual) {
  RigReport report = reportOn(rigs::SoundRig().rig());
  report.file.findings = {{rigs::FindingKind::NoName, 0, 0, nullptr, {}, {}, {}}};
  const std::string page = reportPage(report, {});
  EXPECT_THAT(page, HasSubstr("<cite>manual: messages, no-name</cite>"));
  EXPECT_THAT(page, Not(HasSubstr("href=\"en/")));
}

TEST(ReportPage, MarksSkelegonsWithAProblemAndLeadsToThem) {
  rigs::SoundRig rig;
  rig.set(rig.hand, 13, "77");
  const std::string page = pageOf(reportOn(rig.rig()));
  EXPECT_THAT(page, HasSubstr("Hand <span class=\"bad\">problem</span>"));
  EXPECT_THAT(page, HasSubstr("<a href=\"#s2\">Rig / Hand / Falloff Type</a>"));
  EXPECT_THAT(page, Not(HasSubstr("Root <span class=\"bad\">")));
}

TEST(ReportPage, FoldsWhatWasSentByItemButForWhatWasRefused) {
  RigReport report = reportOn(rigs::SoundRig().rig());
  report.conversion.sent = {{"Root", {{"BoneType 1", "accepted", {}}, {"ItemColor 2", "accepted", {}}}},
                            {"Hand", {{"BoneType 9", "rejected", "no such type"}}}};
  const std::string page = pageOf(report);
  EXPECT_THAT(page, HasSubstr("<details><summary><b>Root</b> <span class=\"faint\">2 commands</span></summary>"));
  EXPECT_THAT(page, HasSubstr("BoneType 1\nItemColor 2\n</pre>"));
  EXPECT_THAT(page, HasSubstr("<details open><summary><b>Hand</b>"));
  EXPECT_THAT(page, HasSubstr("BoneType 9<span class=\"bad\">  -- refused: no such type</span>"));
  EXPECT_THAT(page, HasSubstr("3, of which 1 refused"));
}

TEST(ReportPage, TellsTheVerdict) {
  RigReport report = reportOn(rigs::SoundRig().rig());
  report.conversion.verdict = {{ReportText::BonesSet, "1 / 2"}, {ReportText::BonesPartlySet, "Hand"}};
  EXPECT_THAT(pageOf(report), HasSubstr("<span class=\"good\">all went well</span>"));
  report.conversion.isSound = false;
  const std::string page = pageOf(report);
  EXPECT_THAT(page, HasSubstr("<span class=\"bad\">not all went well</span>"));
  EXPECT_THAT(page, HasSubstr("<dt>Bones set only in part</dt><dd>Hand</dd>"));
}

TEST(ReportPage, SaysWhyThereWasNoConversion) {
  RigReport report = reportOn(rigs::SoundRig().rig());
  report.conversion = {};
  report.conversion.trouble = "there is no module";
  const std::string page = pageOf(report);
  EXPECT_THAT(page, HasSubstr("<span class=\"bad\">not converted</span>: there is no module"));
  EXPECT_THAT(page, Not(HasSubstr("<section id=\"sent\">")));
  EXPECT_EQ(firstFaultIn(page), "");
}

TEST(ReportPage, IsThereForARigWithoutSkelegons) {
  RigBuilder builder;
  builder.layer(0, "Mesh");
  const std::string page = pageOf(reportOn(rigs::rigOf(builder.object(), "mesh.lwo")));
  EXPECT_THAT(page, HasSubstr("There are none in this object."));
  EXPECT_EQ(firstFaultIn(page), "");
  EXPECT_EQ(firstFaultIn(pageOf(reportOn({}))), "");
}

TEST(ReportPage, SpeaksJapanese) {
  const std::string page = pageOf(reportOn(rigs::SoundRig().rig()), Language::Japanese);
  EXPECT_THAT(page, HasSubstr("<html lang=\"ja\">"));
  EXPECT_THAT(page, HasSubstr("<h2>スケルゴン</h2>"));
  EXPECT_THAT(page, HasSubstr("すべてうまくいきました"));
  EXPECT_THAT(page, Not(HasSubstr(">Skelegons<")));
}

TEST(ReportPage, ShowsAsManySkelegonsAsOpenAtOnceAndSaysSo) {
  const std::string page = pageOf(reportOn(chainOf(kMostSkelegons + 7)));
  EXPECT_EQ(timesIn(page, "<tr id=\"s"), kMostSkelegons);
  EXPECT_THAT(page, HasSubstr("And 7 more: varnel inspect shows all."));
}

TEST(ReportPage, LeadsToNoSkelegonThatItDoesNotShow) {
  RigReport report = reportOn(chainOf(kMostSkelegons + 7));
  report.file.findings = {{rigs::FindingKind::NoName, 0, kMostSkelegons + 3, nullptr, {}, {}, {}}};
  EXPECT_THAT(pageOf(report), Not(HasSubstr("href=\"#s2004\"")));
  report.file.findings.front().skelegon = kMostSkelegons - 1;
  EXPECT_THAT(pageOf(report), HasSubstr("href=\"#s2000\""));
}

TEST(ReportPage, LimitsWhatWasSentTheSceneAndTheFindings) {
  RigReport report = reportOn(rigs::SoundRig().rig());
  report.conversion.sent.assign(3, {"Root", std::vector<rigs::SentCommand>(kMostCommands / 2, {"Sent", "accepted", {}})});
  for (std::size_t i = 0; i < kMostSceneLines + 5; ++i) report.conversion.sceneAfter += "line\n";
  for (std::size_t i = 0; i < kMostFindings + 2; ++i) {
    report.file.findings.push_back({rigs::FindingKind::NoName, 0, 0, nullptr, {}, {}, {}});
  }
  const std::string page = pageOf(report);
  EXPECT_EQ(timesIn(page, "Sent\n"), kMostCommands);
  EXPECT_THAT(page, HasSubstr("And 10000 more: varnel commands shows all."));
  EXPECT_THAT(page, HasSubstr("more lines: varnel convert shows all."));
}

// ---------------------------------------------------------------------------------------------------------------------

TEST(ComparedRigs, ListWhatChangedWithBothValues) {
  rigs::SoundRig was;
  rigs::SoundRig now;
  now.set(now.root, 31, "12.500000");
  RigReport report = reportOn(now.rig("new.lwo"));
  report.changes = ReportedChanges{"old.lwo",
                                   rigs::differencesOf(was.rig("old.lwo"), report.file.rig, Language::English),
                                   {{{View::Side, "<svg id=\"old\"></svg>"}}},
                                   {{{View::Side, "<svg id=\"new\"></svg>"}}}};
  const std::string page = pageOf(report);
  EXPECT_THAT(page, HasSubstr("<h2>Changes since old.lwo</h2>"));
  EXPECT_THAT(page, HasSubstr("<a href=\"#s1\">Rig / Root</a></th>\n<td>Strength</td><td>80 %</td><td>12.5 %</td>"));
  EXPECT_THAT(page, HasSubstr("<figcaption>Side: old.lwo</figcaption><svg id=\"old\">"));
  EXPECT_THAT(page, HasSubstr("<figcaption>Side: new.lwo</figcaption><svg id=\"new\">"));
  EXPECT_EQ(firstFaultIn(page), "");
}

TEST(ComparedRigs, AreSaidToBeEqual) {
  RigReport report = reportOn(rigs::SoundRig().rig());
  report.changes = ReportedChanges{"old.lwo", {}, {}, {}};
  EXPECT_THAT(pageOf(report), HasSubstr("Nothing differs."));
}

TEST(ComparedRigs, KnowThePlacesOfWhatChanged) {
  rigs::SoundRig was;
  const RigBuilder::Skelegon gone = was.builder.root("Gone", {5, 0, 0}, {5, 1, 0});
  (void)gone;
  rigs::SoundRig now;
  now.set(now.hand, 31, "12.500000");
  now.builder.root("New", {9, 0, 0}, {9, 1, 0});
  std::vector<std::string> told;
  for (const rigs::Difference& d : rigs::differencesOf(was.rig(), now.rig(), Language::English)) {
    const auto text = [](const std::optional<std::size_t>& place) { return place ? std::to_string(*place) : "-"; };
    told.push_back(d.skelegon + " " + text(d.placeBefore) + " " + text(d.placeAfter));
  }
  EXPECT_THAT(told, ElementsAre("Hand 1 1", "New - 2", "Gone 2 -"));
}

// ---------------------------------------------------------------------------------------------------------------------

Event selected(const char* item) { return {EventKind::Command, "SelectItem 0x1", {}, {}, item}; }
Event progressed(double fraction) { return {EventKind::Status, "Now setting", {}, fraction}; }

TEST(SentCommands, BelongToTheItemThatIsSelectedFirstInATurn) {
  Transcript transcript;
  transcript.add({EventKind::Command, "EnableIK 0", {}, {}});
  transcript.add(selected("Object"));
  transcript.add(progressed(0));
  transcript.add(selected("Root"));
  transcript.add({EventKind::Rejected, "AddNull x", "why", {}});
  transcript.add(selected("x"));
  transcript.add(progressed(1));
  std::vector<std::string> turns;
  for (const SentToItem& turn : sentByItem(transcript)) {
    turns.push_back(turn.item + " " + std::to_string(turn.commands.size()) + " " + turn.commands.back().result);
  }
  EXPECT_THAT(turns, ElementsAre("Object 2 accepted", "Root 3 accepted"));
}

}  // namespace
}  // namespace standin::views
