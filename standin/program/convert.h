// varnel convert: loads object files into the stand-in Layout, lets the module convert them, and shows before and after.
#pragma once

namespace CLI {
class App;
}

namespace standin {

// Adds the subcommand. Its run leaves the exit code in `result`: 0 done, 1 something went wrong.
void addConvertCommand(CLI::App& app, int& result);

}  // namespace standin
