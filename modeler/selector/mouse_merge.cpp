#include "modeler/selector/mouse_merge.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace mst {
namespace {

constexpr int kQualifierBits = 1 + 2 + 4;
constexpr int kButtonBits = 32 + 64;
constexpr int kDownBit = 128;
constexpr int kTremble = 4;  // pixels that a hand may move without meaning to

bool isDown(const MouseReport& report) { return (report.bits & kDownBit) != 0; }

bool haveSame(int bits, const MouseReport& a, const MouseReport& b) { return (a.bits & bits) == (b.bits & bits); }

int distance(const MouseReport& a, const MouseReport& b) { return std::max(std::abs(a.x - b.x), std::abs(a.y - b.y)); }

bool areOnePress(const MouseReport& a, const MouseReport& b) {
  return distance(a, b) == 0 && haveSame(kQualifierBits | kButtonBits, a, b);
}

bool isPress(MouseStep step) { return step == MouseStep::Press || step == MouseStep::Guess; }

}  // namespace

// ---------------------------------------------------------------------------------------------------------------------
// One way

bool CMouseWay::repeatsLast(const MouseReport& report) const {
  return !movesFromLast(report) && report.bits == last_.bits && report.clicks == last_.clicks;
}

bool CMouseWay::movesFromLast(const MouseReport& report) const { return distance(report, last_) > 0; }

bool CMouseWay::tremblesFromLast(const MouseReport& report) const {
  return distance(report, last_) <= kTremble && report.bits == last_.bits && report.clicks == last_.clicks;
}

MouseStep CMouseWay::down(const MouseReport& report) {
  const MouseStep step = isDown_ ? downAgain(report) : MouseStep::Press;
  if (isPress(step)) {
    clicks_ = report.clicks;
    hasGuessed_ = step == MouseStep::Guess;
  }
  note(report);
  return step;
}

MouseStep CMouseWay::downAgain(const MouseReport& report) const {
  if (!haveSame(kButtonBits, report, last_) || report.clicks > clicks_) return MouseStep::Press;  // no move does that
  if (repeatsLast(report)) return tellsReleases_ ? MouseStep::Nothing : MouseStep::Guess;
  // However short the step is: a second press beside the first is as usual as a hand that trembles, and only one of the two
  // can be taken back.
  const bool isMove = tellsReleases_ || !report.isInside || report.isOnDraggedBar ||
                      (report.isBarDragged && tremblesFromLast(report));  // a hand may leave the strip bit by bit
  return isMove ? MouseStep::Move : MouseStep::Guess;
}

MouseStep CMouseWay::up(const MouseReport& report, bool isTold) {
  const bool wasDown = isDown_;
  const bool hadGuessed = std::exchange(hasGuessed_, false);
  note(report);
  if (!wasDown) return MouseStep::Nothing;
  if (!isTold) return MouseStep::LateRelease;
  tellsReleases_ = true;
  return hadGuessed ? MouseStep::TakeBack : MouseStep::Release;
}

void CMouseWay::note(const MouseReport& report) {
  isDown_ = mst::isDown(report);
  last_ = report;
}

// ---------------------------------------------------------------------------------------------------------------------
// Both

void CMouseMerge::reset(const MouseReport& standing) {
  *this = CMouseMerge();
  // Whatever the bits say, they are of before: no button is down.
  event_.note(standing);
  event_.forgetButton();
}

MouseStep CMouseMerge::button(const MouseReport& report) {
  hasJustPainted_ = false;
  if (!isDown(report)) return released(report, true);
  const MouseStep step = hooks_.down(report);
  if (haveHooksPressed_ && isPress(step)) event_.forgetButton();  // the event has not told of this one
  if (haveHooksPressed_ || !isPress(step) || !report.isInside) return step;
  haveHooksPressed_ = true;
  const bool isKnown = eventsPress_ && areOnePress(*eventsPress_, report);
  return isKnown ? MouseStep::Nothing : step;
}

MouseStep CMouseMerge::motion(const MouseReport& report) {
  hasJustPainted_ = false;
  if (!isDown(report)) return released(report, false);  // motion of an idle mouse, or a release that went unheard
  haveHooksMoved_ = true;
  if (hooks_.isDown()) {
    hooks_.note(report);
    return MouseStep::Move;
  }
  return !haveHooksPressed_ && event_.isDown() ? MouseStep::Move : MouseStep::Nothing;
}

// By a hook. Where no hook told of the press, the event did.
MouseStep CMouseMerge::released(const MouseReport& report, bool isTold) {
  const MouseStep step = hooks_.up(report, isTold);
  if (step != MouseStep::Nothing || haveHooksPressed_ || !event_.isDown()) return step;
  return event_.up(report, isTold);
}

MouseStep CMouseMerge::event(const MouseReport& report) {
  const bool mayBePaint = std::exchange(hasJustPainted_, false) || isPaintDue_;
  if (haveHooksPressed_) return eventBesideHooks(report);
  if (!isDown(report)) return eventWithoutButton(report, mayBePaint);
  if (!event_.isDown() && isNoPress(report, mayBePaint)) {
    doesEventPaint_ = true;
    isPaintDue_ = false;
    event_.note(report);
    event_.forgetButton();
    return MouseStep::Nothing;
  }
  if (event_.isDown() && isPaintOf(report, mayBePaint)) return paintWithButton(report);
  const MouseStep step = event_.down(report);
  if (isPress(step)) eventsPress_ = report;
  return step;
}

// The host paints while the bits are still those of before the panel opened, or while a button is down elsewhere.
bool CMouseMerge::isNoPress(const MouseReport& report, bool mayBePaint) const {
  return event_.repeatsLast(report) || (doesEventPaint_ && mayBePaint && !event_.movesFromLast(report));
}

// With the button down, the paint that was asked for: the hand may have trembled since the press.
bool CMouseMerge::isPaintOf(const MouseReport& report, bool isPaintLikely) const {
  return doesEventPaint_ && (isPaintLikely ? event_.tremblesFromLast(report) : event_.repeatsLast(report));
}

MouseStep CMouseMerge::paintWithButton(const MouseReport& report) {
  isPaintDue_ = false;
  const bool isMove = event_.movesFromLast(report);
  event_.note(report);
  return isMove ? MouseStep::Move : MouseStep::Nothing;
}

// A release, or the host paints. Where a release may have been seen by chance only, nothing is concluded from it.
MouseStep CMouseMerge::eventWithoutButton(const MouseReport& report, bool mayBePaint) {
  if (!event_.isDown()) doesEventPaint_ = true;
  const bool isTold = !doesEventPaint_ || !mayBePaint;
  isPaintDue_ = false;
  const MouseStep step = event_.up(report, isTold);
  return step == MouseStep::TakeBack && doesEventPaint_ ? MouseStep::Release : step;
}

// Hooks may tell of buttons only; then the moves between are the event's.
MouseStep CMouseMerge::eventBesideHooks(const MouseReport& report) {
  const bool isMove =
      hooks_.isDown() && !haveHooksMoved_ && event_.isDown() && isDown(report) && event_.movesFromLast(report);
  event_.note(report);
  return isMove ? MouseStep::Move : MouseStep::Nothing;
}

}  // namespace mst
