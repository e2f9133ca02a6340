#include <algorithm>

#include "probe/hands.h"
#include "probe/hands_values.h"
#include "probe/panel_access.h"
#include "probe/units.h"

namespace probe {
namespace {

constexpr const char* kMouseTitle = "Varnel probe 2 of 4";
constexpr const char* kFieldsTitle = "Varnel probe 3 of 4";
constexpr const char* kWheelTitle = "Varnel probe 4 of 4";

const char* kMouseLines[] = {
    "1. Hold Shift, and double-click on the left, blue half of the area.",
    "2. At once press on the right half, drag to the left half and let the button go. Let Shift go.",
    "3. Click once on the bare panel, right of the area.", "Then press Done; or Skip, if it went otherwise.", nullptr};
const char* kFieldsLines[] = {"1. Open the list, and choose the entry that it shows already.",
                              "2. Type 150 into the whole number, and press the Tab key.",
                              "3. The same with 150 in the percent, and with 30 in the angle.",
                              "What becomes of the numbers is right: leave it so.",
                              "Then press Done; or Skip, if it went otherwise.",
                              nullptr};
const char* kWheelLines[] = {"1. Press on the left, blue half of the area, drag to the right half and let the button go.",
                             "2. Turn the wheel one step away from you, over the area.",
                             "Then press Done; or Skip, if it went otherwise.", nullptr};

constexpr int kAreaWidth = 280;
constexpr int kAreaHeight = 90;

CTrialPanel& make(Step& step, lw::LWPanelFuncs& panels, const char* title, const char** lines) {
  step.panel = std::make_unique<CTrialPanel>(panels, title);
  step.panel->addLines(lines);
  return *step.panel;
}

void show(Step& step, int flags, const Ways& ways) {
  CTrialPanel& panel = *step.panel;
  panel.addButton("Done", ways.done);
  panel.addButton("Skip", ways.skip, CTrialPanel::Where::Beside);
  panel.onUsersClosing(ways.closed);
  panel.layOut();
  panel.open(flags);
  step.start = panel.log().size();
}

}  // namespace

void openMouseStep(Hands& hands, lw::LWPanelFuncs& panels, const Ways& ways) {
  CTrialPanel& panel = make(hands.mouse, panels, kMouseTitle, kMouseLines);
  panel.addArea(kAreaWidth, kAreaHeight);
  // Hooks that tell of the release tell of all over the area: the click that follows is to be one of which nothing tells.
  panel.onRelease([&panel] {
    const Log& log = panel.log();
    const auto isPress = [](const Called& c) { return c.call == Call::ButtonHook && (c.bits & lw::kMouseDown) != 0; };
    if (std::count_if(log.begin(), log.end(), isPress) >= kPressesOfTheMouseStep) panel.dropMouseHooks();
  });
  show(hands.mouse, lw::kOpenNoButtons | lw::kOpenResizable, ways);
}

void openFieldsStep(Hands& hands, lw::LWPanelFuncs& panels, const Ways& ways) {
  CTrialPanel& panel = make(hands.fields, panels, kFieldsTitle, kFieldsLines);
  hands.list = panel.addCustomPopup("List", true);
  hands.slider = panel.addRange("MiniSliderControl", "Whole number", kGreatestWhole, Reads::Integer);
  hands.percent = panel.addRange("PercentControl", "Percent", kGreatestPercent, Reads::Real);
  hands.angle = panel.addRange("AngleControl", "Angle", kGreatestAngle, Reads::Real);
  setInteger(hands.slider, kTypedWhole);
  setReal(hands.percent, kTypedPercent);
  hands.setWhole = integerOf(hands.slider);
  hands.setPercent = realOf(hands.percent);
  setInteger(hands.list, kFirstEntry);
  setInteger(hands.slider, kFirstWhole);
  setReal(hands.percent, kFirstPercent);
  setReal(hands.angle, kFirstAngle * kDegree);
  show(hands.fields, lw::kOpenNoButtons | lw::kOpenResizable, ways);
}

void openWheelStep(Hands& hands, lw::LWPanelFuncs& panels, const Ways& ways) {
  CTrialPanel& panel = make(hands.wheel, panels, kWheelTitle, kWheelLines);
  panel.addArea(kAreaWidth, kAreaHeight);
  show(hands.wheel, lw::kOpenMouse | lw::kOpenNoButtons | lw::kOpenResizable, ways);
}

void mouseStepDone(Hands& hands) {
  hands.qualifiers = hands.mouse.panel->measure(lw::kPanelQualifiers);
  hands.mouse.whyNot.clear();
}

void fieldsStepDone(Hands& hands) {
  hands.typedWhole = integerOf(hands.slider);
  hands.typedPercent = realOf(hands.percent);
  hands.typedAngle = realOf(hands.angle);
  hands.fields.whyNot.clear();
}

void wheelStepDone(Hands& hands) { hands.wheel.whyNot.clear(); }

Answer resizeHook(CTrialPanel& panel) {
  constexpr int kWider = 16;
  const auto calls = [&] {
    const Log& log = panel.log();
    return std::count_if(log.begin(), log.end(),
                         [](const Called& c) { return c.call == Call::Resized && c.within == Within::SetWidth; });
  };
  const int width = panel.measure(lw::kPanelWidth);
  if (width <= 0) return notTold("the host told no width of an open panel");
  panel.setWidth(width + kWider);
  const bool isTaken = panel.measure(lw::kPanelWidth) == width + kWider;
  panel.setWidth(width);
  if (!isTaken) return notTold("an open panel that is resizable took no width");
  return calls() == 0 ? told("user", "a width that was set on an open panel called no resize hook")
                      : told("sets", "a width that was set on an open panel called the resize hook");
}

}  // namespace probe
