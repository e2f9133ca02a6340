#include "standin/panels/person.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

#include "standin/core/witness.h"
#include "standin/panels/limits.h"
#include "standin/panels/metrics.h"
#include "standin/panels/mouse_delivery.h"
#include "standin/panels/running.h"
#include "standin/panels/services.h"
#include "standin/panels/units.h"

namespace standin {
namespace {

Done failed(std::string why) { return {false, std::move(why)}; }

// Whether a person can reach the control at all.
Done reachable(const Control* control) {
  if (control == nullptr) return failed("there is no such control");
  const auto cannot = [&](const char* why) { return failed(control->describe() + why); };
  if (!control->isAlive) return cannot(" was destroyed");
  if (!control->panel->isOpen()) return cannot(": the panel is not open");
  if (control->isErased) return cannot(" is hidden");
  if (control->isCovered || control->isMisplaced) return cannot(" is not seen: it was not drawn again");
  if (!control->panel->area().meets(control->hot())) return cannot(" lies outside the panel");
  return {};
}

Done reachableAs(const Control* control, Handling handling, const char* use) {
  if (Done done = reachable(control); !done) return done;
  if (control->kind->handling != handling) return failed(control->describe() + " cannot be " + use);
  return {};
}

Done usablePanel(const Panel* panel) {
  if (panel == nullptr) return failed("there is no such panel");
  if (!panel->isAlive || !panel->isOpen()) return failed("panel \"" + spelledOut(panel->titleAtCreation) + "\" is not open");
  return {};
}

void fireChanged(Control& control) {
  control.stale.reset();
  panels().changed(control);
  panels().fire(control);
}

Done chooseItem(Control& list, int index) {
  const bool isSame = list.integer == index;
  list.integer = index;
  if (!isSame || panels().options.repeatedChoiceFires) fireChanged(list);
  return {};
}

int toInteger(double value) {
  constexpr double least = std::numeric_limits<int>::min();
  constexpr double greatest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(std::round(value), least, greatest));
}

// True when the value changed.
bool storeNumber(Control& field, double value) {
  if (field.kind->value == ValueForm::Integer) return std::exchange(field.integer, toInteger(value)) != toInteger(value);
  return std::exchange(field.real, value) != value;
}

bool storeText(Control& field, std::string_view text) {
  const std::string held = heldText(text);
  return std::exchange(field.text, held) != held;
}

Done reachableField(const Control* field) {
  if (Done done = reachable(field); !done) return done;
  const Handling handling = field->kind->handling;
  if (handling == Handling::Type || handling == Handling::Slide) return {};
  return failed(field->describe() + " takes no text");
}

Done storeTyped(Control& field, double value) {
  if (!std::isfinite(value)) return failed(field.describe() + " takes no such number");
  if (storeNumber(field, limitedWhenTyped(field, value))) fireChanged(field);
  return {};
}

// The whole text at once: what a field takes when it is left.
Done typeWhole(Control& field, std::string_view text) {
  if (field.kind->value == ValueForm::String) {
    if (storeText(field, text)) fireChanged(field);
    return {};
  }
  const std::optional<double> value = parseTyped(field.kind->kind, text);
  if (!value) return failed(field.describe() + " does not take \"" + spelledOut(text) + "\"");
  return storeTyped(field, *value);
}

// Letter by letter into the emptied field. What is no number yet fires nothing.
Done typeByLetters(Control& field, std::string_view text) {
  std::string_view left = text;
  while (!left.empty()) {
    takePiece(left);
    const Done done = typeWhole(field, text.substr(0, text.size() - left.size()));
    if (!done && left.empty()) return done;
    if (Done still = reachable(&field); !still) return failed("the typing was cut short: " + still.why);
  }
  return text.empty() ? typeWhole(field, text) : Done{};
}

double presentNumber(const Control& field) { return field.kind->value == ValueForm::Integer ? field.integer : field.real; }

int within(int size, int least, int greatest) {
  if (greatest > 0) size = std::min(size, greatest);
  return std::max(size, std::max(least, 1));
}

}  // namespace

namespace person {

Done press(Control* button) {
  if (Done done = reachableAs(button, Handling::Press, "pressed"); !done) return done;
  panels().fire(*button);
  return {};
}

Done toggle(Control* check) {
  if (Done done = reachableAs(check, Handling::Toggle, "toggled"); !done) return done;
  check->integer = check->integer == 0 ? 1 : 0;
  fireChanged(*check);
  return {};
}

Done switchTo(Control* check, bool on) {
  if (Done done = reachableAs(check, Handling::Toggle, "toggled"); !done) return done;
  return (check->integer != 0) == on ? Done{} : toggle(check);
}

std::vector<std::string> menu(const Control* list) {
  return reachableAs(list, Handling::Choose, "chosen from") ? list->items() : std::vector<std::string>{};
}

Done choose(Control* list, int index) {
  if (Done done = reachableAs(list, Handling::Choose, "chosen from"); !done) return done;
  const std::size_t count = list->items().size();
  if (index < 0 || std::cmp_greater_equal(index, count)) {
    return failed(list->describe() + " has no item " + std::to_string(index) + " but " + std::to_string(count) + " items");
  }
  return chooseItem(*list, index);
}

Done choose(Control* list, std::string_view item) {
  if (Done done = reachableAs(list, Handling::Choose, "chosen from"); !done) return done;
  const std::vector<std::string> items = list->items();
  const auto found = std::find(items.begin(), items.end(), item);
  if (found == items.end()) return failed(list->describe() + " has no item \"" + spelledOut(item) + "\"");
  return chooseItem(*list, static_cast<int>(found - items.begin()));
}

Done type(Control* field, std::string_view text) {
  if (Done done = reachableField(field); !done) return done;
  return panels().options.firesAtEachLetter ? typeByLetters(*field, text) : typeWhole(*field, text);
}

Done enter(Control* field, double shown) {
  if (Done done = reachableField(field); !done) return done;
  if (field->kind->value == ValueForm::String) return type(field, plainNumber(shown));
  return storeTyped(*field, valueOfShown(field->kind->kind, shown));
}

Done drag(Control* slider, double shown, int steps) {
  if (Done done = reachableAs(slider, Handling::Slide, "dragged"); !done) return done;
  const double from = presentNumber(*slider);
  const double to = valueOfShown(slider->kind->kind, shown);
  for (int step = 1; step <= steps; ++step) {
    const double value = step == steps ? to : from + (to - from) * step / steps;
    const bool changed = storeNumber(*slider, limitedWhenTyped(*slider, value));
    if (changed) fireChanged(*slider);
    if (Done done = reachable(slider); !done) return failed("the drag was cut short: " + done.why);
  }
  return {};
}

Done mousePress(Panel* panel, int x, int y, MouseButton button, int qualifiers, int clicks) {
  if (Done done = usablePanel(panel); !done) return done;
  if (!panel->area().holds(x, y)) return failed("a press outside the panel does not reach it");
  panel->mouseOwner = areaAt(*panel, x, y);
  panel->qualifiers = qualifiers | buttonBits(button) | lw::kMouseDown;
  moveMouse(*panel, x, y);
  if (panel->mouseOwner != nullptr) {
    panel->mouseOwner->mouseButton = static_cast<int>(button);
    panel->mouseOwner->clickCount = countedClicks(*panel, x, y, clicks);
  }
  deliver(*panel, MouseDeed::Press);
  return {};
}

Done mouseMove(Panel* panel, int x, int y) {
  if (Done done = usablePanel(panel); !done) return done;
  moveMouse(*panel, x, y);
  const bool isDown = (panel->qualifiers & lw::kMouseDown) != 0;
  if (!isDown && (panel->openFlags & lw::kOpenMouseMotion) == 0) return {};  // passive motion has to be asked for
  deliver(*panel, MouseDeed::Move);
  return {};
}

Done mouseRelease(Panel* panel, int x, int y) {
  if (Done done = usablePanel(panel); !done) return done;
  if ((panel->qualifiers & lw::kMouseDown) == 0) return failed("no mouse button is down");
  panel->qualifiers &= ~lw::kMouseDown;
  moveMouse(*panel, x, y);
  deliver(*panel, MouseDeed::Release);
  panel->mouseOwner = nullptr;
  return {};
}

Done click(Panel* panel, int x, int y, MouseButton button, int qualifiers, int clicks) {
  if (Done done = mousePress(panel, x, y, button, qualifiers, clicks); !done) return done;
  return panel->isOpen() ? mouseRelease(panel, x, y) : Done{};
}

Done wheel(Panel* panel, int x, int y, int notches) {
  if (Done done = usablePanel(panel); !done) return done;
  if (!panel->area().holds(x, y)) return failed("the wheel outside the panel does not reach it");
  moveMouse(*panel, x, y);
  deliverWheel(*panel, notches);
  return {};
}

Done click(Control* area, int x, int y, MouseButton button, int qualifiers, int clicks) {
  if (Done done = reachableAs(area, Handling::Mouse, "clicked into"); !done) return done;
  return click(area->panel, area->hot().x + x, area->hot().y + y, button, qualifiers, clicks);
}

Done resize(Panel* panel, int width, int height) {
  if (Done done = usablePanel(panel); !done) return done;
  if (!panel->isResizable()) return failed("panel \"" + spelledOut(panel->titleAtCreation) + "\" is not resizable");
  resizePanel(*panel, within(width, panel->leastWidth, panel->greatestWidth),
              within(height, panel->leastHeight, panel->greatestHeight), true);
  return {};
}

Done close(Panel* panel) {
  if (Done done = usablePanel(panel); !done) return done;
  closePanel(*panel);
  return {};
}

}  // namespace person

namespace oddhost {

Done choose(Control* list, int index) {
  if (list == nullptr || !list->isAlive || list->kind->handling != Handling::Choose) return failed("there is no such list");
  list->integer = index;
  fireChanged(*list);
  return {};
}

Done fire(Control* control) {
  if (control == nullptr || !control->isAlive) return failed("there is no such control");
  panels().fire(*control);
  return {};
}

Done askName(Control* popup, int index) {
  if (popup == nullptr || !popup->isAlive || !popup->is(ControlKind::CustomPopup)) return failed("there is no such popup");
  const Running running(*popup->panel);
  callModule("popup name function", [&] { return popup->description.popup.nameFn(popup->user, index); });
  return {};
}

}  // namespace oddhost
}  // namespace standin
