// What an advanced run of the renamer costs in Modeler: base name with both counters on all skelegons, once for names
// and weight maps and once for all eighteen tags.
#include "benchmarks/loaded_module.h"
#include "benchmarks/module_cost.h"
#include "objectfile/sample_rigs.h"
#include "standin/core/tool_names.h"
#include "standin/modeler/modeler_host.h"
#include "standin/validate/panel_places.h"

namespace {

using namespace standin;
using namespace varnel::bench;

void run(std::size_t size, bool withProperties, CostTable& costs) {
  ModelerHost host;
  host.add(makeChainRig(size, 0), "rig.lwo");
  LoadedModule module;
  costs.measure("open", size, [&] { host.activate(module, kRenamerTool); });
  const Panel& panel = opened(kRenamerTool);
  must(person::choose(panel.at(kMode), kAdvanced));
  host.selectPolygons(host.current()->skelegons());
  costs.measure("register all", size, [&] { must(person::press(panel.find("Add"))); });
  must(person::choose(panel.at(kTarget), kAll));
  for (const RenamerControl place : {kBaseName, kColumns, kRows}) must(person::toggle(panel.at(place)));
  must(person::switchTo(panel.at(kBoneProperty), withProperties));
  costs.measure(withProperties ? "rename, all 18 texts" : "rename, 2 texts", size,
                [&] { must(person::press(panel.at(kRun))); });
  if (!host.messages().empty()) must({false, host.messages().front().first});
}

}  // namespace

int main() {
  CostTable costs;
  for (const std::size_t size : kSizes) {
    for (int repetition = 0; repetition < kRepetitions; ++repetition) {
      run(size, false, costs);
      run(size, true, costs);
    }
  }
  std::puts("### Renamer\n");
  std::puts("An advanced run over a chain of skelegons: base name and both counters, for name and weight map (2 texts of a");
  std::puts("skelegon) or with \"Bone Property\" on (18).\n");
  costs.print();
  return 0;
}
