// The first trial panel, with one control of each kind. It asks nothing of the user but to go on: what it is for is found
// out by the probe alone.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "interface/lightwave.h"
#include "probe/facts.h"
#include "probe/panel_trial.h"

namespace probe {

// The text of a label when its control is made, and what it is changed to.
inline constexpr const char* kLabelAsMade = "Label";
inline constexpr const char* kLabelAsChanged = "Label, changed later";

// How a panel takes what it takes otherwise before it is open and after.
struct Reaction {
  bool takesWidth = false;
  bool callsResizeHook = false;
  bool keepsErased = false;
  bool operator==(const Reaction&) const = default;
};

class CPanelSite {
 public:
  CPanelSite(lw::LWPanelFuncs& panels, const Ways& ways);

  // Opens it, not resizable, and watches how it opens.
  void open();

  CTrialPanel& panel() { return panel_; }
  const CTrialPanel& panel() const { return panel_; }
  lw::LWControl* area() const { return panel_.area(); }

  lw::LWControl* edit = nullptr;
  lw::LWControl* popup = nullptr;
  lw::LWControl* custom = nullptr;  // is given no index but its own
  lw::LWControl* otherCustom = nullptr;
  lw::LWControl* check = nullptr;
  lw::LWControl* slider = nullptr;
  lw::LWControl* percent = nullptr;
  lw::LWControl* angle = nullptr;
  lw::LWControl* distance = nullptr;
  lw::LWControl* number = nullptr;
  lw::LWControl* erased = nullptr;      // erased before the panel opened
  lw::LWControl* relabelled = nullptr;  // its label's text changed after it was made

  int openAnswer = 0;
  bool isErasedOpen = false;  // what was erased before opening, afterwards
  Reaction closed;
  Reaction inHook;
  Reaction opened;
  int labelWidthBefore = 0;

 private:
  void addControls();
  void setLabel(std::string_view text);
  Reaction react();

  CTrialPanel panel_;
  std::array<char, 32> label_{};
};

// Both tell all that they are to tell, whatever fails. At once: right after opening. Later: when the user goes on.
void askAtOnce(CPanelSite& site, Facts& facts);
void askLater(CPanelSite& site, Facts& facts);
// The sizes of all controls.
std::string sizes(const CPanelSite& site);
// After the panel was closed by the probe.
Answer closeHook(CPanelSite& site);

}  // namespace probe
