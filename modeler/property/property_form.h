// The property panel's host panel: its controls, made and placed by the table, and the values in them. It knows nothing of
// skelegons; MST_CSkgPropPanel decides what it shows and what is written.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "host/lwtool2_panels.h"
#include "modeler/property/property_controls.h"
#include "skelegon/slots.h"

namespace mst {

// Whom the host calls, and with what. Everything must outlive the form.
struct FormHooks {
  lw::ControlEvent used;     // a control was used
  lw::PopupFunctions lists;  // of custom popups
  lw::PanelHook opened;
  lw::PanelHook closed;
  void* panelUser;
  std::array<void*, kControlCount> controlUsers;  // by control number
};

class CPropertyForm : public lw::CPanel {
 public:
  // Makes the panel, not yet open. The title must outlive it. Throws CBaseEx when the host refuses something.
  CPropertyForm(const char* title, const lw::PanelTexts& texts, const FormHooks& hooks);

  // What is seen: the controls of a page and, on the last, of a group; and of the name's two controls one.
  void show(int page, int group, bool nameCanBeEdited) const;
  int open() const { return CPanel::open(lw::kOpenNoButtons); }

  bool owns(std::size_t number, const lw::LWControl* control) const { return controls_[number].is(control); }

  // The settings and the name in all value controls. Unknown colours show as the orange entry, choices that are none of
  // their list as the setting's default.
  void showValues(const skg::SkelegonProperties& properties);
  // A setting that has a control, in that control, which must be in sight.
  void showText(skg::Slot slot, const std::string& text);
  // What the user gave a control was stored.
  void keep(std::size_t number);
  // The values last shown or kept, in place of what the user gave the controls since. Controls in sight are to be shown again.
  void showKept();
  // The value of a control as the text that is stored for it.
  std::string storedText(std::size_t number) const;
  int choice(std::size_t number) const { return controls_[number].integer(); }
  void setChoice(std::size_t number, int index);
  // Paints a control as it is now, in sight or not: the host does not by itself.
  void refresh(std::size_t number) const { controls_[number].refresh(); }

  // True while the form sets values itself: an event that comes then is no wish of the user's.
  bool isSetting() const { return isSetting_; }

 private:
  void place(const PropertyRow& row) const;
  void setText(std::size_t number, const std::string& text);
  void setValue(std::size_t number, const std::string& text);

  std::array<lw::CControl, kControlCount> controls_;
  std::array<lw::TextEnd, kControlCount> textEnds_{};  // of the texts last set
  skg::SkelegonProperties kept_;
  bool isSetting_ = false;
};

}  // namespace mst
