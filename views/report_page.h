// The report of a rig as one HTML page that fetches nothing and runs no script, and the page that leads to several of them. A
// page depends on nothing but what it is given.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "rigs/difference.h"
#include "rigs/report.h"
#include "views/page_names.h"
#include "views/projection.h"
#include "views/report_texts.h"

namespace standin::views {

// Beyond these a page says how many there are and which command tells them all, so that it opens at once however large the
// rig is.
inline constexpr std::size_t kMostSkelegons = 2000;
inline constexpr std::size_t kMostCommands = 20000;
inline constexpr std::size_t kMostFindings = 500;
inline constexpr std::size_t kMostChanges = 2000;
inline constexpr std::size_t kMostSceneLines = 1000;

// The views of one state, each an <svg> that takes its colours from the page.
struct PicturedState {
  struct Picture {
    View view;
    std::string svg;
  };
  std::vector<Picture> pictures;
};

// What was sent while it was one item's turn.
struct SentToItem {
  std::string item;  // empty before the first
  std::vector<rigs::SentCommand> commands;
};

struct ReportedConversion {
  // One thing that the verdict tells.
  struct Line {
    ReportText what;
    std::string words;
  };

  std::string trouble;  // why it could not be made, or not be ended; what there is of the rest is shown all the same
  bool wasMade = false;
  bool isSound = false;
  std::vector<Line> verdict;
  std::string sceneBefore;
  std::string sceneAfter;
  std::vector<SentToItem> sent;
  PicturedState after;
};

// The same rig as it was, or another one.
struct ReportedChanges {
  std::string fileName;
  std::vector<rigs::Difference> differences;
  PicturedState before;
  PicturedState after;
};

struct RigReport {
  rigs::Inspected file;
  PicturedState before;
  ReportedConversion conversion;
  std::optional<ReportedChanges> changes;
};

// Which of its skelegons have a problem, by their place in the rig.
std::vector<bool> skelegonsInTrouble(const rigs::Inspected& file);

struct PageSurroundings {
  Language language = Language::English;
  ManualPlace manual = {};
  bool hasIndex = false;
};
std::string reportPage(const RigReport& report, const PageSurroundings& surroundings);

// What the index tells of a rig: where its page is, or why there is none.
struct IndexRow {
  std::string path;
  std::string page;
  std::string trouble = {};
  std::size_t skelegons = 0;
  std::size_t problems = 0;
  std::size_t notes = 0;
  bool isConverted = false;
  bool isSound = false;
};
IndexRow indexRowOf(const RigReport& report, const std::string& path, const std::string& page);
std::string indexPage(const std::vector<IndexRow>& rows, Language language);

}  // namespace standin::views
