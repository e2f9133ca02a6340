// The three functions of a control's record: draw, get and set.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <tuple>

#include "standin/core/witness.h"
#include "standin/panels/limits.h"
#include "standin/panels/metrics.h"
#include "standin/panels/service_functions.h"
#include "standin/panels/services.h"

namespace standin {
namespace {

// How an attribute travels in the value union. The type code is looked at for all but pointers.
enum class Carrier { Integer, Value, Text, Pointer };

struct AttributeRow {
  int attribute;
  const char* name;
  Carrier carrier;
  bool readable;
  bool writable;
};

// clang-format off
constexpr std::array kAttributes{
    //           attribute                        name                  carrier           read   write
    AttributeRow{lw::kControlX,                   "x",                  Carrier::Integer, true,  true},
    AttributeRow{lw::kControlY,                   "y",                  Carrier::Integer, true,  true},
    AttributeRow{lw::kControlWidth,               "width",              Carrier::Integer, true,  true},
    AttributeRow{lw::kControlHeight,              "height",             Carrier::Integer, true,  true},
    AttributeRow{lw::kControlValue,               "value",              Carrier::Value,   true,  true},
    AttributeRow{lw::kControlHotX,                "hot area's x",       Carrier::Integer, true,  false},
    AttributeRow{lw::kControlHotY,                "hot area's y",       Carrier::Integer, true,  false},
    AttributeRow{lw::kControlHotWidth,            "hot area's width",   Carrier::Integer, true,  false},
    AttributeRow{lw::kControlHotHeight,           "hot area's height",  Carrier::Integer, true,  false},
    AttributeRow{lw::kControlLabelWidth,          "label width",        Carrier::Integer, true,  false},
    AttributeRow{lw::kControlMouseX,              "mouse x",            Carrier::Integer, true,  false},
    AttributeRow{lw::kControlMouseY,              "mouse y",            Carrier::Integer, true,  false},
    AttributeRow{lw::kControlFlags,               "flags",              Carrier::Integer, true,  false},
    AttributeRow{lw::kControlDrawCallback,        "draw callback",      Carrier::Pointer, true,  true},
    AttributeRow{lw::kControlEventCallback,       "event callback",     Carrier::Pointer, true,  true},
    AttributeRow{lw::kControlLabel,               "label",              Carrier::Text,    true,  false},
    AttributeRow{lw::kControlUserData,            "user data",          Carrier::Pointer, true,  true},
    AttributeRow{lw::kControlMouseButton,         "mouse button",       Carrier::Integer, true,  false},
    AttributeRow{lw::kControlClickCount,          "click count",        Carrier::Integer, true,  false},
};
// clang-format on

const AttributeRow* rowFor(int attribute) {
  for (const AttributeRow& row : kAttributes) {
    if (row.attribute == attribute) return &row;
  }
  return nullptr;
}

int typeOf(ValueForm form) {
  switch (form) {
    case ValueForm::Integer: return lw::kValueInteger;
    case ValueForm::Float: return lw::kValueFloat;
    case ValueForm::String: return lw::kValueString;
    case ValueForm::None: break;
  }
  return 0;
}

bool isTypeRight(const Control& control, const AttributeRow& row, int type) {
  switch (row.carrier) {
    case Carrier::Integer: return type == lw::kValueInteger;
    case Carrier::Value: return type == typeOf(control.kind->value);
    case Carrier::Text: return type == lw::kValueString;
    case Carrier::Pointer: return true;
  }
  return false;
}

bool carriesText(const Control& control, const AttributeRow& row) {
  return row.carrier == Carrier::Text || (row.carrier == Carrier::Value && control.kind->value == ValueForm::String);
}

std::string attributeOf(const AttributeRow& row, const Control& control) {
  return "attribute " + std::to_string(row.attribute) + " (" + row.name + ") of " + control.describe();
}

// The row of an attribute that may be used so, or null after a fault.
const AttributeRow* usable(const HostCall& call, const Control& control, int attribute, const lw::LWValue* value,
                           bool reading) {
  const AttributeRow* row = rowFor(attribute);
  if (row == nullptr) {
    call.fault("attribute " + std::to_string(attribute) + " is not offered, of " + control.describe());
  } else if (value == nullptr) {
    call.fault("got no value for " + attributeOf(*row, control));
  } else if (reading ? !row->readable : !row->writable) {
    call.fault(attributeOf(*row, control) + (reading ? " cannot be read" : " cannot be set"));
  } else if (row->carrier == Carrier::Value && control.kind->value == ValueForm::None) {
    call.fault(control.describe() + " has no value");
  } else if (!isTypeRight(control, *row, value->type)) {
    call.fault(attributeOf(*row, control) + " got a value of the wrong type " + std::to_string(value->type));
  } else if (carriesText(control, *row) && (value->str.buf == nullptr || (reading && value->str.bufLen <= 0))) {
    call.fault(attributeOf(*row, control) + " got no buffer");
  } else {
    return row;
  }
  return nullptr;
}

// ---------------------------------------------------------------------------------------------------------------------
// Reading

// A text that fills the buffer is given without its final zero.
void giveText(const std::string& text, lw::LWValString& out) {
  const auto room = static_cast<std::size_t>(out.bufLen);
  const std::size_t most = panels().options.terminatesTexts ? room - 1 : room;
  const std::size_t length = std::min(text.size(), most);
  std::memcpy(out.buf, text.data(), length);
  if (length < room) out.buf[length] = '\0';
}

void giveValue(const Control& control, lw::LWValue& out) {
  switch (control.kind->value) {
    case ValueForm::Integer: out.intv.value = control.integer; break;
    case ValueForm::Float: out.flt.value = control.real; break;
    case ValueForm::String: giveText(control.text, out.str); break;
    case ValueForm::None: break;
  }
}

int integerOf(const Control& control, int attribute) {
  switch (attribute) {
    case lw::kControlX: return control.x;
    case lw::kControlY: return control.y;
    case lw::kControlWidth: return control.width();
    case lw::kControlHeight: return control.height();
    case lw::kControlHotX: return control.hot().x;
    case lw::kControlHotY: return control.hot().y;
    case lw::kControlHotWidth: return control.hotWidth;
    case lw::kControlHotHeight: return control.hotHeight;
    case lw::kControlLabelWidth: return control.labelWidth();
    case lw::kControlMouseX: return control.mouseX - (panels().options.mouseFromControl ? control.hot().x : 0);
    case lw::kControlMouseY: return control.mouseY - (panels().options.mouseFromControl ? control.hot().y : 0);
    case lw::kControlFlags: return control.isErased ? lw::kControlErased : 0;
    case lw::kControlMouseButton: return control.mouseButton;
    case lw::kControlClickCount: return control.clickCount;
    default: return 0;
  }
}

void* pointerOf(const Control& control, int attribute) {
  switch (attribute) {
    case lw::kControlDrawCallback: return reinterpret_cast<void*>(control.drawCallback);
    case lw::kControlEventCallback: return reinterpret_cast<void*>(control.event);
    case lw::kControlUserData: return control.user;
    default: return nullptr;
  }
}

void get(lw::LWControl* face, int attribute, lw::LWValue* value) {
  const HostCall call("control get");
  std::string why;
  const Control* control = panels().resolve(face, why);
  if (control == nullptr) {
    call.fault(why);
    return;
  }
  const AttributeRow* row = usable(call, *control, attribute, value, true);
  if (row == nullptr || call.refused()) return;
  switch (row->carrier) {
    case Carrier::Integer: value->intv.value = integerOf(*control, attribute); break;
    case Carrier::Value: giveValue(*control, *value); break;
    case Carrier::Text: giveText(control->label.read(), value->str); break;
    case Carrier::Pointer: value->ptr.ptr = pointerOf(*control, attribute); break;
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Writing

int acceptedIndex(const Control& list, int index) {
  const OutsideIndex rule = panels().options.outsideIndex;
  if (rule == OutsideIndex::Kept) return index;
  if (rule == OutsideIndex::NotNegative) return std::max(0, index);
  const int last = static_cast<int>(list.items().size()) - 1;
  if (index >= 0 && index <= last) return index;
  return rule == OutsideIndex::Ignored ? list.integer : std::clamp(index, 0, std::max(0, last));
}

int acceptedInteger(const Control& control, int number) {
  switch (control.kind->handling) {
    case Handling::Toggle: return number != 0 ? 1 : 0;
    case Handling::Choose: return acceptedIndex(control, number);
    case Handling::Slide: return static_cast<int>(limitedWhenSet(control, number));
    default: return number;
  }
}

// What the control still shows, where a set alone changes nothing on the screen.
void keepShown(Control& control) {
  if (panels().options.setsRepaint || !control.panel->isOpen() || control.stale) return;
  control.stale = control.shown();
}

void takeValue(Control& control, const lw::LWValue& value) {
  keepShown(control);
  switch (control.kind->value) {
    case ValueForm::Integer: control.integer = acceptedInteger(control, value.intv.value); break;
    case ValueForm::Float:
      if (!std::isfinite(value.flt.value)) panels().note(control.describe() + " was set to a value that is no number");
      control.real = limitedWhenSet(control, value.flt.value);
      break;
    case ValueForm::String: control.text = heldText(value.str.buf); break;
    case ValueForm::None: break;
  }
}

void takePlace(Control& control, int attribute, int number) {
  const auto place = [&] { return std::tuple(control.x, control.y, control.hotWidth, control.hotHeight); };
  const auto before = place();
  switch (attribute) {
    case lw::kControlX: control.x = number; break;
    case lw::kControlY: control.y = number; break;
    case lw::kControlWidth: control.setWidth(number); break;
    default: control.setHeight(number); break;
  }
  if (place() != before && control.panel->isOpen() && !panels().options.movesRepaint) control.isMisplaced = true;
}

void takePointer(Control& control, int attribute, void* pointer) {
  const auto take = [pointer]<class Callback>(Callback& callback) { callback = reinterpret_cast<Callback>(pointer); };
  switch (attribute) {
    case lw::kControlDrawCallback: take(control.drawCallback); break;
    case lw::kControlEventCallback: take(control.event); break;
    case lw::kControlUserData:
      control.user = pointer;
      control.userWasSet = true;
      break;
    default: break;
  }
}

void set(lw::LWControl* face, int attribute, lw::LWValue* value) {
  const HostCall call("control set");
  std::string why;
  Control* control = panels().resolve(face, why);
  if (control == nullptr) {
    call.fault(why);
    return;
  }
  const AttributeRow* row = usable(call, *control, attribute, value, false);
  if (row == nullptr || call.refused()) return;
  switch (row->carrier) {
    case Carrier::Integer: takePlace(*control, attribute, value->intv.value); break;
    case Carrier::Value:
      takeValue(*control, *value);
      if (panels().options.asksPopupsAnytime) askAnything(*control);
      break;
    case Carrier::Text: break;  // the only one, the label, is not written
    case Carrier::Pointer: takePointer(*control, attribute, value->ptr.ptr); break;
  }
  panels().changed(*control);
  if (row->carrier == Carrier::Value && panels().options.setsFireEvents) panels().fire(*control);
}

// ---------------------------------------------------------------------------------------------------------------------

// Erasing fills where the control is with the panel's colour. A border around it keeps its lines.
void coverOthers(const Control& erased) {
  const Rectangle area = erased.whole();
  std::erase_if(erased.panel->drawn, [&](Control* other) {
    if (other->isAlive && !other->isErased) {
      // Rows first: widths are those of texts, and take their time.
      if (other->y >= area.bottom() || other->y + other->height() <= area.y) return false;
      const bool isAround = other->is(ControlKind::Border) && other->whole().holds(area);
      if (isAround || !other->whole().meets(area)) return false;
      other->isCovered = true;
    }
    other->isListed = false;
    return true;
  });
}

void draw(lw::LWControl* face, int mode) {
  const HostCall call("control draw");
  std::string why;
  Control* control = panels().resolve(face, why);
  if (control == nullptr) {
    call.fault(why);
    return;
  }
  if (!isDrawMode(mode)) {
    call.fault("got the unknown draw mode " + std::to_string(mode) + " for " + control->describe());
    return;
  }
  if (call.refused() || (!control->panel->isOpen() && !panels().options.drawBeforeOpenHolds)) return;
  if (mode != lw::kDrawRefresh) control->isErased = mode == lw::kDrawErase;
  control->wantsPaint = !control->isErased;
  if (mode != lw::kDrawErase) control->isDrawn();
  if (mode == lw::kDrawErase && control->panel->isOpen() && panels().options.eraseCovers) coverOthers(*control);
  if (panels().options.asksPopupsAnytime) askAnything(*control);
  if (panels().listener != nullptr) panels().listener->drawn(*control, mode);
  const bool isArea = control->is(ControlKind::OpenGL);
  if (isArea && control->wantsPaint && panels().options.paintsAtOnce) panels().paint(*control);
}

}  // namespace

lw::LWControl newControlFace() { return {&draw, &get, &set, nullptr}; }

}  // namespace standin
