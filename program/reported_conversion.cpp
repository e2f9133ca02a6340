#include "program/reported_conversion.h"

#include <algorithm>

#include "program/drawn_rigs.h"
#include "program/sent_commands.h"
#include "rigs/japanese_texts.h"
#include "standin/layout/scene_report.h"

namespace standin {
namespace {

using views::ReportedConversion;
using views::ReportText;

constexpr std::size_t kMostNamed = 50;
// Shown wider on wide screens, and its names can still be read on a phone.
constexpr int kPictureWidth = 500;

std::string listed(const std::vector<std::string>& names, views::Language language) {
  std::string list;
  for (std::size_t i = 0; i < std::min(names.size(), kMostNamed); ++i) list += (i == 0 ? "" : ", ") + names[i];
  if (names.size() <= kMostNamed) return list;
  return filledText(ReportText::AndMore, language, list, std::to_string(names.size() - kMostNamed));
}

// The verdict's lines, of which there may be as many as a rig has bones.
class Lines {
 public:
  explicit Lines(views::Language language) : language_(language) {}

  void add(ReportText what, const std::string& words) { lines.push_back({what, words}); }
  void addPart(ReportText what, std::size_t part, std::size_t all) {
    add(what, std::to_string(part) + " / " + std::to_string(all));
  }
  void addNames(ReportText what, const std::vector<std::string>& names) {
    if (!names.empty()) add(what, listed(names, language_));
  }
  template <class Row, class WordsOf>
  void addEach(ReportText what, const std::vector<Row>& rows, WordsOf&& wordsOf) {
    for (std::size_t i = 0; i < std::min(rows.size(), kMostNamed); ++i) add(what, wordsOf(rows[i]));
    if (rows.size() > kMostNamed) {
      add(what, filledText(ReportText::AndMore, language_, "", std::to_string(rows.size() - kMostNamed)));
    }
  }
  std::string counted(const std::string& words, std::size_t count) const {
    return count == 1 ? words : filledText(ReportText::Times, language_, words, std::to_string(count));
  }

  std::vector<ReportedConversion::Line> lines;

 private:
  views::Language language_;
};

std::vector<ReportedConversion::Line> linesOf(const ConversionVerdict& v, views::Language language) {
  Lines told(language);
  told.addPart(ReportText::ObjectsConverted, v.converted, v.objects);
  told.addPart(ReportText::BonesSet, v.set, v.bones);
  told.addNames(ReportText::BonesPartlySet, v.partlySet);
  told.addNames(ReportText::BonesNotSet, v.notSet);
  told.addEach(ReportText::RefusedByLayout, v.refused,
               [&](const auto& c) { return told.counted(c.text + ": " + c.why, c.count); });
  told.addEach(ReportText::OnStatusLine, v.failures, [&](const auto& c) { return told.counted(c.text, c.count); });
  told.addEach(ReportText::PassedOver, v.passedOver, [](const auto& p) { return p.item + ": " + p.why; });
  if (v.wasCutOff) told.add(ReportText::CutOff, {});
  return told.lines;
}

// Layout tells everything in the encoding of the file's texts.
void makeReadable(ReportedConversion& told) {
  for (std::string* const text : {&told.sceneBefore, &told.sceneAfter}) *text = rigs::inUtf8(*text);
  for (ReportedConversion::Line& line : told.verdict) line.words = rigs::inUtf8(line.words);
  for (views::SentToItem& turn : told.sent) {
    turn.item = rigs::inUtf8(turn.item);
    for (rigs::SentCommand& command : turn.commands) {
      for (std::string* const text : {&command.text, &command.why, &command.item}) *text = rigs::inUtf8(*text);
    }
  }
}

void convert(const InspectedObject& file, const ConversionOptions& options, views::Language language,
             ReportedConversion& told) {
  Progress progress;
  Conversion conversion(file.inspected.path, options, progress);
  Scene& scene = conversion.host().scene();
  told.sceneBefore = sceneReport(scene);
  conversion.open();
  const ConversionVerdict verdict = conversion.run(progress);
  told.wasMade = true;
  told.isSound = verdict.isSound();
  told.verdict = linesOf(verdict, language);
  told.sceneAfter = sceneReport(scene);
  told.sent = sentByItem(conversion.host().transcript());
  if (file.inspected.rig.isInJapanese) makeReadable(told);
  progress.tell(file.inspected.rig.fileName + ": drawing");
  told.after = picturesOf(drawnAfter(scene, file, language), language);
  progress.clear();
  conversion.end();
}

}  // namespace

views::PicturedState picturesOf(const views::PosedRig& rig, views::Language language, views::Marks marks) {
  views::PicturedState state;
  for (const views::View view : {views::View::Turned, views::View::Side, views::View::Front, views::View::Top}) {
    views::PictureOptions options;
    options.views = {view};
    options.width = kPictureWidth;
    options.standsAlone = false;
    options.language = language;
    options.marks = marks;
    state.pictures.push_back({view, pictureSvg(rig, options)});
  }
  return state;
}

ReportedConversion reportedConversion(const InspectedObject& file, const ConversionOptions& options,
                                      views::Language language) {
  ReportedConversion told;
  try {
    convert(file, options, language, told);
  } catch (const Trouble& trouble) {
    told.trouble = trouble.why;
  }
  return told;
}

}  // namespace standin
