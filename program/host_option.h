// The option --host of every command that plays a host.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "program/command_line.h"
#include "standin/variants/variants.h"

namespace standin {

// What was typed, and the host that it is: NAME=VALUE, or a file of facts. What follows later wins.
class HostWords {
 public:
  // Read at the first call. What a file tells and is not played goes to the error output then. Throws Trouble.
  const HostChoice& choice() const;
  HostOptions options() const { return choice().options(); }

 private:
  friend CommandOption hostOption(HostWords& host);

  std::vector<std::string> words_;
  mutable std::optional<HostChoice> choice_;
};

// May be given several times. Words that are no host are refused with what there is, damaged files as a whole.
CommandOption hostOption(HostWords& host);

}  // namespace standin
