// What panels are made of, as plain data: for their tables, which need no host, and for what makes the host's controls of
// them.
#pragma once

#include <cstddef>
#include <optional>

namespace forms {

// The kinds of the host's controls that the panels use.
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
  Number,
  NumberInfo,
  OpenGL,
  Percent,
  Popup,
  Tabs,
  Text,
};

// The least and the greatest number that a control takes.
struct Range {
  int least = 0;
  int greatest = 0;
};

// A control to be made. Its label and its list are known by their numbers in the panel's texts, which depend on the language.
struct ControlRow {
  HostControl kind = HostControl::Border;
  std::optional<std::size_t> label{};  // none: no label
  // In pixels and without the label; of edit fields in characters, of sliders that of the field. 0 leaves it to the host.
  int width = 0;
  std::optional<std::size_t> choices{};  // of popups and tabs with a fixed list
  int height = 0;                        // of borders and OpenGL areas
  Range range{};                         // of sliders for whole numbers
};

// The upper left corner of a whole control, in pixels from that of the panel.
struct Position {
  int x = 0;
  int y = 0;

  friend bool operator==(Position, Position) = default;
};

// What the host says of a control, in pixels.
struct Measured {
  int width = 0;       // of the whole, label included
  int labelWidth = 0;  // 0 for a control that draws its label inside
};

}  // namespace forms
