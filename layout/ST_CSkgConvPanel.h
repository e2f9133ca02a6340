// The Layout tool's panel: two options and a button that converts the selected objects.
#pragma once

#include <string>

#include "host/lightwave.h"
#include "host/lwtool2_panels.h"

namespace lwp {

// One record for the module's lifetime, built at the tool's first run. The host's panel in it is never destroyed by us: at
// unload the host may be on its way out, so nothing of it is called any more.
struct ConversionSettings {
  std::string title;
  lw::PanelId panel = nullptr;
  lw::CControl convertControl;
  lw::CControl pivotControl;
  lw::CControl borderControl;
  lw::CControl runControl;
  int executeSkelegonToBone = 1;
  int recordPivotRotation = 1;
};

class CSkgConvPanel {
 public:
  // The tool's run. Builds the panel where there is none yet and opens it, without waiting for the user. What the host's
  // open gives; 0 when no panel could be made.
  int OpenConversionPanel();

 private:
  void build();

  static void OnOptionChanged(lw::LWControl* control, void* settings);
  static void RunConversion(lw::LWControl* control, void* settings);

  ConversionSettings settings_;
};

}  // namespace lwp
