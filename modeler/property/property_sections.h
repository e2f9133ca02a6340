// The pages of the property panel and the groups of its last page: which controls each of them shows. No host here.
#pragma once

#include <cstddef>

namespace mst {

// When a control is shown, and from where its rows are counted.
enum class Section : std::size_t {
  Head,
  Frame,
  Buttons,
  GroupPage,
  BonePage,
  IKPage,
  ControllersPage,
  GroupChoice,
  PositionGroup,
  RotationGroup,
  ScaleGroup,
};
inline constexpr std::size_t kSectionCount = 11;

inline constexpr int kPageCount = 4;
inline constexpr int kControllersPage = 3;  // the page that has groups
inline constexpr int kMotionGroupCount = 3;

// Of a control by its number.
Section sectionOf(std::size_t control);

// Whether a section is to be seen while a page and, on the last page, a group is chosen.
bool isShown(Section section, int page, int group);

}  // namespace mst
