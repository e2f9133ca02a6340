#include "modeler/mouse_merge.h"

namespace mst {
namespace {

constexpr int kDownBit = 128;
constexpr int kToldInBothWays = 1 + 2 + 4 + 32 + 64;  // qualifiers and buttons

bool isDown(const MouseReport& report) { return (report.bits & kDownBit) != 0; }

bool areOne(const MouseReport& a, const MouseReport& b) {
  return a.x == b.x && a.y == b.y && (a.bits & kToldInBothWays) == (b.bits & kToldInBothWays);
}

}  // namespace

MouseStep CMouseMerge::button(MouseWay way, const MouseReport& report) {
  return isDown(report) ? press(way, report) : release(way);
}

MouseStep CMouseMerge::motion(MouseWay way, const MouseReport& report) {
  if (!isDown(report)) return release(way);  // motion of an idle mouse, or a release that went unheard
  return at(way).isDown ? MouseStep::Move : MouseStep::Nothing;
}

MouseStep CMouseMerge::any(MouseWay way, const MouseReport& report) {
  // The count of clicks changes with a press only: then the release before it went unheard.
  const bool isSamePress = at(way).isDown && at(way).clicks == report.clicks;
  return isDown(report) && isSamePress ? motion(way, report) : button(way, report);
}

// A way never tells of one press twice: only what the other way told of last can be the same press.
MouseStep CMouseMerge::press(MouseWay way, const MouseReport& report) {
  at(way).isDown = true;
  at(way).clicks = report.clicks;
  std::optional<MouseReport>& told = other(way).unmatched;
  if (told && areOne(*told, report)) {
    told.reset();
    return MouseStep::Nothing;
  }
  at(way).unmatched = report;
  return MouseStep::Press;
}

MouseStep CMouseMerge::release(MouseWay way) {
  if (!at(way).isDown) return MouseStep::Nothing;
  at(way).isDown = false;
  return MouseStep::Release;
}

}  // namespace mst
