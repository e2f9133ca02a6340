#include "program/host_option.h"

#include "program/support.h"

namespace standin {

HostChoice HostWords::choice() const {
  HostChoice choice;
  for (const std::string& word : words) {
    if (const std::string refusal = choice.take(word); !refusal.empty()) throw Trouble{refusal};
  }
  return choice;
}

CommandOption hostOption(HostWords& host) {
  return {"--host",
          &host.words,
          "NAME=VALUE, a host that differs in this; \"varnel hosts\" lists them all",
          {.refusal = [](const std::string& word) { return HostChoice().take(word); }}};
}

}  // namespace standin
