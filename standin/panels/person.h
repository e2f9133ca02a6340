// What a person in front of the screen does to open panels. Only what is visible, within the panel and made for it can be
// used; everything else fails with a message and changes nothing. What changes a control fires its event, as the host does.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "standin/panels/panel.h"

namespace standin {

// Whether it could be done, and why not.
struct [[nodiscard]] Done {
  bool ok = true;
  std::string why;
  explicit operator bool() const { return ok; }
  friend std::ostream& operator<<(std::ostream& out, const Done& done) { return out << (done.ok ? "done" : done.why); }
};

enum class MouseButton { Left = 1, Middle = 2, Right = 3 };

namespace person {

// Every function accepts a null control or panel and fails then, so that the result of a search can be handed on.

Done press(Control* button);
Done toggle(Control* check);
// Switches a check mark or button on or off; does nothing when it is so already.
Done switchTo(Control* check, bool on);

// Opens the menu of a list control: its items as they are at this moment. Empty for all other controls.
std::vector<std::string> menu(const Control* list);
Done choose(Control* list, int index);
// Chooses the first item of that text.
Done choose(Control* list, std::string_view item);

// Types into a field and leaves it. Number fields take the number as they show it, with or without the unit ("15.2", "90",
// "150 mm"). Fires when the content changed.
Done type(Control* field, std::string_view text);
// The same with a number as the field shows it: percent, degrees, metres.
Done enter(Control* field, double shown);
// Drags the slider beside a field from its present value to another one; fires at each of the steps that changes the value.
Done drag(Control* slider, double shown, int steps = 4);

// The mouse over a panel; x and y from the panel's upper left corner. `qualifiers` are the bits for Ctrl, Shift and Alt.
// `clicks` counts the presses that the person makes quickly, wherever they are; what the host makes of it is an option.
// A press reaches the panel's hook and, over an "OpenGLControl", the control; moves and the release go to where it was
// pressed.
Done mousePress(Panel* panel, int x, int y, MouseButton button = MouseButton::Left, int qualifiers = 0, int clicks = 1);
Done mouseMove(Panel* panel, int x, int y);
Done mouseRelease(Panel* panel, int x, int y);
// Press and release.
Done click(Panel* panel, int x, int y, MouseButton button = MouseButton::Left, int qualifiers = 0, int clicks = 1);
Done wheel(Panel* panel, int x, int y, int notches);
// The same with positions from the control's upper left corner (of its hot area).
Done click(Control* area, int x, int y, MouseButton button = MouseButton::Left, int qualifiers = 0, int clicks = 1);

// Drags the panel's border: the size is kept within the panel's limits. Calls the resize hook.
Done resize(Panel* panel, int width, int height);
Done close(Panel* panel);

}  // namespace person

// What no person does but a host might.
namespace oddhost {

// Gives a list control an index without asking its list, and fires.
Done choose(Control* list, int index);
// Fires a control's event though nothing changed, visible or not.
Done fire(Control* control);
// Asks a custom popup for a name outside its list.
Done askName(Control* popup, int index);

}  // namespace oddhost

}  // namespace standin
