// What a conversion costs for each bone: time in the module (the host's own time is not counted) and calls into the host.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <map>
#include <string>

#include "standin/core/program_folder.h"
#include "standin/core/witness.h"
#include "standin/layout/layout_host.h"
#include "standin/objectfile/rig_builder.h"
#include "standin/panels/person.h"

namespace {

using namespace standin;

constexpr int kSizes[] = {10, 100, 1000, 5000};

// One chain; every bone has settings of its own, a target and a goal of its own, and both have parents.
std::string writeRig(int bones) {
  RigBuilder rig;
  rig.layer(0, "");
  RigBuilder::Skelegon last;
  for (int i = 0; i < bones; ++i) {
    const std::string name = "Bone" + std::to_string(i);
    const auto end = static_cast<float>(i + 1);
    last = i == 0 ? rig.root(name, {0, 0, 0}, {0, end, 0}) : rig.child(last, name, {0, end, 0});
    const std::string parent = "Bone" + std::to_string(i / 2);
    for (const auto& [slot, text] : std::initializer_list<std::pair<std::uint8_t, std::string>>{{13, "2"},
                                                                                                {31, "50.000000"},
                                                                                                {36, "1"},
                                                                                                {52, name + "_tar"},
                                                                                                {130, parent},
                                                                                                {55, name + "_goal"},
                                                                                                {132, parent},
                                                                                                {95, "3"}}) {
      rig.tag(last, settingTag(slot), text);
    }
  }
  const std::string path =
      (std::filesystem::temp_directory_path() / ("varnel-bench-" + std::to_string(bones) + ".lwo")).string();
  if (writeObject(rig.take(), path)) std::abort();
  return path;
}

struct Cost {
  double nanoseconds = 0;  // of the module, for each bone; the best of all iterations
  double calls = 0;
};
std::map<int, Cost> costs;

void convert(benchmark::State& state) {
  const int bones = static_cast<int>(state.range(0));
  const std::string path = writeRig(bones);
  for (auto unused : state) {
    (void)unused;
    LayoutHost host;
    ModuleFile module;
    if (!module.load(modulePath()).empty()) {
      state.SkipWithError("the module cannot be loaded");
      return;
    }
    host.select(host.loadObject(path));
    host.activate(module, "Orlo:SkelegonOptimize");
    Panel* const panel = panels().find("Orlo:SkelegonOptimize");
    host.state().transcript.record(false);
    const std::uint64_t callsBefore = witness().calls();
    const auto timeBefore = witness().moduleTime();
    witness().measure(true);
    if (!person::press(panel->find(ControlKind::Button, 0))) state.SkipWithError("the button cannot be pressed");
    witness().measure(false);
    const std::chrono::duration<double> spent = witness().moduleTime() - timeBefore;
    state.SetIterationTime(spent.count());
    Cost& cost = costs[bones];
    const double each = spent.count() * 1e9 / bones;
    cost.nanoseconds = cost.nanoseconds == 0 ? each : std::min(cost.nanoseconds, each);
    cost.calls = static_cast<double>(witness().calls() - callsBefore) / bones;
    if (host.scene().objects().size() != static_cast<std::size_t>(2 * bones + 1))
      state.SkipWithError("not everything was converted");
    panels().moduleUnloaded();
  }
  std::filesystem::remove(path);
}
BENCHMARK(convert)->Arg(10)->Arg(100)->Arg(1000)->Arg(5000)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  std::printf("\nconversion, for each bone (8 settings, 2 nulls)\n%10s %16s %12s\n", "bones", "module time", "host calls");
  for (const int size : kSizes)
    std::printf("%10d %13.2f us %12.1f\n", size, costs[size].nanoseconds / 1000, costs[size].calls);
  if (costs[100].nanoseconds > 0) {
    std::printf("5,000 bones against 100: %.2f times the cost of a bone (wanted: at most 1.5)\n",
                costs[5000].nanoseconds / costs[100].nanoseconds);
  }
  return 0;
}
