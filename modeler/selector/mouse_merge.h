// The host may tell of the mouse in two ways: through the panel's hooks and through the control's event, or in both at once;
// of every press, move and release, or of presses only. This makes one stream of presses, moves and releases of them.
#pragma once

#include <optional>

namespace mst {

// One call of the host's about the mouse.
struct MouseReport {
  int x = 0;
  int y = 0;
  int bits = 0;                 // the host's mouse bits
  int clicks = 1;               // in quick succession, as far as the host counts them
  bool isInside = true;         // of the tree; a press that is not has nothing to do with it
  bool isBarDragged = false;    // a scroll bar is
  bool isOnDraggedBar = false;  // in the strip of that one
};

enum class MouseStep {
  Nothing,
  Press,
  Guess,        // a press by all that is known so far; it may turn out to have been a move
  Move,         // with the button down
  Release,      // here and now
  LateRelease,  // at some time before
  TakeBack,     // a release that shows the guesses since the last press to have been moves
};

// What one way has told. A report with the button down that follows another one is a move where releases are told, and a
// press where they are not. Until the first release is heard that is open: then only a step that no press can make is a
// move, or a short one while a scroll bar is dragged.
class CMouseWay {
 public:
  bool isDown() const { return isDown_; }
  bool repeatsLast(const MouseReport& report) const;
  bool movesFromLast(const MouseReport& report) const;
  bool tremblesFromLast(const MouseReport& report) const;  // no further than a hand does without meaning to

  // A report with the button down. One that repeats the last is a second press at the same place where no releases are told.
  MouseStep down(const MouseReport& report);
  // One with no button down. `isTold` is false when the host may not have called because of the release.
  MouseStep up(const MouseReport& report, bool isTold);
  // Keeps a report to compare the next one with.
  void note(const MouseReport& report);
  void forgetButton() { isDown_ = false; }

 private:
  MouseStep downAgain(const MouseReport& report) const;

  bool isDown_ = false;
  bool tellsReleases_ = false;
  bool hasGuessed_ = false;  // since the last press that was certain
  int clicks_ = 0;           // of the last press
  MouseReport last_;
};

class CMouseMerge {
 public:
  // The panel is about to open: forgets all. `standing` is what the control tells of the mouse before anything has happened.
  void reset(const MouseReport& standing = {});

  // The panel's hooks for buttons and for motion.
  MouseStep button(const MouseReport& report);
  MouseStep motion(const MouseReport& report);
  // The control's event, which does not say what it tells of. Some hosts paint by it, too.
  MouseStep event(const MouseReport& report);

  // The host was asked to paint the control; it has painted it by another call than the event.
  void askedToPaint() { isPaintDue_ = true; }
  void painted() {
    isPaintDue_ = false;
    hasJustPainted_ = true;
  }
  // It has painted by the event: no other half of that paint is to come.
  void paintedByEvent() { isPaintDue_ = hasJustPainted_ = false; }

 private:
  MouseStep released(const MouseReport& report, bool isTold);
  bool isNoPress(const MouseReport& report, bool mayBePaint) const;
  bool isPaintOf(const MouseReport& report, bool isPaintLikely) const;
  MouseStep paintWithButton(const MouseReport& report);
  MouseStep eventWithoutButton(const MouseReport& report, bool mayBePaint);
  MouseStep eventBesideHooks(const MouseReport& report);

  CMouseWay hooks_;
  CMouseWay event_;
  // Hooks say what they tell of. Once they have told of a press in the tree, presses of the event are not counted.
  bool haveHooksPressed_ = false;
  bool haveHooksMoved_ = false;
  bool doesEventPaint_ = false;  // an event has come that told of no button, before and after none was down
  bool isPaintDue_ = false;
  bool hasJustPainted_ = false;             // nothing else was told since
  std::optional<MouseReport> eventsPress_;  // the last one, before the hooks tell of one
};

}  // namespace mst
