// The kinds of control that the stand-in's panels know, as one table.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "interface/lightwave.h"

namespace standin {

enum class ControlKind {
  Edit,
  Num,
  NumInfo,
  Text,
  Popup,
  TabChoice,
  CustomPopup,
  Bool,
  BoolButton,
  Button,
  MiniSlider,
  Percent,
  Angle,
  MiniDistance,
  MiniFloat,
  Border,
  OpenGL,
};

// The variant of the description union that goes with a type code.
enum class DescriptionPart { None, String, Choice, Text, Range, Area, Popup };

// What control attribute 4 carries.
enum class ValueForm { None, Integer, Float, String };

// How a person uses a control of the kind.
enum class Handling {
  None,    // looked at only
  Press,   // a button
  Toggle,  // on and off
  Choose,  // a list of items
  Type,    // a field that takes text
  Slide,   // a field with a slider beside it
  Mouse,   // an area that gets the mouse
};

struct DescriptionForm {
  int type = -1;  // code of the description; -1: no further form
  DescriptionPart part = DescriptionPart::None;
};

struct KindRow {
  ControlKind kind;
  const char* name;
  std::array<DescriptionForm, 2> forms;  // what a description may look like
  ValueForm value;
  Handling handling;
  bool labelInside;  // drawn within the hot area, so that the label takes no width of its own
};

// clang-format off
inline constexpr std::array kControlKinds{
    //      kind                       name                  description                                        value               handling          label inside
    KindRow{ControlKind::Edit,         "EditControl",         {{{lw::kValueString, DescriptionPart::String}}},  ValueForm::String,  Handling::Type,   false},
    KindRow{ControlKind::Num,          "NumControl",          {{{lw::kValueInteger, DescriptionPart::None}}},   ValueForm::Integer, Handling::Type,   false},
    KindRow{ControlKind::NumInfo,      "NumInfoControl",      {{{lw::kValueInteger, DescriptionPart::None}}},   ValueForm::Integer, Handling::None,   false},
    KindRow{ControlKind::Text,         "TextControl",         {{{lw::kValueText, DescriptionPart::Text}}},      ValueForm::None,    Handling::None,   false},
    KindRow{ControlKind::Popup,        "PopupControl",        {{{lw::kValueChoice, DescriptionPart::Choice}}},  ValueForm::Integer, Handling::Choose, false},
    KindRow{ControlKind::TabChoice,    "TabChoiceControl",    {{{lw::kValueChoice, DescriptionPart::Choice}}},  ValueForm::Integer, Handling::Choose, false},
    KindRow{ControlKind::CustomPopup,  "CustomPopupControl",  {{{lw::kValuePopup, DescriptionPart::Popup}}},    ValueForm::Integer, Handling::Choose, false},
    KindRow{ControlKind::Bool,         "BoolControl",         {{{lw::kValueBoolean, DescriptionPart::None}}},   ValueForm::Integer, Handling::Toggle, false},
    KindRow{ControlKind::BoolButton,   "BoolButtonControl",   {{{lw::kValueBoolean, DescriptionPart::None},
                                                                {lw::kValueArea, DescriptionPart::Area}}},      ValueForm::Integer, Handling::Toggle, true},
    KindRow{ControlKind::Button,       "ButtonControl",       {{{lw::kValueInteger, DescriptionPart::None},
                                                                {lw::kValueArea, DescriptionPart::Area}}},      ValueForm::None,    Handling::Press,  true},
    KindRow{ControlKind::MiniSlider,   "MiniSliderControl",   {{{lw::kValueRange, DescriptionPart::Range}}},    ValueForm::Integer, Handling::Slide,  false},
    KindRow{ControlKind::Percent,      "PercentControl",      {{{lw::kValueRange, DescriptionPart::Range}}},    ValueForm::Float,   Handling::Slide,  false},
    KindRow{ControlKind::Angle,        "AngleControl",        {{{lw::kValueRange, DescriptionPart::Range}}},    ValueForm::Float,   Handling::Slide,  false},
    KindRow{ControlKind::MiniDistance, "MiniDistanceControl", {{{lw::kValueRange, DescriptionPart::Range}}},    ValueForm::Float,   Handling::Slide,  false},
    KindRow{ControlKind::MiniFloat,    "MiniFloatControl",    {{{lw::kValueRange, DescriptionPart::Range}}},    ValueForm::Float,   Handling::Slide,  false},
    KindRow{ControlKind::Border,       "BorderControl",       {{{lw::kValueArea, DescriptionPart::Area}}},      ValueForm::None,    Handling::None,   true},
    KindRow{ControlKind::OpenGL,       "OpenGLControl",       {{{lw::kValueArea, DescriptionPart::Area}}},      ValueForm::None,    Handling::Mouse,  true},
};
// clang-format on

constexpr bool rowsFollowTheEnum() {
  for (std::size_t i = 0; i < kControlKinds.size(); ++i) {
    if (static_cast<std::size_t>(kControlKinds[i].kind) != i) return false;
  }
  return kControlKinds.size() == static_cast<std::size_t>(ControlKind::OpenGL) + 1;
}
static_assert(rowsFollowTheEnum());

constexpr const KindRow& rowOf(ControlKind kind) { return kControlKinds[static_cast<std::size_t>(kind)]; }

// Null for a name that is no kind.
constexpr const KindRow* kindNamed(std::string_view name) {
  for (const KindRow& row : kControlKinds) {
    if (row.name == name) return &row;
  }
  return nullptr;
}

}  // namespace standin
