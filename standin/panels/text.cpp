#include "standin/panels/text.h"

#include <algorithm>
#include <string_view>
#include <tuple>

#include "standin/panels/metrics.h"

namespace standin {
namespace {

std::string padded(std::string text, std::size_t width) {
  if (text.size() < width) text.append(width - text.size(), ' ');
  return text;
}

std::string placeText(const Rectangle& area) { return std::to_string(area.x) + "," + std::to_string(area.y); }
std::string sizeText(int width, int height) { return std::to_string(width) + "x" + std::to_string(height); }

std::string valueText(const Control& control) {
  if (control.is(ControlKind::Text)) {
    std::string text;
    for (const std::string& line : control.lines()) text += (text.empty() ? "\"" : ", \"") + spelledOut(line) + "\"";
    return text;
  }
  if (control.kind->value == ValueForm::None) return {};
  const std::string shown = control.shown();
  if (control.kind->handling == Handling::Choose) return std::to_string(control.integer) + " \"" + spelledOut(shown) + "\"";
  return control.kind->value == ValueForm::String ? "\"" + spelledOut(shown) + "\"" : shown;
}

std::string trimmedRight(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

}  // namespace

std::string controlText(const Control& control) {
  constexpr std::size_t placeColumn = 9;
  constexpr std::size_t kindColumn = 20;
  std::string line = padded(placeText(control.whole()), placeColumn) +
                     padded(sizeText(control.width(), control.height()), placeColumn) +
                     padded(control.kind->name, kindColumn);
  const std::string label = control.label.read();
  if (!label.empty()) line += "\"" + spelledOut(label) + "\" ";
  const std::string value = valueText(control);
  if (!value.empty()) line += "= " + value;
  return trimmedRight(line);
}

std::vector<const Control*> readingOrder(const Panel& panel) {
  std::vector<const Control*> visible;
  for (const auto& control : panel.controls) {
    if (isVisible(*control)) visible.push_back(control.get());
  }
  std::stable_sort(visible.begin(), visible.end(),
                   [](const Control* a, const Control* b) { return std::tie(a->y, a->x) < std::tie(b->y, b->x); });
  return visible;
}

std::string panelText(const Panel& panel) {
  std::string text = "Panel \"" + spelledOut(panel.title.read()) + "\" " + sizeText(panel.width, panel.height);
  text += panel.isOpen() ? (panel.isResizable() ? " (resizable)\n" : "\n") : " (closed)\n";
  for (const Control* control : readingOrder(panel)) text += "  " + controlText(*control) + "\n";
  return text;
}

}  // namespace standin
