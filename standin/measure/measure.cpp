#include "standin/measure/measure.h"

#include <filesystem>
#include <stdexcept>

#include "objectfile/file_bytes.h"
#include "standin/core/witness.h"
#include "standin/measure/hands.h"
#include "standin/modeler/mesh_edit.h"
#include "standin/panels/panel.h"
#include "standin/variants/played_host.h"

namespace standin {
namespace {

constexpr const char* kProbe = "Varnel:HostFacts";

MeasuredHost handle(Panel& panel, const std::string& file) {
  mustBeDone(person::type(panel.find("File"), file));
  const bool isThere = std::filesystem::exists(pathFromUtf8(file));
  mustBeDone(person::press(panel.find("Start")));
  if (isThere) mustBeDone(person::press(panel.find("Start")));  // the probe asks before it writes over a file
  playHands();
  MeasuredHost measured;
  const Control* const now = panel.find("Now");
  if (now != nullptr) measured.last = now->shown();
  if (const Outcome<std::string> bytes = readFileBytes(file)) measured.facts = *bytes;
  return measured;
}

std::string faultsSince(std::size_t first) {
  std::string text;
  const std::vector<Fault>& faults = witness().faults();
  for (std::size_t i = first; i < faults.size(); ++i) text += faults[i].function + ": " + faults[i].what + "\n";
  return text;
}

template <class Played, class Left>
MeasuredHost measured(const std::string& module, const HostOptions& options, const std::string& file, Left&& left) {
  Played host(options);
  excuseTrials();
  const std::size_t known = witness().faults().size();
  ModuleFile probe;
  if (const std::string why = probe.load(module); !why.empty()) throw std::runtime_error(why);
  if (!isProbe(probe)) throw std::runtime_error(module + " is not the probe: it has no command \"" + kProbe + "\"");
  host.activate(probe, kProbe);
  Panel* const panel = panels().find(kProbe);
  if (panel == nullptr || !panel->isOpen()) throw std::runtime_error("the probe shows no panel");
  MeasuredHost result = handle(*panel, file);
  result.complaints = left(host);
  panels().moduleUnloaded();
  probe.unload();
  result.complaints += faultsSince(known);
  return result;
}

}  // namespace

void excuseTrials() { witness().excuse(kSetsATag, kTagWhileSelecting); }

bool isProbe(const ModuleFile& module) { return module.server(kProbe) != nullptr; }

MeasuredHost measuredModeler(const std::string& module, const HostOptions& options, const std::string& folder) {
  return measured<PlayedModeler>(module, options, folder + "/modeler.json", [](const PlayedModeler& host) {
    return std::string(host.current() == nullptr ? "" : "an object is still loaded\n");
  });
}

MeasuredHost measuredLayout(const std::string& module, const HostOptions& options, const std::string& folder) {
  return measured<PlayedLayout>(module, options, folder + "/layout.json", [](PlayedLayout& host) {
    return std::string(host.scene().objects().empty() ? "" : "the scene still has objects\n");
  });
}

}  // namespace standin
