// The host may tell of the mouse in two ways: through the panel's hooks and through the control's event, or in both at once.
// This makes one stream of presses, moves and releases of them, in which a press that came in both ways is one.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

namespace mst {

enum class MouseWay : std::size_t { Hooks, ControlEvent };

// One call of the host's about the mouse.
struct MouseReport {
  int x = 0;
  int y = 0;
  int bits = 0;    // the host's mouse bits
  int clicks = 1;  // in quick succession
};

enum class MouseStep { Nothing, Press, Move, Release };

class CMouseMerge {
 public:
  // Forgets what was pressed.
  void reset() { *this = CMouseMerge(); }

  // A call that is known to tell of a button.
  MouseStep button(MouseWay way, const MouseReport& report);
  // A call that is known to tell of motion.
  MouseStep motion(MouseWay way, const MouseReport& report);
  // A call that does not say what it tells of: a press when no button was down before.
  MouseStep any(MouseWay way, const MouseReport& report);

 private:
  struct Way {
    bool isDown = false;
    int clicks = 0;                        // of the press that is down
    std::optional<MouseReport> unmatched;  // the last press that the other way has not told of
  };

  Way& at(MouseWay way) { return ways_[static_cast<std::size_t>(way)]; }
  Way& other(MouseWay way) { return ways_[1 - static_cast<std::size_t>(way)]; }
  MouseStep press(MouseWay way, const MouseReport& report);
  MouseStep release(MouseWay way);

  std::array<Way, 2> ways_;
};

}  // namespace mst
