// What the property panel costs in Modeler: opening it, one change of a setting, a reload; with all skelegons selected one
// change again, and the button that fills the weight maps in by name.
#include <cstdio>

#include "benchmarks/chain_with_maps.h"
#include "benchmarks/loaded_module.h"
#include "benchmarks/module_cost.h"
#include "standin/core/tool_names.h"
#include "standin/modeler/modeler_host.h"

namespace {

using namespace standin;

constexpr const char* kFillButton = "\x03(i:MIMG_LEFTARROW)";

}  // namespace

int main() {
  using namespace varnel::bench;
  CostTable costs;
  for (const std::size_t size : kSizes) {
    for (int repetition = 0; repetition < kRepetitions; ++repetition) {
      ModelerHost host;
      host.add(makeChainWithMaps(size, 20), "rig.lwo");
      host.selectPolygons({host.current()->skelegons().front()});
      LoadedModule module;
      costs.measure("open", size, [&] { host.activate(module, kPropertyTool); });
      const Panel& panel = opened(kPropertyTool);
      must(person::choose(panel.find(ControlKind::TabChoice, 0), 1));
      costs.measure("change", size, [&] { must(person::enter(panel.find(ControlKind::Percent, 0), 40 + repetition)); });
      costs.measure("reload", size, [&] { must(person::press(panel.find("Sync"))); });
      host.selectPolygons(host.current()->skelegons());
      must(person::press(panel.find("Sync")));
      costs.measure("change, all selected", size,
                    [&] { must(person::enter(panel.find(ControlKind::Percent, 0), 60 + repetition)); });
      costs.measure("weight maps by name", size, [&] { must(person::press(panel.find(kFillButton))); });
    }
  }
  std::puts("### Property panel\n");
  std::puts(
      "A chain of skelegons with 20 settings each and a weight map of its name for each. One skelegon is selected, or all;");
  std::puts("one percentage is changed, or the maps are filled in by name.\n");
  costs.print();
  return 0;
}
