// The frame around the whole program: what ends it is told in one line, and what it printed has arrived or is missed.
#pragma once

#include <functional>

namespace standin {

// Runs the program; its exit code. An exception becomes a line on the error output, and so does output that could not be
// written: a full disk takes no byte and says so only to those who ask. The exit code is 2 then.
int runProgram(const std::function<int()>& run);

}  // namespace standin
