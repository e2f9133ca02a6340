#include "probe/probe_panel.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

#include "host/lwtool2_errors.h"
#include "probe/facts_file.h"
#include "probe/panel_access.h"
#include "probe/run.h"

namespace probe {
namespace {

constexpr int kFieldWidth = 50;  // characters

// Kept by the host, which may keep the pointers.
const char* kExplanation[] = {"Measures how this program answers plug-ins, in less than a minute.",
                              "What it makes it removes again. The file goes to the maintainers.", nullptr};

std::string folderOfTheUser() {
  for (const char* name : {"USERPROFILE", "HOME"}) {
    if (const char* const folder = std::getenv(name)) return folder;
  }
  return ".";
}

std::string usualFile(Program program) {
  std::string path = folderOfTheUser() + (program == Program::Modeler ? "/varnel-modeler.json" : "/varnel-layout.json");
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

}  // namespace

CProbePanel& probePanel() {
  static CProbePanel panel;
  return panel;
}

void CProbePanel::make() {
  panel_ = panels_->create(kToolName, panels_);
  if (panel_ == nullptr) throw Trouble{"the host makes no panel"};
  lw::LWPanControlDesc text = description(lw::kValueText);
  text.text.text = kExplanation;
  panels_->addControl(panel_, "TextControl", &text, "");
  lw::LWPanControlDesc field = description(lw::kValueString);
  field.str.width = kFieldWidth;
  file_ = panels_->addControl(panel_, "EditControl", &field, "File");
  lw::LWPanControlDesc button = description(lw::kValueInteger);
  lw::LWControl* const start = panels_->addControl(panel_, "ButtonControl", &button, "Start");
  now_ = panels_->addControl(panel_, "EditControl", &field, "Now");
  if (file_ == nullptr || start == nullptr || now_ == nullptr) throw Trouble{"the host makes no control"};
  for (lw::LWControl* const control : {file_, start, now_}) setPointer(control, lw::kControlUserData, this);
  setCallback(start, lw::kControlEventCallback, &CProbePanel::onStart);
  setText(file_, usualFile(host_.program));
}

void CProbePanel::open(const Host& host) {
  host_ = host;
  panels_ = &host_.service<lw::LWPanelFuncs>("LWPanelServices 3");
  panels_->globalFun = host_.global;
  if (panel_ == nullptr) make();
  panels_->open(panel_, lw::kOpenNoButtons);
}

void CProbePanel::forget() {
  panel_ = nullptr;
  trial_.forget();
}

void CProbePanel::say(const std::string& line) const {
  setText(now_, line);
  draw(now_, lw::kDrawRender);
}

void CProbePanel::save() {
  const std::string path = textOf(file_);
  writeFacts(path, factsText(host_, facts_));
  say("Written: " + path);
}

void CProbePanel::start() {
  try {
    if (const std::string why = refusal(host_); !why.empty()) return say(why);
    facts_ = {};
    measureAlone(host_, facts_, [this](const std::string& what) { say("Measuring " + what); });
    save();  // what is told so far, should the user not go on
    say("Go on in the next panel");
    trial_.begin(host_, facts_, [this] { saveAndSay(); });
  } catch (const Trouble& trouble) {
    say(trouble.why);
  }
}

void CProbePanel::saveAndSay() {
  try {
    save();
  } catch (const Trouble& trouble) {
    say(trouble.why);
  }
}

void CProbePanel::onStart(lw::LWControl* /*control*/, void* user) {
  lw::onTool<CProbePanel>(user, [](CProbePanel& panel) { panel.start(); });
}

}  // namespace probe
