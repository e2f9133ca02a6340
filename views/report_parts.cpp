#include "views/report_parts.h"

#include <algorithm>

#include "views/picture_texts.h"
#include "views/report_style.h"

namespace standin::views {
namespace {

std::string anchorOf(std::size_t skelegon) { return "s" + std::to_string(skelegon + 1); }

}  // namespace

std::string countedSkelegons(std::size_t count, Language language) {
  return countedText(count, "skelegon", "スケルゴン", language);
}

std::string counted(std::size_t count, rigs::FindingWeight weight, Language language) {
  const char* const word = rigs::wordOf(weight, language);
  return countedText(count, word, word, language);
}

std::vector<bool> skelegonsInTrouble(const rigs::Inspected& file) {
  std::vector<bool> inTrouble(file.rig.skelegons.size());
  for (const rigs::Finding& finding : file.findings) {
    if (isProblem(finding) && finding.skelegon) inTrouble[*finding.skelegon] = true;
  }
  return inTrouble;
}

ReportParts::ReportParts(Html& html, const RigReport& report, const PageSurroundings& surroundings)
    : html_(html),
      report_(report),
      surroundings_(surroundings),
      language_(surroundings.language),
      isShown_(report.file.rig.skelegons.size()),
      inTrouble_(skelegonsInTrouble(report.file)) {
  std::size_t left = kMostSkelegons;
  for (const rigs::Layer& layer : report.file.rig.layers) {
    std::vector<rigs::TreePlace>& tree = trees_.emplace_back();
    if (left == 0) continue;
    tree = treePlaces(report.file.rig, layer);
    tree.resize(std::min(tree.size(), left));
    left -= tree.size();
    for (const rigs::TreePlace& place : tree) isShown_[place.skelegon] = true;
  }
}

std::vector<PagePart> ReportParts::list() const {
  std::vector<PagePart> parts;
  if (report_.changes) {
    parts.push_back({"changes", filledText(ReportText::Changes, language_, report_.changes->fileName)});
  }
  parts.push_back({"pictures", say(ReportText::Pictures)});
  parts.push_back({"findings", say(ReportText::Findings)});
  parts.push_back({"verdict", say(ReportText::Verdict)});
  parts.push_back({"skelegons", say(ReportText::Skelegons)});
  if (!report_.conversion.wasMade) return parts;
  parts.push_back({"scene", say(ReportText::Scene)});
  parts.push_back({"sent", say(ReportText::Sent)});
  return parts;
}

void ReportParts::write() {
  if (report_.changes) writeChanges();
  writePictures();
  writeFindings();
  writeVerdict();
  writeSkelegons();
  if (!report_.conversion.wasMade) return;
  writeScene();
  writeSent();
}

Html::Open ReportParts::section(const char* id) {
  const std::vector<PagePart> parts = list();
  const auto part =
      std::find_if(parts.begin(), parts.end(), [&](const PagePart& p) { return std::string_view(p.id) == id; });
  html_.whole("<section id=\"" + std::string(id) + "\">\n");
  html_.element("h2", part->heading);
  return {html_, "section"};
}

void ReportParts::rest(ReportText text, std::size_t all, std::size_t shown) {
  if (all > shown) html_.element("p", filledText(text, language_, std::to_string(all - shown)), {{"class", "faint"}});
}

void ReportParts::linkToSkelegon(const std::string& name, const std::optional<std::size_t>& skelegon) {
  if (skelegon && isShown_[*skelegon]) {
    html_.element("a", name, {{"href", "#" + anchorOf(*skelegon)}});
  } else {
    html_.text(name);
  }
}

void ReportParts::tableHead(const std::vector<std::string>& columns) {
  const auto head = html_.in("thead");
  const auto row = html_.in("tr");
  for (const std::string& column : columns) html_.element("th", column, {{"scope", "col"}});
}

// ---------------------------------------------------------------------------------------------------------------------
// Pictures

void ReportParts::figure(const PicturedState::Picture& picture, const std::string& name) {
  const auto figure = html_.in("figure");
  html_.element("figcaption", std::string(nameOf(picture.view, language_)) + ": " + name);
  html_.whole(picture.svg);
}

// The same view of both states beside each other.
void ReportParts::pictures(const PicturedState& left, const std::string& leftName, const PicturedState& right,
                           const std::string& rightName) {
  const auto grid = html_.in("div", {{"class", "pictures"}});
  for (std::size_t i = 0; i < std::max(left.pictures.size(), right.pictures.size()); ++i) {
    if (i < left.pictures.size()) figure(left.pictures[i], leftName);
    if (i < right.pictures.size()) figure(right.pictures[i], rightName);
  }
}

void ReportParts::writePictures() {
  const auto part = section("pictures");
  paragraph(ReportText::PicturesText);
  pictures(report_.before, say(ReportText::Before), report_.conversion.after, say(ReportText::After));
}

// ---------------------------------------------------------------------------------------------------------------------
// Changes

void ReportParts::writeChange(const rigs::Difference& difference) {
  const auto row = html_.in("tr");
  {
    const auto subject = html_.in("th", {{"scope", "row"}});
    const std::string name = difference.layer + (difference.skelegon.empty() ? "" : " / " + difference.skelegon);
    linkToSkelegon(name, difference.placeAfter);
  }
  html_.element("td", rigs::labelOf(difference, language_));
  const bool isPlain = !difference.from && !difference.to;
  for (const auto& value : {difference.from, difference.to}) {
    html_.element("td", isPlain ? "" : value.value_or(say(ReportText::None)));
  }
}

void ReportParts::writeChanges() {
  const ReportedChanges& changes = *report_.changes;
  const auto part = section("changes");
  paragraph(ReportText::ChangesText);
  const std::size_t shown = std::min(changes.differences.size(), kMostChanges);
  if (shown == 0) {
    html_.element("p", say(ReportText::NoChanges), {{"class", "good"}});
  } else {
    const auto box = html_.in("div", {{"class", "box"}});
    const auto table = html_.in("table", {{"class", "changes"}});
    tableHead({say(ReportText::Skelegon), say(ReportText::What), changes.fileName, report_.file.rig.fileName});
    const auto body = html_.in("tbody");
    for (std::size_t i = 0; i < shown; ++i) writeChange(changes.differences[i]);
  }
  rest(ReportText::ChangesRest, changes.differences.size(), shown);
  if (shown > 0) paragraph(ReportText::ChangesPictures);
  pictures(changes.before, changes.fileName, changes.after, report_.file.rig.fileName);
}

// ---------------------------------------------------------------------------------------------------------------------
// Findings

void ReportParts::writeManualEntry(const rigs::FindingRow& row) {
  const std::string folder = language_ == Language::Japanese ? "ja/" : "en/";
  const std::string name = say(ReportText::ManualEntry) + (": " + std::string(row.page)) + ", " + row.id;
  if (surroundings_.manual.link.empty()) {
    html_.element("cite", name);
  } else {
    html_.element("a", name,
                  {{"href", surroundings_.manual.link + folder + row.page + surroundings_.manual.extension + "#" + row.id}});
  }
}

void ReportParts::writeFinding(const rigs::FindingLine& finding) {
  const bool isProblem = finding.row->weight == rigs::FindingWeight::Problem;
  const auto item = html_.in("li", {{"class", isProblem ? "problem" : "note"}});
  html_.element("span", rigs::wordOf(finding.row->weight, language_), {{"class", isProblem ? "bad" : "mild"}});
  html_.text(finding.count > 1 ? " " + std::to_string(finding.count) + " × " : " ");
  linkToSkelegon(finding.place.empty() ? say(ReportText::WholeFile) : finding.place, finding.skelegon);
  html_.text(": " + finding.sentence + (language_ == Language::Japanese ? "。" : ". "));
  writeManualEntry(*finding.row);
}

void ReportParts::writeFindings() {
  const auto part = section("findings");
  paragraph(ReportText::FindingsText);
  const std::vector<rigs::FindingLine> lines = findingLines(report_.file.rig, report_.file.findings, language_);
  const std::size_t shown = std::min(lines.size(), kMostFindings);
  if (shown == 0) {
    html_.element("p", say(ReportText::NoFindings), {{"class", "good"}});
    return;
  }
  {
    const auto list = html_.in("ul", {{"class", "findings"}});
    for (std::size_t i = 0; i < shown; ++i) writeFinding(lines[i]);
  }
  rest(ReportText::FindingsRest, lines.size(), shown);
}

// ---------------------------------------------------------------------------------------------------------------------
// Skelegons

void ReportParts::writeSettings(const rigs::Skelegon& skelegon) {
  const std::vector<rigs::ShownSetting> settings = shownSettings(skelegon, {.language = language_});
  if (settings.empty()) {
    html_.element("span", say(ReportText::AtDefaults), {{"class", "faint"}});
    return;
  }
  const auto list = html_.in("dl", {{"class", "settings"}});
  for (const rigs::ShownSetting& setting : settings) {
    const auto pair = html_.in("div");
    html_.element("dt", setting.name);
    html_.element("dd", setting.value);
  }
}

void ReportParts::writeSkelegon(const rigs::TreePlace& place) {
  const rigs::Skelegon& skelegon = report_.file.rig.skelegons[place.skelegon];
  const std::string indent = "d" + std::to_string(std::min(place.depth, kDeepestStep));
  const auto row = html_.in("tr", {{"id", anchorOf(place.skelegon)}});
  {
    const auto name = html_.in("th", {{"scope", "row"}, {"class", indent}});
    html_.text(nameShown(skelegon, language_));
    if (inTrouble_[place.skelegon]) {
      html_.text(" ");
      html_.element("span", rigs::wordOf(rigs::FindingWeight::Problem, language_), {{"class", "bad"}});
    }
  }
  const auto cell = html_.in("td");
  writeSettings(skelegon);
}

void ReportParts::writeLayer(const rigs::Layer& layer, const std::vector<rigs::TreePlace>& tree) {
  html_.element("h3", layerLine(report_.file.rig, layer, language_));
  const auto table = html_.in("table", {{"class", "tree"}});
  tableHead({say(ReportText::Skelegon), say(ReportText::Settings)});
  const auto body = html_.in("tbody");
  for (const rigs::TreePlace& place : tree) writeSkelegon(place);
}

void ReportParts::writeSkelegons() {
  const rigs::Rig& rig = report_.file.rig;
  const auto part = section("skelegons");
  if (rig.skelegons.empty()) {
    html_.element("p", say(ReportText::NoSkelegons));
    return;
  }
  paragraph(ReportText::SkelegonsText);
  std::size_t shown = 0;
  for (std::size_t l = 0; l < rig.layers.size(); ++l) {
    if (!trees_[l].empty()) writeLayer(rig.layers[l], trees_[l]);
    shown += trees_[l].size();
  }
  rest(ReportText::SkelegonsRest, rig.skelegons.size(), shown);
}

}  // namespace standin::views
