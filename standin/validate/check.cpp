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

const Level& levelOf(int level) {
  constexpr const char* kFaults = "faults put in";
  constexpr const char* kRefusals = "refused on purpose";
  static constexpr std::array<Level, kLastLevel> kLevels{{
      {"file", kFaults},
      {"activation", kFaults},
      {"services", kFaults},
      {"panels", kFaults},
      {"trips", kFaults},
      {"refusals", kRefusals},
      {"memory", kRefusals},
      {"walks", kFaults},
      {"hostile data", kFaults},
      {"endurance", kFaults},
      {"hosts", kFaults},
  }};
  return kLevels.at(static_cast<std::size_t>(level - kFirstLevel));
}

}  // namespace standin::validate
