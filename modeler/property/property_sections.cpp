#include "modeler/property/property_sections.h"

#include <array>

namespace mst {
namespace {

constexpr int kAlways = -1;

struct SectionRow {
  Section section;
  std::size_t first, last;  // the run of control numbers
  int page;                 // that shows it
  int group;                // of the last page, that shows it
};
// clang-format off
constexpr std::array<SectionRow, kSectionCount> kSections = {{
    // section                 first  last   page      group
    {Section::Head,              0,     0,   kAlways,  kAlways},  // and what is in no other run: page tabs and name
    {Section::Frame,             1,     1,   kAlways,  kAlways},
    {Section::Buttons,           2,     4,   kAlways,  kAlways},
    {Section::GroupPage,         9,    12,   0,        kAlways},
    {Section::BonePage,         13,    46,   1,        kAlways},
    {Section::IKPage,           47,    84,   2,        kAlways},
    {Section::ControllersPage,  85,    90,   3,        kAlways},
    {Section::GroupChoice,       6,     6,   3,        kAlways},
    {Section::PositionGroup,    91,   124,   3,        0},
    {Section::RotationGroup,   125,   158,   3,        1},
    {Section::ScaleGroup,      159,   191,   3,        2},
}};
// clang-format on

constexpr bool rowsStandInOrder() {
  for (std::size_t i = 0; i < kSections.size(); ++i) {
    if (static_cast<std::size_t>(kSections[i].section) != i) return false;
  }
  return true;
}
static_assert(rowsStandInOrder());

constexpr bool isOneOf(int wanted, int chosen) { return wanted == kAlways || wanted == chosen; }

}  // namespace

Section sectionOf(std::size_t control) {
  for (const SectionRow& row : kSections) {
    if (row.first <= control && control <= row.last) return row.section;
  }
  return Section::Head;
}

bool isShown(Section section, int page, int group) {
  const SectionRow& row = kSections[static_cast<std::size_t>(section)];
  return isOneOf(row.page, page) && isOneOf(row.group, group);
}

}  // namespace mst
