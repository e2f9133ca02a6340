// Rigs, findings and differences as text for people and as JSON for programs. All is UTF-8 and ends with a line end; it
// depends on nothing but what it is given, so that it can be compared from one day to the next.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "rigs/difference.h"
#include "rigs/findings.h"
#include "rigs/rig.h"

namespace standin::rigs {

struct ReportOptions {
  Language language = Language::English;
  bool all = false;           // defaults and other tags too
  bool findingsOnly = false;  // in JSON; as text the tree is another function
  std::string skelegon = {};  // only those of this name; all when it is empty
};

std::string treeText(const Rig& rig, const ReportOptions& options);
// "layer 1 "Rig", in Layout "rig:Rig": 2 skelegons, 2 with settings"
std::string layerLine(const Rig& rig, const Layer& layer, Language language);

// A setting by its name, with what the skelegon stores in it.
struct ShownSetting {
  std::string name;
  std::string value;
};
// Those that are not at their default, and tags of their family that are of none; or all.
std::vector<ShownSetting> shownSettings(const Skelegon& skelegon, const ReportOptions& options);

// Findings that say the same, as one.
struct FindingLine {
  const FindingRow* row = nullptr;
  std::size_t count = 0;                // how many say it
  std::optional<std::size_t> skelegon;  // the first of whom it is said
  std::string place;                    // empty for the file itself
  std::string sentence;
};
std::vector<FindingLine> findingLines(const Rig& rig, const std::vector<Finding>& findings, Language language);
std::string findingsText(const Rig& rig, const std::vector<Finding>& findings, Language language);
// How many there are of each weight, in one line.
std::string summaryText(const std::string& path, const std::vector<Finding>& findings, int codePage, Language language);
std::size_t countOf(const std::vector<Finding>& findings, FindingWeight weight);
// What differs: "moved", "tag SURF", or a setting's name.
std::string labelOf(const Difference& difference, Language language);
std::string differencesText(const std::vector<Difference>& differences, Language language);

// One object of a file.
struct Inspected {
  std::string path;
  std::string trouble;  // why the file cannot be read; the rest is empty then
  Rig rig;
  std::vector<Finding> findings;
};
std::string inspectionJson(const std::vector<Inspected>& files, const ReportOptions& options);
std::string differencesJson(const std::vector<Difference>& differences);

struct SentCommand {
  std::string text;
  std::string result;  // "accepted", "rejected" or "asked"
  std::string why;
  std::string item = {};  // the name of the item that it gives by its number
};
std::string commandsJson(const std::vector<SentCommand>& commands);

}  // namespace standin::rigs
