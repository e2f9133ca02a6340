// The table of commands: what each takes, what it is for and what it does.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "standin/layout/command_arguments.h"
#include "standin/layout/layout_state.h"

namespace standin {

// Which of the selected items a command works on. All of them must be of the kind.
enum class CommandTarget { None, Item, Bone, Object };

// Empty when done, else why the command is rejected.
using Rejection = std::string;

// An action that begins with this would have asked the user; the rest is what for.
inline constexpr std::string_view kAsksUser = "?";

struct CommandRow {
  std::string name;
  CommandTarget target = CommandTarget::None;
  std::vector<ArgumentRule> arguments;
  // Called once for each selected item, or once with null for the target `none`.
  std::function<Rejection(LayoutState&, Item*, const Arguments&)> act;
};

const std::unordered_map<std::string_view, const CommandRow*>& commandTable();

}  // namespace standin
