#include <algorithm>
#include <charconv>
#include <filesystem>
#include <iostream>
#include <memory>
#include <system_error>

#include "objectfile/file_bytes.h"
#include "program/rig_tool_support.h"
#include "program/subcommands.h"
#include "rigs/findings.h"
#include "rigs/report.h"

namespace standin {
namespace {

struct InspectOptions {
  std::vector<std::string> files;
  std::string language = "en";
  std::string codePage;
  std::vector<std::string> ignored;
  bool all = false;
  bool json = false;
  bool strict = false;
};

rigs::CodePage codePageOf(const std::string& name) {
  if (name.empty()) return rigs::CodePage(rigs::CodePage::usual());
  if (name == "utf-8") return rigs::CodePage(rigs::kUtf8CodePage);
  int number = 0;
  const char* const end = name.data() + name.size();
  const auto read = std::from_chars(name.data(), end, number);
  rigs::CodePage codePage(number);
  if (read.ptr != end || read.ec != std::errc() || !codePage.isKnown()) {
    throw Trouble{"code page " + name + " is not known here"};
  }
  return codePage;
}

rigs::Inspected inspect(const std::string& path, const rigs::CodePage& codePage, const std::vector<std::string>& ignored) {
  rigs::Inspected file{path, {}, {}, {}};
  const Outcome<ObjectFile> object = readObject(path, TextlessTags::LeaveOut);
  if (!object) {
    file.trouble = object.why();
    return file;
  }
  file.rig = rigs::rigOf(*object, fileNameOf(path));
  file.rig.pathLength = std::filesystem::absolute(pathFromUtf8(path)).u16string().size();
  file.findings = rigs::findingsOf(file.rig, codePage);
  std::erase_if(file.findings, [&](const rigs::Finding& finding) {
    const std::string id = rigs::findingRow(finding.kind).id;
    return std::find(ignored.begin(), ignored.end(), id) != ignored.end();
  });
  return file;
}

void printFile(const rigs::Inspected& file, const rigs::ReportOptions& options, const rigs::CodePage& codePage) {
  std::cout << "== " << file.path << "\n" << rigs::treeText(file.rig, options);
  std::cout << rigs::findingsText(file.rig, file.findings, codePage.number(), options.language);
}

int run(const InspectOptions& options) {
  return exitCodeOf([&] {
    const rigs::CodePage codePage = codePageOf(options.codePage);
    const rigs::ReportOptions report{languageOf(options.language), options.all};
    int result = 0;
    std::vector<rigs::Inspected> files;
    for (const std::string& path : options.files) {
      files.push_back(inspect(path, codePage, options.ignored));
      const rigs::Inspected& file = files.back();
      if (!file.trouble.empty()) {
        std::cout.flush();
        std::cerr << "varnel: " << file.trouble << "\n";
        result = kTrouble;
      } else if (!options.json) {
        printFile(file, report, codePage);
      }
      if (options.strict && !file.findings.empty()) result = std::max(result, 1);
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
              {"--code-page", &options->codePage,
               "Code page of the system that runs Layout: 932, 1252, ... or utf-8 (this system's on Windows, else 932)"},
              {"--ignore", &options->ignored, "Kinds of findings to leave out", {.choices = findingIds(), .separator = ','}},
              {"--all", &options->all, "Show settings that are at their default and further tags too"},
              {"--json", &options->json, "Print JSON"},
              {"--strict", &options->strict, "Exit with 1 when there are findings"},
          },
      .footer =
          "Shown is what differs from the defaults. Exit codes: 0; 1 with --strict and findings; 2 when a file cannot be "
          "read.\n"
          "Examples:\n"
          "  varnel inspect biped.lwo\n"
          "  varnel inspect --lang ja --all biped.lwo\n"
          "  varnel inspect --strict --ignore becomes-null rigs/*.lwo",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
