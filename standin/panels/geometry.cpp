#include "standin/panels/geometry.h"

#include <algorithm>
#include <array>

#include "standin/panels/metrics.h"

namespace standin {
namespace {

template <class Test>
std::vector<const Control*> visibleControls(const Panel& panel, Test test) {
  std::vector<const Control*> found;
  for (const auto& control : panel.controls) {
    if (isVisible(*control) && test(*control)) found.push_back(control.get());
  }
  return found;
}

// What of a control is painted: padding is not. Measured once, for the label's text has to be.
struct Inked {
  explicit Inked(const Control* of) : control(of), parts{of->labelArea(), of->hot()} {}
  bool isBorder() const { return control->is(ControlKind::Border); }
  const Rectangle& hot() const { return parts[1]; }

  const Control* control;
  std::array<Rectangle, 2> parts;
};

bool share(const Inked& a, const Inked& b) {
  for (const Rectangle& first : a.parts) {
    for (const Rectangle& second : b.parts) {
      if (first.meets(second)) return true;
    }
  }
  return false;
}

bool collide(const Inked& a, const Inked& b) {
  if (a.isBorder() && b.isBorder()) return a.hot().meets(b.hot()) && !a.hot().holds(b.hot()) && !b.hot().holds(a.hot());
  if (a.isBorder() || b.isBorder()) return false;
  return share(a, b);
}

bool leaves(const Control& control, const Rectangle& area) {
  const auto parts = Inked(&control).parts;
  return std::any_of(parts.begin(), parts.end(),
                     [&](const Rectangle& part) { return !part.isEmpty() && !area.holds(part); });
}

int neededWidth(const Control& control) {
  int needed = 0;
  switch (control.kind->kind) {
    case ControlKind::Button:
    case ControlKind::BoolButton: return textWidth(control.label.read()) + kButtonInset;
    case ControlKind::TabChoice:
      for (const std::string& item : control.items()) needed += textWidth(item) + kTabInset;
      return needed;
    case ControlKind::Popup:
      for (const std::string& item : control.items()) needed = std::max(needed, textWidth(item));
      return needed + kFieldInset + kPopupArrowWidth;
    case ControlKind::Text:
      for (const std::string& line : control.lines()) needed = std::max(needed, textWidth(line));
      return needed;
    default: return 0;
  }
}

std::string linesOf(const std::vector<const Control*>& controls, const std::string& complaint) {
  std::string text;
  for (const Control* control : controls) text += control->describe() + complaint + "\n";
  return text;
}

}  // namespace

std::vector<ControlPair> overlapping(const Panel& panel) {
  std::vector<Inked> visible;
  for (const Control* control : visibleControls(panel, [](const Control&) { return true; })) visible.emplace_back(control);
  std::vector<ControlPair> pairs;
  for (std::size_t i = 0; i < visible.size(); ++i) {
    for (std::size_t k = i + 1; k < visible.size(); ++k) {
      if (collide(visible[i], visible[k])) pairs.emplace_back(visible[i].control, visible[k].control);
    }
  }
  return pairs;
}

std::vector<const Control*> leaving(const Panel& panel) {
  return visibleControls(panel, [&](const Control& control) { return leaves(control, panel.area()); });
}

std::vector<const Control*> cut(const Panel& panel) {
  return visibleControls(panel,
                         [](const Control& control) { return control.x < 0 || control.hotWidth < neededWidth(control); });
}

std::vector<const Control*> outside(const Panel& panel) {
  std::vector<const Control*> found;
  for (const auto& control : panel.controls) {
    if (control->isAlive && panel.isOpen() && !control->isErased && !isVisible(*control)) found.push_back(control.get());
  }
  return found;
}

std::string layoutComplaints(const Panel& panel) {
  std::string text;
  for (const auto& [first, second] : overlapping(panel))
    text += first->describe() + " overlaps " + second->describe() + "\n";
  return text + linesOf(leaving(panel), " leaves the panel") + linesOf(cut(panel), " has too little room for its text");
}

}  // namespace standin
