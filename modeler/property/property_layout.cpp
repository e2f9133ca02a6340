#include "modeler/property/property_layout.h"

#include <array>
#include <initializer_list>

#include "skelegon/table_order.h"

namespace mst {
namespace {

constexpr int kRowPitch = 24;
constexpr int kBlockGap = 8;

// One bit for each row that has a gap above it.
using BlockRows = unsigned;
constexpr BlockRows gapAbove(std::initializer_list<int> rows) {
  BlockRows bits = 0;
  for (const int row : rows) bits |= 1U << row;
  return bits;
}

constexpr int yOfRow(int top, BlockRows blocks, int row) {
  int y = top;
  for (int i = 0; i <= row; ++i) y += (blocks >> i & 1U) != 0 ? kBlockGap : 0;
  return y + row * kRowPitch;
}

constexpr int kHeadTop = 5;
constexpr int kPageTop = 62;
constexpr BlockRows kControllersBlocks = gapAbove({2});
constexpr int kGroupChoiceTop = yOfRow(kPageTop, kControllersBlocks, 2);
constexpr int kMotionTop = yOfRow(kPageTop, kControllersBlocks, 4) + kBlockGap;
constexpr BlockRows kMotionBlocks = gapAbove({4, 8, 12});  // one for each axis

constexpr int kAlways = -1;

struct SectionRow {
  Section section;
  int page;   // that shows it
  int group;  // of the last page, that shows it
  int top;
  BlockRows blocks;
};
// clang-format off
constexpr std::array<SectionRow, kSectionCount> kSections = {{
    // section                 page     group    top              rows with a gap above
    {Section::Head,            kAlways, kAlways, kHeadTop,        gapAbove({})},
    {Section::Frame,           kAlways, kAlways, 660,             gapAbove({})},
    {Section::Buttons,         kAlways, kAlways, 665,             gapAbove({})},
    {Section::GroupPage,       0,       kAlways, kPageTop,        gapAbove({})},
    {Section::BonePage,        1,       kAlways, kPageTop,        gapAbove({2, 4, 6, 7, 14, 16})},
    {Section::IKPage,          2,       kAlways, kPageTop,        gapAbove({1, 4, 7, 9, 15, 17, 20})},
    {Section::ControllersPage, 3,       kAlways, kPageTop,        kControllersBlocks},
    {Section::GroupChoice,     3,       kAlways, kGroupChoiceTop, gapAbove({})},
    {Section::PositionGroup,   3,       0,       kMotionTop,      kMotionBlocks},
    {Section::RotationGroup,   3,       1,       kMotionTop,      kMotionBlocks},
    {Section::ScaleGroup,      3,       2,       kMotionTop,      kMotionBlocks},
}};
// clang-format on

static_assert(skg::standInOrder(kSections, &SectionRow::section));

const SectionRow& sectionOf(const PropertyRow& row) { return kSections[static_cast<std::size_t>(row.section)]; }

constexpr bool isOneOf(int wanted, int chosen) { return wanted == kAlways || wanted == chosen; }

}  // namespace

bool isShown(const PropertyRow& row, int page, int group) {
  const SectionRow& section = sectionOf(row);
  return isOneOf(section.page, page) && isOneOf(section.group, group);
}

forms::Position positionOf(const PropertyRow& row, const forms::Measured& measured) {
  const SectionRow& section = sectionOf(row);
  const int y = yOfRow(section.top, section.blocks, row.place.row);
  if (row.place.by == Place::By::RightEdge) return {row.place.x - measured.width, y};
  return {row.place.x - measured.labelWidth, y};
}

}  // namespace mst
