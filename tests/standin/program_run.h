// The built program, started as a user starts it: with words, from a folder, its two streams apart.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#if !defined(_WIN32)
#include <sys/wait.h>
#endif

#include "objectfile/file_bytes.h"
#include "objectfile/temporary_folder.h"
#include "standin/core/program_folder.h"

namespace standin {

// Sets a variable of the environment while it lives, for the programs that are started meanwhile.
class Environment {
 public:
  Environment(std::string name, const std::string& value) : name_(std::move(name)) {
    const char* const before = std::getenv(name_.c_str());
    wasSet_ = before != nullptr;
    if (wasSet_) before_ = before;
    set(value);
  }
  ~Environment() { set(before_); }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

 private:
  void set(const std::string& value) const {
#if defined(_WIN32)
    _putenv_s(name_.c_str(), value.c_str());
#else
    setenv(name_.c_str(), value.c_str(), 1);
#endif
  }

  std::string name_;
  std::string before_;
  bool wasSet_ = false;
};

class ProgramRun : public testing::Test {
 protected:
  // Runs "varnel WORDS", words of plain letters; the exit code. `errors` is where the error stream goes instead.
  int run(const std::vector<std::string>& words, const std::string& errors = {}) {
    const std::string out = folder_.file("out.txt");
    const std::string error = folder_.file("error.txt");
    // The test programs lie in a folder below the program's.
    const std::filesystem::path program = pathFromUtf8(programFolder()).parent_path() / VARNEL_PROGRAM;
    std::string line = quoted(utf8Of(program));
    for (const std::string& word : words) line += ' ' + quoted(word);
    line += " >" + quoted(out) + " 2>" + quoted(errors.empty() ? error : errors);
    const int result = exitCode(line);
    out_ = textOf(out);
    error_ = errors.empty() ? textOf(error) : std::string();
    return result;
  }

  TemporaryFolder folder_;
  std::string out_;
  std::string error_;

 private:
  static std::string textOf(const std::string& file) {
    const Outcome<std::string> text = readFileBytes(file);
    return text ? *text : std::string();
  }

#if defined(_WIN32)
  static std::string quoted(const std::string& word) { return '"' + word + '"'; }
  static int exitCode(const std::string& line) { return std::system(('"' + line + '"').c_str()); }
#else
  static std::string quoted(const std::string& word) { return '\'' + word + '\''; }
  static int exitCode(const std::string& line) {
    const int status = std::system(line.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
#endif
};

}  // namespace standin
