#include "host/lwtool2_eval.h"

#include <cstdarg>

#include "host/lwtool2_format.h"
#include "host/lwtool2_globals.h"
#include "host/platform.h"

namespace lw {
namespace {

// Layout reads commands in the narrow encoding of the system, while all texts here are UTF-8. A text that the code page
// cannot hold goes as it stands: its bytes still tell different names apart.
int sendToLayout(CommandFunc command, const std::string& text) {
  return command(platform::exactNarrow(text).value_or(text).c_str());
}

// The host's word on a command it refused. In the message the command is a text, never a format.
std::string refusal(const std::string& command, int code) {
  return FormatString("eval( \"%s\" ) !(%d)", command.c_str(), code);
}

void reportRefusalByLayout(const std::string& command) { ReportError("lwtool2", 3193, "%s", refusal(command, 0).c_str()); }

}  // namespace

std::string FormatString(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::string text = formatList(format, arguments);
  va_end(arguments);
  return text;
}

bool Eval(const std::string& command) {
  if (command.empty()) {
    const std::string message = "eval( \"\" )";
    ReportError("lwtool2", 3166, "%s", message.c_str());
    throw ex::CEvalEx(message);
  }
  if (const ModelerCommand& modeler = modelerCommand(); modeler.evaluate != nullptr) {
    const int result = modeler.evaluate(modeler.data, command.c_str());
    if (result == 0) return false;
    const std::string message = refusal(command, result);
    ReportError("lwtool2", 3179, "%s", message.c_str());
    throw ex::CEvalEx(message);
  }
  if (sendToLayout(layoutCommand(), command) != 0) return false;
  reportRefusalByLayout(command);
  return true;
}

bool EvalF(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  const std::string command = formatList(format, arguments);
  va_end(arguments);
  Eval(command);
  return true;
}

void EvalPlain(const char* command) {
  const CommandFunc send = layoutCommand();
  if (send == nullptr || send(command) != 0) return;
  reportRefusalByLayout(command);
}

void ReportStatusError(const std::string& message) {
  const CommandFunc command = layoutCommand();
  if (command != nullptr) sendToLayout(command, "StatusMsg *** ERROR: " + message + " ***");
}

void ReportError(const char* /*file*/, int /*line*/, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  const std::string message = formatList(format, arguments);
  va_end(arguments);
  ReportStatusError(message);
}

void throwReported(const std::string& message) {
  ReportStatusError(message);
  throw ex::CBaseEx(message);
}

void StatusText(const char* format, ...) {
  if (modelerCommand().editBegin != nullptr) return;
  std::va_list arguments;
  va_start(arguments, format);
  const std::string text = formatList(format, arguments);
  va_end(arguments);
  Eval("StatusMsg " + text);
}

void StatusProgress(float fraction, const char* format, ...) {
  if (modelerCommand().editBegin != nullptr) return;
  std::va_list arguments;
  va_start(arguments, format);
  const std::string text = formatList(format, arguments);
  va_end(arguments);
  EvalF("StatusMsg {%.2f}%s", static_cast<double>(fraction), text.c_str());
}

void EvalQuiet(const std::string& command) {
  const ModelerFunctions& functions = modelerFunctions();
  if (functions.evaluate != nullptr) {
    functions.evaluate(functions.data, command.c_str());
  } else if (functions.commandInterface != nullptr) {
    sendToLayout(functions.commandInterface, command);
  }
}

}  // namespace lw
