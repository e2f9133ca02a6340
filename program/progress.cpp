#include "program/progress.h"

#if defined(_WIN32)
#include <io.h>

#include <cstdio>
#else
#include <unistd.h>
#endif

#include <algorithm>
#include <cmath>
#include <iostream>

#include "standin/panels/folded_text.h"

namespace standin {
namespace {

bool errorsGoToATerminal() {
#if defined(_WIN32)
  return _isatty(_fileno(stderr)) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

Progress::Progress() : Progress(std::cerr, errorsGoToATerminal()) {}

void Progress::tell(const std::string& what) {
  if (!isTerminal_ || what == shown_) return;
  std::cout.flush();
  clear();
  stream_ << what << std::flush;
  shown_ = what;
}

void Progress::tell(const std::string& what, double fraction) {
  if (isTerminal_) tell(what + ", " + std::to_string(std::lround(std::clamp(fraction, 0.0, 1.0) * 100)) + " %");
}

void Progress::clear() {
  if (shown_.empty()) return;
  // By spaces: a terminal need not know the sequence that erases a line.
  stream_ << '\r' << std::string(columnsOf(shown_), ' ') << '\r' << std::flush;
  shown_.clear();
}

}  // namespace standin
