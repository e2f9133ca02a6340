#include <iostream>
#include <memory>

#include "objectfile/temporary_folder.h"
#include "program/host_option.h"
#include "program/shipped_rigs.h"
#include "program/subcommands.h"
#include "program/support.h"
#include "standin/layout/scene_report.h"
#include "standin/panels/text.h"
#include "standin/variants/played_host.h"

namespace standin {
namespace {

struct ConvertOptions {
  std::vector<std::string> files;
  std::string module;
  HostWords host;
  std::string language = "en";
  bool shipped = false;
  bool transcript = false;
  bool noSkelegons = false;
  bool noPivot = false;
};

// What the user of the panel does: opens the tool, sets the options and presses the button.
void runTool(LayoutHost& host, ModuleFile& module, const ConvertOptions& options) {
  const Panel& panel = openTool(host, module, kConversionTool);
  if (options.noSkelegons) must(person::switchTo(panel.find(ControlKind::Bool, 0), false));
  if (options.noPivot) must(person::switchTo(panel.find(ControlKind::Bool, 1), false));
  std::cout << "panel\n";
  indent(panelText(panel));
  must(person::press(panel.find(ControlKind::Button, 0)));
}

void convertFile(const std::string& file, const ConvertOptions& options) {
  std::cout << "== " << fileNameOf(file) << std::endl;
  PlayedLayout host(options.host.options());
  host.setLocale(localeOf(options.language));
  std::string why;
  const std::vector<Item*> items = host.loadObject(file, &why);
  if (items.empty()) throw Trouble{why};
  host.select(items);
  std::cout << "before\n";
  indent(sceneReport(host.scene()));

  ModuleFile module;
  loadModule(module, options.module);
  runTool(host, module, options);

  const Transcript& transcript = host.transcript();
  if (options.transcript) {
    std::cout << "transcript\n";
    indent(transcript.text());
  }
  std::cout << "after\n";
  indent(sceneReport(host.scene()));
  const std::size_t refused = transcript.count(EventKind::Rejected) + transcript.count(EventKind::Asked);
  std::cout << "commands: " << transcript.commandCount() << " sent, " << refused << " refused\n";
  endSession(module);
}

int run(const ConvertOptions& options) {
  const TemporaryFolder folder;
  std::vector<std::string> files;
  int result = reporting([&] {
    if (options.shipped) files = writeShippedRigs(folder.path());
    files.insert(files.end(), options.files.begin(), options.files.end());
    if (files.empty()) throw Trouble{"no files; name some, or give --shipped"};
  });
  for (const std::string& file : files) result |= reporting([&] { convertFile(file, options); });
  return result;
}

}  // namespace

Command convertCommand() {
  const auto options = std::make_shared<ConvertOptions>();
  return {
      .name = "convert",
      .text = "Convert the skelegons of object files to bones, as in Layout",
      .options =
          {
              {"files", &options->files, "Object files"},
              moduleOption(options->module),
              hostOption(options->host),
              languageOption(&options->language, "Language of the panel"),
              {"--shipped", &options->shipped, "Convert the rigs that come with the program first"},
              {"--transcript", &options->transcript, "Show every command"},
              {"--no-skelegons", &options->noSkelegons, "Switch the option for making bones off"},
              {"--no-pivot", &options->noPivot, "Switch the option for recording the pivot rotation off"},
          },
      .footer = "Example:\n  varnel convert --lang ja biped.lwo",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
