// varnel hosts: the table of what hosts may differ in.
#pragma once

namespace CLI {
class App;
}

namespace standin {

// Adds the subcommand. Its run leaves 0 in `result`.
void addHostsCommand(CLI::App& app, int& result);

}  // namespace standin
