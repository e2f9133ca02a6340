// The built program, started from lines as they are typed into a shell, in a folder of its own.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>

#ifndef _WIN32
#include <sys/wait.h>
#endif

#include "objectfile/file_bytes.h"
#include "objectfile/temporary_folder.h"
#include "standin/core/program_folder.h"

namespace standin {

// Where "varnel" can be called from any folder.
inline void putProgramOnPath() {
  // The test programs lie in a folder below the program's.
  const std::filesystem::path folder = pathFromUtf8(programFolder()).parent_path();
  static bool isDone = false;
  if (isDone) return;
  isDone = true;
  const char* const before = std::getenv("PATH");
#ifdef _WIN32
  _putenv_s("PATH", (folder.string() + ";" + (before == nullptr ? "" : before)).c_str());
#else
  setenv("PATH", (folder.string() + ":" + (before == nullptr ? "" : before)).c_str(), 1);
#endif
}

class TypedLines : public testing::Test {
 protected:
  TypedLines() : before_(std::filesystem::current_path()) {
    putProgramOnPath();
    std::filesystem::current_path(pathFromUtf8(folder_.path()));
  }
  ~TypedLines() override { std::filesystem::current_path(before_); }
  TypedLines(const TypedLines&) = delete;
  TypedLines& operator=(const TypedLines&) = delete;

  // The line's exit code; what it printed is in `out` and `error`.
  int type(const std::string& line) {
    const std::string outFile = streams_.file("out.txt");
    const std::string errorFile = streams_.file("error.txt");
    write(outFile, "");
#ifdef _WIN32
    // Not every shell of this system takes brackets, so that a line's own ">" stands alone.
    const bool goesElsewhere = line.find('>') != std::string::npos;
    const std::string whole = line + (goesElsewhere ? "" : " >\"" + outFile + "\"") + " 2>\"" + errorFile + "\"";
    const int code = std::system(whole.c_str());
#else
    const std::string whole = "(" + line + ") >\"" + outFile + "\" 2>\"" + errorFile + "\"";
    const int status = std::system(whole.c_str());
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
    out = *readFileBytes(outFile);
    error = *readFileBytes(errorFile);
    return code;
  }

  // Expects that the line ends with 2, having said why in one line.
  void expectRefused(const std::string& line, const std::string& why) {
    EXPECT_EQ(type(line), 2) << line << "\n" << out << error;
    EXPECT_THAT(error, testing::HasSubstr(why)) << line;
    EXPECT_EQ(std::count(error.begin(), error.end(), '\n'), 1) << line << "\n" << error;
    EXPECT_THAT(error, testing::StartsWith("varnel: ")) << line;
  }

  void makeRigs() { ASSERT_EQ(type("varnel rigs rigs"), 0) << out << error; }

  static std::string bytesOf(const std::string& path) {
    const Outcome<std::string> bytes = readFileBytes(path);
    return bytes ? *bytes : bytes.why();
  }
  static void write(const std::string& path, const std::string& bytes) { EXPECT_FALSE(writeFileBytes(path, bytes)); }

  std::string out;
  std::string error;

 private:
  TemporaryFolder folder_;
  TemporaryFolder streams_;
  std::filesystem::path before_;
};

}  // namespace standin
