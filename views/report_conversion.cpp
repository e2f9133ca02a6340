// The parts of a rig's page that tell of its conversion.
#include <algorithm>
#include <string_view>

#include "rigs/text.h"
#include "standin/layout/transcript.h"
#include "views/report_parts.h"

namespace standin::views {
namespace {

bool isRefused(const rigs::SentCommand& command) { return command.result != "accepted"; }

std::size_t refusedIn(const SentToItem& turn) {
  return static_cast<std::size_t>(std::count_if(turn.commands.begin(), turn.commands.end(), isRefused));
}

// The first lines of a text.
std::string_view firstLines(std::string_view text, std::size_t most) {
  std::size_t end = 0;
  for (std::size_t line = 0; line < most && end < text.size(); ++line)
    end = std::min(text.find('\n', end), text.size() - 1) + 1;
  return text.substr(0, end);
}

std::size_t lineCount(std::string_view text) { return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')); }

}  // namespace

void writeOutcome(Html& html, bool wasMade, bool isSound, Language language) {
  if (!wasMade) {
    html.element("span", textOf(ReportText::NotConverted, language), {{"class", "bad"}});
  } else if (isSound) {
    html.element("span", textOf(ReportText::AllWell, language), {{"class", "good"}});
  } else {
    html.element("span", textOf(ReportText::NotAllWell, language), {{"class", "bad"}});
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// The verdict

void ReportParts::writeVerdict() {
  const ReportedConversion& conversion = report_.conversion;
  const auto part = section("verdict");
  paragraph(ReportText::VerdictText);
  {
    const auto outcome = html_.in("p");
    writeOutcome(html_, conversion.wasMade, conversion.isSound, language_);
    if (!conversion.trouble.empty()) html_.text(": " + conversion.trouble);
  }
  if (conversion.verdict.empty()) return;
  const auto list = html_.in("dl", {{"class", "told"}});
  for (const ReportedConversion::Line& line : conversion.verdict) {
    const auto pair = html_.in("div");
    html_.element("dt", say(line.what));
    html_.element("dd", line.words);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// The scene

void ReportParts::writeSceneText(ReportText when, const std::string& text) {
  const auto column = html_.in("div");
  html_.element("h3", say(when));
  html_.element("pre", firstLines(text, kMostSceneLines), {{"lang", "en"}, {"tabindex", "0"}});
  rest(ReportText::SceneRest, lineCount(text), kMostSceneLines);
}

void ReportParts::writeScene() {
  const auto part = section("scene");
  paragraph(ReportText::SceneText);
  const auto columns = html_.in("div", {{"class", "two"}});
  writeSceneText(ReportText::Before, report_.conversion.sceneBefore);
  writeSceneText(ReportText::After, report_.conversion.sceneAfter);
}

// ---------------------------------------------------------------------------------------------------------------------
// What was sent

// Those with a refused command are open. How many it wrote.
std::size_t ReportParts::writeSentTo(const SentToItem& turn, std::size_t most) {
  const std::size_t shown = std::min(turn.commands.size(), most);
  html_.whole(refusedIn(turn) > 0 ? "<details open>" : "<details>");
  const Html::Open details(html_, "details");
  {
    const auto summary = html_.in("summary");
    html_.element("b", turn.item.empty() ? say(ReportText::SentFirst) : turn.item);
    html_.text(" ");
    html_.element("span", countedText(turn.commands.size(), "command", "コマンド", language_), {{"class", "faint"}});
  }
  const auto lines = html_.in("pre", {{"tabindex", "0"}});
  for (std::size_t i = 0; i < shown; ++i) {
    const rigs::SentCommand& command = turn.commands[i];
    html_.text(withItemName(rigs::printable(command.text), rigs::printable(command.item)));
    if (isRefused(command)) {
      const ReportText why = command.result == "asked" ? ReportText::Asked : ReportText::Rejected;
      html_.element("span", "  -- " + filledText(why, language_, command.why), {{"class", "bad"}});
    }
    html_.text("\n");
  }
  return shown;
}

void ReportParts::writeSent() {
  const auto part = section("sent");
  std::size_t all = 0;
  std::size_t refused = 0;
  for (const SentToItem& turn : report_.conversion.sent) {
    all += turn.commands.size();
    refused += refusedIn(turn);
  }
  html_.element("p", filledText(ReportText::SentText, language_, std::to_string(all), std::to_string(refused)),
                {{"class", "faint"}});
  std::size_t shown = 0;
  for (const SentToItem& turn : report_.conversion.sent) {
    if (shown == kMostCommands) break;
    shown += writeSentTo(turn, kMostCommands - shown);
  }
  rest(ReportText::SentRest, all, shown);
}

}  // namespace standin::views
