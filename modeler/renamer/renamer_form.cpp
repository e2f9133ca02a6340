#include "modeler/renamer/renamer_form.h"

#include <algorithm>

#include "host/raised_flag.h"
#include "texts/texts.h"

namespace mst {
namespace {

// What the user's use of a control does at once. All others are looked at when the user runs the tool.
bool acts(RenamerItem item) {
  return item == RenamerItem::Mode || item == RenamerItem::Add || item == RenamerItem::Clear || item == RenamerItem::Run;
}

bool holdsNumber(HostControl kind) {
  return kind == HostControl::Bool || kind == HostControl::Number || kind == HostControl::NumberInfo ||
         kind == HostControl::Popup;
}

// Of a list, an index of one of its entries; of all others, any number.
bool isChoice(const RenamerRow& row, int number) {
  return !row.choices || texts::renamerChoices()[*row.choices].has(number);
}

}  // namespace

CRenamerForm::CRenamerForm(const char* title, const lw::PanelTexts& texts, const RenamerHooks& hooks) : CPanel(title) {
  for (const RenamerRow& row : renamerTable()) controls_[indexOf(row.item)] = add(row, texts);
  for (const RenamerRow& row : renamerTable()) {
    at(row.item).setUser(hooks.user);
    if (row.kind == HostControl::Edit) setText(row.item, row.text, false);
    if (row.number != 0) setNumber(row.item, row.number, false);
    if (acts(row.item)) at(row.item).onEvent(hooks.used);
  }
  placeAtHome();
  // The host may have put them elsewhere than it was asked to: where they are now is their home.
  for (std::size_t i = 0; i < kRenamerItemCount; ++i) {
    homes_[i] = {controls_[i].measure(lw::kControlX), controls_[i].measure(lw::kControlY)};
  }
  setHooks(hooks.user, hooks.opened, hooks.closed);
  setGreatestSize(kOutOfSight.x, kOutOfSight.y);
  lookLike(RenameMode::Change, false);
}

void CRenamerForm::placeAtHome() const {
  std::array<forms::Measured, kRenamerItemCount> measures;
  for (std::size_t i = 0; i < kRenamerItemCount; ++i) measures[i] = controls_[i].measured();
  const RenamerPositions homes = renamerHomes(measures);
  for (std::size_t i = 0; i < kRenamerItemCount; ++i) controls_[i].moveTo(homes[i]);
}

// Where the panel is open, controls are erased before they move, or their pictures stay; and as erasing paints over whatever
// is there, all of them before the first one is shown again.
void CRenamerForm::lookLike(RenameMode mode, bool isOpen) const {
  if (isOpen) showAll(false);
  for (const RenamerRow& row : renamerTable()) {
    at(row.item).moveTo(renamerPosition(row.item, mode, homes_[indexOf(row.item)]));
  }
  takeSize(mode);
  if (!isOpen) return;
  showAll(true);
  redraw();
}

void CRenamerForm::showAll(bool visible) const {
  for (const lw::CControl& control : controls_) control.show(visible);
}

RenamerValues CRenamerForm::values() const {
  RenamerValues values;
  for (const RenamerRow& row : renamerTable()) {
    if (holdsNumber(row.kind)) values.numbers[indexOf(row.item)] = number(row.item);
    if (row.kind == HostControl::Edit) values.texts[indexOf(row.item)] = text(row.item);
  }
  return values;
}

void CRenamerForm::takeValues(const RenamerValues& values) {
  for (const RenamerRow& row : renamerTable()) {
    const std::size_t i = indexOf(row.item);
    if (holdsNumber(row.kind) && isChoice(row, values.numbers[i])) setNumber(row.item, values.numbers[i], false);
    if (row.kind == HostControl::Edit) setText(row.item, values.texts[i], false);
  }
}

void CRenamerForm::setNumber(RenamerItem item, int number, bool isOpen) {
  const lw::CRaisedFlag setting(isSetting_);
  at(item).setInteger(number);
  if (isOpen) at(item).show(true);
}

void CRenamerForm::setText(RenamerItem item, const std::string& text, bool isOpen) {
  const lw::CRaisedFlag setting(isSetting_);
  at(item).setText(text);
  if (isOpen) at(item).show(true);
}

RenamerSettings CRenamerForm::settings() const {
  using Item = RenamerItem;
  RenamerSettings s;
  s.replaceOn = isOn(Item::ReplaceOn);
  s.replaceFrom = text(Item::ReplaceFrom);
  s.replaceTo = text(Item::ReplaceTo);
  s.baseNameOn = isOn(Item::BaseNameOn);
  s.baseName = text(Item::BaseName);
  s.prefixOn = isOn(Item::PrefixOn);
  s.prefix = text(Item::Prefix);
  s.suffixOn = isOn(Item::SuffixOn);
  s.suffix = text(Item::Suffix);
  s.regexOn = isOn(Item::RegexOn);
  s.regexPattern = text(Item::RegexPattern);
  s.regexFormat = text(Item::RegexFormat);
  s.target = static_cast<RenameTarget>(number(Item::Target));
  s.columnOn = isOn(Item::ColumnOn);
  s.order = number(Item::Order);
  s.columnStart = std::max(0, number(Item::ColumnStart));
  s.invert = isOn(Item::Invert);
  s.rowOn = isOn(Item::RowOn);
  s.rowDigits = std::clamp(number(Item::RowDigits), kFewestRowDigits, kMostRowDigits);
  s.rowStart = std::max(0, number(Item::RowStart));
  s.overlapCheck = isOn(Item::OverlapCheck);
  s.renameSkelegonName = isOn(Item::SkelegonName);
  s.renameWeightMap = isOn(Item::WeightMap);
  s.renameProperties = isOn(Item::BoneProperty);
  return s;
}

}  // namespace mst
