#include "probe/probe_panel.h"

#include <filesystem>
#include <string>
#include <utility>

#include "host/lwtool2_errors.h"
#include "objectfile/file_bytes.h"
#include "objectfile/whole_file.h"
#include "probe/facts_file.h"
#include "probe/panel_access.h"
#include "probe/run.h"
#include "probe/user_folder.h"

namespace probe {
namespace {

constexpr int kFileWidth = 50;  // characters

// Kept by the host, which may keep the pointers.
const char* kExplanation[] = {"Measures how this program answers plug-ins, in less than a minute.",
                              "What it makes it removes again. The file goes to the maintainers.", nullptr};

std::string usualFile(Program program) {
  return standin::utf8Of(userFolder() / (program == Program::Modeler ? "varnel-modeler.json" : "varnel-layout.json"));
}

std::string folderOf(const std::string& path) {
  const std::filesystem::path folder = standin::pathFromUtf8(path).parent_path();
  return folder.empty() ? "." : standin::utf8Of(folder);
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
  field.str.width = kFileWidth;
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

// A file that is there is written over when the user has started in spite of being told.
bool CProbePanel::mayWrite(const std::string& path) {
  const bool isKnown = std::exchange(path_, path) == path;
  if (!isKnown && standin::refusedFiles({path}, standin::Existing::Keep)) {
    say("There is such a file. Press Start again to write over it.");
    return false;
  }
  if (const auto failure = standin::refusedFolder(folderOf(path))) throw Trouble{failure->text};
  return true;
}

void CProbePanel::save() {
  const auto failure = standin::writeWholeFile(path_, factsText(host_, facts_), standin::Existing::Replace);
  if (failure) throw Trouble{failure->text};
  say("Written: " + path_);
}

void CProbePanel::start() {
  try {
    if (const std::string why = refusal(host_); !why.empty()) return say(why);
    if (!mayWrite(textOf(file_))) return;
    facts_ = {};
    measureAlone(host_, facts_, [this](const std::string& what) { say("Measuring " + what); });
    const bool goesOn = trial_.begin(host_, facts_, [this] { saveAndSay(); });
    save();  // what is told so far, should the user not go on
    if (goesOn) say("Go on in the next panel");
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
