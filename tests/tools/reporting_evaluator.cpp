#include "tests/tools/reporting_evaluator.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <utility>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"

namespace varnel::test {

ReportingEvaluator& evaluator() {
  static ReportingEvaluator instance;
  return instance;
}

void ReportingEvaluator::reset() { *this = ReportingEvaluator(); }

void ReportingEvaluator::refuseCommand(std::size_t n) {
  refuse([left = n](const std::string&) mutable { return left > 0 && --left == 0; });
}

bool ReportingEvaluator::send(const std::string& command) {
  sent_.push_back(command);
  if (!refuses_ || !refuses_(command)) return lw::layoutCommand()(command.c_str()) != 0;
  refused_.push_back(command);
  return false;
}

}  // namespace varnel::test

// ---------------------------------------------------------------------------------------------------------------------
// Every function of the module's evaluator, so that it is not linked in.

namespace lw {
namespace {

VARNEL_PRINTF(1, 0)
std::string formatted(const char* format, std::va_list values) {
  std::array<char, 4096> buffer{};
  std::vsnprintf(buffer.data(), buffer.size(), format, values);
  return buffer.data();
}

}  // namespace

std::string FormatString(const char* format, ...) {
  std::va_list values;
  va_start(values, format);
  std::string text = formatted(format, values);
  va_end(values);
  return text;
}

bool Eval(const std::string& command) { return !varnel::test::evaluator().send(command); }

bool EvalF(const char* format, ...) {
  std::va_list values;
  va_start(values, format);
  const std::string command = formatted(format, values);
  va_end(values);
  return varnel::test::evaluator().send(command);
}

void EvalPlain(const char* command) { varnel::test::evaluator().send(command); }

void EvalQuiet(const std::string& command) { varnel::test::evaluator().send(command); }

void ReportStatusError(const std::string& message) { varnel::test::evaluator().report({"", 0, message}); }

void ReportError(const char* file, int line, const char* format, ...) {
  std::va_list values;
  va_start(values, format);
  varnel::test::evaluator().report({file, line, formatted(format, values)});
  va_end(values);
}

void throwReported(const std::string& message) {
  ReportStatusError(message);
  throw ex::CBaseEx(message);
}

void StatusText(const char* format, ...) {
  std::va_list values;
  va_start(values, format);
  varnel::test::evaluator().status(formatted(format, values));
  va_end(values);
}

void StatusProgress(float /*fraction*/, const char* format, ...) {
  std::va_list values;
  va_start(values, format);
  varnel::test::evaluator().status(formatted(format, values));
  va_end(values);
}

}  // namespace lw
