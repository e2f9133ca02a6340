// Places of controls in the tools' panels, in order of creation, and what is chosen there. A module with other panels would
// not be this one.
#pragma once

#include <cstdint>

namespace standin {

enum PropertyControl : int {
  kResetAll = 3,
  kSync = 4,
  kPageTabs = 5,
  kGroupTabs = 6,
  kNameField = 7,
  kFalloff = 10,
  kMapField = 15,
  kMapChooser = 16,
  kMapFill = 17,
  kStrength = 20,
  kRangeGreatest = 24,
  kParentField = 47,
  kParentChooser = 48,
  kTargetFill = 50,
  kXLeast = 103,
  kHeadingLeast = 137,
};
enum PropertyPage : int { kGroupPage, kBonePage, kLinkPage, kControllersPage };

constexpr int kInverseDistance4 = 2;  // place in the list of falloffs

// Settings, by the number that their tag has.
constexpr std::uint8_t kFalloffSetting = 13;
constexpr std::uint8_t kActiveSetting = 27;
constexpr std::uint8_t kStrengthSetting = 31;
constexpr std::uint8_t kParentSetting = 51;

enum RenamerControl : int {
  kMode = 0,
  kFirstText = 1,
  kSecondText = 2,
  kTarget = 3,
  kAdd = 5,
  kClear = 6,
  kBaseName = 8,
  kBaseText = 9,
  kPrefixOn = 10,
  kPrefixText = 11,
  kSuffixOn = 12,
  kSuffixText = 13,
  kRegexOn = 17,
  kColumns = 20,
  kRows = 24,
  kRowDigits = 25,
  kRowStart = 26,
  kBoneProperty = 30,
  kOverlapCheck = 31,
  kRun = 33,
};
enum RenamerMode : int { kChange, kPrefix, kSuffix, kReplace, kExpression, kAdvanced };
enum RenamerTarget : int { kSelected, kRegistered, kRegisteredAndChildren, kAll };

}  // namespace standin
