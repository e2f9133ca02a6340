#include <iostream>
#include <memory>

#include "program/host_option.h"
#include "program/rig_tool_support.h"
#include "program/subcommands.h"
#include "rigs/report.h"
#include "standin/panels/panel.h"
#include "standin/variants/played_host.h"

namespace standin {
namespace {

struct CommandsOptions {
  std::string file;
  std::string module;
  HostWords host;
  std::string language = "en";
  bool noSkelegons = false;
  bool noPivot = false;
  bool json = false;
};

void pressRun(LayoutHost& host, ModuleFile& module, const CommandsOptions& options) {
  const Panel& panel = openTool(host, module, kConversionTool);
  if (options.noSkelegons) must(person::switchTo(panel.find(ControlKind::Bool, 0), false));
  if (options.noPivot) must(person::switchTo(panel.find(ControlKind::Bool, 1), false));
  must(person::press(panel.find(ControlKind::Button, 0)));
}

std::vector<rigs::SentCommand> sentCommands(const Transcript& transcript) {
  std::vector<rigs::SentCommand> commands;
  for (const Event& event : transcript.events()) {
    switch (event.kind) {
      case EventKind::Command: commands.push_back({event.text, "accepted", {}}); break;
      case EventKind::Rejected: commands.push_back({event.text, "rejected", event.why}); break;
      case EventKind::Asked: commands.push_back({event.text, "asked", event.why}); break;
      case EventKind::Status: break;
    }
  }
  return commands;
}

void print(const std::vector<rigs::SentCommand>& commands) {
  for (const rigs::SentCommand& command : commands) std::cout << command.text << "\n";
  std::cout.flush();
  for (const rigs::SentCommand& command : commands) {
    if (command.result == "accepted") continue;
    std::cerr << "varnel: not done by Layout: " << command.text << " (" << command.why << ")\n";
  }
}

int run(const CommandsOptions& options) {
  return exitCodeOf([&] {
    PlayedLayout host(options.host.options());
    host.setLocale(localeOf(options.language));
    std::string why;
    const std::vector<Item*> items = host.loadObject(options.file, &why);
    if (items.empty()) throw Trouble{why.empty() ? options.file + ": the object has no layer" : why};
    host.select(items);
    ModuleFile module;
    loadModule(module, options.module);
    pressRun(host, module, options);
    const std::vector<rigs::SentCommand> commands = sentCommands(host.transcript());
    if (options.json) {
      std::cout << rigs::commandsJson(commands);
    } else {
      print(commands);
    }
    endSession(module);
    return 0;
  });
}

}  // namespace

Command commandsCommand() {
  const auto options = std::make_shared<CommandsOptions>();
  return {
      .name = "commands",
      .text = "Print the commands that a conversion sends to Layout",
      .options =
          {
              {"file", &options->file, "Object file", {.isRequired = true}},
              moduleOption(options->module),
              hostOption(options->host),
              languageOption(&options->language, "Language of Layout"),
              {"--no-skelegons", &options->noSkelegons, "Switch the option for making bones off"},
              {"--no-pivot", &options->noPivot, "Switch the option for recording the pivot rotation off"},
              {"--json", &options->json, "Print JSON, with what became of each command"},
          },
      .footer =
          "The module itself sends them, with every layer of the object selected, to the Layout that this program plays. "
          "Commands\n"
          "that Layout did not do are named on the error output. Exit codes: 0; 2 when there is nothing to show.\n"
          "Examples:\n"
          "  varnel commands biped.lwo\n"
          "  varnel commands --no-pivot --json biped.lwo > commands.json",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
