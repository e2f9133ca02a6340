// A module in small: uses the panel services through the binary tables, as a real one does.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "standin/core/globals.h"
#include "standin/core/witness.h"
#include "standin/panels/geometry.h"
#include "standin/panels/person.h"
#include "standin/panels/services.h"
#include "standin/panels/text.h"

namespace standin {

inline const char* kFruit[] = {"Apple", "Pear", "Fig", nullptr};
inline const char* kLines[] = {"Some text", nullptr};

inline void PrintTo(const KindRow& row, std::ostream* out) { *out << row.name; }

inline lw::LWPanControlDesc described(int type) {
  lw::LWPanControlDesc desc{};
  desc.type = type;
  return desc;
}
inline lw::LWPanControlDesc describedText(int characters) {
  lw::LWPanControlDesc desc = described(lw::kValueString);
  desc.str.width = characters;
  return desc;
}
inline lw::LWPanControlDesc describedChoice(const char** items, int width = 0) {
  lw::LWPanControlDesc desc = described(lw::kValueChoice);
  desc.choice.items = items;
  desc.choice.vertical = width;
  return desc;
}
inline lw::LWPanControlDesc describedLines(const char** lines) {
  lw::LWPanControlDesc desc = described(lw::kValueText);
  desc.text.text = lines;
  return desc;
}
inline lw::LWPanControlDesc describedRange(int min, int max, int width = 0) {
  lw::LWPanControlDesc desc = described(lw::kValueRange);
  desc.range = {lw::kValueRange, width, min, max};
  return desc;
}
inline lw::LWPanControlDesc describedArea(int width, int height) {
  lw::LWPanControlDesc desc = described(lw::kValueArea);
  desc.area = {lw::kValueArea, width, height};
  return desc;
}
inline int fruitCount(void*) { return 3; }
inline const char* fruitName(void*, int index) { return index >= 0 && index < 3 ? kFruit[index] : nullptr; }
inline lw::LWPanControlDesc describedPopup(int (*count)(void*) = &fruitCount, const char* (*name)(void*, int) = &fruitName) {
  lw::LWPanControlDesc desc = described(lw::kValuePopup);
  desc.popup.width = 120;
  desc.popup.countFn = count;
  desc.popup.nameFn = name;
  return desc;
}

// A description that the kind takes.
inline lw::LWPanControlDesc sampleDescription(ControlKind kind) {
  switch (rowOf(kind).forms[0].part) {
    case DescriptionPart::String: return describedText(20);
    case DescriptionPart::Choice: return describedChoice(kFruit);
    case DescriptionPart::Text: return describedLines(kLines);
    case DescriptionPart::Range: return describedRange(0, 100);
    case DescriptionPart::Area: return describedArea(100, 30);
    case DescriptionPart::Popup: return describedPopup();
    case DescriptionPart::None: break;
  }
  return described(rowOf(kind).forms[0].type);
}

class PanelsTest : public testing::Test {
 protected:
  void SetUp() override {
    witness().reset();
    globals().reset();
    offerPanelServices();
    services = static_cast<lw::LWPanelFuncs*>(globals().lookup()("LWPanelServices 3", lw::kUseTransient));
    services->globalFun = globals().lookup();
  }
  // A test that provokes a fault takes it; every other fault fails the test.
  void TearDown() override { EXPECT_EQ("", witness().report()); }

  std::string takeFaults() {
    std::string report = witness().report();
    witness().reset();
    return report;
  }

  lw::PanelId make(const char* title = "Tool") { return services->create(title, services); }
  lw::LWControl* add(lw::PanelId panel, const char* kind, lw::LWPanControlDesc desc, const char* label = nullptr) {
    lw::LWControl* control = services->addControl(panel, kind, &desc, label);
    if (control != nullptr) setPointer(control, lw::kControlUserData, this);
    return control;
  }
  lw::LWControl* add(lw::PanelId panel, ControlKind kind, const char* label = nullptr) {
    return add(panel, rowOf(kind).name, sampleDescription(kind), label);
  }
  lw::LWControl* addButton(lw::PanelId panel, const char* label, int width = 80) {
    return add(panel, "ButtonControl", describedArea(width, 0), label);
  }

  static void setPointer(lw::LWControl* control, int attribute, void* pointer) {
    lw::LWValue value{};
    value.ptr = {lw::kValuePointer, pointer};
    control->set(control, attribute, &value);
  }
  static void onEvent(lw::LWControl* control, lw::ControlEvent event) {
    setPointer(control, lw::kControlEventCallback, reinterpret_cast<void*>(event));
  }
  static void setInteger(lw::LWControl* control, int attribute, int number) {
    lw::LWValue value{};
    value.intv = {lw::kValueInteger, number, 0};
    control->set(control, attribute, &value);
  }
  static int getInteger(lw::LWControl* control, int attribute) {
    lw::LWValue value{};
    value.intv = {lw::kValueInteger, -12345, 0};
    control->get(control, attribute, &value);
    return value.intv.value;
  }
  static void setReal(lw::LWControl* control, double number) {
    lw::LWValue value{};
    value.flt = {lw::kValueFloat, number, 0};
    control->set(control, lw::kControlValue, &value);
  }
  static double getReal(lw::LWControl* control) {
    lw::LWValue value{};
    value.flt = {lw::kValueFloat, -12345, 0};
    control->get(control, lw::kControlValue, &value);
    return value.flt.value;
  }
  static void setText(lw::LWControl* control, std::string text) {
    lw::LWValue value{};
    value.str = {lw::kValueString, text.data(), static_cast<int>(text.size())};
    control->set(control, lw::kControlValue, &value);
  }
  static std::string getText(lw::LWControl* control, int attribute = lw::kControlValue) {
    std::array<char, 256> buffer{};
    lw::LWValue value{};
    value.str = {lw::kValueString, buffer.data(), static_cast<int>(buffer.size()) - 1};
    control->get(control, attribute, &value);
    return buffer.data();
  }
  void setNumber(lw::PanelId panel, int attribute, int number) const { services->set(panel, attribute, &number); }
  int getNumber(lw::PanelId panel, int attribute) const {
    int number = -12345;
    services->get(panel, attribute, &number);
    return number;
  }

  static Panel& record(lw::PanelId id) {
    std::string why;
    return *panels().resolve(id, why);
  }
  static Control* record(const lw::LWControl* face) {
    std::string why;
    return panels().resolve(face, why);
  }

  lw::LWPanelFuncs* services = nullptr;
};

}  // namespace standin
