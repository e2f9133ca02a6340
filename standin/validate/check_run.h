// What a check knows of its run and how it tells what it sees, inside the process that is its own.
//
// Everything is written at once to a log file, so that the runner knows how far a process came that crashed or was ended.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

#include "standin/variants/variants.h"

namespace standin::validate {

// What the runner asks of a check's process.
struct Order {
  std::string check;
  std::string module;      // UTF-8 path
  std::string folder;      // for files; empties itself when the run ends
  std::string log;         // where to tell
  std::uint64_t seed = 1;  // of everything random
  double share = 1;        // of the long checks, above 0 up to 1
  HostChoice host = {};    // where everything is played
  std::uint64_t from = 0;  // the first step to do: those before are done, or ended the process before this one
};

// Thrown by step() when the process has done its share of steps. The runner goes on with a fresh one.
struct Pause {
  std::uint64_t next;
};

class CheckRun {
 public:
  explicit CheckRun(const Order& order);
  CheckRun(const CheckRun&) = delete;
  CheckRun& operator=(const CheckRun&) = delete;

  const std::string& module() const { return order_.module; }
  std::uint64_t seed() const { return order_.seed; }
  const HostChoice& host() const { return order_.host; }
  std::uint64_t from() const { return order_.from; }
  // A path in the folder for files.
  std::string file(std::string_view name) const { return order_.folder + "/" + std::string(name); }
  // So many of the whole as the run's share comes to, but not less than the least.
  std::size_t shareOf(std::size_t whole, std::size_t least = 1) const;
  // For a loop without a known end: the distance between two steps that are done.
  std::uint64_t stride() const;

  // Step n begins: one case. What follows, a crash as well, belongs to it. Steps are counted from 0 and must come in order.
  // False when the step is to be left out. Throws Pause when enough was done in one process: the stand-in never forgets what
  // it handed out, so a process grows with its sessions.
  [[nodiscard]] bool step(std::uint64_t n, std::string_view what);
  // What is being done within the step.
  void at(std::string_view what);
  // Adds to the count of cases that the steps are.
  void cases(std::uint64_t count) { cases_ += count; }
  // A fault was put in the module's way.
  void injected(std::uint64_t count = 1) { injected_ += count; }

  void fail(std::string_view why);
  // As fail, unless `why` is empty.
  void judge(std::string_view why) {
    if (!why.empty()) fail(why);
  }
  // The check does not apply here.
  void skip(std::string_view why);
  // Worth knowing, for the report.
  void note(std::string_view text);
  // The check came to its end, or to a pause.
  void end();
  void pause(const Pause& pause);

 private:
  void tell(std::string_view word, std::string_view text);

  const Order& order_;
  std::ofstream log_;
  std::uint64_t steps_ = 0;
  std::uint64_t cases_ = 0;
  std::uint64_t injected_ = 0;
};

// Runs the ordered check in this process. Gives the exit code: 0 when it came to its end, whatever it found.
int runCheckHere(const Order& order);

}  // namespace standin::validate
