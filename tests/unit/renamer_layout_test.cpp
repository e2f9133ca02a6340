// The renamer panel's table and where its controls stand.
#include "modeler/renamer/renamer_layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "modeler/renamer/renamer_controls.h"
#include "texts/texts.h"

namespace varnel::test {
namespace {

using Item = mst::RenamerItem;
using Kind = mst::HostControl;
using Measures = std::array<forms::Measured, mst::kRenamerItemCount>;
using forms::Position;
using mst::RenameMode;

constexpr RenameMode kEveryMode[] = {
    RenameMode::Change,  RenameMode::Prefix, RenameMode::Suffix, RenameMode::Replace, RenameMode::RegularExpression,
    RenameMode::Advanced};

// Every control is 50 wide; labels are as wide as their number.
Measures someMeasures() {
  Measures measures;
  for (std::size_t i = 0; i < measures.size(); ++i) measures[i] = {50, static_cast<int>(i)};
  return measures;
}
mst::RenamerPositions homes() { return mst::renamerHomes(someMeasures()); }
forms::Position home(Item item) { return homes()[mst::indexOf(item)]; }
forms::Position inMode(Item item, RenameMode mode) { return mst::renamerPosition(item, mode, home(item)); }

TEST(RenamerTable, NamesItsLabels) {
  const auto& labels = texts::renamerLabels(texts::Language::English);
  const std::vector<std::string> expected = {
      // clang-format off
      "Mode", "", "", "Target", "Registered Count", "Add", "Clear", "Conversion Method", "Based Name", "", "Add to Head", "",
      "Add to Last", "", "Replace", "", "", "RegExp", "", "", "Column Character", "Order", "Start", "Invert", "Row Digit",
      "Number of Digits", "Start", "Target", "Skelegon", "Bone Weight Map", "Bone Property", "Overlap Check", "", "Run",
      // clang-format on
  };
  std::vector<std::string> shown;
  for (const mst::RenamerRow& row : mst::renamerTable()) shown.push_back(row.label ? labels[*row.label] : "");
  EXPECT_EQ(shown, expected);
}

TEST(RenamerTable, HasTheSameLabelsInBothLanguages) {
  for (const mst::RenamerRow& row : mst::renamerTable()) {
    if (row.label) {
      EXPECT_STRNE(texts::renamerLabels(texts::Language::Japanese)[*row.label], "");
    }
  }
}

TEST(RenamerHomes, HaveTheHeightsOfTheTable) {
  std::vector<int> tops;
  for (const forms::Position position : homes()) tops.push_back(position.y);
  tops.resize(32);
  EXPECT_EQ(tops, (std::vector<int>{0,   24,  48,  72,  96,  96,  96,  120, 142, 142, 166, 166, 190, 190, 214, 214,
                                    236, 260, 260, 282, 318, 318, 342, 366, 402, 402, 424, 460, 460, 482, 504, 540}));
}

// The whole table, written out apart from the module's: the kinds, the widths that are asked for, and the places where each
// control is 50 wide and each label 30.
TEST(RenamerHomes, AndWidthsAreThoseOfTheDesign) {
  struct Designed {
    Kind kind;
    int width, x, y;
    bool operator==(const Designed&) const = default;
  };
  const std::vector<Designed> designed = {
      // clang-format off
      {Kind::Popup, 140, 70, 0}, {Kind::Edit, 33, 100, 24}, {Kind::Edit, 33, 100, 48}, {Kind::Popup, 140, 70, 72},
      {Kind::NumberInfo, 0, 70, 96}, {Kind::Button, 60, 188, 96}, {Kind::Button, 40, 248, 96}, {Kind::Text, 0, 4, 120},
      {Kind::Bool, 0, 4, 142}, {Kind::Edit, 34, 58, 142},
      {Kind::Bool, 0, 4, 166}, {Kind::Edit, 34, 58, 166},
      {Kind::Bool, 0, 4, 190}, {Kind::Edit, 34, 58, 190},
      {Kind::Bool, 0, 4, 214}, {Kind::Edit, 34, 58, 214}, {Kind::Edit, 34, 58, 236},
      {Kind::Bool, 0, 4, 260}, {Kind::Edit, 34, 58, 260}, {Kind::Edit, 34, 58, 282},
      {Kind::Bool, 0, 4, 318}, {Kind::Popup, 140, 58, 318}, {Kind::Popup, 140, 58, 342}, {Kind::Bool, 0, 140, 366},
      {Kind::Bool, 0, 4, 402}, {Kind::Number, 0, 58, 402}, {Kind::Number, 0, 58, 424},
      {Kind::Text, 0, 4, 460}, {Kind::Bool, 0, 100, 460}, {Kind::Bool, 0, 100, 482}, {Kind::Bool, 0, 100, 504},
      {Kind::Bool, 0, 70, 540}, {Kind::Border, 320, 0, 568}, {Kind::Button, 80, 120, 600},
      // clang-format on
  };
  Measures measures;
  for (const mst::RenamerRow& row : mst::renamerTable()) measures[mst::indexOf(row.item)] = {50, row.label ? 30 : 0};
  const mst::RenamerPositions places = mst::renamerHomes(measures);
  ASSERT_EQ(designed.size(), places.size());
  for (const mst::RenamerRow& row : mst::renamerTable()) {
    const std::size_t i = mst::indexOf(row.item);
    EXPECT_EQ((Designed{row.kind, row.width, places[i].x, places[i].y}), designed[i]) << "control " << i + 1;
  }
}

TEST(RenamerHomes, LineUpHotAreasAt100) {
  for (const Item item :
       {Item::Mode, Item::FirstText, Item::SecondText, Item::Target, Item::RegisteredCount, Item::OverlapCheck}) {
    EXPECT_EQ(home(item).x, 100 - static_cast<int>(mst::indexOf(item)));
  }
}

TEST(RenamerHomes, StandAtTheirLeftEdge) {
  EXPECT_EQ(home(Item::Add).x, 188);
  EXPECT_EQ(home(Item::Clear).x, 248);
  EXPECT_EQ(home(Item::BaseNameOn).x, 4);
  EXPECT_EQ(home(Item::Invert).x, 140);
  EXPECT_EQ(home(Item::BoneProperty).x, 100);
  EXPECT_EQ(home(Item::Border).x, 0);
}

TEST(RenamerHomes, AlignWhatIsBesideCheckMarks) {
  Measures measures = someMeasures();
  measures[mst::indexOf(Item::SuffixOn)].width = 70;  // the widest of its block
  for (const Item item : {Item::BaseName, Item::Prefix, Item::Suffix, Item::ReplaceFrom, Item::ReplaceTo, Item::RegexPattern,
                          Item::RegexFormat})
    measures[mst::indexOf(item)].labelWidth = 0;
  const mst::RenamerPositions places = mst::renamerHomes(measures);
  for (const Item item : {Item::BaseName, Item::Prefix, Item::Suffix, Item::ReplaceFrom, Item::ReplaceTo, Item::RegexPattern,
                          Item::RegexFormat})
    EXPECT_EQ(places[mst::indexOf(item)].x, 4 + 70 + 4);
}

TEST(RenamerHomes, AlignHotAreasBesideCheckMarksWhateverTheirLabels) {
  Measures measures = someMeasures();
  measures[mst::indexOf(Item::RowDigits)].labelWidth = 90;
  measures[mst::indexOf(Item::RowStart)].labelWidth = 30;
  const mst::RenamerPositions places = mst::renamerHomes(measures);
  EXPECT_EQ(places[mst::indexOf(Item::RowDigits)].x, 4 + 50 + 4);
  EXPECT_EQ(places[mst::indexOf(Item::RowStart)].x, 4 + 50 + 4 + 60);
}

TEST(RenamerHomes, KeepBorderAndButtonBelowTheLastControl) {
  EXPECT_GE(home(Item::Border).y, home(Item::OverlapCheck).y + 20);
  EXPECT_GE(home(Item::Run).y, home(Item::Border).y + mst::renamerTable()[mst::indexOf(Item::Border)].height);
  EXPECT_LE(home(Item::Run).y + 20, mst::kRenamerAdvancedHeight);
}

// ---------------------------------------------------------------------------------------------------------------------
// The two layouts

TEST(RenamerLayout, HasTwoSizes) {
  EXPECT_EQ(mst::kRenamerWidth, 320);
  EXPECT_EQ(mst::renamerHeight(RenameMode::Change), 130);
  EXPECT_EQ(mst::renamerHeight(RenameMode::RegularExpression), 130);
  EXPECT_EQ(mst::renamerHeight(RenameMode::Advanced), 630);
}

TEST(RenamerLayout, ShowsTheAdvancedControlsInTheAdvancedModeOnly) {
  for (std::size_t i = mst::indexOf(Item::Target); i <= mst::indexOf(Item::OverlapCheck); ++i) {
    const auto item = static_cast<Item>(i);
    EXPECT_EQ(inMode(item, RenameMode::Advanced), home(item));
    if (item == Item::BoneProperty) continue;
    for (const RenameMode mode : kEveryMode) {
      if (mst::isSimple(mode)) {
        EXPECT_EQ(inMode(item, mode), mst::kOutOfSight);
      }
    }
  }
}

TEST(RenamerLayout, ShowsTheSecondTextForTwoModes) {
  for (const RenameMode mode : kEveryMode) {
    const bool hasTwo = mode == RenameMode::Replace || mode == RenameMode::RegularExpression;
    EXPECT_EQ(inMode(Item::SecondText, mode), hasTwo ? home(Item::SecondText) : mst::kOutOfSight);
    EXPECT_EQ(inMode(Item::FirstText, mode), mst::isSimple(mode) ? home(Item::FirstText) : mst::kOutOfSight);
    EXPECT_EQ(inMode(Item::Mode, mode), home(Item::Mode));
  }
}

TEST(RenamerLayout, MovesBonePropertyBorderAndButtonUpInSimpleModes) {
  for (const RenameMode mode : kEveryMode) {
    if (!mst::isSimple(mode)) continue;
    EXPECT_EQ(inMode(Item::BoneProperty, mode), (forms::Position{100, 72}));
    EXPECT_EQ(inMode(Item::Border, mode), (forms::Position{home(Item::Border).x, home(Item::Border).y - 500}));
    EXPECT_EQ(inMode(Item::Run, mode), (forms::Position{home(Item::Run).x, home(Item::Run).y - 500}));
  }
}

TEST(RenamerLayout, PutsWhatIsOutOfSightAt800) { EXPECT_EQ(mst::kOutOfSight, (forms::Position{800, 800})); }

}  // namespace
}  // namespace varnel::test
