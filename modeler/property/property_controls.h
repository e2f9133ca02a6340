// The controls of the property panel as one table: what each one is, which setting it shows and where it stands in the form.
// Labels, show and hide, loading and writing all walk this table. No host here.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "skelegon/slots.h"
#include "texts/texts.h"

namespace mst {

// A control is known by its number, which is its place in the order of creation and the key of the label tables.
inline constexpr std::size_t kControlCount = 192;

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

// The kinds of the host's controls that the panel uses.
enum class HostControl {
  Angle,
  Bool,
  BoolButton,
  Border,
  Button,
  CustomPopup,
  Distance,
  Edit,
  Float,
  MiniSlider,
  Percent,
  Popup,
  Tabs,
};

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
  int width = 0;  // of the hot area
  By by = By::HotArea;
};

// The least and the greatest number that a slider takes.
struct Range {
  int least = 0;
  int greatest = 0;
};

struct ControlRow {
  std::size_t number = 0;
  Section section = Section::Head;
  HostControl kind = HostControl::Border;
  Role role = Role::Decoration;
  std::optional<skg::Slot> slot;             // the setting that it shows; none for all but values
  std::optional<texts::ChoiceList> choices;  // of popups and tabs with a fixed list
  Place place;
  Range range;  // of sliders for whole numbers
};

const std::array<ControlRow, kControlCount>& controlTable();

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
