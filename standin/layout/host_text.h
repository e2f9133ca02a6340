// Texts that the host returns. Each is good until the next one is returned: then it is filled with X, so that a module which
// kept the pointer reads nonsense instead of something that happens to be right.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace standin {

class HostTexts {
 public:
  const char* give(std::string_view text);

 private:
  std::array<std::string, 64> texts_;  // spoilt ones stay readable for a while
  std::size_t current_ = 0;
};

}  // namespace standin
