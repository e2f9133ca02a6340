#include "views/report_page.h"

#include "rigs/japanese_texts.h"
#include "rigs/text.h"
#include "views/html.h"
#include "views/report_parts.h"
#include "views/report_style.h"

namespace standin::views {
namespace {

const char* codeOf(Language language) { return language == Language::Japanese ? "ja" : "en"; }

const std::string& versionText() {
  static const std::string text = std::to_string(VARNEL_VERSION_MAJOR) + "." + std::to_string(VARNEL_VERSION_MINOR);
  return text;
}

// A page with its head; what `write` writes is its body.
template <class Write>
std::string wholePage(const std::string& title, Language language, Write&& write) {
  Html html;
  html.whole("<!DOCTYPE html>\n");
  {
    const auto page = html.in("html", {{"lang", codeOf(language)}});
    {
      const auto head = html.in("head");
      html.lone("meta", {{"charset", "utf-8"}});
      html.lone("meta", {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
      html.element("title", title);
      html.whole("<style>");
      html.whole(kReportStyle);
      html.whole("</style>\n");
    }
    const auto body = html.in("body");
    write(html);
    const auto foot = html.in("footer");
    html.element("p", filledText(ReportText::MadeBy, language, versionText()), {{"class", "faint"}});
  }
  return html.take();
}

void writeFacts(Html& html, const RigReport& report, Language language) {
  const rigs::Inspected& file = report.file;
  const auto facts = html.in("ul", {{"class", "facts"}});
  html.element("li", countedText(file.rig.layers.size(), "layer", "レイヤー", language));
  html.element("li", countedSkelegons(file.rig.skelegons.size(), language));
  const std::size_t problems = countOf(file.findings, rigs::FindingWeight::Problem);
  html.element("li", counted(problems, rigs::FindingWeight::Problem, language), {{"class", problems > 0 ? "bad" : "good"}});
  html.element("li", counted(countOf(file.findings, rigs::FindingWeight::Note), rigs::FindingWeight::Note, language));
  {
    const auto outcome = html.in("li");
    html.text(textOf(ReportText::Conversion, language) + std::string(": "));
    writeOutcome(html, report.conversion.wasMade, report.conversion.isSound, language);
  }
  if (!file.rig.isInJapanese) return;
  html.element("li", filledText(ReportText::ReadInCodePage, language, std::to_string(rigs::kJapaneseCodePage)));
}

void writeContents(Html& html, const ReportParts& parts, const PageSurroundings& surroundings) {
  const auto contents = html.in("nav");
  const auto list = html.in("ul");
  const auto entry = [&](const std::string& link, std::string_view name) {
    const auto item = html.in("li");
    html.element("a", name, {{"href", link}});
  };
  if (surroundings.hasIndex) entry(kIndexPage, textOf(ReportText::ToIndex, surroundings.language));
  for (const PagePart& part : parts.list()) entry(std::string("#") + part.id, part.heading);
}

void writeIndexRow(Html& html, const IndexRow& row, Language language) {
  const auto line = html.in("tr");
  {
    const auto name = html.in("th", {{"scope", "row"}});
    if (row.page.empty()) {
      html.text(row.path);
    } else {
      html.element("a", row.path, {{"href", linkTo(row.page)}});
    }
  }
  if (row.page.empty()) {
    const auto cell = html.in("td", {{"colspan", "4"}});
    html.element("span", filledText(ReportText::NotRead, language, row.trouble), {{"class", "bad"}});
    return;
  }
  html.element("td", std::to_string(row.skelegons), {{"class", "number"}});
  html.element("td", std::to_string(row.problems), {{"class", row.problems > 0 ? "number bad" : "number"}});
  html.element("td", std::to_string(row.notes), {{"class", "number"}});
  const auto cell = html.in("td");
  writeOutcome(html, row.isConverted, row.isSound, language);
}

}  // namespace

std::string reportPage(const RigReport& report, const PageSurroundings& surroundings) {
  const Language language = surroundings.language;
  const std::string name = rigs::printable(report.file.rig.fileName);
  return wholePage(filledText(ReportText::Title, language, name), language, [&](Html& html) {
    ReportParts parts(html, report, surroundings);
    {
      const auto head = html.in("header");
      html.element("h1", name);
      writeFacts(html, report, language);
      writeContents(html, parts, surroundings);
    }
    const auto main = html.in("main");
    parts.write();
  });
}

IndexRow indexRowOf(const RigReport& report, const std::string& path, const std::string& page) {
  return {path,
          page,
          {},
          report.file.rig.skelegons.size(),
          countOf(report.file.findings, rigs::FindingWeight::Problem),
          countOf(report.file.findings, rigs::FindingWeight::Note),
          report.conversion.wasMade,
          report.conversion.isSound};
}

std::string indexPage(const std::vector<IndexRow>& rows, Language language) {
  const auto say = [&](ReportText text) { return textOf(text, language); };
  return wholePage(say(ReportText::AllReports), language, [&](Html& html) {
    const auto main = html.in("main");
    html.element("h1", say(ReportText::AllReports));
    const auto box = html.in("div", {{"class", "box"}});
    const auto table = html.in("table", {{"class", "index"}});
    {
      const auto head = html.in("thead");
      const auto row = html.in("tr");
      html.element("th", say(ReportText::Rig), {{"scope", "col"}});
      for (const ReportText name : {ReportText::Skelegons, ReportText::Problems, ReportText::Notes}) {
        html.element("th", say(name), {{"scope", "col"}, {"class", "number"}});
      }
      html.element("th", say(ReportText::Conversion), {{"scope", "col"}});
    }
    const auto body = html.in("tbody");
    for (const IndexRow& row : rows) writeIndexRow(html, row, language);
  });
}

}  // namespace standin::views
