// The subcommands that show windows, where the system has none that the stand-in knows to use.
#include <CLI/CLI.hpp>
#include <iostream>

#include "standin/program/desk.h"
#include "standin/program/pictures.h"

namespace standin {
namespace {

void addRefusal(CLI::App& app, const char* name, const char* what, int& result) {
  CLI::App* const command = app.add_subcommand(name, std::string(what) + " (needs Windows)");
  command->allow_extras();
  command->callback([name, &result] {
    std::cerr << "varnel " << name << " needs the Windows build of this program; it runs under Wine too\n";
    result = 2;
  });
}

}  // namespace

void addDeskCommand(CLI::App& app, int& result) {
  addRefusal(app, "desk", "Open an object and use the tools in real windows", result);
}

void addPicturesCommand(CLI::App& app, int& result) {
  addRefusal(app, "pictures", "Write pictures of the tools' panels as real windows", result);
}

}  // namespace standin
