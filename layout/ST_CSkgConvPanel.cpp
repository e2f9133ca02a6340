#include "layout/ST_CSkgConvPanel.h"

#include "host/lwtool2_errors.h"
#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "layout/conversion.h"

namespace lwp {
namespace {

constexpr int kPanelWidth = 260;
constexpr int kPanelHeight = 100;
constexpr int kRunButtonWidth = 80;
constexpr int kRunHotX = 165;

// The record that a control carries as its user data; null when none is attached.
ConversionSettings* settingsOf(void* user) { return static_cast<ConversionSettings*>(user); }

}  // namespace

int CSkgConvPanel::OpenConversionPanel() {
  if (settings_.panel == nullptr) build();
  return lw::panels().open(settings_.panel, lw::kOpenNoButtons);
}

void CSkgConvPanel::build() {
  ConversionSettings& s = settings_;
  s.title = lw::FormatString("%s(%d.%d)%s", kOptimizeName, VARNEL_VERSION_MAJOR, VARNEL_VERSION_MINOR, " ");
  lw::CPanel panel(s.title.c_str());
  s.convertControl = panel.addBool(lw::layoutText(texts::LayoutText::ExecuteSkelegonToBone));
  s.pivotControl = panel.addBool(lw::layoutText(texts::LayoutText::ExecuteRecordPivotRotation));
  s.borderControl = panel.addBorder(250, 35);
  s.runControl = panel.addButton(lw::layoutText(texts::LayoutText::Run), kRunButtonWidth);

  s.convertControl.moveTo(10, 10);
  s.pivotControl.moveTo(10, 30);
  s.borderControl.moveTo(5, 65);
  s.runControl.moveTo(kRunHotX - s.runControl.measure(lw::kControlLabelWidth), 70);

  s.convertControl.setInteger(s.executeSkelegonToBone);
  s.pivotControl.setInteger(s.recordPivotRotation);
  for (const lw::CControl& control : {s.convertControl, s.pivotControl, s.borderControl, s.runControl}) control.setUser(&s);
  s.convertControl.onEvent(&OnOptionChanged);
  s.pivotControl.onEvent(&OnOptionChanged);
  s.runControl.onEvent(&RunConversion);
  panel.setSize(kPanelWidth, kPanelHeight);
  s.panel = panel.release();
}

void CSkgConvPanel::OnOptionChanged(lw::LWControl* control, void* user) {
  lw::guarded([&] {
    ConversionSettings* const settings = settingsOf(user);
    if (settings == nullptr) return;
    if (settings->convertControl.is(control)) settings->executeSkelegonToBone = settings->convertControl.integer();
    if (settings->pivotControl.is(control)) settings->recordPivotRotation = settings->pivotControl.integer();
  });
}

void CSkgConvPanel::RunConversion(lw::LWControl* /*control*/, void* user) {
  lw::guarded([&] {
    const ConversionSettings* const settings = settingsOf(user);
    if (settings == nullptr) return;
    convertSelection(settings->executeSkelegonToBone != 0, settings->recordPivotRotation != 0);
  });
}

}  // namespace lwp
