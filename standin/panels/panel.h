// The stand-in's panels and controls as records, and the registry that knows every one that was ever handed out.
//
// Both programs of the stand-in offer them through services.h; person.h uses them as a person in front of the screen does;
// text.h shows and geometry.h judges them.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interface/lightwave.h"
#include "standin/panels/kinds.h"
#include "standin/panels/options.h"

namespace standin {

struct Panel;

struct Rectangle {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  int right() const { return x + width; }
  int bottom() const { return y + height; }
  bool isEmpty() const { return width <= 0 || height <= 0; }
  bool meets(const Rectangle& other) const {
    return !isEmpty() && !other.isEmpty() && x < other.right() && other.x < right() && y < other.bottom() &&
           other.y < bottom();
  }
  bool holds(const Rectangle& other) const {
    return other.x >= x && other.y >= y && other.right() <= right() && other.bottom() <= bottom();
  }
  bool holds(int px, int py) const { return px >= x && px < right() && py >= y && py < bottom(); }
};

// A text of the module's that the host reads when it needs it: the pointer is kept, so that a text which died is found out.
class KeptText {
 public:
  KeptText() = default;
  // Keeps the pointer (null is an empty text), or copies the text where the options say so.
  static KeptText kept(const char* text);
  std::string read() const { return std::string(view()); }
  std::string_view view() const { return pointer_ == nullptr ? std::string_view(copy_) : std::string_view(pointer_); }

 private:
  const char* pointer_ = nullptr;
  std::string copy_;
};

struct Control {
  // What it is. `face` is the record that the module knows; it is never freed, so that no address is used twice.
  lw::LWControl* face = nullptr;
  Panel* panel = nullptr;
  const KindRow* kind = nullptr;
  int index = 0;                       // place in the order of creation, from 0
  lw::LWPanControlDesc description{};  // as the module gave it; what it points at stays the module's
  std::vector<std::string> copiedItems;
  KeptText label;

  // Where it is, relative to the panel. The whole control is label, hot area and padding.
  int x = 0;
  int y = 0;
  int hotWidth = 0;
  int hotHeight = 0;

  bool isErased = false;
  bool isAlive = true;
  bool wantsPaint = false;  // exposed or drawn since the last paint
  // What the screen still lacks, until the control is drawn.
  bool isCovered = false;            // painted over by the erasing of another one
  bool isMisplaced = false;          // moved, and not drawn there yet
  bool isListed = false;             // in the panel's list of what is drawn
  std::optional<std::string> stale;  // the value that it still shows
  bool isPainting = false;
  int paints = 0;  // how often the host had it painted

  // The value, in the form that the kind has; `real` as the module sees it (radians, metres, percent).
  int integer = 0;
  double real = 0;
  std::string text;
  int rangeLeast = 0;
  int rangeGreatest = 0;

  lw::ControlEvent event = nullptr;
  lw::ControlDraw drawCallback = nullptr;
  void* user = nullptr;
  bool userWasSet = false;

  int mouseX = 0;
  int mouseY = 0;
  int mouseButton = 0;
  int clickCount = 0;
  bool isFiring = false;
  int eventsFired = 0;

  bool is(ControlKind which) const { return kind->kind == which; }
  // The screen shows the control as it is.
  void isDrawn();
  int labelWidth() const;
  int width() const;
  int height() const;
  // Sets the extent of the whole control; the hot area takes what label and padding leave.
  void setWidth(int whole);
  void setHeight(int whole);
  Rectangle whole() const { return {x, y, width(), height()}; }
  Rectangle hot() const;
  // The part that the label's text covers; empty when there is none or when it is drawn inside the hot area.
  Rectangle labelArea() const;

  // The items of a list control. Those of a custom popup come from its functions, so this calls into the module; a null name
  // is a fault and reads as an empty text. Empty for other kinds.
  std::vector<std::string> items() const;
  // The lines of a text control.
  std::vector<std::string> lines() const;
  // The value as the control shows it: "on", "15.2 %", "90°", "1.5 m", the name of the chosen item. An index outside the
  // list shows as "(7)". Empty for kinds without a value.
  std::string shown() const;
  // "ButtonControl "Run" of panel "Tool""
  std::string describe() const;

 private:
  std::string valueShown() const;
};

// Asks a custom popup for what a host may ask at any time: its count, and names inside and outside its list.
void askAnything(const Control& popup);

struct Panel {
  enum class State { Closed, Open, Closing };

  lw::PanelId id = nullptr;
  KeptText title;
  std::string titleAtCreation;
  State state = State::Closed;
  bool isAlive = true;
  bool wasOpened = false;
  bool takesFront = false;
  int openFlags = 0;
  int runningCallbacks = 0;  // of this panel and its controls

  int x = 100;
  int y = 100;
  int width = 0;
  int height = 0;
  int leastWidth = 0;  // 0: no limit
  int leastHeight = 0;
  int greatestWidth = 0;
  int greatestHeight = 0;
  int stackY = 0;  // where the next control goes

  int mouseX = 0;
  int mouseY = 0;
  int qualifiers = 0;      // of the last mouse event, with the button bits
  int toldQualifiers = 0;  // of the last one that the module was told of
  int pressX = 0;          // of the last press, and how many there were at that place
  int pressY = 0;
  int pressCount = 0;
  Control* mouseOwner = nullptr;  // the control in which a button was pressed and is still down

  void* user = nullptr;
  lw::PanelHook openHook = nullptr;
  lw::PanelHook closeHook = nullptr;
  lw::PanelMouseHook mouseButtonHook = nullptr;
  lw::PanelMouseHook mouseMoveHook = nullptr;
  lw::PanelMouseHook mouseWheelHook = nullptr;
  lw::PanelResizeHook resizeHook = nullptr;

  std::vector<std::unique_ptr<Control>> controls;  // in order of creation, destroyed ones too
  std::vector<Control*> drawn;                     // of these: each erasing asks them, and drops what is gone by then

  bool isOpen() const { return state == State::Open; }
  bool isResizable() const { return (openFlags & lw::kOpenResizable) != 0; }
  Rectangle area() const { return {0, 0, width, height}; }

  // The n-th (from 0) living control that fits; null when there is none. An absent kind or label fits all. `visibleOnly`
  // leaves out what a person does not see.
  Control* find(std::optional<ControlKind> kind, std::optional<std::string_view> label, int n = 0,
                bool visibleOnly = true) const;
  Control* find(std::string_view label, int n = 0) const { return find(std::nullopt, label, n); }
  Control* find(ControlKind kind, int n = 0) const { return find(kind, std::nullopt, n); }
  // By place in the order of creation.
  Control* at(int index) const;
};

// True when a person sees the control: its panel is open, it is neither erased nor painted over, it was drawn where it is,
// and it does not lie wholly outside the panel.
bool isVisible(const Control& control);

// Told of what changes on the screen; a front that shows panels as windows implements it. The default does nothing.
class PanelListener {
 public:
  PanelListener() = default;
  PanelListener(const PanelListener&) = delete;
  PanelListener& operator=(const PanelListener&) = delete;
  virtual ~PanelListener() = default;
  virtual void opened(Panel&) {}
  virtual void closed(Panel&) {}
  virtual void destroyed(Panel&) {}
  virtual void resized(Panel&) {}
  virtual void cameToFront(Panel&) {}
  virtual void drawn(Panel&, int /*mode*/) {}
  virtual void drawn(Control&, int /*mode*/) {}
  virtual void changed(Control&) {}  // value, place, size, label or visibility
  // Makes the call of an "OpenGLControl"'s callback, with its drawing context current.
  virtual void withContext(Control&, const std::function<void()>& call) { call(); }
};

class Panels {
 public:
  PanelOptions options;
  PanelListener* listener = nullptr;  // not owned

  Panels(const Panels&) = delete;
  Panels& operator=(const Panels&) = delete;

  // Begins a session: destroys every record, puts the options back, lets the listener go. Handles of the old session
  // stay known as dead.
  void reset();

  // Living panels in order of creation.
  std::vector<Panel*> all() const;
  std::vector<Panel*> open() const;
  // The last made living panel whose title is the text, or begins with it; an open one before a closed one. Null: none.
  Panel* find(std::string_view title) const;
  // A line for each panel that was created and not destroyed.
  std::vector<std::string> undestroyed() const;
  // The module is gone, and with it all that its pointers point at: destroys what it left, without calling into it. Gives
  // what undestroyed() gave before.
  std::vector<std::string> moduleUnloaded();
  // What is no fault but worth knowing, in order.
  const std::vector<std::string>& notes() const { return notes_; }
  void note(std::string text) { notes_.push_back(std::move(text)); }

  // For the services below.
  Panel* create(const char* title);
  Control* createControl(Panel& panel, const KindRow& kind, const lw::LWPanControlDesc& description, const char* label);
  void destroy(Panel& panel);
  void destroy(Control& control);
  // The host's next turn: the open hooks that are due.
  void turn();
  void hookIsDue(Panel& panel) { due_.push_back(panel.id); }
  // The record behind a handle of the module's; null when it is dead or was never handed out, with the reason in `why`.
  Panel* resolve(lw::PanelId id, std::string& why) const;
  Control* resolve(const lw::LWControl* face, std::string& why) const;

  // Calls into the module. Nothing happens where no callback is installed, or in a record that has died meanwhile.
  void fire(Control& control);
  void callHook(Panel& panel, lw::PanelHook hook, const char* name);
  void callMouseHook(Panel& panel, lw::PanelMouseHook hook, const char* name, int bits);
  void callResizeHook(Panel& panel);
  // Has the module paint one visible control, by the callback that the options name; false when it has none or is not
  // visible.
  bool paint(Control& control);
  // Paints the controls that were exposed or drawn since their last paint. Gives their number.
  int paintWanted(Panel& panel);

  void changed(Control& control) const {
    if (listener != nullptr) listener->changed(control);
  }

 private:
  friend Panels& panels();
  Panels() = default;
  static void callEvent(Control& control);

  std::vector<std::unique_ptr<Panel>> panels_;
  std::vector<std::string> notes_;
  std::vector<lw::PanelId> due_;  // panels that were opened and wait for their open hook
};

Panels& panels();

}  // namespace standin
