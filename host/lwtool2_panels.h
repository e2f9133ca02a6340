// The host's classic panels, wrapped so that tools deal in texts and numbers: the casts and unions stay here.
#pragma once

#include <array>
#include <forward_list>
#include <string>

#include "forms/controls.h"
#include "host/lwtool2_globals.h"
#include "interface/lightwave.h"

namespace lw {

// What users type ends with a whole character: half a one shows that the host holds no more. A text that ended with half a
// one when it was set may end so still.
enum class TextEnd { Whole, AsItIs };

// One control of a panel. A light view: the panel owns the control, which lives as long as the panel does.
class CControl {
 public:
  CControl() = default;
  explicit CControl(LWControl* control) : control_(control) {}

  bool is(const LWControl* control) const { return control_ == control; }

  // The value, in the form that the control's kind has. Flags, choices (index from 0) and counts are integers; percents (as
  // shown), distances (metres), angles (radians) and plain numbers are reals; edit fields hold texts.
  int integer() const;
  void setInteger(int value) const;
  double real() const;
  void setReal(double value) const;
  // Texts longer than the limit are cut, and a host may hold fewer bytes yet: both end with a whole character.
  std::string text(TextEnd end = TextEnd::Whole) const;
  void setText(const std::string& text) const;

  // In bytes: what fits into the buffer that the host copies a text to.
  static constexpr int kLongestText = 4095;

  // A number that the host knows of the control, in pixels: place, size, label width.
  int measure(ControlAttribute attribute) const;
  forms::Measured measured() const;
  void moveTo(forms::Position position) const;
  // Makes the part without the label this wide or high.
  void setHotWidth(int width) const;
  void setHotHeight(int height) const;
  void show(bool visible) const;
  // Asks the host to paint the control again.
  void refresh() const;

  // Both before the panel opens. The user pointer reaches every callback of the control.
  void setUser(void* user) const;
  void onEvent(ControlEvent event) const;
  void onDraw(ControlDraw draw) const;

 private:
  void setPointer(ControlAttribute attribute, void* pointer) const;
  void setNumber(ControlAttribute attribute, int value) const;

  LWControl* control_ = nullptr;
};

// What a popup lists, asked for each time its menu opens. The host may ask for any index and may keep the names.
struct PopupFunctions {
  int (*count)(void* user);
  const char* (*name)(void* user, int index);
};

// A host panel and its controls. Owns the panel until release().
// Functions that make something throw CBaseEx when the host does not.
class CPanel {
 public:
  // The title must live as long as the panel.
  explicit CPanel(const char* title);
  ~CPanel();
  CPanel(const CPanel&) = delete;
  CPanel& operator=(const CPanel&) = delete;

  // Before the panel opens. Labels and lists must live as long as it does: the host may keep the pointers. `lists` is of
  // custom popups.
  CControl add(const forms::ControlRow& row, const PanelTexts& texts = {}, const PopupFunctions& lists = {});

  void setSize(int width, int height) const;
  void setLeastSize(int width, int height) const;
  // A number that the host knows of the panel: its size, the bits of the last mouse event.
  int measure(PanelAttribute attribute) const;
  // How far the user can draw the panel's border. Before it opens.
  void setGreatestSize(int width, int height) const;
  // Paints everything again, as it is now.
  void redraw() const;
  void bringToFront() const;
  // They tell when the panel is shown and when it closes, whoever closes it. The user pointer reaches all the panel's hooks.
  void setHooks(void* user, PanelHook opened, PanelHook closed) const;
  // Positions are relative to the panel. The wheel's bits are a signed count of clicks.
  void onMouse(PanelMouseHook button, PanelMouseHook motion, PanelMouseHook wheel) const;
  void onResize(PanelResizeHook hook) const;
  // Shows the panel and returns at once, unless the flags say otherwise. What the host answers then is not documented; see
  // CPanelLife.
  int open(int flags) const;
  void close() const;
  bool is(PanelId panel) const { return panel_ == panel; }

  // Leaves the panel to the host: also for the end of the module, when nothing of the host may be called any more.
  PanelId release();

 private:
  PanelId panel_ = nullptr;
  std::forward_list<std::array<const char*, 2>> lines_;  // of text controls, ended by a null: the host may keep pointers
};

}  // namespace lw
