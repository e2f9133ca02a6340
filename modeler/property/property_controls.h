// The controls of the property panel as one table: what each one is, which setting it shows and where it stands in the form.
// Labels, show and hide, loading and writing all walk this table. No host here.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "forms/controls.h"
#include "skelegon/slots.h"

namespace mst {

// A control is known by its number, which is its place in the order of creation and the key of the label tables.
inline constexpr std::size_t kControlCount = 192;

using forms::HostControl;
using skg::ValueKind;

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

// What happens when the user uses a control.
enum class Role {
  Decoration,  // nothing: a line or a frame
  PageTabs,    // shows a page
  GroupTabs,   // shows a group of the last page
  NameEdit,    // renames the selected skelegons
  NamePopup,   // shows the settings of one of the selected skelegons
  Value,       // writes its setting
  WeightMaps,  // fills the weight map field before it
  WeightFill,  // gives each selected skelegon the weight map of its own name
  LinkedFill,  // fills the item field before it for each selected skelegon
  ItemNames,   // fills the item field before it
  KeyFrames,   // the three presets: one value for all controllers of the group shown
  InverseKinematics,
  SameAsItem,
  Reset,
  ResetAll,
  Sync,
};

// The place in the form. The x is that of the hot area, so that fields line up whatever their labels are.
struct Place {
  enum class By { HotArea, RightEdge };

  int row = 0;    // within the section, from 0
  int x = 0;      // of the left edge, or of the right one
  int width = 0;  // to which the hot area is brought, whatever width the host was told
  By by = By::HotArea;
};

struct PropertyRow : forms::ControlRow {
  std::size_t number = 0;
  Section section = Section::Head;
  Role role = Role::Decoration;
  std::optional<skg::Slot> slot;  // the setting that it shows; none for all but values
  Place place;
};

const std::array<PropertyRow, kControlCount>& controlTable();

// The kind of value and the setting of a control; nothing of both for a number beyond the table.
struct ControlSlot {
  ValueKind value = ValueKind::None;
  std::optional<skg::Slot> slot;
};
ControlSlot ControlSlotMap(std::size_t control);

// The control that shows a setting; the name's is the name field. None for reserved slots.
std::optional<std::size_t> controlOf(skg::Slot slot);

// Controls that code calls by their name.
namespace control {
inline constexpr std::size_t kHeadLine = 0;
inline constexpr std::size_t kFrame = 1;
inline constexpr std::size_t kReset = 2;
inline constexpr std::size_t kResetAll = 3;
inline constexpr std::size_t kSync = 4;
inline constexpr std::size_t kPages = 5;
inline constexpr std::size_t kGroups = 6;
inline constexpr std::size_t kNameEdit = 7;
inline constexpr std::size_t kNamePopup = 8;
}  // namespace control

}  // namespace mst
