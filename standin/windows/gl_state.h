// OpenGL's state before and after a callback of the module, and what differs.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace standin {

class GlState {
 public:
  // Reads the state of the current context.
  static GlState now();

  // What differs, by name, as one line of text ("line stipple was 0, is 1; ..."); empty when nothing does.
  std::string differenceTo(const GlState& after) const;

 private:
  static constexpr int kMostValues = 16;
  using Values = std::array<double, kMostValues>;
  std::vector<Values> values_;  // by row of the table of what is compared
};

// Takes the pending error flags, as names; empty when there are none.
std::string takeGlErrors();

}  // namespace standin
