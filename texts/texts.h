// Every text that a user sees, in both languages. A row holds both, so the languages cannot drift apart.
// All texts are UTF-8 and live as long as the module: the host may keep the pointers.
#pragma once

#include <array>
#include <cstddef>

namespace texts {

enum class Language { English, Japanese };
inline constexpr std::size_t kLanguageCount = 2;

// A null-ended array of texts: the choices of one popup or tab control.
using Choices = const char* const*;

template <class List>
struct ListRow {
  List list;
  unsigned count;  // entries with the closing null
  Choices english;
  Choices japanese;
  Choices in(Language language) const { return language == Language::Japanese ? japanese : english; }
  bool has(int index) const { return index >= 0 && static_cast<unsigned>(index) + 1 < count; }
};

// ---------------------------------------------------------------------------------------------------------------------
// Property panel

enum class ChoiceList : std::size_t {
  Pages,
  FalloffType,
  BoneCalc,
  BoneType,
  Objective,
  OffOn,
  IKInitialState,
  SoftIK,
  DistanceType,
  MotionGroups,
  BlendMethod,
  Controller,
  FollowChannel,
  Colour,
  RotationOrder,
};
inline constexpr std::size_t kChoiceListCount = 15;

// Labels by control number; an empty text where a control has none. One entry more than there are controls.
inline constexpr std::size_t kPropertyLabelCount = 193;
const std::array<const char*, kPropertyLabelCount>& propertyLabels(Language language);

using ChoiceListRow = ListRow<ChoiceList>;
const std::array<ChoiceListRow, kChoiceListCount>& propertyChoices();

// ---------------------------------------------------------------------------------------------------------------------
// Renamer panel

enum class RenamerList : std::size_t { RenameMode, RenameTarget, RenameOrder, ColumnLetter };
inline constexpr std::size_t kRenamerListCount = 4;
inline constexpr std::size_t kRenamerLabelCount = 35;
const std::array<const char*, kRenamerLabelCount>& renamerLabels(Language language);
using RenamerListRow = ListRow<RenamerList>;
const std::array<RenamerListRow, kRenamerListCount>& renamerChoices();

// Messages as pairs of title and text, each pair closed by an empty entry.
enum class RenamerMessage : std::size_t { NoSelection = 0, DuplicatedNames = 3 };
inline constexpr std::size_t kRenamerMessageCount = 6;
using RenamerMessages = std::array<const char*, kRenamerMessageCount>;
const RenamerMessages& renamerMessages(Language language);

// Why a name cannot be made. The skelegon's name follows each text.
enum class NameRefusal : std::size_t {
  TooLong,  // the old one or the new one
  TooHard,  // a match takes too many steps, or goes too deep
  Broken,   // the old one is UTF-8, and the new one would not be: a pattern sees bytes and can cut a character
};
inline constexpr std::size_t kRenamerRefusalCount = 3;
using RenamerRefusals = std::array<const char*, kRenamerRefusalCount>;
const RenamerRefusals& renamerRefusals(Language language);

// ---------------------------------------------------------------------------------------------------------------------
// The Layout tool's panel

enum class LayoutText : std::size_t { ExecuteSkelegonToBone = 2, ExecuteRecordPivotRotation = 3, Run = 4 };
inline constexpr std::size_t kLayoutTextCount = 6;
using LayoutTexts = std::array<const char*, kLayoutTextCount>;
const LayoutTexts& layoutTexts(Language language);

}  // namespace texts
