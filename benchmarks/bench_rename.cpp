// What an advanced run of the renamer costs in Modeler: base name with both counters on all skelegons, once for names
// and weight maps and once for all eighteen tags. Time in the module (the host's own time is not counted) and calls into the host.
#include <algorithm>
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

// Places of the panel's controls in their order of creation.
enum Place { kMode = 0, kTarget = 3, kBaseNameOn = 8, kColumnOn = 20, kRowOn = 24, kBoneProperty = 30, kRun = 33 };

void run(std::size_t size, bool withProperties, ModuleCost& cost) {
  ModelerHost host;
  host.add(makeChainRig(size, 0), "rig.lwo");
  ModuleFile module;
  if (const std::string why = module.load(modulePath()); !why.empty()) must({false, why});
  host.activate(module, "Orlo:SkelegonRenamer");
  const Panel* const panel = panels().find("Orlo:SkelegonRenamer");
  if (panel == nullptr) must({false, "the panel did not open"});
  must(person::choose(panel->at(kMode), 5));
  must(person::choose(panel->at(kTarget), 3));
  for (const Place place : {kBaseNameOn, kColumnOn, kRowOn}) must(person::toggle(panel->at(place)));
  must(person::switchTo(panel->at(kBoneProperty), withProperties));

  measure(cost, [&] { must(person::press(panel->at(kRun))); });

  panels().moduleUnloaded();
  module.unload();
  if (!host.messages().empty()) must({false, host.messages().front().first});
  if (!witness().faults().empty()) must({false, witness().report()});
}

}  // namespace

int main() {
  std::printf("renamer, advanced run on one chain: module time in us and host calls\n");
  std::printf("%10s %14s %9s %14s %9s\n", "skelegons", "two tags", "calls", "all 18", "calls");
  for (const std::size_t size : kSizes) {
    ModuleCost names;
    ModuleCost properties;
    for (int repetition = 0; repetition < kRepetitions; ++repetition) {
      run(size, false, names);
      run(size, true, properties);
    }
    std::printf("%10zu %14.1f %9llu %14.1f %9llu\n", size, names.microseconds, static_cast<unsigned long long>(names.calls),
                properties.microseconds, static_cast<unsigned long long>(properties.calls));
  }
  return 0;
}
