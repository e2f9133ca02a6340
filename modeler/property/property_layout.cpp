#include "modeler/property/property_layout.h"

#include <array>
#include <initializer_list>

#include "modeler/property/property_sections.h"

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
constexpr BlockRows kMotionBlocks = gapAbove({3, 7, 11});  // one for each axis

struct SectionForm {
  Section section;
  int top;
  BlockRows blocks;
};
// clang-format off
constexpr std::array<SectionForm, kSectionCount> kForms = {{
    // section                 top              rows with a gap above
    {Section::Head,            kHeadTop,        gapAbove({})},
    {Section::Frame,           660,             gapAbove({})},
    {Section::Buttons,         665,             gapAbove({})},
    {Section::GroupPage,       kPageTop,        gapAbove({})},
    {Section::BonePage,        kPageTop,        gapAbove({2, 4, 6, 7, 14, 16})},
    {Section::IKPage,          kPageTop,        gapAbove({1, 3, 5, 7, 12, 14, 17})},
    {Section::ControllersPage, kPageTop,        kControllersBlocks},
    {Section::GroupChoice,     kGroupChoiceTop, gapAbove({})},
    {Section::PositionGroup,   kMotionTop,      kMotionBlocks},
    {Section::RotationGroup,   kMotionTop,      kMotionBlocks},
    {Section::ScaleGroup,      kMotionTop,      kMotionBlocks},
}};
// clang-format on

constexpr bool formsStandInOrder() {
  for (std::size_t i = 0; i < kForms.size(); ++i) {
    if (static_cast<std::size_t>(kForms[i].section) != i) return false;
  }
  return true;
}
static_assert(formsStandInOrder());

}  // namespace

Position positionOf(const ControlRow& row, const Measured& measured) {
  const SectionForm& form = kForms[static_cast<std::size_t>(sectionOf(row.number))];
  const int y = yOfRow(form.top, form.blocks, row.place.row);
  if (row.place.by == Place::By::RightEdge) return {row.place.x - measured.width, y};
  return {row.place.x - measured.labelWidth, y};
}

int heightOf(const ControlRow& row) { return row.number == control::kFrame ? kFootHeight : 0; }

}  // namespace mst
