// Which of the system's controls stands for each kind of the host's, as one table.
#pragma once

#include <array>

#include "standin/panels/kinds.h"
#include "standin/windows/system.h"

namespace standin {

// How a part is drawn and what its messages mean.
enum class Look { None, Lines, Info, Field, List, Tabs, Check, Button, Drawing };

struct NativeKind {
  ControlKind kind;
  const wchar_t* windowClass;  // null: painted on the panel itself
  DWORD style;
  Look look;
  bool hasSlider;  // a slider of kSliderWidth at the right end of the hot area
};

inline constexpr wchar_t kDrawingClass[] = L"VarnelDrawing";

// clang-format off
inline constexpr DWORD kField = ES_AUTOHSCROLL | WS_TABSTOP;
inline constexpr DWORD kList = CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP;
inline constexpr DWORD kTabs = TCS_SINGLELINE | TCS_FOCUSNEVER;
inline constexpr DWORD kDrawn = BS_OWNERDRAW | WS_TABSTOP;

inline constexpr std::array kNativeKinds{
    //         kind                       window class    style                           look           slider
    NativeKind{ControlKind::Edit,         L"EDIT",        kField,                         Look::Field,   false},
    NativeKind{ControlKind::Num,          L"EDIT",        kField,                         Look::Field,   false},
    NativeKind{ControlKind::NumInfo,      L"STATIC",      SS_OWNERDRAW,                   Look::Info,    false},
    NativeKind{ControlKind::Text,         L"STATIC",      SS_OWNERDRAW,                   Look::Lines,   false},
    NativeKind{ControlKind::Popup,        L"COMBOBOX",    kList,                          Look::List,    false},
    NativeKind{ControlKind::TabChoice,    WC_TABCONTROLW, kTabs,                          Look::Tabs,    false},
    NativeKind{ControlKind::CustomPopup,  L"COMBOBOX",    kList,                          Look::List,    false},
    NativeKind{ControlKind::Bool,         L"BUTTON",      kDrawn,                         Look::Check,   false},
    NativeKind{ControlKind::BoolButton,   L"BUTTON",      kDrawn,                         Look::Button,  false},
    NativeKind{ControlKind::Button,       L"BUTTON",      kDrawn,                         Look::Button,  false},
    NativeKind{ControlKind::MiniSlider,   L"EDIT",        kField,                         Look::Field,   true},
    NativeKind{ControlKind::Percent,      L"EDIT",        kField,                         Look::Field,   true},
    NativeKind{ControlKind::Angle,        L"EDIT",        kField,                         Look::Field,   true},
    NativeKind{ControlKind::MiniDistance, L"EDIT",        kField,                         Look::Field,   true},
    NativeKind{ControlKind::MiniFloat,    L"EDIT",        kField,                         Look::Field,   true},
    NativeKind{ControlKind::Border,       nullptr,        0,                              Look::None,    false},
    NativeKind{ControlKind::OpenGL,       kDrawingClass,  WS_CLIPCHILDREN,                Look::Drawing, false},
};
// clang-format on

constexpr bool nativeKindsFollowTheHosts() {
  for (std::size_t i = 0; i < kNativeKinds.size(); ++i) {
    if (kNativeKinds[i].kind != kControlKinds[i].kind) return false;
    if (kNativeKinds[i].hasSlider != (kControlKinds[i].handling == Handling::Slide)) return false;
  }
  return kNativeKinds.size() == kControlKinds.size();
}
static_assert(nativeKindsFollowTheHosts());

constexpr const NativeKind& nativeKind(ControlKind kind) { return kNativeKinds[static_cast<std::size_t>(kind)]; }

}  // namespace standin
