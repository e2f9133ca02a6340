// What a panel that nobody touches tells of the panel services.
#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "probe/ask.h"
#include "probe/panel_access.h"
#include "probe/panel_site.h"

namespace probe {
namespace {

std::string text(int number) { return std::to_string(number); }

template <class Test>
int countCalls(const Log& log, Test&& test) {
  return static_cast<int>(std::count_if(log.begin(), log.end(), test));
}

int events(const Log& log, const lw::LWControl* control) {
  return countCalls(log, [&](const Called& c) { return c.call == Call::Event && c.control == control; });
}

// ---------------------------------------------------------------------------------------------------------------------
// Opening

Answer openAnswer(CPanelSite& site) {
  const std::string seen = "open answered " + text(site.openAnswer);
  switch (site.openAnswer) {
    case 1: return told("1", seen);
    case 0: return told("0", seen);
    case -1: return told("minus-1", seen);
    default: return told("any", seen);
  }
}

// Whether the panel was there when its open hook came: then it took things as it does when it is open.
Answer openHook(CPanelSite& site) {
  const Log& log = site.panel().log();
  const auto hook = std::find_if(log.begin(), log.end(), [](const Called& c) { return c.call == Call::Opened; });
  if (hook == log.end()) return other("the open hook had not come when the user pressed a button");
  if (hook->within != Within::Open) {
    const bool isAfter0 = site.openAnswer == 0;
    return told(isAfter0 ? "later-after-0" : "later", "the open hook came after open had answered " + text(site.openAnswer));
  }
  if (site.closed == site.opened) return notTold("this host takes widths and erasing alike, whether a panel is open or not");
  if (site.inHook == site.opened) return told("shown", "within open, and what was set in it was taken as on an open panel");
  if (site.inHook == site.closed)
    return told("before", "within open, and what was set in it was taken as on a closed panel");
  return other("within open, and what was set in it was taken as neither on a closed nor on an open panel");
}

Answer panelSize(CPanelSite& site) {
  if (!site.closed.takesWidth) return notTold("the host took no width before opening either");
  return site.opened.takesWidth ? told("always", "a panel that is open and not resizable took a width")
                                : told("resizable", "a panel that is open and not resizable kept its width");
}

Answer openResize(CPanelSite& site) {
  const int calls = countCalls(site.panel().log(),
                               [](const Called& c) { return c.call == Call::Resized && c.within != Within::SetWidth; });
  return calls == 0 ? told("silent", "opening did not call the resize hook")
                    : told("told", "opening called the resize hook, times: " + text(calls));
}

Answer earlyDrawing(CPanelSite& site) {
  if (!site.opened.keepsErased) return notTold("the flags of an open panel's control do not tell that it is erased");
  return site.isErasedOpen ? told("holds", "what was erased before opening had its flag afterwards")
                           : told("lost", "what was erased before opening had no such flag afterwards");
}

// ---------------------------------------------------------------------------------------------------------------------
// Setting

Answer sets(CPanelSite& site) {
  const Log& log = site.panel().log();
  std::string fired;
  const auto tryOne = [&](lw::LWControl* control, const char* name, auto&& set) {
    const int before = events(log, control);
    set(control);
    if (events(log, control) != before) fired += (fired.empty() ? "" : ", ") + std::string(name);
  };
  const auto integer = [](lw::LWControl* control) { setInteger(control, 1); };
  const auto real = [](lw::LWControl* control) { setReal(control, 1); };
  tryOne(site.edit, "EditControl", [](lw::LWControl* control) { setText(control, "text"); });
  tryOne(site.popup, "PopupControl", integer);
  tryOne(site.custom, "CustomPopupControl", integer);
  tryOne(site.check, "BoolControl", integer);
  tryOne(site.slider, "MiniSliderControl", integer);
  tryOne(site.percent, "PercentControl", real);
  tryOne(site.angle, "AngleControl", real);
  tryOne(site.distance, "MiniDistanceControl", real);
  tryOne(site.number, "MiniFloatControl", real);
  return fired.empty() ? told("silent", "setting a value fired no event")
                       : told("fire", "setting fired events of: " + fired);
}

// What becomes of two indices outside a list that rests on its second entry.
using Outside = std::pair<int, int>;

Outside setOutside(lw::LWControl* list) {
  const auto afterSetting = [&](int index) {
    setInteger(list, 1);
    setInteger(list, index);
    return integerOf(list);
  };
  const Outside outside{afterSetting(-1), afterSetting(kEntries + 4)};
  setInteger(list, 1);
  return outside;
}

Answer outsideIndex(CPanelSite& site) {
  struct Row {
    Outside outside;
    const char* value;
  };
  constexpr std::array kRows{Row{{-1, kEntries + 4}, "kept"}, Row{{0, kEntries - 1}, "clamped"},
                             Row{{0, kEntries + 4}, "not-negative"}, Row{{1, 1}, "ignored"}};
  // Not of a list that the host knows itself: it might look up a name behind its end.
  const Outside custom = setOutside(site.otherCustom);
  const std::string seen =
      "of a custom popup with 3 entries, -1 and 7 were read back as " + text(custom.first) + " and " + text(custom.second);
  const auto row = std::find_if(kRows.begin(), kRows.end(), [&](const Row& r) { return r.outside == custom; });
  return row == kRows.end() ? other(seen) : told(row->value, seen);
}

// ---------------------------------------------------------------------------------------------------------------------
// Texts

// Reads into a buffer of which the host is told a part. Gives where the text is: a host may put its own pointer there.
template <std::size_t kRoom>
const char* readText(lw::LWControl* control, lw::ControlAttribute attribute, std::array<char, kRoom>& buffer, int told) {
  lw::LWValue value;
  value.str = {lw::kValueString, buffer.data(), told};
  control->get(control, attribute, &value);
  return value.str.buf;
}

Answer cutTexts(CPanelSite& site) {
  constexpr std::size_t kTold = 8;
  constexpr char kUntouched = '#';
  std::array<char, 64> buffer{};
  buffer.fill(kUntouched);
  setText(site.edit, "abcdefghijkl");
  readText(site.edit, lw::kControlValue, buffer, static_cast<int>(kTold));
  if (buffer[0] != 'a') return notTold("the text that was set was not read back");
  if (buffer[kTold] != kUntouched) return other("more bytes were written than the buffer was told to have");
  if (buffer[kTold - 1] == 'h') return told("full", "all 8 bytes of the buffer were text");
  if (buffer[kTold - 1] == '\0') return told("terminated", "of 8 bytes the last was the final zero");
  return other("of 8 bytes the last was neither text nor a final zero");
}

Answer fieldLength(CPanelSite& site) {
  constexpr std::size_t kLong = 600;
  setText(site.edit, std::string(kLong, 'x'));
  const std::size_t kept = textOf(site.edit).size();
  setText(site.edit, "text");
  const std::string seen = "of 600 bytes the field kept " + std::to_string(kept);
  if (kept == kLong) return told("any", seen);
  return kept == 255 ? told("255", seen) : other(seen);
}

Answer texts(CPanelSite& site) {
  std::array<char, 64> buffer{};
  const char* const given = readText(site.relabelled, lw::kControlLabel, buffer, static_cast<int>(buffer.size()) - 1);
  std::string label;
  for (std::size_t i = 0; given != nullptr && i < buffer.size() && given[i] != '\0'; ++i) label += given[i];
  const int width = integerOf(site.relabelled, lw::kControlLabelWidth);
  const std::string seen = "a label that changed after its control was made reads \"" + label +
                           "\" and its width went from " + text(site.labelWidthBefore) + " to " + text(width);
  if (label == kLabelAsChanged || width > site.labelWidthBefore) return told("read", seen);
  if (label == kLabelAsMade) return told("copied", seen);
  return notTold(seen);
}

// ---------------------------------------------------------------------------------------------------------------------
// Measures

Answer padding(CPanelSite& site) {
  const int rest = integerOf(site.check, lw::kControlWidth) - integerOf(site.check, lw::kControlLabelWidth) -
                   integerOf(site.check, lw::kControlHotWidth);
  const std::string seen = "beside its label and its hot area a check mark is " + text(rest) + " pixels wide";
  return rest == 0 || rest == 3 ? told(text(rest), seen) : other(seen);
}

Answer rows(CPanelSite& site) {
  const int height = integerOf(site.check, lw::kControlHeight);
  const std::string seen = "a check mark is " + text(height) + " pixels high, a text field " +
                           text(integerOf(site.edit, lw::kControlHeight)) + ", a percent field " +
                           text(integerOf(site.percent, lw::kControlHeight));
  return height == 18 || height == 20 || height == 22 ? told(text(height), seen) : other(seen);
}

// ---------------------------------------------------------------------------------------------------------------------
// What the host asks and paints by itself

Answer popupFunctions(CPanelSite& site) {
  const Log& log = site.panel().log();
  const bool isAsked =
      countCalls(log, [](const Called& c) { return c.call == Call::PopupName && (c.x < 0 || c.x >= kEntries); }) > 0;
  return isAsked ? told("anytime", "before a menu was opened, names outside the list were asked for")
                 : told("menu", "before a menu was opened, no name outside the list was asked for");
}

// Without a button down: with one it would be the mouse.
int paintsByEvent(CPanelSite& site) {
  return countCalls(site.panel().log(),
                    [&](const Called& c) { return c.call == Call::Event && c.control == site.area() && !c.mouse.isDown(); });
}

int paintsByDraw(CPanelSite& site) {
  return countCalls(site.panel().log(), [](const Called& c) { return c.call == Call::Draw; });
}

Answer painter(CPanelSite& site) {
  const int draws = paintsByDraw(site);
  const int paints = paintsByEvent(site);
  const std::string seen = "of an area that nobody touched, the draw callback came " + text(draws) +
                           " times and the event " + text(paints) + " times";
  if (draws == 0 && paints == 0) return notTold(seen);
  return told(draws == 0 ? "event" : paints == 0 ? "draw" : "both", seen);
}

Answer paintTime(CPanelSite& site) {
  const int before = paintsByDraw(site) + paintsByEvent(site);
  if (before == 0) return notTold("the area was never painted");
  draw(site.area(), lw::kDrawRefresh);
  const bool isWithin = paintsByDraw(site) + paintsByEvent(site) != before;
  return isWithin ? told("within", "the area was painted within the call that asked for it")
                  : told("later", "the area was not painted within the call that asked for it");
}

constexpr std::array kAtOnce{
    Question<CPanelSite>{"sets", sets},
    Question<CPanelSite>{"open-answer", openAnswer},
    Question<CPanelSite>{"panel-size", panelSize},
    Question<CPanelSite>{"outside-index", outsideIndex},
    Question<CPanelSite>{"early-drawing", earlyDrawing},
    Question<CPanelSite>{"texts", texts},
    Question<CPanelSite>{"cut-texts", cutTexts},
    Question<CPanelSite>{"field-length", fieldLength},
    Question<CPanelSite>{"padding", padding},
    Question<CPanelSite>{"rows", rows},
};

constexpr std::array kLater{
    Question<CPanelSite>{"open-hook", openHook},     Question<CPanelSite>{"popup-functions", popupFunctions},
    Question<CPanelSite>{"painter", painter},        Question<CPanelSite>{"paint-time", paintTime},
    Question<CPanelSite>{"open-resize", openResize},
};

}  // namespace

void askAtOnce(CPanelSite& site, Facts& facts) { ask(std::span<const Question<CPanelSite>>(kAtOnce), site, facts); }
void askLater(CPanelSite& site, Facts& facts) { ask(std::span<const Question<CPanelSite>>(kLater), site, facts); }

std::string sizes(const CPanelSite& site) {
  struct Row {
    const char* name;
    lw::LWControl* control;
  };
  std::string all;
  for (const Row& row : std::array{Row{"EditControl of 12", site.edit}, Row{"PopupControl", site.popup},
                                   Row{"CustomPopupControl of 120", site.custom}, Row{"BoolControl", site.check},
                                   Row{"MiniSliderControl", site.slider}, Row{"PercentControl", site.percent},
                                   Row{"AngleControl", site.angle}, Row{"MiniDistanceControl", site.distance},
                                   Row{"MiniFloatControl", site.number}, Row{"OpenGLControl of 120 by 30", site.area()}}) {
    const auto number = [&](lw::ControlAttribute attribute) { return text(integerOf(row.control, attribute)); };
    all += (all.empty() ? "" : "; ") + std::string(row.name) + ": " + number(lw::kControlWidth) + " by " +
           number(lw::kControlHeight) + ", label " + number(lw::kControlLabelWidth) + ", hot " +
           number(lw::kControlHotWidth) + " by " + number(lw::kControlHotHeight);
  }
  return all;
}

Answer closeHook(CPanelSite& site) {
  const Log& log = site.panel().log();
  const auto hook = std::find_if(log.begin(), log.end(), [](const Called& c) { return c.call == Call::Closed; });
  if (hook == log.end()) return told("user", "close did not call the close hook");
  return hook->within == Within::Close ? told("always", "the close hook came within close")
                                       : told("always", "the close hook came after close");
}

}  // namespace probe
