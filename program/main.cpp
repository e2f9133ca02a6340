// The program `varnel`: the stand-in host on the command line.
#include "program/run_program.h"
#include "program/subcommands.h"
#include "program/utf8_arguments.h"

namespace {

standin::Program varnel() {
  using namespace standin;
  return {
      .text = "Plays the host for the Varnel module, on machines without the host.",
      .version = std::to_string(VARNEL_VERSION_MAJOR) + "." + std::to_string(VARNEL_VERSION_MINOR),
      .commands = {convertCommand(), tripCommand(), panelsCommand(), renameCommand(), picturesCommand(), deskCommand(),
                   rigsCommand(), inspectCommand(), commandsCommand(), diffCommand(), exportCommand(), importCommand(),
                   pictureCommand(), reportCommand(), validateCommand(), validateCheckCommand(), hostsCommand(),
                   hostCommand(), probeCommand()},
  };
}

}  // namespace

int main(int argc, char** argv) {
  standin::useUtf8Streams();
  return standin::runProgram([&] { return standin::runCommandLine(varnel(), standin::utf8Arguments(argc, argv)); });
}
