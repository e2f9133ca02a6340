#include "standin/program/host_option.h"

#include <CLI/CLI.hpp>

#include "standin/program/support.h"

namespace standin {

HostChoice HostWords::choice() const {
  HostChoice choice;
  for (const std::string& word : words) {
    if (const std::string refusal = choice.take(word); !refusal.empty()) throw Trouble{refusal};
  }
  return choice;
}

void addHostOption(CLI::App& command, HostWords& host) {
  command.add_option("--host", host.words, "NAME=VALUE, a host that differs in this; \"varnel hosts\" lists them all")
      ->allow_extra_args(false)  // what follows is no host any more
      ->check([](const std::string& word) { return HostChoice().take(word); });
}

}  // namespace standin
