#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>

#include "objectfile/temporary_folder.h"
#include "program/conversion.h"
#include "program/shipped_rigs.h"
#include "program/subcommands.h"
#include "standin/layout/scene_report.h"
#include "standin/panels/text.h"

namespace standin {
namespace {

struct ConvertOptions {
  std::vector<std::string> files;
  ConversionOptions conversion;
  bool shipped = false;
  bool transcript = false;
  bool full = false;
};

void printScene(const char* heading, LayoutHost& host, const ConvertOptions& options, Progress& progress) {
  progress.tell("looking at the scene");
  const std::string report = sceneReport(host.scene(), options.full ? SceneReportForm::Full : SceneReportForm::Short);
  progress.clear();
  std::cout << heading << "\n";
  indent(report);
}

int convertFile(const std::string& file, const ConvertOptions& options) {
  std::cout << "== " << fileNameOf(file) << std::endl;
  Progress progress;
  Conversion conversion(file, options.conversion, progress);
  LayoutHost& host = conversion.host();
  printScene("before", host, options, progress);
  std::cout << "panel\n";
  indent(panelText(conversion.open()));
  const ConversionVerdict verdict = conversion.run(progress);

  const Transcript& transcript = host.transcript();
  if (options.transcript) {
    std::cout << "transcript\n";
    indent(transcript.text());
  }
  printScene("after", host, options, progress);
  const std::size_t refused = transcript.count(EventKind::Rejected) + transcript.count(EventKind::Asked);
  std::cout << "commands: " << transcript.commandCount() << " sent, " << refused << " refused\n" << verdictText(verdict);
  conversion.end();
  return verdict.isSound() ? 0 : kNotAllWell;
}

int run(const ConvertOptions& options) {
  std::optional<TemporaryFolder> folder;  // only for what has no file yet
  std::vector<std::string> files;
  int result = exitCodeOf([&] {
    if (options.shipped) files = writeShippedRigs(folder.emplace().path());
    files.insert(files.end(), options.files.begin(), options.files.end());
    if (files.empty()) throw Trouble{"no files; name some, or give --shipped"};
    return 0;
  });
  for (const std::string& file : files) result = std::max(result, exitCodeOf([&] { return convertFile(file, options); }));
  return result;
}

}  // namespace

Command convertCommand() {
  const auto options = std::make_shared<ConvertOptions>();
  std::vector<CommandOption> rows = {{"files", &options->files, "Object files"}};
  for (CommandOption& row : conversionOptions(options->conversion, "Language of the panel")) rows.push_back(std::move(row));
  rows.push_back({"--shipped", &options->shipped, "Convert the rigs that come with the program first"});
  rows.push_back({"--full", &options->full, "Show every setting that differs from a fresh item's, with its value"});
  rows.push_back({"--transcript", &options->transcript, "Show every command"});
  return {
      .name = "convert",
      .text = "Convert the skelegons of object files to bones, as in Layout",
      .options = std::move(rows),
      .footer =
          "Shown are the scene before and after, the number of commands, and the verdict. Exit codes: 0 all went well; 1 "
          "something\n"
          "did not, as the verdict says; 2 a file cannot be read.\n"
          "Examples:\n"
          "  varnel convert rigs/lizard.lwo\n"
          "  varnel convert --full --lang ja rigs/lizard.lwo",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
