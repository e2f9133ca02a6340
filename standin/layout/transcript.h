// What happened in the stand-in Layout, in order: commands with their results, and the status line.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace standin {

enum class EventKind {
  Command,   // accepted
  Rejected,  // a command that was not; `why` says the reason
  Asked,     // a command that would have asked the user for something and so did not go on
  Status,    // a text on the status line
};

// The reason of a command that was rejected only because the witness was asked to refuse that call.
inline constexpr const char* kRefused = "refused on purpose";
// And of SkelegonsToBones for an object that has nothing to convert.
inline constexpr const char* kNoSkelegons = "the object has no skelegons";

struct Event {
  EventKind kind = EventKind::Command;
  std::string text;
  std::string why;
  std::optional<double> progress;  // of a status text: how far the progress bar is
  std::string item = {};           // of a command that names an item by its number: that item's name
};

// How a command that names an item by its number is shown: with the item's name behind it.
std::string withItemName(const std::string& command, const std::string& item);

class Transcript {
 public:
  void add(Event event);
  const std::vector<Event>& events() const { return events_; }
  void clear();
  // While recording is off, events are only counted. It is on at first.
  void record(bool on) { recording_ = on; }
  bool isRecording() const { return recording_; }

  std::size_t count(EventKind kind) const { return counts_[static_cast<std::size_t>(kind)]; }
  std::size_t commandCount() const {
    return count(EventKind::Command) + count(EventKind::Rejected) + count(EventKind::Asked);
  }
  // Texts of one kind, in order.
  std::vector<std::string> texts(EventKind kind) const;
  // Every command as it was sent, whatever became of it; a status text is listed by its command too.
  std::vector<std::string> commands() const;
  // One line for each event, with the name of the item that a command gives by its number; a status text stands for the
  // command that set it.
  std::string text() const;

 private:
  std::vector<Event> events_;
  std::array<std::size_t, 4> counts_{};
  bool recording_ = true;
};

}  // namespace standin
