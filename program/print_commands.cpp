#include <iostream>
#include <memory>

#include "program/conversion.h"
#include "program/sent_commands.h"
#include "program/subcommands.h"
#include "rigs/report.h"

namespace standin {
namespace {

struct CommandsOptions {
  std::string file;
  ConversionOptions conversion;
  bool json = false;
};

// The commands are data; what became of them goes to the error output.
void print(const std::vector<rigs::SentCommand>& commands) {
  for (const rigs::SentCommand& command : commands) std::cout << withItemName(command.text, command.item) << "\n";
  std::cout.flush();
  for (const rigs::SentCommand& command : commands) {
    if (command.result == "accepted") continue;
    std::cerr << "varnel: not done by Layout: " << command.text << " (" << command.why << ")\n";
  }
}

int run(const CommandsOptions& options) {
  return exitCodeOf([&] {
    Progress progress;
    Conversion conversion(options.file, options.conversion, progress);
    conversion.open();
    const ConversionVerdict verdict = conversion.run(progress);
    const std::vector<rigs::SentCommand> commands = sentCommands(conversion.host().transcript());
    if (options.json) {
      std::cout << rigs::commandsJson(commands) << std::flush;
    } else {
      print(commands);
    }
    std::cerr << verdictText(verdict);
    conversion.end();
    return verdict.isSound() ? 0 : kNotAllWell;
  });
}

}  // namespace

Command commandsCommand() {
  const auto options = std::make_shared<CommandsOptions>();
  std::vector<CommandOption> rows = {{"file", &options->file, "Object file", {.isRequired = true}}};
  for (CommandOption& row : conversionOptions(options->conversion, "Language of Layout")) rows.push_back(std::move(row));
  rows.push_back({"--json", &options->json, "Print JSON, with what became of each command"});
  return {
      .name = "commands",
      .text = "Print the commands that a conversion sends to Layout",
      .options = std::move(rows),
      .footer =
          "The module itself sends them, with every layer of the object selected, to the Layout that this program plays. "
          "Behind\n"
          "the number of an item stands its name. Commands that Layout did not do, and the verdict, go to the error output. "
          "Exit\n"
          "codes: 0 all went well; 1 something did not, as the verdict says; 2 there is nothing to show.\n"
          "Examples:\n"
          "  varnel commands rigs/lizard.lwo\n"
          "  varnel commands --no-pivot --json rigs/lizard.lwo > commands.json",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
