// What only hands can do: three panels that ask for it, one after the other, and what it tells.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include "interface/lightwave.h"
#include "probe/facts.h"
#include "probe/panel_trial.h"

namespace probe {

inline constexpr const char* kNotReached = "the user did not come to this";

struct Step {
  std::unique_ptr<CTrialPanel> panel;
  std::string whyNot = kNotReached;  // empty: it was done
  std::size_t start = 0;             // of the user's doing in the log: a host may fire events for what the probe sets
};

struct Hands {
  Step mouse;   // over a panel opened without the flag for the mouse
  Step fields;  // lists and fields
  Step wheel;   // over a panel opened with the flag for the mouse

  lw::LWControl* list = nullptr;
  lw::LWControl* slider = nullptr;
  lw::LWControl* percent = nullptr;
  lw::LWControl* angle = nullptr;
  int setWhole = 0;  // what became of values that the probe set, beyond the range
  double setPercent = 0;

  bool eventsPaint = false;  // an event of the area may be a paint

  // Read when the user was done.
  int qualifiers = 0;
  int typedWhole = 0;
  double typedPercent = 0;
  double typedAngle = 0;  // radians
};

// Each makes its panel and shows it. They throw Trouble when the host does not.
void openMouseStep(Hands& hands, lw::LWPanelFuncs& panels, const Ways& ways);
void openFieldsStep(Hands& hands, lw::LWPanelFuncs& panels, const Ways& ways);
void openWheelStep(Hands& hands, lw::LWPanelFuncs& panels, const Ways& ways);
// When the user is done with it, before its panel closes.
void mouseStepDone(Hands& hands);
void fieldsStepDone(Hands& hands);
void wheelStepDone(Hands& hands);

// Of the panel of the mouse step, which the user can resize, while it is open.
Answer resizeHook(CTrialPanel& panel);

// What was done, and of the rest why not.
void askMouse(Hands& hands, Facts& facts);
void askFields(Hands& hands, Facts& facts);
void figureMouse(const Hands& hands, Facts& facts);

}  // namespace probe
