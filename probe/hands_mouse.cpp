// What the mouse over a panel tells.
#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "host/platform.h"
#include "probe/ask.h"
#include "probe/hands.h"
#include "probe/hands_values.h"
#include "probe/panel_access.h"

namespace probe {
namespace {

using std::chrono::milliseconds;
constexpr milliseconds kQuick{500};  // between clicks that the host may count

// The calls of one way by which the mouse over the area is told, without what came before the first press.
using Told = std::vector<Called>;

struct Area {
  int x, y, width, height;
  bool holds(int px, int py) const { return px >= x && py >= y && px < x + width && py < y + height; }
};

Area areaOf(const CTrialPanel& panel) {
  lw::LWControl* const area = panel.area();
  return {integerOf(area, lw::kControlHotX), integerOf(area, lw::kControlHotY), integerOf(area, lw::kControlHotWidth),
          integerOf(area, lw::kControlHotHeight)};
}

bool isHook(const Called& called) { return called.call == Call::ButtonHook || called.call == Call::MotionHook; }
bool isDown(const Called& called) { return isHook(called) ? (called.bits & lw::kMouseDown) != 0 : called.mouse.isDown(); }
int placeX(const Called& called) { return isHook(called) ? called.x : called.mouse.panelX; }
int placeY(const Called& called) { return isHook(called) ? called.y : called.mouse.panelY; }
bool isSamePlace(const Called& a, const Called& b) { return placeX(a) == placeX(b) && placeY(a) == placeY(b); }

template <class Test>
Told toldBy(const Log& log, Test&& test) {
  Told told;
  for (const Called& called : log) {
    if (test(called) && (!told.empty() || isDown(called))) told.push_back(called);
  }
  return told;
}

// Where events paint too, one that tells nothing new may be a paint; unless there are just those that the user made.
Told eventsOf(const CTrialPanel& panel, bool eventsPaint) {
  Told told = toldBy(panel.log(), [&](const Called& c) { return c.call == Call::Event && c.control == panel.area(); });
  if (!eventsPaint || told.size() == kPressesOfTheMouseStep) return told;
  const auto isRepeated = [](const Called& a, const Called& b) { return a.mouse == b.mouse; };
  told.erase(std::unique(told.begin(), told.end(), isRepeated), told.end());
  return told;
}

Told hooksOverArea(const CTrialPanel& panel) {
  const Area area = areaOf(panel);
  return toldBy(panel.log(), [&](const Called& c) { return isHook(c) && area.holds(c.x, c.y); });
}

bool hearsBeside(const CTrialPanel& panel) {
  const Area area = areaOf(panel);
  const Log& log = panel.log();
  return std::any_of(log.begin(), log.end(), [&](const Called& c) { return isHook(c) && !area.holds(c.x, c.y); });
}

const CTrialPanel& panelOf(const Step& step) {
  if (!step.whyNot.empty()) throw Trouble{step.whyNot};
  return *step.panel;
}

// ---------------------------------------------------------------------------------------------------------------------
// Which calls tell of the mouse

enum class Kind { None, Presses, Buttons, All };

Kind kindOf(const Told& told) {
  if (told.empty()) return Kind::None;
  if (std::all_of(told.begin(), told.end(), isDown)) return Kind::Presses;
  bool moves = false;
  for (std::size_t i = 1; i < told.size(); ++i) {
    moves = moves || (isDown(told[i - 1]) && isDown(told[i]) && !isSamePlace(told[i - 1], told[i]));
  }
  return moves ? Kind::All : Kind::Buttons;
}

Answer named(Kind events, bool hooksOver, bool hooksBeside, const std::string& seen) {
  struct Row {
    Kind events;
    bool over;
    bool beside;  // of no matter where hooks tell of the area too
    const char* value;
  };
  constexpr std::array kRows{
      Row{Kind::All, false, false, "event"},
      Row{Kind::Buttons, false, false, "event-buttons"},
      Row{Kind::Presses, false, false, "event-presses"},
      Row{Kind::None, true, false, "hooks"},
      Row{Kind::All, true, false, "both"},
      Row{Kind::Presses, true, false, "both-presses"},
      Row{Kind::All, false, true, "hooks-beside"},
  };
  for (const Row& row : kRows) {
    if (row.events == events && row.over == hooksOver && (hooksOver || row.beside == hooksBeside))
      return told(row.value, seen);
  }
  return other(seen);
}

Answer mouse(Hands& hands) {
  const CTrialPanel& panel = panelOf(hands.mouse);
  const Told events = eventsOf(panel, hands.eventsPaint);
  const bool hooksOver = !hooksOverArea(panel).empty();
  const bool beside = hearsBeside(panel);
  const Kind kind = kindOf(events);
  if (kind == Kind::None && !hooksOver && !beside) return notTold("no call told of the mouse");
  constexpr std::array kWords{"no events", "presses", "presses and releases", "presses, moves and releases"};
  return named(kind, hooksOver, beside,
               "over the area the events told: " + std::string(kWords[static_cast<std::size_t>(kind)]) + "; the hooks " +
                   (hooksOver ? "told of it too" : "told nothing") + (beside ? "; beside the area they told" : ""));
}

// The presses of a gesture, by the way that told of it.
Told pressesOf(const Told& told) {
  const bool hasReleases = kindOf(told) != Kind::Presses;
  Told presses;
  bool wasDown = false;
  for (const Called& called : told) {
    if (isDown(called) && (!hasReleases || !wasDown)) presses.push_back(called);
    wasDown = isDown(called);
  }
  return presses;
}

Told mousePresses(Hands& hands) {
  const CTrialPanel& panel = panelOf(hands.mouse);
  const Told events = eventsOf(panel, hands.eventsPaint);
  Told presses = pressesOf(events.empty() ? hooksOverArea(panel) : events);
  if (presses.empty()) throw Trouble{"no call told of a press"};
  return presses;
}

Answer clicks(Hands& hands) {
  const Told presses = mousePresses(hands);
  if (presses.size() < kPressesOfTheMouseStep)
    return notTold("only " + std::to_string(presses.size()) + " presses were told apart");
  const auto between = [&](std::size_t i) {
    return std::chrono::duration_cast<milliseconds>(presses[i + 1].when - presses[i].when);
  };
  const int first = presses[0].mouse.clicks, second = presses[1].mouse.clicks, third = presses[2].mouse.clicks;
  const std::string seen = "three presses, the third elsewhere, counted " + std::to_string(first) + ", " +
                           std::to_string(second) + ", " + std::to_string(third);
  if (first == 0 && second == 0 && third == 0) return told("never", seen);
  if (between(0) > kQuick || between(1) > kQuick)
    return notTold("the presses were " + std::to_string(between(0).count()) + " and " + std::to_string(between(1).count()) +
                   " ms apart, which is not quick enough: " + seen);
  if (first == 1 && second == 1 && third == 1) return told("constant", seen);
  if (first != 1 || second != 2) return other(seen);
  return told(third == 1 ? "place" : "time", seen);
}

// The click beside the area was without Shift, and nothing told of it.
Answer qualifiers(Hands& hands) {
  const CTrialPanel& panel = panelOf(hands.mouse);
  const Log& log = panel.log();
  const auto isTold = [&](const Called& c) { return isHook(c) || (c.call == Call::Event && c.control == panel.area()); };
  const auto last = std::find_if(log.rbegin(), log.rend(), isTold);
  if (last == log.rend()) return notTold("no call told of the mouse");
  const bool hadShift = isHook(*last) ? (last->bits & lw::kMouseShift) != 0 : last->mouse.hasShift();
  if (!hadShift) return notTold("the last event that was told of was without Shift");
  const bool hasShift = (hands.qualifiers & lw::kMouseShift) != 0;
  return hasShift ? told("told", "after a click without Shift of which nothing told, the qualifiers still had Shift")
                  : told("last", "after a click without Shift of which nothing told, the qualifiers had no Shift");
}

Answer mouseOrigin(Hands& hands) {
  const Told presses = mousePresses(hands);
  const MouseTold& mouse = presses.front().mouse;
  const int dx = mouse.panelX - mouse.controlX;
  const int dy = mouse.panelY - mouse.controlY;
  const Area area = areaOf(*hands.mouse.panel);
  const std::string seen = "at a press the panel told " + std::to_string(mouse.panelX) + ", " +
                           std::to_string(mouse.panelY) + ", the area, which lies at " + std::to_string(area.x) + ", " +
                           std::to_string(area.y) + ", told " + std::to_string(mouse.controlX) + ", " +
                           std::to_string(mouse.controlY);
  if (dx == 0 && dy == 0) return told("panel", seen);
  return dx == area.x && dy == area.y ? told("control", seen) : other(seen);
}

// ---------------------------------------------------------------------------------------------------------------------
// Hooks: of both panels, for without the flag for the mouse they may be silent

std::vector<const CTrialPanel*> panelsWithMouse(const Hands& hands) {
  std::vector<const CTrialPanel*> panels;
  for (const Step* step : {&hands.mouse, &hands.wheel}) {
    if (step->whyNot.empty()) panels.push_back(step->panel.get());
  }
  if (panels.empty()) throw Trouble{hands.mouse.whyNot};
  return panels;
}

Answer mouseOrder(Hands& hands) {
  for (const CTrialPanel* const panel : panelsWithMouse(hands)) {
    const Log& log = panel->log();
    for (std::size_t i = 1; i < log.size(); ++i) {
      const Called& first = log[i - 1];
      const Called& second = log[i];
      if (!isDown(first) || !isDown(second) || !isSamePlace(first, second)) continue;
      if (first.call == Call::ButtonHook && second.call == Call::Event)
        return told("hooks", "a press came to the hook first");
      if (first.call == Call::Event && second.call == Call::ButtonHook)
        return told("event", "a press came to the event first");
    }
  }
  return notTold("no press came in both ways");
}

Answer dragHook(Hands& hands) {
  for (const CTrialPanel* const panel : panelsWithMouse(hands)) {
    const Called* before = nullptr;
    for (const Called& called : panel->log()) {
      if (!isHook(called)) continue;
      const bool isMove = before != nullptr && isDown(*before) && isDown(called) && !isSamePlace(*before, called);
      if (isMove)
        return called.call == Call::MotionHook ? told("motion", "the motion hook told of moves with the button down")
                                               : told("button", "the button hook told of moves with the button down");
      before = &called;
    }
  }
  return notTold("no hook told of a move with the button down");
}

Answer wheel(Hands& hands) {
  for (const CTrialPanel* const panel : panelsWithMouse(hands)) {
    for (const Called& called : panel->log()) {
      if (called.call != Call::WheelHook || called.bits == 0) continue;
      return told(called.bits > 0 ? "up" : "down", "turned away from the user it counted " + std::to_string(called.bits));
    }
  }
  return notTold("the wheel hook was not called");
}

Answer context(Hands& hands) {
  if (platform::glCalls() == nullptr) return notTold("there is no OpenGL on this system");
  for (const CTrialPanel* const panel : panelsWithMouse(hands)) {
    void* ofArea = nullptr;
    for (const Called& called : panel->log()) {
      if (called.control == panel->area()) ofArea = called.context;
      if (ofArea == nullptr || (!isHook(called) && called.call != Call::WheelHook)) continue;
      return called.context == ofArea ? told("hooks", "the area's context was current in a hook")
                                      : told("callbacks", "the area's context was not current in a hook");
    }
  }
  return notTold("no hook was called, or no context was current in the area's callbacks");
}

constexpr std::array<Question<Hands>, 8> kMouseQuestions{{
    {"mouse", mouse},
    {"mouse-order", mouseOrder},
    {"drag-hook", dragHook},
    {"clicks", clicks},
    {"qualifiers", qualifiers},
    {"mouse-origin", mouseOrigin},
    {"wheel", wheel},
    {"context", context},
}};

}  // namespace

void askMouse(Hands& hands, Facts& facts) {
  hands.eventsPaint = facts.answerTo("painter").value != "draw";
  ask<Hands>(kMouseQuestions, hands, facts);
}

}  // namespace probe
