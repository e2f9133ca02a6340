// The program `varnel`: the stand-in host on the command line.
#include <CLI/CLI.hpp>
#include <algorithm>

#include "standin/program/convert.h"
#include "standin/program/desk.h"
#include "standin/program/hosts.h"
#include "standin/program/pictures.h"
#include "standin/program/rename.h"
#include "standin/program/rig_tools.h"
#include "standin/program/shipped_rigs.h"
#include "standin/program/support.h"
#include "standin/program/trip.h"
#include "standin/program/utf8_arguments.h"
#include "standin/program/validate.h"

namespace {

// In the order of the help.
constexpr void (*kCommands[])(CLI::App&, int&) = {
    &standin::addConvertCommand,  &standin::addTripCommand,  &standin::addPanelsCommand, &standin::addRenameCommand,
    &standin::addPicturesCommand, &standin::addDeskCommand,  &standin::addRigsCommand,   &standin::addInspectCommand,
    &standin::addCommandsCommand, &standin::addDiffCommand,  &standin::addExportCommand, &standin::addImportCommand,
    &standin::addValidateCommand, &standin::addHostsCommand,
};

}  // namespace

int main(int argc, char** argv) {
  standin::useUtf8Streams();
  CLI::App app{"Plays the host for the Varnel module, on machines without the host.", "varnel"};
  app.require_subcommand(1);
  app.allow_windows_style_options(false);  // a path may begin with a slash
  app.set_help_all_flag("--help-all", "Print the help of every command and exit");
  app.set_version_flag("--version", std::to_string(VARNEL_VERSION_MAJOR) + "." + std::to_string(VARNEL_VERSION_MINOR));
  int result = 0;
  for (const auto addCommand : kCommands) addCommand(app, result);
  std::vector<std::string> arguments = standin::utf8Arguments(argc, argv);
  std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the back
  try {
    app.parse(arguments);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : standin::kWrongUsage;
  }
  return result;
}
