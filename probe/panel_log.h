// What the host called while a panel of the probe's was there: a plain list, in the order in which the calls came.
#pragma once

#include <chrono>
#include <vector>

#include "interface/lightwave.h"

namespace probe {

enum class Call { Opened, Closed, Resized, ButtonHook, MotionHook, WheelHook, Event, Draw, PopupCount, PopupName };

// Which of the probe's own calls was running.
enum class Within { Nothing, Open, Close, SetWidth };

// What the panel and its area tell of the mouse at that moment.
struct MouseTold {
  int panelX = 0;
  int panelY = 0;
  int controlX = 0;
  int controlY = 0;
  int qualifiers = 0;
  int clicks = 0;

  bool isDown() const { return (qualifiers & lw::kMouseDown) != 0; }
  bool hasShift() const { return (qualifiers & lw::kMouseShift) != 0; }
  bool operator==(const MouseTold&) const = default;
};

struct Called {
  Call call = Call::Opened;
  lw::LWControl* control = nullptr;  // of an event, or of what is drawn
  int x = 0;                         // what a hook was told: a place, or a size; of a popup name the index
  int y = 0;
  int bits = 0;
  Within within = Within::Nothing;
  double value = 0;  // of a field, at its event
  MouseTold mouse;
  void* context = nullptr;  // of OpenGL, that was current
  std::chrono::steady_clock::time_point when = std::chrono::steady_clock::now();
};

using Log = std::vector<Called>;

}  // namespace probe
