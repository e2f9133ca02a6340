// What a conversion costs in Layout: reading the object, making its nulls, and the commands for each bone.
#include <cstdlib>
#include <filesystem>
#include <string>

#include "benchmarks/loaded_module.h"
#include "benchmarks/module_cost.h"
#include "objectfile/rig_builder.h"
#include "standin/core/tool_names.h"
#include "standin/layout/layout_host.h"

namespace {

using namespace standin;
using namespace varnel::bench;

// One chain; every bone has settings of its own, a target and a goal of its own, and both have parents.
ObjectFile rigOf(std::size_t bones) {
  RigBuilder rig;
  rig.layer(0, "");
  RigBuilder::Skelegon last;
  for (std::size_t i = 0; i < bones; ++i) {
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
  return rig.take();
}

constexpr const char* kFirst = "convert";
constexpr const char* kAgain = "convert again";

struct Converted {
  std::size_t bones;
  std::size_t commands = 0;
};

// The second time the bones and the nulls are there, and get the same settings.
void run(const std::string& path, CostTable& costs, Converted& converted) {
  LayoutHost host;
  LoadedModule module;
  host.select(host.loadObject(path));
  host.activate(module, kConversionTool);
  const Panel& panel = opened(kConversionTool);
  host.state().transcript.record(false);
  const auto press = [&] { must(person::press(panel.find(ControlKind::Button, 0))); };
  costs.measure(kFirst, converted.bones, press);
  converted.commands = host.state().transcript.commandCount();
  costs.measure(kAgain, converted.bones, press);
  if (host.scene().objects().size() != 2 * converted.bones + 1) must({false, "not everything was converted"});
}

}  // namespace

int main() {
  const std::string path = (std::filesystem::temp_directory_path() / "varnel-bench.lwo").string();
  CostTable costs;
  std::vector<Converted> conversions;
  for (const std::size_t size : kSizes) {
    if (writeObject(rigOf(size), path)) must({false, "the rig cannot be written"});
    conversions.push_back({size});
    for (int repetition = 0; repetition < kRepetitions; ++repetition) run(path, costs, conversions.back());
  }
  std::filesystem::remove(path);

  std::puts("### Conversion\n");
  std::puts(
      "A chain of skelegons with 8 settings each, of which a target and a goal become two nulls with parents; and the same\n"
      "again, when bones and nulls are there.\n");
  costs.print();
  const auto ofABone = [&](const char* action, std::size_t bones, auto value) {
    return static_cast<double>(costs.at(action, bones).*value) / static_cast<double>(bones);
  };
  std::puts("\nFor each bone, converted for the first time:\n");
  std::puts("| bones | commands | of a bone | time of a bone, µs | host calls of a bone |\n|---:|---:|---:|---:|---:|");
  for (const Converted& each : conversions) {
    std::printf("| %zu | %zu | %.1f | %.2f | %.1f |\n", each.bones, each.commands,
                static_cast<double>(each.commands) / static_cast<double>(each.bones),
                ofABone(kFirst, each.bones, &ModuleCost::microseconds), ofABone(kFirst, each.bones, &ModuleCost::calls));
  }
  const auto growth = [&](const char* action) {
    return ofABone(action, 5000, &ModuleCost::microseconds) / ofABone(action, 100, &ModuleCost::microseconds);
  };
  std::printf(
      "\nA bone of 5,000 costs %.2f times what a bone of 100 does when the nulls are there (wanted: at most 1.5), and %.1f\n"
      "times when they have to be made: a missing item is looked for among all.\n",
      growth(kAgain), growth(kFirst));
  return 0;
}
