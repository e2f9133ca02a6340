// The windows' own messages and command numbers.
#pragma once

#include "standin/windows/system.h"

namespace standin {

inline constexpr UINT kMessageSync = WM_APP + 1;    // the panel's record changed
inline constexpr UINT kMessageChosen = WM_APP + 2;  // an item of a list was chosen; its part's window in the first number

// The numbers of a window's own parts begin here.
inline constexpr int kFirstPart = 0x100;

}  // namespace standin
