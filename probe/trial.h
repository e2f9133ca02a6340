// The four panels of the probe, one after the other, and the facts that they tell.
//
// A panel goes on to the next in a callback of its own, and may not be destroyed there: all are kept until the next trial.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "probe/facts.h"
#include "probe/hands.h"
#include "probe/host_access.h"
#include "probe/panel_site.h"

namespace probe {

class CTrial {
 public:
  // Ends the trial before, and shows the first panel. What is not told by then is in the facts as such; `ended` is called
  // when the user is through. The facts must live as long as the trial. False when the host makes no such panel, which the
  // facts tell.
  bool begin(const Host& host, Facts& facts, std::function<void()> ended);
  // Closes its panels, and tells nothing more.
  void stop();
  // At the end of the module: nothing of the host may be called any more.
  void forget();

 private:
  void showFirstPanel();
  void leaveFirstPanel();
  void skipHands();
  void panelsDone();
  void mouseDone(bool isSkipped);
  void fieldsDone(bool isSkipped);
  void wheelDone(bool isSkipped);
  void end(const std::string& whyNot);
  Ways waysOf(Step& step, void (CTrial::*done)(bool isSkipped));
  void guard(const std::function<void()>& action);

  lw::LWPanelFuncs* panels_ = nullptr;
  Facts* facts_ = nullptr;
  std::function<void()> ended_;
  std::unique_ptr<CPanelSite> site_;
  std::unique_ptr<Hands> hands_;
};

}  // namespace probe
