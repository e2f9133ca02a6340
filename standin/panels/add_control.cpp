// Making controls: what a description may look like, kind by kind.
#include <cstddef>
#include <string>

#include "standin/core/witness.h"
#include "standin/panels/service_functions.h"
#include "standin/panels/services.h"

namespace standin {
namespace {

std::size_t sizeOf(DescriptionPart part) {
  switch (part) {
    case DescriptionPart::None: return sizeof(int);
    case DescriptionPart::String: return sizeof(lw::LWPanStringDesc);
    case DescriptionPart::Choice: return sizeof(lw::LWPanChoiceDesc);
    case DescriptionPart::Text: return sizeof(lw::LWPanTextDesc);
    case DescriptionPart::Range: return sizeof(lw::LWPanRangeDesc);
    case DescriptionPart::Area: return sizeof(lw::LWPanAreaDesc);
    case DescriptionPart::Popup: return sizeof(lw::LWPanPopupDesc);
  }
  return 0;
}

const DescriptionForm* formFor(const KindRow& kind, int type) {
  for (const DescriptionForm& form : kind.forms) {
    if (form.type == type) return &form;
  }
  return nullptr;
}

bool isSize(int size) { return size >= 0 && size <= kWidestControl; }

// What is wrong with the fields of a description; null when nothing is.
const char* wrongFields(const KindRow& kind, DescriptionPart part, const lw::LWPanControlDesc& desc) {
  switch (part) {
    case DescriptionPart::None: return nullptr;
    case DescriptionPart::String: return desc.str.width > 0 && isSize(desc.str.width) ? nullptr : "a senseless width";
    case DescriptionPart::Choice:
      if (desc.choice.items == nullptr) return "no list of items";
      return isSize(desc.choice.vertical) ? nullptr : "a senseless width";
    case DescriptionPart::Text: return desc.text.text != nullptr ? nullptr : "no list of lines";
    case DescriptionPart::Range:
      if (!isSize(desc.range.width)) return "a senseless width";
      return desc.range.min <= desc.range.max ? nullptr : "a range whose least value exceeds its greatest";
    case DescriptionPart::Area:
      if (!isSize(desc.area.width) || !isSize(desc.area.height)) return "a senseless size";
      if (kind.kind == ControlKind::OpenGL) return desc.area.width > 0 && desc.area.height > 0 ? nullptr : "an empty area";
      if (kind.kind == ControlKind::Border) return desc.area.width > 0 ? nullptr : "an empty area";
      return desc.area.width > 0 && desc.area.height == 0 ? nullptr : "an area that is no width with height 0";
    case DescriptionPart::Popup:
      if (desc.popup.countFn == nullptr || desc.popup.nameFn == nullptr) return "no count or name function";
      if (desc.popup.faceFn != nullptr || desc.popup.typeFn != nullptr || desc.popup.subMFn != nullptr) {
        return "functions that are not used";
      }
      return isSize(desc.popup.width) ? nullptr : "a senseless width";
  }
  return nullptr;
}

// Which spare fields a kind reads is not known, so everything beyond the kind's own fields has to be cleared.
bool isClearedBeyond(const lw::LWPanControlDesc& desc, std::size_t used) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(&desc);
  for (std::size_t i = used; i < sizeof desc; ++i) {
    if (bytes[i] != 0) return false;
  }
  return true;
}

// True when a control can be made of it. An uncleared description is a fault, but the control is made.
bool checkDescription(const HostCall& call, const KindRow& kind, const lw::LWPanControlDesc& desc) {
  const std::string name = kind.name;
  const DescriptionForm* form = formFor(kind, desc.type);
  if (form == nullptr) {
    call.fault(name + " got a description of type " + std::to_string(desc.type));
    return false;
  }
  if (const char* wrong = wrongFields(kind, form->part, desc)) {
    call.fault(name + " got a description with " + wrong);
    return false;
  }
  if (!isClearedBeyond(desc, sizeOf(form->part)))
    call.fault(name + " got a description that was not cleared before it was filled");
  return true;
}

}  // namespace

lw::LWControl* addControl(lw::PanelId id, const char* kind, lw::LWPanControlDesc* desc, const char* label) {
  const HostCall call("panel addControl");
  Panel* panel = resolved(call, id);
  if (panel == nullptr) return nullptr;
  const KindRow* row = kind == nullptr ? nullptr : kindNamed(kind);
  if (row == nullptr) {
    call.fault("was asked for the unknown kind \"" + std::string(kind == nullptr ? "" : kind) + "\"");
    return nullptr;
  }
  if (panel->wasOpened) {
    call.fault(std::string(row->name) + " is added to " + named(*panel) + " after it was opened");
    return nullptr;
  }
  if (desc == nullptr) {
    call.fault(std::string(row->name) + " got no description");
    return nullptr;
  }
  if (!checkDescription(call, *row, *desc) || call.refused()) return nullptr;
  return panels().createControl(*panel, *row, *desc, label)->face;
}

}  // namespace standin
