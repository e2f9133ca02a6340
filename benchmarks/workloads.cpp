// Fixed workloads of the module, one in each run, for counting instructions: the same on any machine, unlike times.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "benchmarks/faces.h"
#include "benchmarks/loaded_module.h"
#include "benchmarks/object_files.h"
#include "objectfile/sample_rigs.h"
#include "standin/core/tool_names.h"
#include "standin/layout/layout_host.h"
#include "standin/modeler/modeler_host.h"

namespace {

using namespace standin;
using varnel::bench::BenchFolder;
using varnel::bench::LoadedModule;
using varnel::bench::makeMesh;
using varnel::bench::must;
using varnel::bench::openBesideFaces;
using varnel::bench::opened;

constexpr std::size_t kSkelegons = 200;
constexpr std::size_t kSettingsEach = 20;
constexpr std::size_t kMeshBytes = 4'000'000;
constexpr std::size_t kFaces = 200'000;

void openPropertyPanel(ModelerHost& host, ModuleFile& module) {
  host.selectPolygons({host.current()->skelegons().front()});
  openBesideFaces(host, module, kPropertyTool);
}

void changeTwentySettings(ModelerHost& host, ModuleFile& module) {
  openPropertyPanel(host, module);
  Panel& panel = opened(kPropertyTool);
  must(person::choose(panel.find(ControlKind::TabChoice, 0), 1));
  for (int i = 0; i < 20; ++i) must(person::enter(panel.find(ControlKind::Percent, 0), 40 + i));
}

void reloadTwentyTimes(ModelerHost& host, ModuleFile& module) {
  openPropertyPanel(host, module);
  for (int i = 0; i < 20; ++i) must(person::press(opened(kPropertyTool).find("Sync")));
}

void renameAll(ModelerHost& host, ModuleFile& module) {
  host.selectPolygons(host.current()->skelegons());
  const Panel& panel = openBesideFaces(host, module, kRenamerTool);
  must(person::choose(panel.find(ControlKind::Popup, 0), "Advanced Setting"));
  for (const char* box : {"Based Name", "Column Character", "Row Digit", "Bone Property"}) {
    must(person::switchTo(panel.find(ControlKind::Bool, box), true));
  }
  must(person::press(panel.find("Run")));
}

void selectTwentyRows(ModelerHost& host, ModuleFile& module) {
  constexpr int kRow = 14;
  const Panel& panel = openBesideFaces(host, module, kSelectorTool);
  for (int i = 0; i < 20; ++i) must(person::click(panel.find(ControlKind::OpenGL), 200, kRow * (2 + i)));
}

struct ModelerWorkload {
  std::string_view name;
  void (*run)(ModelerHost& host, ModuleFile& module);
  std::size_t faces = 0;  // beside the skelegons
};
// The last ones are others again: what they take beyond those, the faces have taken.
constexpr std::array kModelerWorkloads{
    ModelerWorkload{"property-open", openPropertyPanel},
    ModelerWorkload{"property-change-20", changeTwentySettings},
    ModelerWorkload{"property-reload-20", reloadTwentyTimes},
    ModelerWorkload{"rename-all", renameAll},
    ModelerWorkload{"selector-click-20", selectTwentyRows},
    ModelerWorkload{"mesh-property-open", openPropertyPanel, kFaces},
    ModelerWorkload{"mesh-property-change-20", changeTwentySettings, kFaces},
    ModelerWorkload{"mesh-property-reload-20", reloadTwentyTimes, kFaces},
};

void runInModeler(const ModelerWorkload& workload) {
  ModelerHost host;
  host.add(makeChainRig(kSkelegons, kSettingsEach), "rig.lwo");
  LoadedModule module;
  varnel::bench::setFaces(workload.faces);
  workload.run(host, module);
}

void convertFile(const std::string& path) {
  LayoutHost host;
  LoadedModule module;
  host.select(host.loadObject(path));
  host.activate(module, kConversionTool);
  must(person::press(opened(kConversionTool).find(ControlKind::Button, 0)));
}

void convert(const BenchFolder& folder) {
  const std::string path = folder.write("rig.lwo", {});
  if (writeObject(makeChainRig(kSkelegons, kSettingsEach), path)) must({false, "the rig cannot be written"});
  convertFile(path);
}

// An object with many points and faces, which only the reader looks at.
void readMesh(const BenchFolder& folder) { convertFile(folder.write("mesh.lwo", makeMesh(kMeshBytes))); }

struct LayoutWorkload {
  std::string_view name;
  void (*run)(const BenchFolder& folder);
};
constexpr std::array kLayoutWorkloads{LayoutWorkload{"convert", convert}, LayoutWorkload{"read-mesh", readMesh}};

}  // namespace

// Runs the workload of that name. "faces" tells how many the mesh has; without an argument the names stand one in each line.
int main(int argc, char** argv) {
  const std::string_view wanted = argc > 1 ? argv[1] : "";
  if (wanted == "faces") return std::printf("%zu\n", kFaces) > 0 ? 0 : 1;
  bool isKnown = wanted.empty();
  const auto runIfWanted = [&](const auto& workload, auto run) {
    if (wanted.empty()) std::printf("%.*s\n", static_cast<int>(workload.name.size()), workload.name.data());
    if (wanted != workload.name) return;
    isKnown = true;
    run(workload);
  };
  for (const ModelerWorkload& workload : kModelerWorkloads) runIfWanted(workload, runInModeler);
  for (const LayoutWorkload& workload : kLayoutWorkloads) {
    runIfWanted(workload, [](const LayoutWorkload& each) { each.run(BenchFolder()); });
  }
  return isKnown ? 0 : 1;
}
