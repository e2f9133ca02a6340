// Ends a fuzz run when a rule does not hold; libFuzzer keeps the input then.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace varnel::test {

inline void require(bool isSo, const char* rule) {
  if (isSo) return;
  std::fprintf(stderr, "broken: %s\n", rule);
  std::abort();
}

}  // namespace varnel::test
