#include "standin/program/hosts.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "standin/variants/variants.h"

namespace standin {

void addHostsCommand(CLI::App& app, int& result) {
  CLI::App* const command = app.add_subcommand("hosts", "List what hosts may differ in, for the option --host");
  const auto markdown = std::make_shared<bool>(false);
  command->add_flag("--markdown", *markdown, "Print the tables of docs/stand-in.md");
  command->footer(
      "The first value of each is the default.\nExample:\n  varnel hosts\n  varnel trip --host new-bones=selected");
  command->callback([markdown, &result] {
    std::cout << (*markdown ? variantsPage() : variantsText());
    result = 0;
  });
}

}  // namespace standin
