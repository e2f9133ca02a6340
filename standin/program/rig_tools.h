// The subcommands that look into rigs: inspect, commands, diff, export and import. Exit codes: 0, 1 where a command says so,
// and 2 when a file cannot be read or written.
#pragma once

namespace CLI {
class App;
}

namespace standin {

void addInspectCommand(CLI::App& app, int& result);
void addCommandsCommand(CLI::App& app, int& result);
void addDiffCommand(CLI::App& app, int& result);
void addExportCommand(CLI::App& app, int& result);
void addImportCommand(CLI::App& app, int& result);

}  // namespace standin
