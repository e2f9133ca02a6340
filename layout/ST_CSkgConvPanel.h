// The Layout tool's panel: two options and a button that converts the selected objects.
#pragma once

#include <string>

#include "host/lwtool2_globals.h"
#include "host/lwtool2_panels.h"
#include "host/panel_life.h"
#include "interface/lightwave.h"

namespace lwp {

// One record for the module's lifetime, built at the tool's first run. The host's panel in it is destroyed only when one in
// another language takes its place, and not at unload: the host may be on its way out then, so nothing of it is called any
// more.
struct ConversionSettings {
  std::string title;
  lw::PanelId panel = nullptr;
  lw::CControl convertControl;
  lw::CControl pivotControl;
  lw::CControl borderControl;
  lw::CControl runControl;
  int executeSkelegonToBone = 1;
  int recordPivotRotation = 1;
  bool isRunning = false;
};

class CSkgConvPanel {
 public:
  // The tool's run. Builds the panel where there is none in the present language and opens it, without waiting for the user.
  // A panel that is still open is opened again by the host, in the language that it has. What the host's open gives; 0 when
  // no panel could be made.
  int OpenConversionPanel();

 private:
  void build();
  bool isInPresentLanguage() const { return madeOf_ == &lw::layoutTexts(); }

  static void OnOpened(lw::PanelId panel, void* tool);
  static void OnClosed(lw::PanelId panel, void* tool);
  static void OnOptionChanged(lw::LWControl* control, void* settings);
  static void RunConversion(lw::LWControl* control, void* settings);

  ConversionSettings settings_;
  const texts::LayoutTexts* madeOf_ = nullptr;  // the texts of the panel
  lw::CPanelLife life_;
};

}  // namespace lwp
