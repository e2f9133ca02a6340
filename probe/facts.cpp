#include "probe/facts.h"

#include <algorithm>
#include <utility>

namespace probe {

Answer told(std::string value, std::string seen) { return {std::move(value), std::move(seen)}; }
Answer other(std::string seen) { return {kOther, std::move(seen)}; }
Answer notTold(std::string why) { return {{}, std::move(why)}; }

void Facts::tell(const std::string& name, Answer answer) {
  const auto known = std::find_if(facts_.begin(), facts_.end(), [&](const Fact& fact) { return fact.name == name; });
  if (known != facts_.end()) {
    known->answer = std::move(answer);
  } else {
    facts_.push_back({name, std::move(answer)});
  }
}

Answer Facts::answerTo(const std::string& name) const {
  for (const Fact& fact : facts_) {
    if (fact.name == name) return fact.answer;
  }
  return {};
}

void Facts::figure(std::string name, std::string seen) { figures_.push_back({std::move(name), std::move(seen)}); }

}  // namespace probe
