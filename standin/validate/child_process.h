// Processes of the checks: started, watched, ended. One implementation for each system.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace standin::validate {

// How a process came to its end.
struct ProcessEnd {
  bool ofItself = true;  // it gave an exit code
  int code = 0;
  std::string how;  // "exit code 3", "signal 11 (Segmentation fault)", "exception 0xc0000005"
};

class ChildProcess {
 public:
  // Starts the program (UTF-8 path) with the arguments; what it prints goes to the file. Check `why` then: empty when
  // started.
  ChildProcess(const std::string& program, const std::vector<std::string>& arguments, const std::string& outputFile);
  // Ends the process if it still runs.
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  const std::string& why() const { return why_; }
  // Waits up to so many milliseconds for its end. Empty while it runs.
  std::optional<ProcessEnd> wait(int milliseconds);
  void end();

 private:
  struct System;
  std::unique_ptr<System> system_;
  std::string why_;
};

// For a process that may crash: no dialogue, no core file, no debugger; only its end.
void dieQuietly();

}  // namespace standin::validate
