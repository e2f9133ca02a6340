// The system's headers that the windows need, in the order that they need.
#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>
