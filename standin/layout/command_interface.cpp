#include "standin/layout/command_interface.h"

#include <algorithm>
#include <utility>

#include "standin/layout/command_table.h"

namespace standin {
namespace {

Event outcome(std::string_view command, const Rejection& why) {
  if (why.empty()) return {EventKind::Command, std::string(command), {}, {}};
  if (why.starts_with(kAsksUser)) return {EventKind::Asked, std::string(command), why.substr(kAsksUser.size()), {}};
  return {EventKind::Rejected, std::string(command), why, {}};
}

std::string namedItem(const LayoutState& state, const Arguments& arguments) {
  if (!state.transcript.isRecording()) return {};
  const auto named = std::find_if(arguments.begin(), arguments.end(), [](const Argument& a) { return a.item != nullptr; });
  return named == arguments.end() ? std::string() : state.scene.nameOf(*named->item);
}

bool fits(const Item& item, CommandTarget target) {
  switch (target) {
    case CommandTarget::Bone: return item.kind == ItemKind::Bone;
    case CommandTarget::Object: return item.kind == ItemKind::Object;
    default: return true;
  }
}

Rejection act(LayoutState& state, const CommandRow& row, const Arguments& arguments) {
  if (row.target == CommandTarget::None) return row.act(state, nullptr, arguments);
  const std::vector<Item*> selection = state.scene.selection();
  if (selection.empty()) return "nothing is selected";
  if (!std::all_of(selection.begin(), selection.end(), [&](const Item* item) { return fits(*item, row.target); })) {
    return row.target == CommandTarget::Bone ? "the selection is not of bones" : "the selection is not of objects";
  }
  for (Item* item : selection) {
    Rejection why = row.act(state, item, arguments);
    if (!why.empty()) return why;
  }
  return {};
}

// `item` becomes the name that the item had when the command came.
Rejection run(LayoutState& state, std::string_view command, std::string& item) {
  const std::size_t end = std::min(command.find(' '), command.size());
  const auto found = commandTable().find(command.substr(0, end));
  if (found == commandTable().end()) return "unknown command";
  Arguments arguments;
  if (const auto failure = readArguments(state.scene, found->second->arguments, command.substr(end), arguments)) {
    return (failure->missing ? std::string(kAsksUser) : std::string()) + failure->why;
  }
  item = namedItem(state, arguments);
  return act(state, *found->second, arguments);
}

}  // namespace

bool runCommand(LayoutState& state, std::string_view command) {
  std::string item;
  const Rejection why = run(state, command, item);
  Event event = outcome(command, why);
  event.item = std::move(item);
  state.transcript.add(std::move(event));
  if (!why.empty()) return false;
  if (state.watch) state.watch(state, command);
  if (const auto otherPlugin = state.scene.options().otherPlugin) otherPlugin(state.scene, command);
  return true;
}

}  // namespace standin
