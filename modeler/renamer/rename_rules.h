// How the renamer makes a new text of an old one: the name rule of its advanced setting and the five simple modes. No host
// here.
//
// All texts are taken literally but for the two counters "[col]" and "[row]" and the regular expressions. Whatever makes a
// new text throws std::regex_error where the pattern is invalid, cannot be matched within the limits of regex_replace.h, or
// where the text would become longer than a name may be.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "modeler/renamer/regex_replace.h"
#include "skelegon/slots.h"

namespace mst {

enum class RenameTarget : std::int32_t { Selection, Registration, RegistrationAndChildren, All };

// The advanced setting, read from the panel for each run. The registered skelegons are the panel's.
struct RenamerSettings {
  bool replaceOn = false;
  std::string replaceFrom;
  std::string replaceTo;
  bool baseNameOn = false;
  std::string baseName = "Bone01_[col]_[row]";
  bool prefixOn = false;
  std::string prefix;
  bool suffixOn = false;
  std::string suffix;
  bool regexOn = false;
  std::string regexPattern = "(.*)_L(.*)";
  std::string regexFormat = "$1_R$2";
  RenameTarget target = RenameTarget::Selection;
  bool columnOn = false;
  std::int32_t order = 0;        // number of a registration order
  std::int32_t columnStart = 0;  // 0 is "A"
  bool invert = false;
  bool rowOn = false;
  std::int32_t rowDigits = 2;
  std::int32_t rowStart = 1;
  bool overlapCheck = true;
  bool renameSkelegonName = true;
  bool renameWeightMap = true;
  bool renameProperties = false;
};

inline constexpr std::int32_t kFewestRowDigits = 1;
inline constexpr std::int32_t kMostRowDigits = 6;

// The letter of a column. The letters end at "X" and begin again, though a start up to "Z" can be chosen: names in stored
// rigs were counted so.
// Empty where start and column together are negative.
std::string columnText(std::int32_t start, std::uint32_t column);

// The number of a row with zeros in front, up to that many digits.
std::string rowText(std::int32_t start, std::uint32_t row, std::int32_t digits);

// Every occurrence of `from`, which must not be empty, from left to right; what was put in is not looked at again.
std::string replacedAll(std::string_view text, std::string_view from, std::string_view to);

// The name rule. Keeps a reference to the settings.
class CNameRule {
 public:
  explicit CNameRule(const RenamerSettings& settings);

  std::string newText(std::string_view old, std::uint32_t column, std::uint32_t row);
  bool usesPattern() const;
  void useStack(std::size_t bytes) { regex_.useStack(bytes); }  // as of CRegexReplacement

 private:
  const RenamerSettings& settings_;
  CRegexReplacement regex_;
};

// ---------------------------------------------------------------------------------------------------------------------
// Simple modes

// The numbers are the places in the panel's list.
enum class RenameMode { Change, Prefix, Suffix, Replace, RegularExpression, Advanced };

// One of the simple modes with the panel's two texts.
class CSimpleRule {
 public:
  CSimpleRule(RenameMode mode, std::string first, std::string second);

  std::string newText(std::string_view old);
  bool usesPattern() const { return mode_ == RenameMode::RegularExpression && !first_.empty(); }
  void useStack(std::size_t bytes) { regex_.useStack(bytes); }  // as of CRegexReplacement

 private:
  RenameMode mode_;
  std::string first_;
  std::string second_;
  CRegexReplacement regex_;
};

// What a simple mode renames with the bone properties, in this order: the skelegon's name and weight map, and between and
// behind them the sixteen that hold another item's name. Without them it is the first entry alone.
inline constexpr std::array kSimpleModeSlots = [] {
  using skg::Slot;
  std::array<Slot, 2 + skg::kNameBearingSlots.size()> slots{Slot::Name, skg::kNameBearingSlots.front(), Slot::WeightMap};
  for (std::size_t i = 1; i < skg::kNameBearingSlots.size(); ++i) slots[2 + i] = skg::kNameBearingSlots[i];
  return slots;
}();
static_assert(kSimpleModeSlots.size() == 18);

}  // namespace mst
