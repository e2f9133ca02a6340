// The panel that asks before the probe starts, and shows how far it is.
#pragma once

#include <functional>
#include <string>

#include "probe/facts.h"
#include "probe/host_access.h"
#include "probe/trial.h"

namespace probe {

// Also the command's name, and the panel's title.
inline constexpr const char* kToolName = "Varnel:HostFacts";

// One panel for the module's stay. It lives on between activations, as all panels that do not block.
class CProbePanel {
 public:
  CProbePanel() = default;
  // A program may end without unloading its modules: then, too, its panels are not to be called.
  ~CProbePanel() { forget(); }
  CProbePanel(const CProbePanel&) = delete;
  CProbePanel& operator=(const CProbePanel&) = delete;

  // Shows it. Throws Trouble when the host does not offer panels.
  void open(const Host& host);
  // At the end of the module: nothing of the host may be called any more.
  void forget();

 private:
  void make();
  void addAll();
  lw::LWControl* add(const char* kind, lw::LWPanControlDesc what, const char* label);
  bool mayWrite(const std::string& path);
  void start();
  void measure();
  void save();
  void sayingWhy(const std::function<void()>& action);
  void say(const std::string& line) const;

  static void onStart(lw::LWControl* control, void* user);

  Host host_;
  lw::LWPanelFuncs* panels_ = nullptr;
  lw::PanelId panel_ = nullptr;
  lw::LWControl* file_ = nullptr;
  lw::LWControl* now_ = nullptr;
  std::string path_;    // of the file, as it was when the user started
  std::string toldOf_;  // a file that is there, when the user was told so at the last press of Start
  bool isRunning_ = false;
  bool isLeft_ = false;  // something that the probe made
  Facts facts_;
  CTrial trial_;
};

CProbePanel& probePanel();

}  // namespace probe
