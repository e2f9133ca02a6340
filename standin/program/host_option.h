// The option --host NAME=VALUE of every command that plays a host.
#pragma once

#include <string>
#include <vector>

#include "standin/variants/variants.h"

namespace CLI {
class App;
}

namespace standin {

// What was typed, and the host that it is.
struct HostWords {
  std::vector<std::string> words;

  HostChoice choice() const;
  HostOptions options() const { return choice().options(); }
};

// Adds the option, which may be given several times. Words that are no host are refused with what there is.
void addHostOption(CLI::App& command, HostWords& host);

}  // namespace standin
