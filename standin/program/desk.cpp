#include "standin/program/desk.h"

#include <CLI/CLI.hpp>

#include "standin/objectfile/sample_rigs.h"
#include "standin/program/host_option.h"
#include "standin/program/support.h"
#include "standin/variants/played_host.h"
#include "standin/windows/desk_window.h"

namespace standin {
namespace {

struct DeskOptions {
  std::string file;
  std::string module;
  HostWords host;
  std::string language = "en";
};

void openObject(ModelerHost& host, const std::string& file) {
  if (file.empty()) {
    host.add(makeDemoRig());
  } else if (const auto object = host.open(file); !object) {
    throw Trouble{object.why()};
  }
  std::vector<int> numbers;
  for (const MeshLayer& layer : host.current()->layers()) numbers.push_back(layer.number);
  host.showLayers(numbers);
}

int run(const DeskOptions& options) {
  return reporting([&] {
    PlayedModeler host(options.host.options());
    host.options().localeInfo = localeOf(options.language);
    openObject(host, options.file);
    ModuleFile module;
    loadModule(module, options.module);
    {
      WindowsFront front;
      DeskWindow desk(host, module, front);
      front.runUntil([&] {
        desk.refresh();
        return desk.isOver();
      });
    }
    endSession(module);
  });
}

}  // namespace

void addDeskCommand(CLI::App& app, int& result) {
  CLI::App* const command = app.add_subcommand("desk", "Open an object and use the tools in real windows (Windows only)");
  const auto options = std::make_shared<DeskOptions>();
  command->add_option("file", options->file, "Object file (a rig that comes with the program by default)");
  command->add_option("--module", options->module, "The module's file (the one beside this program by default)");
  addHostOption(*command, options->host);
  command->add_option("--lang", options->language, "Language of the panels")->check(CLI::IsMember({"en", "ja"}));
  command->footer("Example:\n  varnel desk biped.lwo");
  command->callback([options, &result] { result = run(*options); });
}

}  // namespace standin
