#include <algorithm>
#include <iostream>
#include <memory>

#include "program/inspection.h"
#include "program/rig_tool_support.h"
#include "program/subcommands.h"
#include "rigs/findings.h"
#include "rigs/japanese_texts.h"
#include "rigs/report.h"

namespace standin {
namespace {

struct InspectOptions {
  std::vector<std::string> files;
  std::string language;
  std::string codePage;
  std::vector<std::string> ignored;
  std::string skelegon;
  bool findingsOnly = false;
  bool all = false;
  bool json = false;
  bool strict = false;
};

bool hasSkelegon(const rigs::Rig& rig, const std::string& name) {
  return std::any_of(rig.skelegons.begin(), rig.skelegons.end(),
                     [&](const auto& skelegon) { return skelegon.name == name; });
}

// What is told of the file and of a layer holds for the skelegons in it too.
bool concerns(const rigs::Rig& rig, const rigs::Finding& finding, const std::string& name) {
  const auto bearsName = [&](std::size_t i) { return rig.skelegons[i].name == name; };
  if (finding.skelegon) return bearsName(*finding.skelegon);
  if (!finding.layer) return true;
  const auto& skelegons = rig.layers[*finding.layer].skelegons;
  return std::any_of(skelegons.begin(), skelegons.end(), bearsName);
}

bool isWanted(const rigs::Rig& rig, const rigs::Finding& finding, const InspectOptions& options) {
  const std::string id = rigs::findingRow(finding.kind).id;
  if (std::find(options.ignored.begin(), options.ignored.end(), id) != options.ignored.end()) return false;
  return options.skelegon.empty() || concerns(rig, finding, options.skelegon);
}

rigs::Inspected inspect(const std::string& path, const rigs::CodePage& codePage, const InspectOptions& options) {
  rigs::Inspected file = inspectObject(path, codePage).inspected;
  if (!file.trouble.empty()) return file;
  std::erase_if(file.findings, [&](const rigs::Finding& finding) { return !isWanted(file.rig, finding, options); });
  if (!options.skelegon.empty() && !hasSkelegon(file.rig, options.skelegon)) {
    file.trouble = path + ": no skelegon is called " + options.skelegon;
  }
  return file;
}

void printFile(const rigs::Inspected& file, const rigs::ReportOptions& options, const rigs::CodePage& codePage) {
  const bool japanese = options.language == rigs::Language::Japanese;
  std::cout << "== " << file.path;
  if (file.rig.isInJapanese) {
    const std::string page = std::to_string(rigs::kJapaneseCodePage);
    std::cout << (japanese ? " (コードページ " + page + " として読んだ)" : " (read in code page " + page + ")");
  }
  std::cout << "\n";
  if (!options.findingsOnly) std::cout << rigs::treeText(file.rig, options);
  std::cout << rigs::findingsText(file.rig, file.findings, options.language)
            << rigs::summaryText(file.path, file.findings, codePage.number(), options.language);
}

int run(const InspectOptions& options) {
  return exitCodeOf([&] {
    const rigs::CodePage codePage = codePageOf(options.codePage);
    const rigs::ReportOptions report{languageOf(options.language), options.all, options.findingsOnly, options.skelegon};
    int result = 0;
    std::vector<rigs::Inspected> files;
    for (const std::string& path : options.files) {
      files.push_back(inspect(path, codePage, options));
      const rigs::Inspected& file = files.back();
      if (!file.trouble.empty()) {
        std::cout.flush();
        std::cerr << "varnel: " << file.trouble << "\n";
        result = kTrouble;
      } else if (!options.json) {
        printFile(file, report, codePage);
      }
      if (options.strict && rigs::countOf(file.findings, rigs::FindingWeight::Problem) > 0) result = std::max(result, 1);
    }
    if (options.json) std::cout << rigs::inspectionJson(files, report);
    return result;
  });
}

std::vector<std::string> findingIds() {
  std::vector<std::string> ids;
  for (const rigs::FindingRow& row : rigs::findingTable()) ids.emplace_back(row.id);
  return ids;
}

}  // namespace

Command inspectCommand() {
  const auto options = std::make_shared<InspectOptions>();
  return {
      .name = "inspect",
      .text = "Show what the skelegons of object files store, and what will go wrong",
      .options =
          {
              {"files", &options->files, "Object files", {.isRequired = true}},
              languageOption(&options->language, "Language of the settings' names"),
              codePageOption(options->codePage),
              {"--ignore", &options->ignored, "Kinds of findings to leave out", {.choices = findingIds(), .separator = ','}},
              {"--findings", &options->findingsOnly, "Print the findings only"},
              {"--skelegon", &options->skelegon, "Show the skelegon of this name alone, and what concerns it"},
              {"--all", &options->all, "Show settings that are at their default and further tags too"},
              {"--json", &options->json, "Print JSON"},
              {"--strict", &options->strict, "Exit with 1 when there are problems"},
          },
      .footer =
          "Shown is what differs from the defaults. A problem is a setting that will not arrive, or not as it is stored; a "
          "note\n"
          "may be meant so. Exit codes: 0; 1 with --strict and problems; 2 when a file cannot be read or has no such "
          "skelegon.\n"
          "Examples:\n"
          "  varnel inspect rigs/lizard.lwo\n"
          "  varnel inspect --lang ja --all rigs/lizard.lwo\n"
          "  varnel inspect --strict --ignore becomes-null rigs/*.lwo",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
