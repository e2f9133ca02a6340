// Texts that the host returns. As a rule each is good until the next one is returned: then it is filled with X, so that a
// module which kept the pointer reads nonsense instead of something that happens to be right. Or they live otherwise, by an
// option.
#pragma once

#include <array>
#include <set>
#include <string>
#include <string_view>

#include "standin/layout/options.h"

namespace standin {

class HostTexts {
 public:
  explicit HostTexts(TextLife life = TextLife::UntilNext) : life_(life) {}

  const char* give(std::string_view text);

 private:
  std::array<std::string, 64> texts_;  // spoilt ones stay readable for a while
  std::size_t current_ = 0;
  TextLife life_;
  std::string onePlace_;
  std::set<std::string, std::less<>> ofSession_;
};

}  // namespace standin
