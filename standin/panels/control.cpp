#include <algorithm>
#include <utility>

#include "standin/core/witness.h"
#include "standin/panels/metrics.h"
#include "standin/panels/panel.h"
#include "standin/panels/running.h"
#include "standin/panels/units.h"

namespace standin {
namespace {

constexpr int kMostItems = 100000;

// Reads a null-ended array of texts of the module's.
std::vector<std::string> readList(const char* const* list) {
  std::vector<std::string> texts;
  for (; *list != nullptr; ++list) texts.emplace_back(*list);
  return texts;
}

int customCount(const Control& control) {
  const Running running(*control.panel);
  const auto count = callModule("popup count function", [&] { return control.description.popup.countFn(control.user); });
  if (count.value_or(0) >= 0 && count.value_or(0) <= kMostItems) return count.value_or(0);
  witness().fault("popup count function", "gave " + std::to_string(*count) + " for " + control.describe());
  return 0;
}

const char* customName(const Control& control, int index) {
  const Running running(*control.panel);
  return callModule("popup name function", [&] { return control.description.popup.nameFn(control.user, index); })
      .value_or(nullptr);
}

// The host may ask for all names before it shows the first, so all pointers are fetched before one is read.
std::vector<std::string> customItems(const Control& control) {
  const int count = customCount(control);
  std::vector<const char*> names;
  names.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) names.push_back(customName(control, i));
  std::vector<std::string> items;
  for (const char* name : names) {
    if (name == nullptr) {
      witness().fault("popup name function",
                      "gave a null name for item " + std::to_string(items.size()) + " of " + control.describe());
    }
    items.emplace_back(name == nullptr ? "" : name);
  }
  return items;
}

std::string shownChoice(const Control& control) {
  const std::string beyond = "(" + std::to_string(control.integer) + ")";
  if (control.is(ControlKind::CustomPopup)) {
    const char* name = customName(control, control.integer);
    return name == nullptr ? beyond : name;
  }
  const std::vector<std::string> items = control.items();
  return control.integer >= 0 && std::cmp_less(control.integer, items.size())
             ? items[static_cast<std::size_t>(control.integer)]
             : beyond;
}

int insetOf(const Control& control) {
  return control.is(ControlKind::Border) || control.is(ControlKind::OpenGL) ? 0 : kRowInset;
}

}  // namespace

KeptText KeptText::kept(const char* text) {
  KeptText kept;
  if (!panels().options.copiesTexts) {
    kept.pointer_ = text;
  } else if (text != nullptr) {
    kept.copy_ = text;
  }
  return kept;
}

void Control::isDrawn() {
  isCovered = isMisplaced = false;
  stale.reset();
  if (!std::exchange(isListed, true)) panel->drawn.push_back(this);
}

int Control::labelWidth() const {
  if (kind->labelInside) return 0;
  const int width = textWidth(label.view());
  return width == 0 ? 0 : width + kLabelGap;
}

int Control::width() const { return labelWidth() + hotWidth + panels().options.rightPadding; }
int Control::height() const { return hotHeight + 2 * insetOf(*this); }
void Control::setWidth(int whole) { hotWidth = std::max(0, whole - labelWidth() - panels().options.rightPadding); }
void Control::setHeight(int whole) { hotHeight = std::max(0, whole - 2 * insetOf(*this)); }
Rectangle Control::hot() const { return {x + labelWidth(), y + insetOf(*this), hotWidth, hotHeight}; }

Rectangle Control::labelArea() const {
  const int text = labelWidth() - kLabelGap;
  return text <= 0 ? Rectangle{} : Rectangle{x, y + insetOf(*this), text, std::min(kTextHeight, hotHeight)};
}

std::vector<std::string> Control::items() const {
  if (is(ControlKind::CustomPopup)) return customItems(*this);
  if (!is(ControlKind::Popup) && !is(ControlKind::TabChoice)) return {};
  return panels().options.copiesTexts ? copiedItems : readList(description.choice.items);
}

std::vector<std::string> Control::lines() const {
  if (!is(ControlKind::Text)) return {};
  return panels().options.copiesTexts ? copiedItems : readList(description.text.text);
}

std::string Control::shown() const { return stale ? *stale : valueShown(); }

std::string Control::valueShown() const {
  switch (kind->handling) {
    case Handling::Toggle: return integer != 0 ? "on" : "off";
    case Handling::Choose: return shownChoice(*this);
    default: break;
  }
  switch (kind->value) {
    case ValueForm::Integer: return std::to_string(integer);
    case ValueForm::Float: return shownNumber(kind->kind, real);
    case ValueForm::String: return text;
    case ValueForm::None: break;
  }
  return {};
}

std::string Control::describe() const {
  return std::string(kind->name) + " " + std::to_string(index) + " \"" +
         (isAlive ? spelledOut(label.read()) : std::string()) + "\" of panel \"" + spelledOut(panel->titleAtCreation) + "\"";
}

void askAnything(const Control& popup) {
  if (!popup.is(ControlKind::CustomPopup)) return;
  constexpr int kFar = 1'000'000;
  const int count = customCount(popup);
  for (const int index : {-1, 0, count - 1, count, kFar}) customName(popup, index);
}

bool isVisible(const Control& control) {
  if (control.isErased || control.isCovered || control.isMisplaced) return false;
  return control.isAlive && control.panel->isOpen() && control.panel->area().meets(control.whole());
}

Control* Panel::find(std::optional<ControlKind> kind, std::optional<std::string_view> label, int n, bool visibleOnly) const {
  for (const auto& control : controls) {
    if (!control->isAlive || (visibleOnly && !isVisible(*control))) continue;
    if (kind && !control->is(*kind)) continue;
    if (label && control->label.read() != *label) continue;
    if (n-- == 0) return control.get();
  }
  return nullptr;
}

Control* Panel::at(int index) const {
  if (index < 0 || std::cmp_greater_equal(index, controls.size())) return nullptr;
  Control* control = controls[static_cast<std::size_t>(index)].get();
  return control->isAlive ? control : nullptr;
}

}  // namespace standin
