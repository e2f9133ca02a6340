// The option --host NAME=VALUE of every command that plays a host.
#pragma once

#include <string>
#include <vector>

#include "program/command_line.h"
#include "standin/variants/variants.h"

namespace standin {

// What was typed, and the host that it is.
struct HostWords {
  std::vector<std::string> words;

  HostChoice choice() const;
  HostOptions options() const { return choice().options(); }
};

// May be given several times. Words that are no host are refused with what there is.
CommandOption hostOption(HostWords& host);

}  // namespace standin
