// What findings say: their places and sentences, and the lines of a file, of which one tells all that say the same.
#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "rigs/report.h"
#include "rigs/text.h"

namespace standin::rigs {
namespace {

// How many skelegons or texts a line names.
constexpr std::size_t kNamed = 3;

struct Fold {
  const Finding* first;
  Place place;                              // without the setting where they are of several
  std::size_t count = 0;                    // how many say this
  std::vector<std::string> skelegons = {};  // of which they do; empty where it is none
  std::vector<std::string> texts = {};      // where the line names that of each
};

// Notes that differ in nothing but the name that they are about: these are meant so as a rule, all alike. Problems are to be
// mended one by one.
bool namesEachText(const Finding& finding) {
  const bool isNote = findingRow(finding.kind).weight == FindingWeight::Note;
  return isNote && finding.skelegon && !finding.text.empty() && finding.other.empty() && finding.number.empty();
}

std::vector<Fold> foldsOf(const Rig& rig, const std::vector<Finding>& findings, Language language) {
  std::vector<Fold> folds;
  std::map<std::tuple<FindingKind, std::optional<std::size_t>, const Setting*, std::string>, std::size_t> places;
  for (const Finding& finding : findings) {
    const bool eachText = namesEachText(finding);
    const Setting* const setting = eachText ? nullptr : finding.setting;
    const std::string says = eachText ? "" : sentenceOf(finding, language);
    const Place place = placeOf(rig, finding, language);
    const auto [entry, isNew] = places.try_emplace({finding.kind, finding.layer, setting, says}, folds.size());
    if (isNew) folds.push_back({&finding, place});
    Fold& fold = folds[entry->second];
    ++fold.count;
    const bool isNamed = !fold.skelegons.empty() && fold.skelegons.back() == place.skelegon;
    if (finding.skelegon && !isNamed) fold.skelegons.push_back(place.skelegon);
    if (eachText) fold.texts.push_back(finding.text);
    if (place.setting != fold.place.setting) fold.place.setting.clear();
  }
  return folds;
}

// "Root, Neck, Head and 19 more"
std::string listed(const std::vector<std::string>& names, Language language) {
  const bool japanese = language == Language::Japanese;
  std::string list;
  for (std::size_t i = 0; i < std::min(names.size(), kNamed); ++i) {
    if (i > 0) list += japanese ? "、" : ", ";
    list += names[i];
  }
  if (names.size() <= kNamed) return list;
  const std::string rest = std::to_string(names.size() - kNamed);
  return list + (japanese ? "、ほか " + rest + " 個" : " and " + rest + " more");
}

std::string sentenceOf(const Fold& fold, Language language) {
  Finding finding = *fold.first;
  if (!fold.texts.empty()) finding.text = listed(fold.texts, language);
  return sentenceOf(finding, language);
}

}  // namespace

Place placeOf(const Rig& rig, const Finding& finding, Language language) {
  Place place;
  if (!finding.layer) return place;
  const Layer& layer = rig.layers[*finding.layer];
  place.layer = nameShown(layer, language);
  if (finding.skelegon) place.skelegon = nameShown(rig.skelegons[*finding.skelegon], language);
  if (finding.setting != nullptr) place.setting = finding.setting->name(language);
  // These are about a stored text; where it is that of no setting, it is the skelegon's name.
  const bool isOfAText = finding.kind == FindingKind::TagRepeated || finding.kind == FindingKind::TextMissing;
  if (isOfAText && finding.setting == nullptr) place.setting = language == Language::Japanese ? "名前" : "name";
  return place;
}

std::string joined(const Place& place) {
  std::string text = place.layer;
  if (!place.skelegon.empty()) text += " / " + place.skelegon;
  if (!place.setting.empty()) text += " / " + place.setting;
  return text;
}

std::string sentenceOf(const Finding& finding, Language language) {
  return filled(findingRow(finding.kind).in(language),
                {{"{text}", finding.text}, {"{other}", finding.other}, {"{number}", finding.number}});
}

std::size_t countOf(const std::vector<Finding>& findings, FindingWeight weight) {
  return static_cast<std::size_t>(std::count_if(
      findings.begin(), findings.end(), [&](const Finding& finding) { return findingRow(finding.kind).weight == weight; }));
}

std::vector<FindingLine> findingLines(const Rig& rig, const std::vector<Finding>& findings, Language language) {
  std::vector<FindingLine> lines;
  for (const Fold& fold : foldsOf(rig, findings, language)) {
    lines.push_back({&findingRow(fold.first->kind), fold.count, fold.first->skelegon,
                     joined({fold.place.layer, listed(fold.skelegons, language), fold.place.setting}),
                     sentenceOf(fold, language)});
  }
  return lines;
}

std::string findingsText(const Rig& rig, const std::vector<Finding>& findings, Language language) {
  const bool japanese = language == Language::Japanese;
  std::string text;
  for (const FindingLine& line : findingLines(rig, findings, language)) {
    text += std::string("  ") + wordOf(line.row->weight, language) + " [" + line.row->id + "] ";
    if (line.count > 1) text += std::to_string(line.count) + " × ";
    if (!line.place.empty()) text += line.place + ": ";
    const std::string entry = manualEntryOf(line.row->kind, language);
    text += line.sentence + (japanese ? "（" + entry + " を参照）" : " (see " + entry + ")") + '\n';
  }
  return text;
}

std::string summaryText(const std::string& path, const std::vector<Finding>& findings, int codePage, Language language) {
  const bool japanese = language == Language::Japanese;
  const auto counted = [&](FindingWeight weight) {
    const std::size_t count = countOf(findings, weight);
    const std::string word = wordOf(weight, language);
    if (japanese) return word + " " + std::to_string(count);
    return std::to_string(count) + " " + word + (count == 1 ? "" : "s");
  };
  const std::string page = std::to_string(codePage);
  return path + ": " + counted(FindingWeight::Problem) + (japanese ? "、" : ", ") + counted(FindingWeight::Note) +
         (japanese ? " (コードページ " + page + ")\n" : " (code page " + page + ")\n");
}

}  // namespace standin::rigs
