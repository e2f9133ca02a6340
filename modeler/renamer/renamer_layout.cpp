#include "modeler/renamer/renamer_layout.h"

#include <algorithm>

namespace mst {
namespace {

using Measures = std::array<RenamerMeasure, kRenamerItemCount>;

constexpr int kGap = 4;  // between check marks and what is beside them

// The x of the hot areas beside the check marks of a block: right of the widest one and of the widest label.
int hotColumn(RenamerBlock block, const Measures& measures) {
  int marks = 0;
  int labels = 0;
  for (const RenamerRow& row : renamerTable()) {
    if (row.place.block != block) continue;
    const RenamerMeasure& measure = measures[indexOf(row.item)];
    if (row.place.by == RenamerPlace::By::Beside) {
      labels = std::max(labels, measure.labelWidth);
    } else {
      marks = std::max(marks, row.place.x + measure.width);
    }
  }
  return marks + kGap + labels;
}

bool hasTwoTexts(RenameMode mode) { return mode == RenameMode::Replace || mode == RenameMode::RegularExpression; }

}  // namespace

RenamerPositions renamerHomes(const Measures& measures) {
  RenamerPositions homes;
  for (const RenamerRow& row : renamerTable()) {
    const int labelWidth = measures[indexOf(row.item)].labelWidth;
    int x = row.place.x;
    if (row.place.by == RenamerPlace::By::HotArea) x -= labelWidth;
    if (row.place.by == RenamerPlace::By::Beside) x = hotColumn(row.place.block, measures) - labelWidth;
    homes[indexOf(row.item)] = {x, row.place.y};
  }
  return homes;
}

RenamerPosition renamerPosition(RenamerItem item, RenameMode mode, RenamerPosition home) {
  constexpr RenamerPosition kSimpleBoneProperty = {100, 72};
  constexpr int kRaised = kRenamerAdvancedHeight - kRenamerSimpleHeight;
  const bool simple = isSimple(mode);
  switch (item) {
    case RenamerItem::Mode: return home;
    case RenamerItem::FirstText: return simple ? home : kOutOfSight;
    case RenamerItem::SecondText: return hasTwoTexts(mode) ? home : kOutOfSight;
    case RenamerItem::BoneProperty: return simple ? kSimpleBoneProperty : home;
    case RenamerItem::Border:
    case RenamerItem::Run: return simple ? RenamerPosition{home.x, home.y - kRaised} : home;
    default: return simple ? kOutOfSight : home;
  }
}

}  // namespace mst
