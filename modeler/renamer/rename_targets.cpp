#include "modeler/renamer/rename_targets.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace mst {
namespace {

using skg::SkelegonNode;
using skg::SkelegonNodes;

struct Counter {
  bool isKnown = false;  // false: leads up to no head
  std::uint32_t column = 0;
  std::uint32_t row = 0;
};

// What was found on one way up serves all later ones, so that a long chain is walked once.
class CCounters {
 public:
  explicit CCounters(const SkelegonNodes& orderedHeads) {
    std::uint32_t column = 0;
    for (const SkelegonNode* const head : orderedHeads) found_.emplace(head, Counter{true, column++, 0});
  }

  Counter of(const SkelegonNode* node) {
    std::vector<const SkelegonNode*> way;
    Counter counter;
    for (; node != nullptr; node = node->parent) {
      // In a ring without a head the walk comes back to where it has been: there is none.
      const auto [entry, isNew] = found_.try_emplace(node);
      if (!isNew) {
        counter = entry->second;
        break;
      }
      way.push_back(node);
    }
    for (; !way.empty(); way.pop_back()) {
      if (counter.isKnown) ++counter.row;
      found_[way.back()] = counter;
    }
    return counter;
  }

 private:
  std::unordered_map<const SkelegonNode*, Counter> found_;
};

}  // namespace

RenameTargets chooseTargets(RenameTarget choice, const skg::SkelegonList& skelegons,
                            const std::vector<skg::PolygonId>& selected, const std::vector<skg::PolygonId>& registered) {
  switch (choice) {
    case RenameTarget::Selection: {
      SkelegonNodes targets = skelegons.resolve(selected);
      return {targets, skg::heads(targets)};
    }
    case RenameTarget::Registration: {
      // Each is a column of its own, also where one continues another, on purpose.
      SkelegonNodes targets = skelegons.resolve(registered);
      return {targets, targets};
    }
    case RenameTarget::RegistrationAndChildren: {
      SkelegonNodes heads = skelegons.resolve(registered);
      return {skg::expandWithChildren(heads), heads};
    }
    case RenameTarget::All: return {skelegons.all(), skg::heads(skelegons.all())};
  }
  return {};
}

void setCounters(const SkelegonNodes& targets, const SkelegonNodes& orderedHeads) {
  CCounters counters(orderedHeads);
  for (SkelegonNode* const target : targets) {
    const Counter counter = counters.of(target);
    if (!counter.isKnown) continue;
    target->column = counter.column;
    target->row = counter.row;
  }
}

std::optional<std::string> firstDuplicate(const std::vector<std::string>& names) {
  std::unordered_set<std::string_view> seen;
  for (const std::string& name : names) {
    if (!seen.insert(name).second) return name;
  }
  return std::nullopt;
}

}  // namespace mst
