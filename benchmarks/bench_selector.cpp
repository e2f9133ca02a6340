// What the selector costs in Modeler: opening it (scan and layout), a new scan, a click that selects one row, one that
// selects all, and one that expands or collapses.
#include "benchmarks/loaded_module.h"
#include "benchmarks/module_cost.h"
#include "objectfile/rig_builder.h"
#include "standin/core/tool_names.h"
#include "standin/modeler/modeler_host.h"

namespace {

using namespace standin;
using namespace varnel::bench;

constexpr std::size_t kChain = 20;
constexpr std::size_t kLargest = 10'000;

// Skelegons in chains of twenty.
ObjectFile rigOf(std::size_t skelegons) {
  RigBuilder rig;
  rig.layer(0, "Rig");
  RigBuilder::Skelegon last;
  for (std::size_t i = 0; i < skelegons; ++i) {
    const std::string name = "Bone" + std::to_string(i);
    last = i % kChain == 0 ? rig.root(name, {0, 0, 0}, {0, 1, 0}) : rig.child(last, name, {0, 2, 0});
  }
  return rig.take();
}

void run(std::size_t size, CostTable& costs) {
  ModelerHost host;
  host.add(rigOf(size), "rig.lwo");
  LoadedModule module;
  costs.measure("open", size, [&] { host.activate(module, kSelectorTool); });
  const Panel& panel = opened(kSelectorTool);
  Control* const tree = panel.find(ControlKind::OpenGL);
  costs.measure("reload", size, [&] { must(person::press(panel.find("Sync"))); });
  costs.measure("click, one row", size, [&] { must(person::click(tree, 200, 35)); });
  costs.measure("click, all rows", size, [&] { must(person::click(tree, 200, 7, MouseButton::Left, lw::kMouseAlt)); });
  costs.measure("collapse", size, [&] { must(person::click(tree, 24, 35)); });
}

}  // namespace

int main() {
  std::vector<std::size_t> sizes(std::begin(kSizes), std::end(kSizes));
  sizes.push_back(kLargest);
  CostTable costs;
  for (const std::size_t size : sizes) {
    for (int repetition = 0; repetition < kRepetitions; ++repetition) run(size, costs);
  }
  std::puts("### Selector\n");
  std::puts("Skelegons in chains of twenty. A click that selects sends the selection to Modeler: one scan of its");
  std::puts("polygons.\n");
  costs.print();
  return 0;
}
