// Open questions that no program can answer, or that are no matter of the host's.
#pragma once

#include <span>

namespace probe {

struct NotTellable {
  const char* name;   // of the question
  const char* value;  // of the one answer that cannot be told; null: none of them can
  const char* why;
};

std::span<const NotTellable> notTellable();

}  // namespace probe
