// The built program, started from lines as they are typed into a shell, in a folder of its own.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#else
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
#ifdef _WIN32
    _putenv_s(name_.c_str(), value.c_str());
#else
    setenv(name_.c_str(), value.c_str(), 1);
#endif
  }

  std::string name_;
  std::string before_;
  bool wasSet_ = false;
};

#ifdef _WIN32

class ChildsFile {
 public:
  explicit ChildsFile(const std::string& path) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    handle_ = CreateFileW(pathFromUtf8(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                          CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  }
  ~ChildsFile() { CloseHandle(handle_); }
  ChildsFile(const ChildsFile&) = delete;
  ChildsFile& operator=(const ChildsFile&) = delete;
  HANDLE handle() const { return handle_; }

 private:
  HANDLE handle_;
};

// Without this system's shell, which sometimes does not wait for a program; of what it does, a ">" at the end of a line is enough.
inline int runLine(std::string line, std::string outFile, const std::string& errorFile) {
  constexpr const char* kInto = " > ";
  if (const std::size_t at = line.find(kInto); at != std::string::npos) {
    outFile = line.substr(at + 3);
    line.erase(at);
  }
  const ChildsFile out(outFile);
  const ChildsFile error(errorFile);
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = out.handle();
  start.hStdError = error.handle();
  PROCESS_INFORMATION process = {};
  std::wstring words = pathFromUtf8(line).wstring();
  if (!CreateProcessW(nullptr, words.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process)) return -1;
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(code);
}

#else

inline int runLine(const std::string& line, const std::string& outFile, const std::string& errorFile) {
  const int status = std::system(("(" + line + ") >'" + outFile + "' 2>'" + errorFile + "'").c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#endif

// "varnel" can be called from the folder of each.
class TypedLines : public testing::Test {
 protected:
  TypedLines() : path_("PATH", programFolderFirst()), before_(std::filesystem::current_path()) {
    std::filesystem::current_path(pathFromUtf8(folder_.path()));
  }
  ~TypedLines() override { std::filesystem::current_path(before_); }
  TypedLines(const TypedLines&) = delete;
  TypedLines& operator=(const TypedLines&) = delete;

  // The line's exit code, -1 where it could not be started; what it printed is in `out` and `error`.
  int type(const std::string& line) {
    const std::string outFile = streams_.file("out.txt");
    const std::string errorFile = streams_.file("error.txt");
    write(outFile, "");
    const int code = runLine(line, outFile, errorFile);
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

  // The program writes them once; every test has copies of its own.
  void makeRigs() {
    static const TemporaryFolder made;
    const std::filesystem::path rigs = pathFromUtf8(made.file("rigs"));
    if (!std::filesystem::exists(rigs)) {
      ASSERT_EQ(type("varnel rigs \"" + utf8Of(rigs) + '"'), 0) << out << error;
    }
    std::filesystem::copy(rigs, "rigs");
  }

  // Writes an export of the file in which one strength is 12.5.
  void exportAnotherStrength(const std::string& file, const std::string& json) {
    ASSERT_EQ(type("varnel export " + file), 0) << error;
    const std::string before = "\"Strength\": ";
    const std::size_t at = out.find(before);
    ASSERT_NE(at, std::string::npos) << out;
    write(json, out.replace(at, out.find_first_of(",\n}", at) - at, before + "12.5"));
  }

  static std::string bytesOf(const std::string& path) {
    const Outcome<std::string> bytes = readFileBytes(path);
    return bytes ? *bytes : bytes.why();
  }
  static void write(const std::string& path, const std::string& bytes) { EXPECT_FALSE(writeFileBytes(path, bytes)); }

  std::string out;
  std::string error;

 private:
  static std::string programFolderFirst() {
    // The test programs lie in a folder below the program's.
    const std::string folder = utf8Of(pathFromUtf8(programFolder()).parent_path());
    const char* const others = std::getenv("PATH");
#ifdef _WIN32
    const char* const between = ";";
#else
    const char* const between = ":";
#endif
    return folder + between + (others == nullptr ? "" : others);
  }

  Environment path_;
  TemporaryFolder folder_;
  TemporaryFolder streams_;
  std::filesystem::path before_;
};

}  // namespace standin
