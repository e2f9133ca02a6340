// What the host layer throws, how trouble reaches the user, and the guard that keeps every throw inside the module.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

#include "host/host_call.h"

#if defined(__MINGW32__) && !defined(__clang__)
#define VARNEL_PRINTF(text, values) __attribute__((format(gnu_printf, text, values)))
#elif defined(__GNUC__)
#define VARNEL_PRINTF(text, values) __attribute__((format(printf, text, values)))
#else
#define VARNEL_PRINTF(text, values)
#endif

namespace lw::ex {

// A failure of the host layer. No child of std::exception on purpose: what catches errors of the
// library must not take one of these for its own.
class CBaseEx {
 public:
  explicit CBaseEx(std::string message) : message_(std::move(message)) {}
  CBaseEx(const CBaseEx&) = default;
  CBaseEx& operator=(const CBaseEx&) = delete;
  virtual ~CBaseEx() = default;

  std::int64_t code() const { return code_; }
  const std::string& message() const { return message_; }

 private:
  std::int64_t code_ = 0;
  std::string message_;
};

// A command that Modeler refused, or an empty command.
class CEvalEx : public CBaseEx {
 public:
  using CBaseEx::CBaseEx;
};

// Tags that Modeler did not take.
class CTagWriteEx : public CBaseEx {
 public:
  using CBaseEx::CBaseEx;
};

}  // namespace lw::ex

namespace lw {

// Puts "*** ERROR: message ***" on Layout's status line. Modeler has none: nothing happens there.
void ReportStatusError(const std::string& message);

// The same with a formatted message. File and line name the caller and are not shown.
void ReportError(const char* file, int line, const char* format, ...) VARNEL_PRINTF(3, 4);

// Reports a failure of the host and throws CBaseEx with the same message.
[[noreturn]] void throwReported(const std::string& message);

// Everything that the host calls runs through this or the next: whatever is thrown stays inside, and the host gets
// `onFailure`. These two are the module's only catches of everything.
template <class Action, class Result>
Result guarded(Action&& action, Result onFailure) noexcept {
  const CHostCall call;
  try {
    return std::forward<Action>(action)();
  } catch (...) {
    return onFailure;
  }
}

template <class Action>
void guarded(Action&& action) noexcept {
  guarded(
      [&] {
        std::forward<Action>(action)();
        return true;
      },
      false);
}

// The way in for the host, and for other panels: what is called gets the tool back by the pointer that it gave away.
template <class Tool, class Action>
void onTool(void* user, Action&& action) noexcept {
  guarded([&] {
    if (user != nullptr) std::forward<Action>(action)(*static_cast<Tool*>(user));
  });
}

// For a callback that is running because the module called the host: what is thrown is kept in `failure`, for the module to
// raise again once that call has returned.
template <class Action, class Result>
Result guarded(Action&& action, Result onFailure, std::exception_ptr& failure) noexcept {
  try {
    return std::forward<Action>(action)();
  } catch (...) {
    failure = std::current_exception();
    return onFailure;
  }
}

}  // namespace lw
