// What the selector costs in Modeler: opening it (scan and layout), a new scan, a click that selects one row, one that selects
// all, and one that expands or collapses. Time in the module (the host's own time is not counted) and calls into the host.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "benchmarks/module_cost.h"
#include "standin/core/program_folder.h"
#include "standin/core/witness.h"
#include "standin/modeler/modeler_host.h"
#include "standin/objectfile/rig_builder.h"
#include "standin/panels/person.h"

namespace {

using namespace standin;
using namespace varnel::bench;

constexpr const char* kTool = "Orlo:SkelegonSelector";
constexpr std::size_t kSizes[] = {10, 100, 1000, 10000};
constexpr std::size_t kChain = 20;
constexpr int kRepetitions = 5;

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

struct Costs {
  ModuleCost open;
  ModuleCost sync;
  ModuleCost clickOne;
  ModuleCost clickAll;
  ModuleCost expand;
};

void measureOnce(std::size_t size, Costs& costs) {
  ModelerHost host;
  host.add(rigOf(size), "rig.lwo");
  ModuleFile module;
  if (const std::string why = module.load(modulePath()); !why.empty()) must({false, why});
  measure(costs.open, [&] { host.activate(module, kTool); });
  Panel* const panel = panels().find(kTool);
  if (panel == nullptr) must({false, "the panel did not open"});
  Control* const tree = panel->find(ControlKind::OpenGL);
  measure(costs.sync, [&] { must(person::press(panel->find("Sync"))); });
  measure(costs.clickOne, [&] { must(person::click(tree, 200, 35)); });
  measure(costs.clickAll, [&] { must(person::click(tree, 200, 7, MouseButton::Left, lw::kMouseAlt)); });
  measure(costs.expand, [&] { must(person::click(tree, 24, 35)); });
  panels().moduleUnloaded();
  module.unload();
  if (!witness().faults().empty()) must({false, witness().report()});
}

void print(const ModuleCost& cost) {
  std::printf(" %10.1f %7llu", cost.microseconds, static_cast<unsigned long long>(cost.calls));
}

}  // namespace

int main() {
  std::printf("selector: module time in us and host calls\n%9s", "skelegons");
  for (const char* const what : {"open", "sync", "select 1", "select all", "expand"})
    std::printf(" %10s %7s", what, "calls");
  std::printf("\n");
  for (const std::size_t size : kSizes) {
    Costs costs;
    for (int repetition = 0; repetition < kRepetitions; ++repetition) measureOnce(size, costs);
    std::printf("%9zu", size);
    for (const ModuleCost* cost : {&costs.open, &costs.sync, &costs.clickOne, &costs.clickAll, &costs.expand}) print(*cost);
    std::printf("\n");
  }
  return 0;
}
