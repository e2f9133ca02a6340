#include "tests/tools/panels_walk_rename.h"

#include <algorithm>
#include <cmath>
#include <regex>
#include <set>

namespace varnel::test::walk {
namespace {

constexpr int kSimpleSlots[] = {6, 12, 28, 51, 52, 130, 53, 131, 55, 132, 73, 133, 92, 134, 110, 135, 142, 144};
constexpr int kAdvancedSlots[] = {12, 51, 52, 130, 53, 131, 55, 132, 73, 133, 92, 134, 110, 135, 142, 144};

std::uint32_t typeOf(int slot) {
  if (slot == 6) return lw::kTagBone;
  if (slot == 28) return lw::kTagBoneWeight;
  return kFamily | static_cast<std::uint32_t>(slot);
}

bool holds(const Places& places, std::size_t place) {
  return std::find(places.begin(), places.end(), place) != places.end();
}

std::string replacedAll(const std::string& text, const std::string& from, const std::string& to) {
  std::string result;
  std::size_t at = 0;
  while (at < text.size()) {
    if (text.compare(at, from.size(), from) == 0) {
      result += to;
      at += from.size();
    } else {
      result += text[at++];
    }
  }
  return result;
}

std::string withCounter(const std::string& name, const std::string& mark, const std::string& counter) {
  return name.find(mark) == std::string::npos ? name + "_" + counter : replacedAll(name, mark, counter);
}

std::string simpleText(mst::RenameMode mode, const std::string& first, const std::string& second, const std::string& old) {
  switch (mode) {
    case mst::RenameMode::Change: return first;
    case mst::RenameMode::Prefix: return first + old;
    case mst::RenameMode::Suffix: return old + first;
    case mst::RenameMode::Replace: return first.empty() ? old : replacedAll(old, first, second);
    case mst::RenameMode::RegularExpression: return first.empty() ? old : std::regex_replace(old, std::regex(first), second);
    case mst::RenameMode::Advanced: break;
  }
  return old;
}

// ---------------------------------------------------------------------------------------------------------------------
// The advanced rule

struct Counter {
  int column = 0;
  int row = 0;
};

std::string advancedText(const mst::RenamerSettings& s, const std::string& old, Counter counter) {
  std::string name = old;
  if (s.replaceOn && !s.replaceFrom.empty()) name = replacedAll(name, s.replaceFrom, s.replaceTo);
  if (s.baseNameOn) name = s.baseName;
  if (s.prefixOn && !name.empty()) name = s.prefix + name;
  if (s.suffixOn && !name.empty()) name += s.suffix;
  if (s.regexOn && !name.empty() && !s.regexPattern.empty() && !s.regexFormat.empty()) {
    name = std::regex_replace(name, std::regex(s.regexPattern), s.regexFormat);
  }
  if (s.columnOn) {
    const int letter = (s.columnStart + counter.column) % 24;
    name = withCounter(name, "[col]", std::string(1, "ABCDEFGHIJKLMNOPQRSTUVWX"[letter]));
  }
  if (s.rowOn) {
    std::string number = std::to_string(s.rowStart + counter.row);
    while (number.size() < static_cast<std::size_t>(s.rowDigits)) number.insert(0, 1, '0');
    name = withCounter(name, "[row]", number);
  }
  return name;
}

Places headsOf(const Mesh& mesh, const Places& set) {
  Places heads;
  for (const std::size_t place : set) {
    if (mesh[place].parent == kNone || !holds(set, mesh[place].parent)) heads.push_back(place);
  }
  return heads;
}

// With everything that hangs below one of them.
Places withChildren(const Mesh& mesh, const Places& set) {
  Places all;
  for (const std::size_t place : mesh.living()) {
    // A skelegon that is gone ties nothing together.
    for (std::size_t at = place; at != kNone && mesh[at].isThere; at = mesh[at].parent) {
      if (!holds(set, at)) continue;
      all.push_back(place);
      break;
    }
  }
  return all;
}

double angleFrom(double first, double second, double start) {
  const double angle = std::atan2(-first, -second);
  return angle < start ? angle + 6.283185307179586 : angle;
}

// Of the orders from the first that sorts.
double orderKey(int order, const std::array<double, 3>& head) {
  if (order <= 3) return head[static_cast<std::size_t>(order - 1)];
  if (order == 4) return head[0] * head[0] + head[1] * head[1] + head[2] * head[2];
  const double start = -3.141592653589793 + (order - 5) % 4 * 1.5707963267948966;
  switch ((order - 5) / 4) {
    case 0: return angleFrom(head[0], head[2], start);
    case 1: return angleFrom(head[0], head[1], start);
    default: return angleFrom(head[2], head[1], start);
  }
}

// False where two heads have the same key.
bool sortHeads(const Mesh& mesh, Places& heads, const mst::RenamerSettings& settings) {
  bool isDefined = true;
  if (settings.order > 0) {
    std::set<double> keys;
    const auto keyOf = [&](std::size_t place) { return orderKey(settings.order, mesh[place].head); };
    for (const std::size_t head : heads) isDefined &= keys.insert(keyOf(head)).second;
    std::sort(heads.begin(), heads.end(), [&](std::size_t a, std::size_t b) { return keyOf(a) < keyOf(b); });
  }
  if (settings.invert) std::reverse(heads.begin(), heads.end());
  return isDefined;
}

Counter counterOf(const Mesh& mesh, const Places& heads, std::size_t place) {
  Counter counter;
  for (; !holds(heads, place); place = mesh[place].parent) ++counter.row;
  counter.column = static_cast<int>(std::find(heads.begin(), heads.end(), place) - heads.begin());
  return counter;
}

struct Targets {
  Places all;
  Places heads;
};

Targets targetsOf(const Mesh& mesh, mst::RenameTarget target, const Places& registered) {
  Places known = registered;
  std::erase_if(known, [&](std::size_t place) { return !mesh[place].isThere; });
  switch (target) {
    case mst::RenameTarget::Selection: return {mesh.selected(), headsOf(mesh, mesh.selected())};
    case mst::RenameTarget::Registration: return {known, known};
    case mst::RenameTarget::RegistrationAndChildren: return {withChildren(mesh, known), known};
    case mst::RenameTarget::All: return {mesh.living(), headsOf(mesh, mesh.living())};
  }
  return {};
}

std::vector<std::uint32_t> typesOf(const mst::RenamerSettings& settings) {
  std::vector<std::uint32_t> types;
  if (settings.renameSkelegonName) types.push_back(lw::kTagBone);
  if (settings.renameWeightMap) types.push_back(lw::kTagBoneWeight);
  if (settings.renameProperties) {
    for (const int slot : kAdvancedSlots) types.push_back(typeOf(slot));
  }
  return types;
}

}  // namespace

std::size_t RenamePlan::longest() const {
  std::size_t length = 0;
  for (const Text& text : texts) length = std::max(length, text.text.size());
  return length;
}

RenamePlan planSimple(const Mesh& mesh, mst::RenameMode mode, const std::string& first, const std::string& second,
                      bool withProperties) {
  RenamePlan plan;
  for (const std::size_t place : mesh.selected()) {
    for (const int slot : kSimpleSlots) {
      if (slot != 6 && !withProperties) break;
      plan.texts.push_back({place, typeOf(slot), simpleText(mode, first, second, mesh[place].text(typeOf(slot)))});
    }
  }
  if (plan.texts.empty()) plan.answer = RenamePlan::Answer::NeedSelection;
  return plan;
}

RenamePlan planAdvanced(const Mesh& mesh, const mst::RenamerSettings& settings, const Places& registered) {
  RenamePlan plan;
  auto [targets, heads] = targetsOf(mesh, settings.target, registered);
  if (heads.empty()) {
    plan.answer = RenamePlan::Answer::NeedSelection;
    return plan;
  }
  const bool counts = settings.columnOn || settings.rowOn;
  if (!sortHeads(mesh, heads, settings)) plan.isUndefined = counts;
  std::set<std::string> names;
  for (const std::size_t place : targets) {
    const Counter counter = counts ? counterOf(mesh, heads, place) : Counter();
    if (!names.insert(advancedText(settings, mesh[place].name(), counter)).second) {
      plan.answer = RenamePlan::Answer::Duplicated;
    }
    for (const std::uint32_t type : typesOf(settings)) {
      const std::string old = mesh[place].text(type);
      const std::string text = advancedText(settings, old, counter);
      if (text != old) plan.texts.push_back({place, type, text});
    }
  }
  if (!settings.renameSkelegonName || !settings.overlapCheck) plan.answer = RenamePlan::Answer::Renamed;
  if (plan.answer == RenamePlan::Answer::Duplicated) plan.texts.clear();
  return plan;
}

}  // namespace varnel::test::walk
