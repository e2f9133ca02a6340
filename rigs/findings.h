// What a rigger should know before Layout turns a rig's skelegons into bones: each finding says where and what will happen.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "rigs/code_page.h"
#include "rigs/rig.h"

namespace standin::rigs {

enum class FindingKind : std::size_t {
  FileExtension,
  LayerName,
  LayerTwice,
  NoName,
  NameTwice,
  NameInTwoLayers,
  NameOfItem,
  NameTooLong,
  CountersTwice,
  BecomesNull,
  ParentMissing,
  ParentLate,
  BonesFromMissing,
  ChoiceOutside,
  FlagOutside,
  ColourUnknown,
  ColourEmpty,
  ColourMissing,
  NumberUnreadable,
  NumberPartly,
  CommandTooLong,
  PathTooLong,
  PathCodePage,
  CommandCodePage,
  TextCodePage,
  UnknownSlot,
  WeightOnlyLate,
  WeightOnlyLost,
  WeightNotSent,
  TwistWithoutJoint,
  LimitedRange,
  ZFollowLost,
  ZFollowSent,
  GroupDiffers,
  TagRepeated,
  TextMissing,
};
inline constexpr std::size_t kFindingKinds = 36;

enum class FindingWeight {
  Problem,  // a setting will not arrive, will arrive at another item or as something else
  Note,     // the rig may be meant so
};

struct FindingRow {
  FindingKind kind;
  FindingWeight weight;
  const char* id;       // on the command line and in JSON; the anchor of its entry in the manual
  const char* page;     // of the manual that has this entry
  const char* english;  // what will happen; {text}, {other} and {number} stand for what the finding is about
  const char* japanese;
  const char* in(Language language) const { return language == Language::Japanese ? japanese : english; }
};
const std::array<FindingRow, kFindingKinds>& findingTable();
const FindingRow& findingRow(FindingKind kind);

const char* wordOf(FindingWeight weight, Language language);

// The entry, as it lies beside the program: "manual/en/surprises.html#no-name".
std::string manualEntryOf(FindingKind kind, Language language);

struct Finding {
  FindingKind kind;
  std::optional<std::size_t> layer;     // place in Rig::layers
  std::optional<std::size_t> skelegon;  // place in Rig::skelegons
  const Setting* setting = nullptr;
  std::string text;
  std::string other;
  std::string number;
};

bool isProblem(const Finding& finding);

// The problems, then the notes. Each in the order of the file: the file itself, then each layer with its skelegons and their
// settings.
std::vector<Finding> findingsOf(const Rig& rig, const CodePage& codePage);

// What a finding is about; all parts are empty for the file itself.
struct Place {
  std::string layer;
  std::string skelegon;
  std::string setting;
};
Place placeOf(const Rig& rig, const Finding& finding, Language language);
// "Rig / Toe_L / Color (bone)"
std::string joined(const Place& place);
// What will happen, as a sentence.
std::string sentenceOf(const Finding& finding, Language language);

// The longest command that the module formats, in bytes. What is longer comes out empty, and an empty command ends the run.
inline constexpr std::size_t kLongestCommand = 511;

// The longest path that the module opens, in units of UTF-16. For a longer one it opens the one before.
inline constexpr std::size_t kLongestPath = 259;

// The longest name that a field of the property panel takes whole, in bytes.
inline constexpr std::size_t kLongestFieldText = 4095;

}  // namespace standin::rigs
