#include "layout/ST_CSkgConvPanel.h"

#include "host/lwtool2_errors.h"
#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "host/raised_flag.h"
#include "layout/conversion.h"

namespace lwp {
namespace {

using forms::HostControl;

constexpr int kPanelWidth = 260;
constexpr int kPanelHeight = 100;
constexpr int kRunButtonWidth = 80;
constexpr int kRunHotX = 165;

constexpr std::size_t at(texts::LayoutText text) { return static_cast<std::size_t>(text); }

}  // namespace

int CSkgConvPanel::OpenConversionPanel() {
  if (!life_.isOpen() && life_.mayBeOpen()) {
    lw::panels().close(settings_.panel);
    life_.closed();
  }
  const bool mayBeReplaced = !life_.mayBeOpen() && !settings_.isRunning;
  if (settings_.panel == nullptr || (!isInPresentLanguage() && mayBeReplaced)) build();
  return life_.open([&] { return lw::panels().open(settings_.panel, lw::kOpenNoButtons); });
}

void CSkgConvPanel::build() {
  ConversionSettings& s = settings_;
  if (s.panel == nullptr) {
    s.title = lw::FormatString("%s(%d.%d)%s", kOptimizeName, VARNEL_VERSION_MAJOR, VARNEL_VERSION_MINOR, " ");
  }
  lw::CPanel panel(s.title.c_str());
  const lw::PanelTexts texts{.labels = lw::layoutTexts()};
  const lw::CControl convert =
      panel.add({.kind = HostControl::Bool, .label = at(texts::LayoutText::ExecuteSkelegonToBone)}, texts);
  const lw::CControl pivot =
      panel.add({.kind = HostControl::Bool, .label = at(texts::LayoutText::ExecuteRecordPivotRotation)}, texts);
  const lw::CControl border = panel.add({.kind = HostControl::Border, .width = 250, .height = 35});
  const lw::CControl run =
      panel.add({.kind = HostControl::Button, .label = at(texts::LayoutText::Run), .width = kRunButtonWidth}, texts);

  convert.moveTo({10, 10});
  pivot.moveTo({10, 30});
  border.moveTo({5, 65});
  run.moveTo({kRunHotX - run.measure(lw::kControlLabelWidth), 70});

  convert.setInteger(s.executeSkelegonToBone);
  pivot.setInteger(s.recordPivotRotation);
  for (const lw::CControl& control : {convert, pivot, border, run}) control.setUser(&s);
  convert.onEvent(&OnOptionChanged);
  pivot.onEvent(&OnOptionChanged);
  run.onEvent(&RunConversion);
  panel.setHooks(this, &OnOpened, &OnClosed);
  panel.setSize(kPanelWidth, kPanelHeight);

  // Only now: a panel that the host refused leaves the former one.
  if (s.panel != nullptr) lw::panels().destroy(s.panel);
  s.convertControl = convert;
  s.pivotControl = pivot;
  s.borderControl = border;
  s.runControl = run;
  s.panel = panel.release();
  madeOf_ = &lw::layoutTexts();
}

void CSkgConvPanel::OnOpened(lw::PanelId panel, void* user) {
  lw::onTool<CSkgConvPanel>(user, [&](CSkgConvPanel& tool) {
    if (tool.settings_.panel == panel) tool.life_.opened();
  });
}

void CSkgConvPanel::OnClosed(lw::PanelId panel, void* user) {
  lw::onTool<CSkgConvPanel>(user, [&](CSkgConvPanel& tool) {
    if (tool.settings_.panel == panel) tool.life_.closed();
  });
}

void CSkgConvPanel::OnOptionChanged(lw::LWControl* control, void* user) {
  lw::onTool<ConversionSettings>(user, [&](ConversionSettings& settings) {
    if (settings.convertControl.is(control)) settings.executeSkelegonToBone = settings.convertControl.integer();
    if (settings.pivotControl.is(control)) settings.recordPivotRotation = settings.pivotControl.integer();
  });
}

void CSkgConvPanel::RunConversion(lw::LWControl* /*control*/, void* user) {
  lw::onTool<ConversionSettings>(user, [](ConversionSettings& settings) {
    const lw::CRaisedFlag running(settings.isRunning);
    convertSelection(settings.executeSkelegonToBone != 0, settings.recordPivotRotation != 0);
  });
}

}  // namespace lwp
