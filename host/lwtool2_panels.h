// The host's classic panels, wrapped so that tools deal in texts and numbers: the casts and unions stay here.
#pragma once

#include <string>

#include "host/lightwave.h"

namespace lw {

// One control of a panel. A light view: the panel owns the control, which lives as long as the panel does.
class CControl {
 public:
  CControl() = default;
  explicit CControl(LWControl* control) : control_(control) {}

  bool exists() const { return control_ != nullptr; }
  bool is(const LWControl* control) const { return control_ == control; }

  // The value of a control that holds an integer (flags, choices, counts).
  int integer() const;
  void setInteger(int value) const;

  // A number that the host knows of the control, in pixels: place, size, label width.
  int measure(ControlAttribute attribute) const;
  void moveTo(int x, int y) const;

  // Both before the panel opens. The user pointer reaches every callback of the control.
  void setUser(void* user) const;
  void onEvent(ControlEvent event) const;

 private:
  void setPointer(ControlAttribute attribute, void* pointer) const;
  void setNumber(ControlAttribute attribute, int value) const;

  LWControl* control_ = nullptr;
};

// A host panel and its controls. Owns the panel until release().
// Functions that make something throw CBaseEx when the host does not.
class CPanel {
 public:
  // Title and, where given, labels must live as long as the panel: the host may keep the pointers.
  explicit CPanel(const char* title);
  ~CPanel();
  CPanel(CPanel&& other) noexcept : panel_(other.release()) {}
  CPanel& operator=(CPanel&&) = delete;

  CControl addBool(const char* label) const;
  CControl addBorder(int width, int height) const;
  CControl addButton(const char* label, int width) const;

  void setSize(int width, int height) const;

  PanelId release();

 private:
  CControl add(const char* kind, LWPanControlDesc description, const char* label) const;

  PanelId panel_ = nullptr;
};

}  // namespace lw
