// varnel validate: the ladder of checks against a module's file.
#pragma once

namespace CLI {
class App;
}

namespace standin {

// Leaves the exit code in `result`: 0 sound, 1 something was found, 2 nothing could be checked. Adds the hidden subcommand
// that runs a single check as well, for the processes of their own.
void addValidateCommand(CLI::App& app, int& result);

}  // namespace standin
