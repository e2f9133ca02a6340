#include "standin/validate/check.h"

#include <algorithm>
#include <array>
#include <vector>

namespace standin::validate {

std::span<const Check> allChecks() {
  static const std::vector<Check> all = [] {
    std::vector<Check> joined;
    for (const std::span<const Check> part : {fileChecks(), activationChecks(), panelChecks(), tripChecks(), walkChecks(),
                                              hostileChecks(), enduranceChecks(), hostChecks()}) {
      joined.insert(joined.end(), part.begin(), part.end());
    }
    return joined;
  }();
  return all;
}

const Check* checkNamed(std::string_view name) {
  const std::span<const Check> all = allChecks();
  const auto found = std::find_if(all.begin(), all.end(), [&](const Check& check) { return check.name == name; });
  return found == all.end() ? nullptr : &*found;
}

const char* levelName(int level) {
  static constexpr std::array<const char*, kLastLevel> kNames{"file",         "activation", "services", "panels",
                                                              "trips",        "refusals",   "memory",   "walks",
                                                              "hostile data", "endurance",  "hosts"};
  return kNames.at(static_cast<std::size_t>(level - kFirstLevel));
}

}  // namespace standin::validate
