// The rigs that come with the program, and the subcommand that writes them as files.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace standin {

// Writes the rigs into a folder that exists; their paths. Throws Trouble.
std::vector<std::string> writeShippedRigs(const std::string& folder);

void addRigsCommand(CLI::App& app, int& result);

}  // namespace standin
