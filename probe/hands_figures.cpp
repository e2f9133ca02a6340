// What came while the user used the mouse, call by call, for people to read.
#include <array>
#include <string>

#include "probe/hands.h"

namespace probe {
namespace {

constexpr std::size_t kMostCalls = 60;

std::string place(int x, int y) { return std::to_string(x) + "," + std::to_string(y); }

std::string mouseOf(const Called& called) {
  const MouseTold& mouse = called.mouse;
  return " panel " + place(mouse.panelX, mouse.panelY) + " control " + place(mouse.controlX, mouse.controlY) +
         " qualifiers " + std::to_string(mouse.qualifiers) + " clicks " + std::to_string(mouse.clicks);
}

std::string hookOf(const char* name, const Called& called) {
  return std::string(name) + " " + place(called.x, called.y) + " bits " + std::to_string(called.bits) + mouseOf(called);
}

// Empty for calls that are no matter of the mouse.
std::string words(const Called& called, const lw::LWControl* area) {
  switch (called.call) {
    case Call::ButtonHook: return hookOf("button hook", called);
    case Call::MotionHook: return hookOf("motion hook", called);
    case Call::WheelHook: return hookOf("wheel hook", called);
    case Call::Event: return called.control == area ? "event" + mouseOf(called) : "";
    default: return {};
  }
}

std::string mouseCalls(const CTrialPanel& panel) {
  std::string text;
  std::size_t count = 0;
  for (const Called& called : panel.log()) {
    const std::string line = words(called, panel.area());
    if (line.empty()) continue;
    if (count++ == kMostCalls) return text + "; and more";
    text += (text.empty() ? "" : "; ") + line;
  }
  return text.empty() ? "no call" : text;
}

}  // namespace

void figureMouse(const Hands& hands, Facts& facts) {
  struct Row {
    const char* name;
    const Step* step;
  };
  for (const Row& row : std::array{Row{"mouse over the panel without its flag", &hands.mouse},
                                   Row{"mouse over the panel with its flag", &hands.wheel}})
    facts.figure(row.name, row.step->whyNot.empty() ? mouseCalls(*row.step->panel) : row.step->whyNot);
}

}  // namespace probe
