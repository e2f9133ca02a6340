// What ends a question, or a run: a sentence for people.
#pragma once

#include <string>

namespace probe {

struct Trouble {
  std::string why;
};

}  // namespace probe
