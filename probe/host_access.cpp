#include "probe/host_access.h"

#include <cstdint>
#include <optional>

#include "host/platform.h"

namespace probe {
namespace {

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

}  // namespace

const char* nameOf(Program program) { return program == Program::Modeler ? "Modeler" : "Layout"; }

void* Host::found(const char* name) const {
  void* const table = global == nullptr ? nullptr : global(name, lw::kUseTransient);
  if (table == nullptr) throw Trouble{"the host does not offer " + quoted(name)};
  return table;
}

int Host::command(const std::string& text) const {
  if (program == Program::Modeler) {
    if (evaluate == nullptr) throw Trouble{"the host takes no commands"};
    return evaluate(data, text.c_str());
  }
  // The function is the service itself.
  const auto send = reinterpret_cast<lw::CommandFunc>(found("LW Command Interface"));
  const std::optional<std::string> narrow = platform::exactNarrow(text);
  if (!narrow) throw Trouble{"the system's code page lacks a character of " + quoted(text)};
  return send(narrow->c_str());
}

void Host::mustDo(const std::string& text) const {
  const int answer = command(text);
  const bool accepted = program == Program::Modeler ? answer == 0 : answer != 0;
  if (!accepted) throw Trouble{"the host refused " + quoted(text) + " with " + std::to_string(answer)};
}

unsigned Host::number(const char* name) const {
  if (global == nullptr) return 0;
  return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(global(name, lw::kUseTransient)));
}

}  // namespace probe
