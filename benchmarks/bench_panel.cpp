// What the property panel costs in Modeler: opening it, one change of a setting, and a reload. Time in the module (the host's own
// time is not counted) and calls into the host.
#include <cstdio>
#include <cstdlib>

#include "benchmarks/module_cost.h"
#include "standin/core/program_folder.h"
#include "standin/core/witness.h"
#include "standin/modeler/modeler_host.h"
#include "standin/objectfile/sample_rigs.h"
#include "standin/panels/person.h"

namespace {

using namespace standin;
using namespace varnel::bench;

constexpr std::size_t kSizes[] = {10, 100, 1000, 5000};
constexpr int kRepetitions = 5;

}  // namespace

int main() {
  std::printf("property panel, one skelegon selected: module time in us and host calls\n");
  std::printf("%10s %14s %9s %14s %9s %14s %9s\n", "skelegons", "open", "calls", "change", "calls", "reload", "calls");
  for (const std::size_t size : kSizes) {
    ModuleCost open;
    ModuleCost change;
    ModuleCost reload;
    for (int repetition = 0; repetition < kRepetitions; ++repetition) {
      ModelerHost host;
      host.add(makeChainRig(size, 20), "rig.lwo");
      host.selectPolygons({host.current()->skelegons().front()});
      ModuleFile module;
      if (const std::string why = module.load(modulePath()); !why.empty()) must({false, why});
      measure(open, [&] { host.activate(module, "Orlo:SkelegonProperty"); });
      Panel* const panel = panels().find("Orlo:SkelegonProperty");
      if (panel == nullptr) must({false, "the panel did not open"});
      must(person::choose(panel->find(ControlKind::TabChoice, 0), 1));
      measure(change, [&] { must(person::enter(panel->find(ControlKind::Percent, 0), 40 + repetition)); });
      measure(reload, [&] { must(person::press(panel->find("Sync"))); });
      panels().moduleUnloaded();
      module.unload();
      if (!witness().faults().empty()) must({false, witness().report()});
    }
    std::printf("%10zu %14.1f %9llu %14.1f %9llu %14.1f %9llu\n", size, open.microseconds,
                static_cast<unsigned long long>(open.calls), change.microseconds,
                static_cast<unsigned long long>(change.calls), reload.microseconds,
                static_cast<unsigned long long>(reload.calls));
  }
  return 0;
}
