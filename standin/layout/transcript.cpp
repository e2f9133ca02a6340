#include "standin/layout/transcript.h"

#include "standin/layout/number_text.h"

namespace standin {
namespace {

bool isCommand(const Event& event) {
  return event.kind == EventKind::Command || event.kind == EventKind::Rejected || event.kind == EventKind::Asked;
}

bool isShownOnStatusLine(const Event& event) {
  return event.kind == EventKind::Command && event.text.starts_with("StatusMsg");
}

std::string line(const Event& event) {
  const std::string command = withItemName(event.text, event.item);
  switch (event.kind) {
    case EventKind::Command: return "  " + command;
    case EventKind::Rejected: return "! " + command + "  -- rejected: " + event.why;
    case EventKind::Asked: return "? " + command + "  -- would ask the user: " + event.why;
    case EventKind::Status:
      return "| " + (event.progress ? fixedText(*event.progress * 100, 0) + " % " : std::string()) + event.text;
  }
  return {};
}

}  // namespace

std::string withItemName(const std::string& command, const std::string& item) {
  return item.empty() ? command : command + "  -- " + item;
}

void Transcript::add(Event event) {
  ++counts_[static_cast<std::size_t>(event.kind)];
  if (recording_) events_.push_back(std::move(event));
}

void Transcript::clear() {
  events_.clear();
  counts_ = {};
}

std::vector<std::string> Transcript::texts(EventKind kind) const {
  std::vector<std::string> texts;
  for (const Event& event : events_) {
    if (event.kind == kind) texts.push_back(event.text);
  }
  return texts;
}

std::vector<std::string> Transcript::commands() const {
  std::vector<std::string> commands;
  for (const Event& event : events_) {
    if (isCommand(event)) commands.push_back(event.text);
  }
  return commands;
}

std::string Transcript::text() const {
  std::string text;
  for (const Event& event : events_) {
    if (!isShownOnStatusLine(event)) text += line(event) + '\n';
  }
  return text;
}

}  // namespace standin
