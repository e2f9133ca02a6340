#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstring>
#include <thread>

#include "standin/validate/child_process.h"

namespace standin::validate {

struct ChildProcess::System {
  pid_t id = 0;  // 0: not running
};

ChildProcess::ChildProcess(const std::string& program, const std::vector<std::string>& arguments,
                           const std::string& outputFile)
    : system_(std::make_unique<System>()) {
  std::vector<std::string> words{program};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, outputFile.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
  posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
  const int error = posix_spawn(&system_->id, program.c_str(), &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) {
    system_->id = 0;
    why_ = program + " cannot be started: " + std::strerror(error);
  }
}

ChildProcess::~ChildProcess() { end(); }

std::optional<ProcessEnd> ChildProcess::wait(int milliseconds) {
  const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  while (system_->id != 0) {
    int status = 0;
    if (waitpid(system_->id, &status, WNOHANG) == system_->id) {
      system_->id = 0;
      if (WIFSIGNALED(status)) {
        const int number = WTERMSIG(status);
        return ProcessEnd{false, number, "signal " + std::to_string(number) + " (" + strsignal(number) + ")"};
      }
      return ProcessEnd{true, WEXITSTATUS(status), "exit code " + std::to_string(WEXITSTATUS(status))};
    }
    if (std::chrono::steady_clock::now() >= until) return std::nullopt;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return ProcessEnd{};
}

void ChildProcess::end() {
  if (system_->id == 0) return;
  kill(system_->id, SIGKILL);
  waitpid(system_->id, nullptr, 0);
  system_->id = 0;
}

void dieQuietly() {
  const rlimit none{0, 0};
  setrlimit(RLIMIT_CORE, &none);
}

}  // namespace standin::validate
