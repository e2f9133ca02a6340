#include "modeler/property/property_form.h"

#include "host/raised_flag.h"
#include "modeler/property/property_layout.h"
#include "modeler/property/property_store.h"
#include "skelegon/numbers.h"
#include "texts/texts.h"
#include "texts/whole_text.h"

namespace mst {
namespace {

// What a control shows of a stored number. An index outside its list, which a host may not bear, shows as the default; what
// is stored stays, until the user chooses.
int shownNumber(const PropertyRow& row, int stored) {
  if (row.kind == HostControl::Bool || row.kind == HostControl::BoolButton) return stored != 0 ? 1 : 0;
  if (!row.choices || texts::propertyChoices()[*row.choices].has(stored)) return stored;
  return skg::leadingInteger(skg::SlotDefaults(row.slot.value()));
}

}  // namespace

CPropertyForm::CPropertyForm(const char* title, const lw::PanelTexts& texts, const FormHooks& hooks) : CPanel(title) {
  for (const PropertyRow& row : controlTable()) controls_[row.number] = add(row, texts, hooks.lists);
  for (const PropertyRow& row : controlTable()) {
    place(row);
    controls_[row.number].setUser(hooks.controlUsers[row.number]);
    if (row.role != Role::Decoration) controls_[row.number].onEvent(hooks.used);
  }
  setHooks(hooks.panelUser, hooks.opened, hooks.closed);
  setSize(kPropertyWidth, kPropertyHeight);
}

void CPropertyForm::place(const PropertyRow& row) const {
  const lw::CControl& control = controls_[row.number];
  // Check marks and tabs are as wide as the host makes them.
  if (row.place.width > 0 && row.kind != HostControl::Bool) control.setHotWidth(row.place.width);
  control.moveTo(positionOf(row, control.measured()));
}

// Erasing a control paints over whatever is where it was: all that go, go before the first one is shown.
void CPropertyForm::show(int page, int group, bool nameCanBeEdited) const {
  const auto isVisible = [&](const PropertyRow& row) {
    if (row.role == Role::NameEdit) return nameCanBeEdited;
    if (row.role == Role::NamePopup) return !nameCanBeEdited;
    return isShown(row, page, group);
  };
  for (const bool visible : {false, true}) {
    for (const PropertyRow& row : controlTable()) {
      if (isVisible(row) == visible) controls_[row.number].show(visible);
    }
  }
}

void CPropertyForm::setText(std::size_t number, const std::string& text) {
  const bool isWhole = texts::withoutCutCharacter(text).size() == text.size();
  textEnds_[number] = isWhole ? lw::TextEnd::Whole : lw::TextEnd::AsItIs;
  controls_[number].setText(text);
}

void CPropertyForm::setValue(std::size_t number, const std::string& text) {
  const lw::CControl& control = controls_[number];
  switch (ControlSlotMap(number).value) {
    case ValueKind::Integer: control.setInteger(shownNumber(controlTable()[number], skg::leadingInteger(text))); break;
    case ValueKind::Real: control.setReal(skg::leadingReal(text)); break;
    case ValueKind::Text: setText(number, text); break;
    case ValueKind::Colour: control.setInteger(skg::colourIndex(text)); break;
    case ValueKind::None: break;
  }
}

void CPropertyForm::showValues(const skg::SkelegonProperties& properties) {
  const lw::CRaisedFlag setting(isSetting_);
  kept_ = properties;
  setText(control::kNameEdit, properties[skg::Slot::Name]);
  for (const PropertyRow& row : controlTable()) {
    if (row.slot) setValue(row.number, properties[*row.slot]);
  }
}

void CPropertyForm::showText(skg::Slot slot, const std::string& text) {
  const std::size_t number = controlOf(slot).value();
  const lw::CRaisedFlag setting(isSetting_);
  kept_[slot] = text;
  setValue(number, text);
  controls_[number].show(true);  // the host does not redraw a field by itself
}

void CPropertyForm::keep(std::size_t number) {
  kept_[ControlSlotMap(number).slot.value_or(skg::Slot::Name)] = storedText(number);
}

void CPropertyForm::showKept() { showValues(skg::SkelegonProperties(kept_)); }

std::string CPropertyForm::storedText(std::size_t number) const {
  const lw::CControl& control = controls_[number];
  switch (ControlSlotMap(number).value) {
    case ValueKind::Integer: return formatInteger(control.integer());
    case ValueKind::Real: return formatReal(control.real());
    case ValueKind::Colour: return std::string(colourName(control.integer()));
    case ValueKind::Text:
    case ValueKind::None: break;
  }
  return control.text(textEnds_[number]);
}

void CPropertyForm::setChoice(std::size_t number, int index) {
  const lw::CRaisedFlag setting(isSetting_);
  controls_[number].setInteger(index);
}

}  // namespace mst
