// The parts of a rig's page, each a section under a heading.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "rigs/tree.h"
#include "views/html.h"
#include "views/report_page.h"

namespace standin::views {

// A place on the page that its table of contents leads to.
struct PagePart {
  const char* id;
  std::string heading;
};

// "2 skelegons"
std::string countedSkelegons(std::size_t count, Language language);
// "1 problem"
std::string counted(std::size_t count, rigs::FindingWeight weight, Language language);
// Whether the conversion was made, and how it went.
void writeOutcome(Html& html, bool wasMade, bool isSound, Language language);

class ReportParts {
 public:
  ReportParts(Html& html, const RigReport& report, const PageSurroundings& surroundings);

  // Those that this report has, in order.
  std::vector<PagePart> list() const;
  void write();

 private:
  Html::Open section(const char* id);
  const char* say(ReportText text) const { return textOf(text, language_); }
  void paragraph(ReportText text) { html_.element("p", say(text), {{"class", "faint"}}); }
  // "And 12 more", where there are that many more than are shown.
  void rest(ReportText text, std::size_t all, std::size_t shown);
  // The skelegon's name or what stands for it, leading to its row where the page has it.
  void linkToSkelegon(const std::string& name, const std::optional<std::size_t>& skelegon);
  void tableHead(const std::vector<std::string>& columns);

  void pictures(const PicturedState& left, const std::string& leftName, const PicturedState& right,
                const std::string& rightName);
  void figure(const PicturedState::Picture& picture, const std::string& name);

  void writeChanges();
  void writeChange(const rigs::Difference& difference);
  void writePictures();
  void writeFindings();
  void writeFinding(const rigs::FindingLine& finding);
  void writeManualEntry(const rigs::FindingRow& row);
  void writeVerdict();
  void writeSkelegons();
  void writeLayer(const rigs::Layer& layer, const std::vector<rigs::TreePlace>& tree);
  void writeSkelegon(const rigs::TreePlace& place);
  void writeSettings(const rigs::Skelegon& skelegon);
  void writeScene();
  void writeSceneText(ReportText when, const std::string& text);
  void writeSent();
  std::size_t writeSentTo(const SentToItem& turn, std::size_t most);

  Html& html_;
  const RigReport& report_;
  const PageSurroundings& surroundings_;
  Language language_;
  std::vector<std::vector<rigs::TreePlace>> trees_;  // of the layers, as far as they are shown
  std::vector<bool> isShown_;                        // by the skelegon's place in the rig
  std::vector<bool> inTrouble_;                      // the same
};

}  // namespace standin::views
