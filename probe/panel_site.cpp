#include "probe/panel_site.h"

#include <algorithm>

#include "probe/panel_access.h"

namespace probe {
namespace {

constexpr const char* kTitle = "Varnel probe 1 of 4";
const char* kLines[] = {"The controls below are measured. Please leave them alone,", "and press Next.", nullptr};

constexpr int kAreaWidth = 120;
constexpr int kAreaHeight = 30;
constexpr int kPercents = 100;
constexpr int kFieldWidth = 12;  // characters

bool isErased(lw::LWControl* control) { return (integerOf(control, lw::kControlFlags) & lw::kControlErased) != 0; }

}  // namespace

CPanelSite::CPanelSite(lw::LWPanelFuncs& panels, const Ways& ways) : panel_(panels, kTitle) {
  panel_.addLines(kLines);
  panel_.addButton("Next", ways.done);
  panel_.addButton("Skip the rest", ways.skip, CTrialPanel::Where::Beside);
  panel_.onUsersClosing(ways.closed);
  addControls();
  panel_.layOut();
  labelWidthBefore = integerOf(relabelled, lw::kControlLabelWidth);
  setLabel(kLabelAsChanged);
  closed = react();
  draw(erased, lw::kDrawErase);
}

void CPanelSite::addControls() {
  lw::LWPanControlDesc field = description(lw::kValueString);
  field.str.width = kFieldWidth;
  edit = panel_.add("EditControl", field, "Text");
  popup = panel_.addChoice("PopupControl", kEntryNames, "List");
  custom = panel_.addCustomPopup("Asked list", true);
  otherCustom = panel_.addCustomPopup("Other list", false);
  check = panel_.add("BoolControl", description(lw::kValueBoolean), "Mark", Reads::Integer);
  slider = panel_.addRange("MiniSliderControl", "Whole number", kPercents, Reads::Integer);
  percent = panel_.addRange("PercentControl", "Percent", kPercents, Reads::Real);
  angle = panel_.addRange("AngleControl", "Angle", kPercents, Reads::Real);
  distance = panel_.addRange("MiniDistanceControl", "Distance", kPercents, Reads::Real);
  number = panel_.addRange("MiniFloatControl", "Number", kPercents, Reads::Real);
  erased = panel_.add("BoolControl", description(lw::kValueBoolean), "Hidden");
  setLabel(kLabelAsMade);
  relabelled = panel_.add("BoolControl", description(lw::kValueBoolean), label_.data());
  panel_.addArea(kAreaWidth, kAreaHeight);
}

// With its final zero.
void CPanelSite::setLabel(std::string_view text) {
  label_.fill('\0');
  std::copy_n(text.begin(), std::min(text.size(), label_.size() - 1), label_.begin());
}

// What it changes it changes back.
Reaction CPanelSite::react() {
  constexpr int kWider = 16;
  Reaction reaction;
  const auto resizes = [&] {
    std::size_t count = 0;
    for (const Called& called : panel_.log()) count += called.call == Call::Resized ? 1 : 0;
    return count;
  };
  const std::size_t before = resizes();
  const int width = panel_.measure(lw::kPanelWidth);
  if (width <= 0) return reaction;
  panel_.setWidth(width + kWider);
  reaction.takesWidth = panel_.measure(lw::kPanelWidth) == width + kWider;
  panel_.setWidth(width);
  reaction.callsResizeHook = resizes() != before;
  draw(check, lw::kDrawErase);
  reaction.keepsErased = isErased(check);
  draw(check, lw::kDrawRender);
  return reaction;
}

void CPanelSite::open() {
  panel_.onOpening([this] { inHook = react(); });
  openAnswer = panel_.open(lw::kOpenNoButtons);
  isErasedOpen = isErased(erased);
  opened = react();
}

}  // namespace probe
