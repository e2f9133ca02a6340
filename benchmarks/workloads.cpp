// Fixed workloads of the module, one in each run, for counting instructions: the same on any machine, unlike times.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "benchmarks/module_cost.h"
#include "standin/core/program_folder.h"
#include "standin/core/witness.h"
#include "standin/layout/layout_host.h"
#include "standin/modeler/modeler_host.h"
#include "standin/objectfile/sample_rigs.h"
#include "standin/panels/person.h"

namespace {

using namespace standin;
using varnel::bench::must;

constexpr std::size_t kSkelegons = 200;
constexpr std::size_t kSettingsEach = 20;

Panel& opened(const char* name) {
  Panel* const panel = panels().find(name);
  if (panel == nullptr || !panel->isOpen()) must({false, std::string(name) + " has no open panel"});
  return *panel;
}

void openPropertyPanel(ModelerHost& host, ModuleFile& module) {
  host.selectPolygons({host.current()->skelegons().front()});
  host.activate(module, "Orlo:SkelegonProperty");
  opened("Orlo:SkelegonProperty");
}

void changeTwentySettings(ModelerHost& host, ModuleFile& module) {
  openPropertyPanel(host, module);
  Panel& panel = opened("Orlo:SkelegonProperty");
  must(person::choose(panel.find(ControlKind::TabChoice, 0), 1));
  for (int i = 0; i < 20; ++i) must(person::enter(panel.find(ControlKind::Percent, 0), 40 + i));
}

void reloadTwentyTimes(ModelerHost& host, ModuleFile& module) {
  openPropertyPanel(host, module);
  for (int i = 0; i < 20; ++i) must(person::press(opened("Orlo:SkelegonProperty").find("Sync")));
}

void renameAll(ModelerHost& host, ModuleFile& module) {
  host.selectPolygons(host.current()->skelegons());
  host.activate(module, "Orlo:SkelegonRenamer");
  const Panel& panel = opened("Orlo:SkelegonRenamer");
  must(person::choose(panel.find(ControlKind::Popup, 0), "Advanced Setting"));
  for (const char* box : {"Based Name", "Column Character", "Row Digit", "Bone Property"}) {
    must(person::switchTo(panel.find(ControlKind::Bool, box), true));
  }
  must(person::press(panel.find("Run")));
}

void selectTwentyRows(ModelerHost& host, ModuleFile& module) {
  constexpr int kRow = 14;
  host.activate(module, "Orlo:SkelegonSelector");
  for (int i = 0; i < 20; ++i)
    must(person::click(opened("Orlo:SkelegonSelector").find(ControlKind::OpenGL), 200, kRow * (2 + i)));
}

struct ModelerWorkload {
  std::string_view name;
  void (*run)(ModelerHost& host, ModuleFile& module);
};
constexpr std::array kModelerWorkloads{
    ModelerWorkload{"property-open", openPropertyPanel},      ModelerWorkload{"property-change-20", changeTwentySettings},
    ModelerWorkload{"property-reload-20", reloadTwentyTimes}, ModelerWorkload{"rename-all", renameAll},
    ModelerWorkload{"selector-click-20", selectTwentyRows},
};

void load(ModuleFile& module) {
  if (const std::string why = module.load(modulePath()); !why.empty()) must({false, why});
}

void runInModeler(const ModelerWorkload& workload) {
  ModelerHost host;
  host.add(makeChainRig(kSkelegons, kSettingsEach), "rig.lwo");
  ModuleFile module;
  load(module);
  workload.run(host, module);
  panels().moduleUnloaded();
  module.unload();
}

void convert() {
  const std::string path = (std::filesystem::temp_directory_path() / "varnel-workload.lwo").string();
  if (writeObject(makeChainRig(kSkelegons, kSettingsEach), path)) must({false, "the rig cannot be written"});
  LayoutHost host;
  ModuleFile module;
  load(module);
  host.select(host.loadObject(path));
  host.activate(module, "Orlo:SkelegonOptimize");
  must(person::press(opened("Orlo:SkelegonOptimize").find(ControlKind::Button, 0)));
  panels().moduleUnloaded();
  module.unload();
}

}  // namespace

// Without an argument: the names, one in each line.
int main(int argc, char** argv) {
  const std::string_view wanted = argc > 1 ? argv[1] : "";
  if (wanted == "convert") {
    convert();
    return 0;
  }
  for (const ModelerWorkload& workload : kModelerWorkloads) {
    if (workload.name == wanted) {
      runInModeler(workload);
      return 0;
    }
    if (wanted.empty()) std::printf("%.*s\n", static_cast<int>(workload.name.size()), workload.name.data());
  }
  if (wanted.empty()) std::puts("convert");
  return wanted.empty() ? 0 : 1;
}
