#include "standin/validate/touch.h"
#include "standin/core/tool_names.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "standin/panels/geometry.h"

namespace standin::validate {
namespace {

constexpr std::array<int, 6> kQualifiers{0, 0, 0, lw::kMouseCtrl, lw::kMouseShift, lw::kMouseAlt};
constexpr std::array kNumbers{0.0, 1.0, -1.0, 25.0, 40.0, 100.0, 0.001, 360.0, -90.0, 1e9, -1e9, 7.0};

Done useMouse(Control& area, std::uint32_t pick) {
  const Rectangle hot = area.hot();
  const int x = static_cast<int>(pick % static_cast<std::uint32_t>(std::max(1, hot.width)));
  const int y = static_cast<int>(pick / 7 % static_cast<std::uint32_t>(std::max(1, hot.height)));
  const int qualifiers = kQualifiers[pick / 3 % kQualifiers.size()];
  switch (pick % 8) {
    case 0: return person::wheel(area.panel, hot.x + x, hot.y + y, pick % 16 < 8 ? 1 : -3);
    case 1: {  // a drag
      Done done = person::mousePress(area.panel, hot.x + x, hot.y + y, MouseButton::Left, qualifiers);
      if (done) done = person::mouseMove(area.panel, hot.x + hot.width / 2, hot.y + hot.height - 1);
      return done ? person::mouseRelease(area.panel, hot.x + hot.width / 2, hot.y + hot.height - 1) : done;
    }
    case 2: return person::click(&area, x, y, MouseButton::Right, qualifiers);
    case 3: return person::click(&area, x, y, MouseButton::Middle, qualifiers);
    default: return person::click(&area, x, y, MouseButton::Left, qualifiers, pick % 5 == 0 ? 2 : 1);
  }
}

Done fill(Control& field, std::uint32_t pick) {
  if (field.kind->value == ValueForm::String) return person::type(&field, textToType(pick));
  const double number = kNumbers[pick % kNumbers.size()];
  if (field.kind->handling == Handling::Slide && pick / 16 % 4 == 0) return person::drag(&field, number);
  return person::enter(&field, number);
}

// The renamer's lists and its "Clear" have the widths that its users know. Their longest texts do not fit in there.
struct NarrowByDesign {
  const char* panel;
  int control;  // in order of creation
};
constexpr std::array kNarrowByDesign{
    NarrowByDesign{kRenamerTool, 3},   // "Target"
    NarrowByDesign{kRenamerTool, 6},   // "Clear"
    NarrowByDesign{kRenamerTool, 21},  // "Order"
};

bool isNarrowByDesign(const Control& control) {
  return std::any_of(kNarrowByDesign.begin(), kNarrowByDesign.end(), [&](const NarrowByDesign& known) {
    return control.index == known.control && control.panel->titleAtCreation.starts_with(known.panel);
  });
}

// The panel's tabs that can be seen, in order.
std::vector<Control*> visibleTabs(const Panel& panel) {
  std::vector<Control*> tabs = usableControls(panel);
  std::erase_if(tabs, [](const Control* control) { return !control->is(ControlKind::TabChoice); });
  return tabs;
}

void turn(Panel& panel, std::size_t depth, const std::string& page, const std::function<void(const std::string&)>& look) {
  const std::vector<Control*> tabs = visibleTabs(panel);
  if (depth >= tabs.size()) {
    look(page.empty() ? page : page + ": ");
    return;
  }
  const int count = static_cast<int>(person::menu(tabs[depth]).size());
  for (int item = 0; item < count; ++item) {
    if (!person::choose(tabs[depth], item)) break;
    turn(panel, depth + 1, page + (page.empty() ? "" : "/") + std::to_string(item + 1), look);
  }
  std::ignore = person::choose(tabs[depth], 0);
}

}  // namespace

std::vector<Control*> usableControls(const Panel& panel) {
  std::vector<Control*> usable;
  if (!panel.isAlive || !panel.isOpen()) return usable;
  for (const auto& control : panel.controls) {
    if (control->isAlive && control->kind->handling != Handling::None && isVisible(*control))
      usable.push_back(control.get());
  }
  return usable;
}

const std::string& textToType(std::uint32_t pick) {
  static const std::array<std::string, 24> kTexts{"",           "Root",     "Tail_01", "Bone_L_01",   "腰",
                                                  "a b",        "100%d",    "%s%n",    "[col]",       "Bone_[col][row]",
                                                  "(.*)_L(.*)", "$1_R$2",   "(((",     "[file]:Tail", std::string(600, 'x'),
                                                  "\x1B[2J",    "\xFF\xFE", "ソ表能",  "\"quoted\"",  "0x10",
                                                  "-1e400",     "nan",      " ",       "Tail_01_L"};
  return kTexts[pick % kTexts.size()];
}

Done touch(Control& control, std::uint32_t pick) {
  switch (control.kind->handling) {
    case Handling::Press: return person::press(&control);
    case Handling::Toggle: return person::toggle(&control);
    case Handling::Choose: {
      const std::size_t count = person::menu(&control).size();
      return count == 0 ? Done{} : person::choose(&control, static_cast<int>(pick % count));
    }
    case Handling::Type:
    case Handling::Slide: return fill(control, pick);
    case Handling::Mouse: return useMouse(control, pick);
    case Handling::None: break;
  }
  return {};
}

std::string layoutFaults(const Panel& panel) {
  std::string text;
  for (const auto& [first, second] : overlapping(panel))
    text += first->describe() + " overlaps " + second->describe() + "\n";
  for (const Control* control : leaving(panel)) text += control->describe() + " leaves the panel\n";
  for (const Control* control : cut(panel)) {
    if (!isNarrowByDesign(*control)) text += control->describe() + " has too little room for its text\n";
  }
  return text;
}

void everyPage(Panel& panel, const std::function<void(const std::string& page)>& look) { turn(panel, 0, {}, look); }

}  // namespace standin::validate
