#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>

#include "objectfile/temporary_folder.h"
#include "objectfile/whole_file.h"
#include "program/drawn_rigs.h"
#include "program/reported_conversion.h"
#include "program/rig_tool_support.h"
#include "program/shipped_rigs.h"
#include "program/subcommands.h"
#include "rigs/difference.h"
#include "standin/core/program_folder.h"

namespace standin {
namespace {

struct ReportCommandOptions {
  std::vector<std::string> files;
  ConversionOptions conversion;
  std::string folder;
  std::string against;
  std::string codePage;
  std::string manual;
  bool shipped = false;
  bool force = false;
};

std::string inFolder(const std::string& folder, const std::string& name) {
  return utf8Of(pathFromUtf8(folder) / pathFromUtf8(name));
}

// The one that was named, else the one that lies beside the program. The program that was only built has none.
std::string manualOf(const std::string& named) {
  if (named.find("://") != std::string::npos) return named;
  const std::string place = named.empty() ? inFolder(programFolder(), "manual") : named;
  std::error_code error;
  if (std::filesystem::is_directory(pathFromUtf8(place) / "en", error)) return place;
  if (!named.empty()) throw Trouble{"there is no manual in " + named};
  return {};
}

// Marked are the skelegons that have changed, with what did.
views::PicturedState picturesOfChanges(const InspectedObject& file, const std::vector<rigs::Difference>& differences,
                                       std::optional<std::size_t> rigs::Difference::*place, rigs::Language language) {
  views::PosedRig posed = views::posedBefore(file.object, file.inspected.rig);
  for (const rigs::Difference& difference : differences) {
    if (!(difference.*place)) continue;
    views::PosedBone& bone = posed.bones[*(difference.*place)];
    bone.isMarked = true;
    bone.remark += (bone.remark.empty() ? "" : ", ") + rigs::labelOf(difference, language);
  }
  return picturesOf(posed, language, views::Marks::Changes);
}

views::ReportedChanges changesSince(const InspectedObject& other, const InspectedObject& file, rigs::Language language) {
  views::ReportedChanges changes{other.inspected.rig.fileName, {}, {}, {}};
  changes.differences = rigs::differencesOf(other.inspected.rig, file.inspected.rig, language);
  changes.before = picturesOfChanges(other, changes.differences, &rigs::Difference::placeBefore, language);
  changes.after = picturesOfChanges(file, changes.differences, &rigs::Difference::placeAfter, language);
  return changes;
}

// One run of the command.
class Reporter {
 public:
  explicit Reporter(const ReportCommandOptions& options)
      : options_(options), language_(languageOf(options.conversion.language)), codePage_(codePageOf(options.codePage)) {}

  int run() {
    if (options_.shipped) files_ = writeShippedRigs(shipped_.emplace().path());
    for (const std::string& file : files_) shownAs_.push_back(fileNameOf(file));
    for (const std::string& file : options_.files) {
      files_.push_back(file);
      shownAs_.push_back(file);
    }
    if (files_.empty()) throw Trouble{"no files; name some, or give --shipped"};
    if (!options_.against.empty()) {
      other_ = inspectObject(options_.against, codePage_);
      if (!other_->inspected.trouble.empty()) throw Trouble{other_->inspected.trouble};
    }
    pages_ = views::pageNames(files_);
    prepareFolder();
    for (std::size_t i = 0; i < files_.size(); ++i) report(i);
    if (hasIndex()) writePage(views::kIndexPage, views::indexPage(rows_, language_));
    return result_;
  }

 private:
  bool hasIndex() const { return files_.size() > 1; }

  void prepareFolder() {
    const std::string manual = manualOf(options_.manual);
    mustBeFolder(options_.folder);
    std::vector<std::string> paths;
    for (const std::string& page : pages_) paths.push_back(inFolder(options_.folder, page));
    if (hasIndex()) paths.push_back(inFolder(options_.folder, views::kIndexPage));
    mustBeWritten(refusedFiles(paths, existingFiles(options_.force)));
    mustBeWritten(refusedAsRead(paths, files_));
    if (!options_.against.empty()) mustBeWritten(refusedAsRead(paths, {options_.against}));
    surroundings_ = {language_, views::manualAt(manual, options_.folder), hasIndex()};
  }

  void tell(const std::string& trouble) {
    printTrouble({trouble});
    result_ = kTrouble;
  }

  void report(std::size_t i) {
    const InspectedObject file = inspectObject(files_[i], codePage_);
    if (!file.inspected.trouble.empty()) {
      tell(file.inspected.trouble);
      rows_.push_back({shownAs_[i], {}, file.inspected.trouble});
      return;
    }
    views::RigReport rig{file.inspected, {}, reportedConversion(file, options_.conversion, language_), {}};
    if (!rig.conversion.trouble.empty()) tell(shownAs_[i] + ": " + rig.conversion.trouble);
    rig.before = picturesOf(drawnBefore(file, language_), language_);
    if (other_) rig.changes = changesSince(*other_, file, language_);
    writePage(pages_[i], views::reportPage(rig, surroundings_));
    rows_.push_back(views::indexRowOf(rig, shownAs_[i], pages_[i]));
  }

  void writePage(const std::string& name, const std::string& html) {
    const std::string path = inFolder(options_.folder, name);
    mustBeWritten(writeWholeFile(path, html, existingFiles(options_.force)));
    std::cout << path << std::endl;
  }

  const ReportCommandOptions& options_;
  rigs::Language language_;
  rigs::CodePage codePage_;
  std::optional<TemporaryFolder> shipped_;
  std::vector<std::string> files_;
  std::vector<std::string> shownAs_;  // a shipped rig has no place of its own
  std::vector<std::string> pages_;
  std::optional<InspectedObject> other_;
  views::PageSurroundings surroundings_;
  std::vector<views::IndexRow> rows_;
  int result_ = 0;
};

}  // namespace

Command reportCommand() {
  const auto options = std::make_shared<ReportCommandOptions>();
  std::vector<CommandOption> rows = {
      {"files", &options->files, "Object files"},
      {"-o,--output", &options->folder, "Folder to write to; it is made when it is not there", {.isRequired = true}},
      forceOption(options->force),
      {"--against", &options->against, "Object file to compare each with: what has changed since"},
      {"--manual", &options->manual, "Folder or web address of the manual (the folder beside this program by default)"},
      codePageOption(options->codePage),
      {"--shipped", &options->shipped, "Report on the rigs that come with the program first"},
  };
  for (CommandOption& row : conversionOptions(options->conversion, "Language of the pages")) rows.push_back(std::move(row));
  return {
      .name = "report",
      .text = "Write a page with pictures for each rig, to read in a browser",
      .options = std::move(rows),
      .footer =
          "A page shows the rig before and after its conversion, what its skelegons store, what was found, the commands "
          "that\n"
          "were sent, and the verdict. It needs nothing beside it. Several rigs get an index, the last file that is named. "
          "Files\n"
          "that are there stay, and then none is written. Exit codes: 0 all pages are written, whatever they tell; 2 a "
          "file\n"
          "cannot be read or converted, or a page not written.\n"
          "Examples:\n"
          "  varnel report rigs/lizard.lwo -o report\n"
          "  varnel report rigs/*.lwo -o report --force\n"
          "  varnel export rigs/lizard.lwo -o lizard.json\n"
          "  varnel import rigs/lizard.lwo lizard.json -o lizard-2.lwo\n"
          "  varnel report lizard-2.lwo --against rigs/lizard.lwo -o changes",
      .run = [options] { return exitCodeOf([&] { return Reporter(*options).run(); }); },
  };
}

}  // namespace standin
