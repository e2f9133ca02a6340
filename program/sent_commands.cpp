#include "program/sent_commands.h"

#include <optional>

namespace standin {
namespace {

std::optional<rigs::SentCommand> commandOf(const Event& event) {
  switch (event.kind) {
    case EventKind::Command: return rigs::SentCommand{event.text, "accepted", {}, event.item};
    case EventKind::Rejected: return rigs::SentCommand{event.text, "rejected", event.why, event.item};
    case EventKind::Asked: return rigs::SentCommand{event.text, "asked", event.why, event.item};
    case EventKind::Status: return {};
  }
  return {};
}

}  // namespace

std::vector<rigs::SentCommand> sentCommands(const Transcript& transcript) {
  std::vector<rigs::SentCommand> commands;
  for (const Event& event : transcript.events()) {
    if (auto command = commandOf(event)) commands.push_back(std::move(*command));
  }
  return commands;
}

std::vector<views::SentToItem> sentByItem(const Transcript& transcript) {
  std::vector<views::SentToItem> turns(1);
  for (const Event& event : transcript.events()) {
    if (event.progress) turns.emplace_back();
    views::SentToItem& turn = turns.back();
    if (turn.item.empty() && event.text.starts_with("SelectItem")) turn.item = event.item;
    if (auto command = commandOf(event)) turn.commands.push_back(std::move(*command));
  }
  std::erase_if(turns, [](const views::SentToItem& turn) { return turn.commands.empty(); });
  return turns;
}

}  // namespace standin
