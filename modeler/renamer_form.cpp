#include "modeler/renamer_form.h"

#include <algorithm>

namespace mst {
namespace {

// For as long as it lives, events are not the user's.
class CSettingValues {
 public:
  explicit CSettingValues(bool& flag) : flag_(flag) { flag_ = true; }
  ~CSettingValues() { flag_ = false; }
  CSettingValues(const CSettingValues&) = delete;
  CSettingValues& operator=(const CSettingValues&) = delete;

 private:
  bool& flag_;
};

// What the user's use of a control does at once. All others are looked at when the user runs the tool.
bool acts(RenamerItem item) {
  return item == RenamerItem::Mode || item == RenamerItem::Add || item == RenamerItem::Clear || item == RenamerItem::Run;
}

}  // namespace

CRenamerForm::CRenamerForm(const char* title, const lw::RenamerTexts& texts, const RenamerHooks& hooks) : panel_(title) {
  for (const RenamerRow& row : renamerTable()) controls_[indexOf(row.item)] = make(row, texts);
  for (const RenamerRow& row : renamerTable()) {
    at(row.item).setUser(hooks.user);
    if (row.kind == RenamerKind::Edit) setText(row.item, row.text, false);
    if (row.number != 0) setNumber(row.item, row.number, false);
    if (acts(row.item)) at(row.item).onEvent(hooks.used);
  }
  placeAtHome();
  // The host may have put them elsewhere than it was asked to: where they are now is their home.
  for (std::size_t i = 0; i < kRenamerItemCount; ++i) {
    homes_[i] = {controls_[i].measure(lw::kControlX), controls_[i].measure(lw::kControlY)};
  }
  panel_.setUser(hooks.user);
  panel_.onClose(hooks.closed);
  panel_.setGreatestSize(kOutOfSight.x, kOutOfSight.y);
  lookLike(RenameMode::Change, false);
}

lw::CControl CRenamerForm::make(const RenamerRow& row, const lw::RenamerTexts& texts) {
  const char* const label = row.label ? (*texts.labels)[*row.label] : "";
  const auto choices = [&] { return texts.choices.at(static_cast<std::size_t>(row.choices.value())); };
  switch (row.kind) {
    case RenamerKind::Bool: return panel_.addBool(label);
    case RenamerKind::Border: return panel_.addBorder(row.width, kRenamerBorderHeight);
    case RenamerKind::Button: return panel_.addButton(label, row.width);
    case RenamerKind::Edit: return panel_.addEdit(label, row.width);
    case RenamerKind::Heading:
      headings_[indexOf(row.item)] = {label, nullptr};
      return panel_.addText(headings_[indexOf(row.item)].data());
    case RenamerKind::Number: return panel_.addNumber(label);
    case RenamerKind::NumberInfo: return panel_.addNumberInfo(label);
    case RenamerKind::Popup: return panel_.addPopup(label, row.width, choices());
  }
  return {};
}

void CRenamerForm::placeAtHome() const {
  std::array<RenamerMeasure, kRenamerItemCount> measures;
  for (std::size_t i = 0; i < kRenamerItemCount; ++i) {
    measures[i] = {controls_[i].measure(lw::kControlWidth), controls_[i].measure(lw::kControlLabelWidth)};
  }
  const RenamerPositions homes = renamerHomes(measures);
  for (std::size_t i = 0; i < kRenamerItemCount; ++i) controls_[i].moveTo(homes[i].x, homes[i].y);
}

// The size can change while the panel is open only where it is resizable.
bool CRenamerForm::open() const { return panel_.open(lw::kOpenNoButtons | lw::kOpenResizable) != 0; }

void CRenamerForm::lookLike(RenameMode mode, bool isOpen) const {
  for (const RenamerRow& row : renamerTable()) {
    const lw::CControl& control = at(row.item);
    const RenamerPosition position = renamerPosition(row.item, mode, homes_[indexOf(row.item)]);
    if (isOpen) control.show(false);  // or its picture stays where it was
    control.moveTo(position.x, position.y);
    if (isOpen) control.show(true);
  }
  takeSize(mode);
  if (isOpen) redraw();
}

void CRenamerForm::setNumber(RenamerItem item, int number, bool isOpen) {
  const CSettingValues setting(isSetting_);
  at(item).setInteger(number);
  if (isOpen) at(item).show(true);
}

void CRenamerForm::setText(RenamerItem item, const std::string& text, bool isOpen) {
  const CSettingValues setting(isSetting_);
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
