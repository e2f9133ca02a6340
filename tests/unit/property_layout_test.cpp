#include "modeler/property/property_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "skelegon/setting_groups.h"
#include "texts/texts.h"

namespace mst {
namespace {

using skg::Slot;
using texts::Language;

// ---------------------------------------------------------------------------------------------------------------------
// A host's measures: a font of fixed pitch, East Asian characters twice as wide.

constexpr int kCell = 6;
constexpr int kIcon = 16;
constexpr int kLabelGap = 4;
constexpr int kFieldHeight = 18;
constexpr int kCheckWidth = 18;
constexpr int kPopupFrame = 28;
constexpr int kTabFrame = 16;
constexpr int kButtonFrame = 8;
constexpr int kEditFrame = 3;

int textWidth(const std::string& text) {
  int width = 0;
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = static_cast<unsigned char>(text[i]);
    if (lead == 0x03) {
      i = text.find(')', i) + 1;
      width += kIcon;
    } else if (lead < 0x80) {
      i += 1;
      width += kCell;
    } else {
      i += lead < 0xE0 ? 2 : 3;
      width += 2 * kCell;
    }
  }
  return width;
}

struct Box {
  std::size_t number = 0;
  int left = 0, top = 0, right = 0, bottom = 0;
  bool isEmpty() const { return right <= left; }
  bool meets(const Box& other) const {
    return !isEmpty() && !other.isEmpty() && left < other.right && other.left < right && top < other.bottom &&
           other.top < bottom;
  }
};

struct Seen {
  Box label, hot;
  int choicesWidth = 0;  // what the choices or the label of a button need
};

std::vector<std::string> choicesOf(const PropertyRow& row, Language language) {
  std::vector<std::string> list;
  if (!row.choices) return list;
  const texts::Choices choices = texts::propertyChoices()[*row.choices].in(language);
  for (texts::Choices choice = choices; *choice != nullptr; ++choice) list.emplace_back(*choice);
  return list;
}

bool drawsLabelInside(const PropertyRow& row) {
  return row.kind == HostControl::Button || row.kind == HostControl::BoolButton || row.kind == HostControl::Border;
}

int neededWidth(const PropertyRow& row, Language language, const std::string& label) {
  int widest = 0;
  int sum = 0;
  for (const std::string& choice : choicesOf(row, language)) {
    widest = std::max(widest, textWidth(choice) + kPopupFrame);
    sum += textWidth(choice) + kTabFrame;
  }
  if (row.kind == HostControl::Tabs) return sum;
  if (row.kind == HostControl::Popup) return widest;
  if (row.kind == HostControl::Button || row.kind == HostControl::BoolButton) return textWidth(label) + kButtonFrame;
  return 0;
}

int hotWidth(const PropertyRow& row, Language language) {
  if (row.kind == HostControl::Bool) return kCheckWidth;
  if (row.kind == HostControl::Tabs) return neededWidth(row, language, "");
  return row.place.width;
}

Seen seen(const PropertyRow& row, Language language) {
  const std::string label = texts::propertyLabels(language)[row.number];
  const int labelWidth = drawsLabelInside(row) || label.empty() ? 0 : textWidth(label) + kLabelGap;
  const int hot = hotWidth(row, language);
  const forms::Position at = positionOf(row, {labelWidth + hot, labelWidth});
  const int bottom = at.y + (row.kind == HostControl::Border ? std::max(2, row.height) : kFieldHeight);
  Seen result;
  result.label = {row.number, at.x, at.y, at.x + std::max(0, labelWidth - kLabelGap), bottom};
  result.hot = {row.number, at.x + labelWidth, at.y, at.x + labelWidth + hot, bottom};
  result.choicesWidth = neededWidth(row, language, label);
  return result;
}

Seen seen(Slot slot) { return seen(controlTable()[controlOf(slot).value()], Language::English); }
Seen seen(std::size_t number) { return seen(controlTable()[number], Language::English); }

// ---------------------------------------------------------------------------------------------------------------------
// Every form that a user can see

struct Form {
  Language language;
  int page;
  int group;
  bool nameCanBeEdited;
};

std::vector<Form> everyForm() {
  std::vector<Form> forms;
  for (const Language language : {Language::English, Language::Japanese}) {
    for (int page = 0; page < kPageCount; ++page) {
      for (int group = 0; group < (page == kControllersPage ? kMotionGroupCount : 1); ++group) {
        for (const bool edit : {false, true}) forms.push_back({language, page, group, edit});
      }
    }
  }
  return forms;
}

std::string describe(const Form& form) {
  return std::string(form.language == Language::English ? "English" : "Japanese") + ", page " + std::to_string(form.page) +
         ", group " + std::to_string(form.group);
}

std::vector<Seen> seenIn(const Form& form) {
  std::vector<Seen> all;
  for (const PropertyRow& row : controlTable()) {
    if (!isShown(row, form.page, form.group)) continue;
    if (row.role == (form.nameCanBeEdited ? Role::NamePopup : Role::NameEdit)) continue;
    all.push_back(seen(row, form.language));
  }
  return all;
}

class EveryForm : public testing::TestWithParam<Form> {};
INSTANTIATE_TEST_SUITE_P(PropertyLayout, EveryForm, testing::ValuesIn(everyForm()));

TEST_P(EveryForm, LetsNoControlsOverlap) {
  const std::vector<Seen> all = seenIn(GetParam());
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (std::size_t k = i + 1; k < all.size(); ++k) {
      if (all[i].hot.number == control::kFrame || all[k].hot.number == control::kFrame) continue;  // frames the buttons
      for (const Box& a : {all[i].label, all[i].hot}) {
        for (const Box& b : {all[k].label, all[k].hot}) {
          EXPECT_FALSE(a.meets(b)) << a.number << " and " << b.number << ": " << describe(GetParam());
        }
      }
    }
  }
}

TEST_P(EveryForm, StaysWithinThePanel) {
  for (const Seen& control : seenIn(GetParam())) {
    EXPECT_GE(control.label.left, 5) << control.hot.number << ": " << describe(GetParam());
    EXPECT_LE(control.hot.right, 380) << control.hot.number << ": " << describe(GetParam());
    EXPECT_GE(control.hot.top, 5) << control.hot.number << ": " << describe(GetParam());
    EXPECT_LE(control.hot.bottom, 695) << control.hot.number << ": " << describe(GetParam());
  }
}

TEST_P(EveryForm, HasRoomForEveryChoiceAndButtonText) {
  for (const Seen& control : seenIn(GetParam())) {
    EXPECT_GE(control.hot.right - control.hot.left, control.choicesWidth)
        << control.hot.number << ": " << describe(GetParam());
  }
}

TEST_P(EveryForm, LeavesTheBottomRowToItsButtons) {
  for (const Seen& control : seenIn(GetParam())) {
    if (control.hot.number <= control::kSync) continue;
    EXPECT_LE(control.hot.bottom, 655) << control.hot.number << ": " << describe(GetParam());
  }
}

TEST_P(EveryForm, HasRowsThatAreAligned) {
  std::set<int> tops;
  for (const Seen& control : seenIn(GetParam())) {
    if (control.hot.number > control::kSync) tops.insert(control.hot.top);
  }
  int previous = -100;
  for (const int top : tops) {
    EXPECT_GE(top - previous, 24) << describe(GetParam());
    previous = top;
  }
}

// Labelled fields begin at one of the form's few lines.
TEST_P(EveryForm, HasFieldsThatLineUp) {
  const std::set<int> lines = {155, 208, 226, 298, 310};
  for (const Seen& control : seenIn(GetParam())) {
    const PropertyRow& row = controlTable()[control.hot.number];
    const bool isField = row.kind == HostControl::Percent || row.kind == HostControl::Float ||
                         row.kind == HostControl::Angle || row.kind == HostControl::Distance ||
                         row.kind == HostControl::MiniSlider || row.kind == HostControl::Bool ||
                         row.kind == HostControl::Edit;
    if (!isField) continue;
    EXPECT_EQ(lines.count(control.hot.left), 1U) << control.hot.number << ": " << describe(GetParam());
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// What belongs together

bool inOneRow(Slot a, Slot b) { return seen(a).hot.top == seen(b).hot.top; }

Slot after(Slot slot, std::size_t steps) { return static_cast<Slot>(skg::indexOf(slot) + steps); }

TEST(PropertyLayout, AFlagStandsBesideItsAmount) {
  for (const Slot flag : {Slot::JointComp, Slot::JointCompParent, Slot::MuscleFlex, Slot::MuscleFlexParent, Slot::Bulge,
                          Slot::BulgeParent, Slot::Twist}) {
    EXPECT_TRUE(inOneRow(flag, after(flag, 1))) << skg::indexOf(flag);
  }
}

TEST(PropertyLayout, LeastAndGreatestStandSideBySide) {
  for (const Slot least :
       {Slot::RangeMin, Slot::SoftIKMin, Slot::XPositionMin, Slot::YPositionMin, Slot::ZPositionMin, Slot::HeadingMin,
        Slot::PitchMin, Slot::BankMin, Slot::XScaleMin, Slot::YScaleMin, Slot::ZScaleMin}) {
    EXPECT_TRUE(inOneRow(least, after(least, 1))) << skg::indexOf(least);
    EXPECT_LT(seen(least).hot.right, seen(after(least, 1)).hot.left) << skg::indexOf(least);
  }
}

// But for rows of nothing else than a flag with a long label, and of the blending where scales have no world coordinates.
TEST_P(EveryForm, HasRowsThatBeginAtOneLine) {
  std::map<int, int> firsts;
  for (const Seen& control : seenIn(GetParam())) {
    const std::size_t number = control.hot.number;
    if (number <= control::kGroups || number == controlOf(Slot::ScaleBlendMethod) || number == controlOf(Slot::ScaleBlend))
      continue;
    if (number == controlOf(Slot::UnaffectedByIK) || number == controlOf(Slot::StrengthMultiply)) continue;
    const int left = control.hot.left;
    const auto [first, isNew] = firsts.emplace(control.hot.top, left);
    first->second = std::min(first->second, left);
  }
  for (const auto& [top, left] : firsts) EXPECT_EQ(left, 155) << top << ": " << describe(GetParam());
}

TEST(PropertyLayout, ALinkedItemHasARowForItsNameOneForItsParentAndOneForItsLook) {
  for (const skg::LinkedItem& item : skg::kLinkedItems) {
    const bool hasParent = item.name != Slot::InitialPositionItem;  // whose parent stands on the IK page
    const int top = seen(item.name).hot.top;
    EXPECT_EQ(seen(item.shape).hot.top, top);
    if (hasParent) {
      EXPECT_EQ(seen(item.parent).hot.top, top + 24);
    }
    EXPECT_EQ(seen(item.visibility).hot.top, top + (hasParent ? 48 : 24));
    EXPECT_EQ(seen(item.colour).hot.top, top + (hasParent ? 48 : 24));
  }
}

TEST(PropertyLayout, NamesOfItemsHave26LettersInSight) {
  for (const PropertyRow& row : controlTable()) {
    if (row.kind != HostControl::Edit) continue;
    const Seen field = seen(row.number);
    EXPECT_GE(field.hot.right - field.hot.left, 26 * kCell + 2 * kEditFrame) << row.number;
  }
}

TEST(PropertyLayout, FactorAndOffsetStandTogetherAndNotBelowTheLimits) {
  for (const skg::AxisSettings& axis : skg::kAxes) {
    EXPECT_EQ(seen(axis.factor).hot.top, seen(axis.offset).hot.top);
    EXPECT_EQ(seen(axis.offset).hot.left - seen(axis.factor).hot.right, 2);
    EXPECT_NE(seen(axis.factor).hot.left, seen(axis.least).hot.left);
    EXPECT_NE(seen(axis.offset).hot.left, seen(axis.greatest).hot.left);
  }
}

TEST(PropertyLayout, ChoosersAndFillButtonsStandBehindTheirField) {
  for (const PropertyRow& row : controlTable()) {
    if (row.role != Role::WeightMaps && row.role != Role::LinkedFill && row.role != Role::ItemNames) continue;
    EXPECT_EQ(seen(row.number).hot.top, seen(row.number - 1).hot.top) << row.number;
    EXPECT_GT(seen(row.number).hot.left, seen(row.number - 1).hot.right) << row.number;
  }
}

TEST(PropertyLayout, TheNamesTwoControlsStandInOnePlace) {
  const Seen edit = seen(control::kNameEdit);
  const Seen popup = seen(control::kNamePopup);
  EXPECT_EQ(edit.hot.left, popup.hot.left);
  EXPECT_EQ(edit.hot.top, popup.hot.top);
  EXPECT_EQ(edit.hot.right, popup.hot.right);
}

// ---------------------------------------------------------------------------------------------------------------------
// Fixed places

TEST(PropertyLayout, TheFrameOfTheBottomRowHasItsPlace) {
  const Seen frame = seen(control::kFrame);
  EXPECT_EQ(frame.hot.left, 5);
  EXPECT_EQ(frame.hot.top, 660);
  EXPECT_EQ(frame.hot.right, 5 + 375);
}

TEST(PropertyLayout, TheBottomButtonsEndAtTheirPlaces) {
  const std::pair<std::size_t, int> edges[] = {{control::kReset, 95}, {control::kResetAll, 165}, {control::kSync, 275}};
  for (const auto& [number, edge] : edges) {
    EXPECT_EQ(seen(number).hot.right, edge) << number;
    EXPECT_EQ(seen(number).hot.top, 665) << number;
  }
}

TEST(PropertyLayout, AButtonOfAnotherWidthStillEndsAtItsPlace) {
  const forms::Position position = positionOf(controlTable()[control::kReset], {80, 0});
  EXPECT_EQ(position.x + 80, 95);
}

// Whatever the host makes of the label, the field stands where the others stand.
TEST(PropertyLayout, AFieldStaysWithALabelOfAnotherWidth) {
  const PropertyRow& strength = controlTable()[controlOf(Slot::Strength).value()];
  EXPECT_EQ(positionOf(strength, {150, 80}).x + 80, positionOf(strength, {110, 40}).x + 40);
}

}  // namespace
}  // namespace mst
