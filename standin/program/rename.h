// varnel rename: the renamer at work, as a rigger uses its panel: skelegon trees before and after.
#pragma once

namespace CLI {
class App;
}

namespace standin {

// Adds the subcommand. Its run leaves the exit code in `result`: 0 done, 1 something went wrong.
void addRenameCommand(CLI::App& app, int& result);

}  // namespace standin
