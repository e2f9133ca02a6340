#include <iostream>
#include <memory>

#include "program/host_facts.h"
#include "program/subcommands.h"
#include "program/support.h"

namespace standin {
namespace {

// Nothing is printed unless all files can be read.
int run(const std::vector<std::string>& files) {
  return reporting([&] {
    std::string text;
    for (const std::string& file : files) {
      const Outcome<HostFacts> facts = readHostFacts(file);
      if (!facts) throw Trouble{facts.why()};
      text.append(text.empty() ? "" : "\n").append(file).append("\n").append(hostFactsText(*facts));
    }
    std::cout << text;
  });
}

}  // namespace

Command hostCommand() {
  const auto files = std::make_shared<std::vector<std::string>>();
  return {
      .name = "host",
      .text = "Show what a file of facts tells of a host",
      .options = {{"files", files.get(), "Files that varnel-probe has written", {.isRequired = true}}},
      .footer =
          "The module varnel-probe measures in a host what this program can only assume, and writes a file of facts. First "
          "comes\n"
          "what differs, and what Varnel does about it. The option --host of other commands plays such a host: --host "
          "layout.json.\n"
          "Exit codes: 0; 2 trouble.",
      .run = [files] { return run(*files); },
  };
}

}  // namespace standin
