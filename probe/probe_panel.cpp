#include "probe/probe_panel.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "host/lwtool2_errors.h"
#include "objectfile/file_bytes.h"
#include "objectfile/whole_file.h"
#include "probe/ask.h"
#include "probe/facts_file.h"
#include "probe/panel_access.h"
#include "probe/run.h"
#include "probe/user_folder.h"

namespace probe {
namespace {

constexpr int kFileWidth = 64;  // characters

// Kept by the host, which may keep the pointers.
const char* kExplanation[] = {"Measures how this program answers plug-ins: less than a minute, and four small panels.",
                              "What it makes it removes again. It sends nothing: you send the file to the makers of Varnel.",
                              nullptr};

constexpr const char* kLeft = "Something of the probe's is still there. Please clear all.";

std::string usualFile(Program program) {
  return standin::utf8Of(userFolder() / (program == Program::Modeler ? "varnel-modeler.json" : "varnel-layout.json"));
}

// What has no folder is in the user's: the host's current one is a place where nobody looks.
std::string inUserFolder(const std::string& path) { return standin::utf8Of(userFolder() / standin::pathFromUtf8(path)); }

std::string folderOf(const std::string& path) {
  const std::filesystem::path folder = standin::pathFromUtf8(path).parent_path();
  return folder.empty() ? "." : standin::utf8Of(folder);
}

bool isFolder(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::is_directory(standin::pathFromUtf8(path), ignored);
}

}  // namespace

CProbePanel& probePanel() {
  static CProbePanel panel;
  return panel;
}

lw::LWControl* CProbePanel::add(const char* kind, lw::LWPanControlDesc what, const char* label) {
  lw::LWControl* const control = panels_->addControl(panel_, kind, &what, label);
  if (control == nullptr || !isWhole(*control)) throw Trouble{"the host makes no " + std::string(kind)};
  setPointer(control, lw::kControlUserData, this);
  return control;
}

void CProbePanel::addAll() {
  lw::LWPanControlDesc text = description(lw::kValueText);
  text.text.text = kExplanation;
  lw::LWControl* const lines = add("TextControl", text, "");
  lw::LWPanControlDesc field = description(lw::kValueString);
  field.str.width = kFileWidth;
  file_ = add("EditControl", field, "File");
  lw::LWControl* const start = add("ButtonControl", description(lw::kValueInteger), "Start");
  now_ = add("EditControl", field, "Now");
  setCallback(start, lw::kControlEventCallback, &CProbePanel::onStart);
  setText(file_, usualFile(host_.program));
  layOut(*panels_, panel_, {{lines}, {file_}, {start}, {now_}});
}

// One that is made in part only would stay without its button for good.
void CProbePanel::make() {
  panel_ = panels_->create(kToolName, panels_);
  if (panel_ == nullptr) throw Trouble{"the host makes no panel"};
  const std::string trouble = troubleOf([&] { addAll(); });
  if (trouble.empty()) return;
  panels_->destroy(std::exchange(panel_, nullptr));
  throw Trouble{trouble};
}

// Not in the middle of a run, when the host's services are in use.
void CProbePanel::open(const Host& host) {
  if (isRunning_) return;
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

// A file that is there is written over when the user has started in spite of being told, which holds for one run: the next
// could take the place of a file for which much was done by hand.
bool CProbePanel::mayWrite(const std::string& path) {
  if (!standin::pathFromUtf8(path).has_filename() || isFolder(path)) throw Trouble{"Name a file, not only a folder."};
  const bool isThere = standin::refusedFiles({path}, standin::Existing::Keep).has_value();
  std::optional<standin::Failure> failure = standin::refusedFolder(folderOf(path));
  if (!failure && isThere) failure = standin::refusedReplacement(path);
  if (failure) throw Trouble{failure->text};
  const bool wasTold = std::exchange(toldOf_, {}) == path;
  if (!isThere || wasTold) return true;
  toldOf_ = path;
  say("There is such a file. Press Start again to write over it.");
  return false;
}

void CProbePanel::save() {
  const auto failure = standin::writeWholeFile(path_, factsText(host_, facts_), standin::Existing::Replace);
  if (failure) throw Trouble{failure->text};
  say(isLeft_ ? kLeft : "Written: " + path_);
}

void CProbePanel::measure() {
  trial_.stop();
  facts_ = {};
  measureAlone(host_, facts_, [this](const std::string& what) { say("Measuring " + what); });
  isLeft_ = !sentenceOf([&] { return refusal(host_); }).empty();
  if (isLeft_) facts_.figure("left behind", kLeft);
}

void CProbePanel::start() {
  if (const std::string why = refusal(host_); !why.empty()) return say(why);
  const std::string path = inUserFolder(textOf(file_));
  if (!mayWrite(path)) return;
  path_ = path;
  measure();
  const bool goesOn = trial_.begin(host_, facts_, [this] { sayingWhy([this] { save(); }); });
  save();  // what is told so far, should the user not go on
  if (goesOn && !isLeft_) say("Now it needs your hand: see the panel \"Varnel probe 1 of 4\"");
}

// What goes wrong is told in the panel: there is nobody else to tell.
void CProbePanel::sayingWhy(const std::function<void()>& action) {
  const std::string trouble = troubleOf(action);
  if (!trouble.empty()) say(trouble);
}

// A host may let the user press again while it runs a command.
void CProbePanel::onStart(lw::LWControl* /*control*/, void* user) {
  lw::onTool<CProbePanel>(user, [](CProbePanel& panel) {
    if (panel.panel_ == nullptr || std::exchange(panel.isRunning_, true)) return;
    panel.sayingWhy([&] { panel.start(); });
    panel.isRunning_ = false;
  });
}

}  // namespace probe
