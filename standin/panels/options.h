// How the stand-in's panel services behave where hosts may differ. The defaults are strict and well-behaved; tests of the
// module's robustness switch single lines.
#pragma once

#include <cstddef>

namespace standin {

// The two ways in which mouse input over a panel reaches a module.
enum class MouseDelivery {
  Hooks,    // the panel's mouse hooks only
  Control,  // the event callback of the control below the pointer, with the mouse attributes
  Both,
};

// When the open hook of a panel is called.
enum class OpenHook {
  Shown,   // within `open`, the panel being there
  Before,  // within `open`, before the panel is there
  Later,   // when `open` and the activation that called it have returned
};

// What becomes of an index outside its list that the module sets.
enum class OutsideIndex {
  Kept,
  Clamped,      // to the nearest entry
  NotNegative,  // negative ones become 0
  Ignored,      // the list keeps the index that it had
};

// What of the mouse a control's event tells.
enum class EventMouse {
  All,      // presses, releases and the moves between
  Buttons,  // presses and releases
  Presses,
};

// How the click count of the mouse's last event comes about.
enum class ClickCount {
  ByPlace,   // in quick succession at one place
  ByTime,    // in quick succession, wherever
  Constant,  // always 1
  Never,     // always 0
};

// Which callback of an "OpenGLControl" an exposure calls.
enum class Painter { DrawCallback, EventCallback, Both };

// Which hook tells of moves with a button down.
enum class DragHook { Motion, Button };

struct PanelOptions {
  MouseDelivery mouse = MouseDelivery::Both;
  EventMouse eventMouse = EventMouse::All;
  bool eventBeforeHooks = false;         // where a press comes in both ways, the control's event comes first
  bool hooksNeedMouseFlag = true;        // panel mouse hooks are called only when opened with kOpenMouse
  bool hooksBesideControlsOnly = false;  // a press that a control hears does not reach the panel's hooks
  DragHook dragHook = DragHook::Motion;
  ClickCount clickCount = ClickCount::ByPlace;
  bool wheelCountsDown = false;      // a positive count of the wheel is towards the bottom
  bool mouseFromControl = false;     // a control's mouse position counts from its own corner, not the panel's
  bool qualifiersAreOfTold = false;  // the panel's qualifiers are of the last mouse event that the module was told of
  Painter painter = Painter::DrawCallback;
  bool paintsAtOnce = false;      // a control that is to be painted again is painted within that call
  bool contextInHooks = false;    // the drawing context of a panel's area is current in the panel's hooks, too
  bool resizeHookOnOpen = false;  // opening a panel calls its resize hook

  int openAnswer = 1;  // of `open` for a panel that was shown and does not block
  OpenHook openHook = OpenHook::Shown;
  bool closeCallsHook = true;      // `close` calls the close hook; else only the user's closing does
  bool sizeNeedsResizable = true;  // an open panel takes a new size from the module only when opened resizable
  bool resizeHookOnSet = false;    // a size set by the module on an open panel calls the resize hook too
  OutsideIndex outsideIndex = OutsideIndex::Kept;
  bool asksPopupsAnytime = false;   // custom popups are asked when they are made, set and drawn, for any index
  bool eraseCovers = true;          // erasing a control paints over what lies where it is, until that is drawn again
  bool movesRepaint = true;         // a control moved on an open panel is seen there at once; else when it is drawn
  bool setsRepaint = true;          // a value set on an open panel is seen at once; else when the control is drawn
  bool setsFireEvents = false;      // odd host: setting a value fires the control's event
  bool repeatedChoiceFires = true;  // choosing the item that is chosen already is an event
  bool drawBeforeOpenHolds = true;  // hiding a control of a closed panel still holds when the panel opens
  bool copiesTexts = false;         // labels, titles and lists are copied instead of read when they are needed
  bool terminatesTexts = false;     // a text that fills the caller's buffer is cut to leave room for the final zero
  std::size_t longestText = 0;      // bytes that an edit field holds, others are dropped; 0: any number
  bool firesAtEachLetter = false;   // typing fires at each letter instead of once at the end
  bool slidersLimitTyped = true;    // least and greatest value hold for whole numbers typed beside a slider
  bool limitsSetValues = false;     // and, where values are limited, for those that the module sets
  bool rangesInValueUnit = false;   // least and greatest value are in the value's unit, radians for angles
  bool limitsTypedValues = false;   // least and greatest value hold for typed percents, angles, distances and floats
  bool wantsLookupFunction = true;  // the module must have written its lookup function before it creates a panel
  int rowHeight = 20;               // of controls of one row
  int rightPadding = 0;             // pixels of a control right of its hot area, so that width > label + hot width

  bool operator==(const PanelOptions&) const = default;
};

}  // namespace standin
