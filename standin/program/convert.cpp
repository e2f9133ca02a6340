#include "standin/program/convert.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>
#include <random>
#include <sstream>

#include "standin/core/program_folder.h"
#include "standin/core/witness.h"
#include "standin/layout/layout_host.h"
#include "standin/layout/report.h"
#include "standin/objectfile/sample_rigs.h"
#include "standin/panels/person.h"
#include "standin/panels/text.h"

namespace standin {
namespace {

namespace fs = std::filesystem;

constexpr const char* kServer = "Orlo:SkelegonOptimize";

struct ConvertOptions {
  std::vector<std::string> files;
  std::string module;
  std::string language = "en";
  bool shipped = false;
  bool transcript = false;
  bool noSkelegons = false;
  bool noPivot = false;
};

fs::path pathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

std::string utf8Of(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

// A folder of its own for files that are made on the way; gone at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() : path_(fs::temp_directory_path() / ("varnel-" + std::to_string(std::random_device()()))) {
    fs::create_directories(path_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  std::string file(const std::string& name) const { return utf8Of(path_ / pathOf(name)); }

 private:
  fs::path path_;
};

void indent(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) std::cout << "  " << line << "\n";
}

bool fail(const std::string& why) {
  std::cout << "  failed: " << why << "\n";
  return false;
}

// What the user of the panel does: opens the tool, sets the options and presses the button.
bool runTool(LayoutHost& host, ModuleFile& module, const ConvertOptions& options) {
  const std::optional<int> activated = host.activate(module, kServer);
  if (activated != 0)
    return fail("the activation gave " + (activated ? std::to_string(*activated) : std::string("an exception")));
  Panel* const panel = panels().find(std::string(kServer) + "(1.20) ");
  if (panel == nullptr) return fail("no panel was opened");
  if (options.noSkelegons && !person::switchTo(panel->find(ControlKind::Bool, 0), false))
    return fail("the first option is missing");
  if (options.noPivot && !person::switchTo(panel->find(ControlKind::Bool, 1), false))
    return fail("the second option is missing");
  std::cout << "panel\n";
  indent(panelText(*panel));
  const Done pressed = person::press(panel->find(ControlKind::Button, 0));
  return pressed ? true : fail(pressed.why);
}

bool convertFile(const std::string& file, const ConvertOptions& options) {
  std::cout << "== " << utf8Of(pathOf(file).filename()) << std::endl;
  LayoutHost host;
  if (options.language == "ja") host.setLocale(kLocaleJapanese);
  std::string why;
  const std::vector<Item*> items = host.loadObject(file, &why);
  if (items.empty()) return fail(why);
  host.select(items);
  std::cout << "before\n";
  indent(sceneReport(host.scene()));

  ModuleFile module;
  if (const std::string refusal = module.load(options.module); !refusal.empty()) return fail(refusal);
  if (!runTool(host, module, options)) return false;

  const Transcript& transcript = host.transcript();
  if (options.transcript) {
    std::cout << "transcript\n";
    indent(transcript.text());
  }
  std::cout << "after\n";
  indent(sceneReport(host.scene()));
  const std::size_t refused = transcript.count(EventKind::rejected) + transcript.count(EventKind::asked);
  std::cout << "commands: " << transcript.commandCount() << " sent, " << refused << " refused\n";
  panels().moduleUnloaded();
  module.unload();
  if (witness().faults().empty()) return true;
  std::cout << "faults of the module\n";
  indent(witness().report());
  return false;
}

bool run(ConvertOptions options) {
  if (options.module.empty()) options.module = modulePath();
  if (options.module.empty()) return fail("there is no module beside the program; name one with --module");
  const TemporaryFolder folder;
  std::vector<std::string> files;
  if (options.shipped) {
    files = {folder.file("lizard.lwo"), folder.file("人形.lwo")};
    for (const auto& failure : {writeDemoRig(files[0]), writeJapaneseRig(files[1])}) {
      if (failure) return fail(failure->text);
    }
  }
  files.insert(files.end(), options.files.begin(), options.files.end());
  if (files.empty()) return fail("no files; name some, or give --shipped");
  bool allDone = true;
  for (const std::string& file : files) allDone = convertFile(file, options) && allDone;
  return allDone;
}

}  // namespace

void addConvertCommand(CLI::App& app, int& result) {
  CLI::App* const command = app.add_subcommand("convert", "Convert the skelegons of object files to bones, as in Layout");
  const auto options = std::make_shared<ConvertOptions>();
  command->add_option("files", options->files, "Object files");
  command->add_option("--module", options->module, "The module's file (the one beside this program by default)");
  command->add_option("--lang", options->language, "Language of the panel")->check(CLI::IsMember({"en", "ja"}));
  command->add_flag("--shipped", options->shipped, "Convert the rigs that come with the program first");
  command->add_flag("--transcript", options->transcript, "Show every command");
  command->add_flag("--no-skelegons", options->noSkelegons, "Switch the option for making bones off");
  command->add_flag("--no-pivot", options->noPivot, "Switch the option for recording the pivot rotation off");
  command->footer("Example:\n  varnel convert --lang ja biped.lwo");
  command->callback([options, &result] { result = run(*options) ? 0 : 1; });
}

}  // namespace standin
