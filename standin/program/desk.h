// varnel desk: a person opens an object, uses the module's Modeler tools in real windows, and saves.
#pragma once

namespace CLI {
class App;
}

namespace standin {

// Adds the subcommand; where panels cannot be shown as windows it only says so. Its run leaves the exit code in `result`.
void addDeskCommand(CLI::App& app, int& result);

}  // namespace standin
