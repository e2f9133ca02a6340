// The renamer's host panel: its controls, made and placed by the table, and the values in them. It knows nothing of
// skelegons; MST_RenamerPanel decides what is done.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "host/lwtool2_panels.h"
#include "modeler/renamer/rename_rules.h"
#include "modeler/renamer/renamer_layout.h"

namespace mst {

// Whom the host calls, and with what, which must outlive the form.
struct RenamerHooks {
  lw::ControlEvent used;  // the mode was chosen, or a button pressed
  lw::PanelHook opened;
  lw::PanelHook closed;
  void* user;
};

// What all controls hold.
struct RenamerValues {
  std::array<int, kRenamerItemCount> numbers{};
  std::array<std::string, kRenamerItemCount> texts;
};

class CRenamerForm : public lw::CPanel {
 public:
  // Makes the panel with the defaults, not yet open, in the layout of the first mode. The title must outlive it. Throws
  // CBaseEx when the host refuses something.
  CRenamerForm(const char* title, const lw::PanelTexts& texts, const RenamerHooks& hooks);

  // Resizable, for only then the size can change while it is open.
  int open() const { return CPanel::open(lw::kOpenNoButtons | lw::kOpenResizable); }

  void takeSize(RenameMode mode) const { setSize(kRenamerWidth, renamerHeight(mode)); }
  // Moves the controls to where they stand in a mode and sets the panel's size. `isOpen`: the panel is on the screen.
  void lookLike(RenameMode mode, bool isOpen) const;

  bool owns(RenamerItem item, const lw::LWControl* control) const { return at(item).is(control); }
  int number(RenamerItem item) const { return at(item).integer(); }
  std::string text(RenamerItem item) const { return at(item).text(); }
  // Set a value and, on an open panel, draw it.
  void setNumber(RenamerItem item, int number, bool isOpen);
  void setText(RenamerItem item, const std::string& text, bool isOpen);

  // For a panel that takes another one's place. Not while it is open.
  RenamerValues values() const;
  void takeValues(const RenamerValues& values);

  // What the controls of the advanced layout say.
  RenamerSettings settings() const;

  // True while the form sets values itself: an event that comes then is no wish of the user's.
  bool isSetting() const { return isSetting_; }

 private:
  void placeAtHome() const;
  void showAll(bool visible) const;
  const lw::CControl& at(RenamerItem item) const { return controls_[indexOf(item)]; }
  bool isOn(RenamerItem item) const { return number(item) != 0; }

  std::array<lw::CControl, kRenamerItemCount> controls_;
  RenamerPositions homes_{};
  bool isSetting_ = false;
};

}  // namespace mst
