#include <windows.h>

#include <cstdint>

#include "standin/core/wide_text.h"
#include "standin/validate/child_process.h"

namespace standin::validate {
namespace {

constexpr DWORD kEndedByUs = 0xC000013A;
constexpr DWORD kFirstException = 0xC0000000;

// As the system's own parser takes it apart again: backslashes count only before a quote mark.
std::wstring quoted(const std::wstring& word) {
  std::wstring text = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : word) {
    if (c == L'"') text.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    text += c;
  }
  text.append(backslashes, L'\\');
  return text + L'"';
}

std::string hexadecimal(DWORD value) {
  std::string text = "0x";
  for (int shift = 28; shift >= 0; shift -= 4) text += "0123456789abcdef"[value >> shift & 0xF];
  return text;
}

LONG WINAPI endAtOnce(EXCEPTION_POINTERS* what) {
  TerminateProcess(GetCurrentProcess(), what->ExceptionRecord->ExceptionCode);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

struct ChildProcess::System {
  HANDLE process = nullptr;
};

ChildProcess::ChildProcess(const std::string& program, const std::vector<std::string>& arguments,
                           const std::string& outputFile)
    : system_(std::make_unique<System>()) {
  std::wstring line = quoted(wide(program));
  for (const std::string& argument : arguments) line += L' ' + quoted(wide(argument));
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE output = CreateFileW(wide(outputFile).c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                              OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = startup.hStdError = output;
  PROCESS_INFORMATION made{};
  if (CreateProcessW(wide(program).c_str(), line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr,
                     &startup, &made) != 0) {
    CloseHandle(made.hThread);
    system_->process = made.hProcess;
  } else {
    why_ = program + " cannot be started (error " + std::to_string(GetLastError()) + ")";
  }
  CloseHandle(output);
}

ChildProcess::~ChildProcess() { end(); }

std::optional<ProcessEnd> ChildProcess::wait(int milliseconds) {
  if (system_->process == nullptr) return ProcessEnd{};
  if (WaitForSingleObject(system_->process, static_cast<DWORD>(milliseconds)) == WAIT_TIMEOUT) return std::nullopt;
  DWORD code = 0;
  GetExitCodeProcess(system_->process, &code);
  CloseHandle(system_->process);
  system_->process = nullptr;
  if (code >= kFirstException) return ProcessEnd{false, static_cast<int>(code), "exception " + hexadecimal(code)};
  return ProcessEnd{true, static_cast<int>(code), "exit code " + std::to_string(code)};
}

void ChildProcess::end() {
  if (system_->process == nullptr) return;
  TerminateProcess(system_->process, kEndedByUs);
  WaitForSingleObject(system_->process, INFINITE);
  CloseHandle(system_->process);
  system_->process = nullptr;
}

void dieQuietly() {
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
  SetUnhandledExceptionFilter(&endAtOnce);
}

}  // namespace standin::validate
