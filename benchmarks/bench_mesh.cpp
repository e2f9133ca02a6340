// What the tools cost beside a character's mesh: every action as a ratio to one bare scan that only counts the polygons, made
// in the same run. Skelegons are few there, and what grows with the faces is what a user feels.
#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "benchmarks/chain_with_maps.h"
#include "benchmarks/faces.h"
#include "benchmarks/measuring.h"
#include "objectfile/rig_builder.h"
#include "standin/core/tool_names.h"
#include "standin/validate/memory_watch.h"
#include "standin/validate/panel_places.h"

namespace {

using namespace standin;
using namespace varnel::bench;

constexpr std::size_t kSkelegons = 200, kSettings = 20;
constexpr int kRepetitions = 15;
constexpr int kDragSteps = 20;
constexpr const char* kFillButton = "\x03(i:MIMG_LEFTARROW)";

struct Cost {
  double milliseconds = 0;  // the least of the repetitions
  std::size_t scans = 0;
  std::int64_t peak = 0;  // bytes beyond what the module held before
  std::uint64_t allocations = 0;
};

using Costs = std::map<std::string, Cost>;  // by action

void measureOnce(Cost& cost, int times, const std::function<void()>& action) {
  const std::size_t scans = faces().scans;
  const std::uint64_t allocations = validate::memory::allocations();
  const std::int64_t held = validate::memory::liveBytes();
  validate::memory::watchPeak();
  const double before = processorMilliseconds();
  action();
  const double spent = (processorMilliseconds() - before) / times;
  cost.milliseconds = cost.milliseconds == 0 ? spent : std::min(cost.milliseconds, spent);
  cost.scans = (faces().scans - scans) / static_cast<std::size_t>(times);
  cost.peak = validate::memory::peakBytes() - held;
  cost.allocations = validate::memory::allocations() - allocations;
}

// A Modeler with the module in it and the faces beside the rig; one skelegon is selected.
class Session {
 public:
  Session(std::size_t faceCount, bool inForeground, Costs& costs) : costs_(costs) {
    ObjectFile object = makeChainWithMaps(kSkelegons, kSettings);
    if (!inForeground) {
      RigBuilder more;
      more.layer(1, "Mesh").box({0, 0, 0}, {1, 1, 1});
      object.layers.push_back(more.take().layers.front());
    }
    setFaces(faceCount, inForeground);
    host_.add(object, "rig.lwo");
    host_.showLayers({0});
    host_.selectPolygons({host_.current()->skelegons().front()});
  }

  void measure(const char* action, const std::function<void()>& run, int times = 1) {
    measureOnce(costs_[action], times, run);
  }
  void open(const char* tool) { openBesideFaces(host_, module_, tool); }
  void selectAll() { host_.selectPolygons(host_.current()->skelegons()); }

 private:
  ModelerHost host_;
  LoadedModule module_;
  Costs& costs_;
};

Control* property(PropertyControl place) { return opened(kPropertyTool).at(place); }
void showBonePage() { must(person::choose(property(kPageTabs), kBonePage)); }

void clickRow(int row) {
  constexpr int kRowHeight = 14;
  must(person::click(opened(kSelectorTool).find(ControlKind::OpenGL), 200, kRowHeight * row + 7));
}

struct CountingScan {
  lw::MeshEditOp* edit;
  std::size_t count;

  static int countAll(void* user, lw::PolygonId /*polygon*/) {
    ++static_cast<CountingScan*>(user)->count;
    return 0;
  }
  // What the module does not do, for nobody knows that a host answers within a scan.
  static int countSkelegons(void* user, lw::PolygonId polygon) {
    auto& [edit, count] = *static_cast<CountingScan*>(user);
    if (edit->polyType(edit->state, polygon) == lw::kTypeBone) ++count;
    return 0;
  }
};

// A scan of the benchmark's own, beside which the module's are seen.
void scan(Session& session, const char* what, lw::FastPolygonScan callback) {
  session.measure(what, [callback] {
    CountingScan counting{FacesEdit::begin(0, 0, 0, lw::kEditDirect), 0};
    counting.edit->fastPolyScan(counting.edit->state, callback, &counting, lw::kLayersForeground, 0);
    counting.edit->done(counting.edit->state, lw::kEditNoError, 0);
    if (counting.count < kSkelegons) must({false, "skelegons are missing"});
  });
}

// The actions of one session, from one open panel to all three.
void runAll(std::size_t faceCount, int repetition, Costs& costs) {
  Session session(faceCount, true, costs);
  scan(session, "bare scan", &CountingScan::countAll);
  scan(session, "scan that asks for types within it", &CountingScan::countSkelegons);
  session.measure("open the property panel", [&] { session.open(kPropertyTool); });
  showBonePage();
  session.measure("change", [&] { must(person::enter(property(kStrength), 60 + repetition)); });
  session.measure(
      "drag step", [] { must(person::drag(property(kStrength), 10, kDragSteps)); }, kDragSteps);
  session.selectAll();
  must(person::press(property(kSync)));
  session.measure("weight maps by name", [] { must(person::press(property(kMapFill))); });

  session.measure("open the selector beside it", [&] { session.open(kSelectorTool); });
  session.measure("click in the selector beside the property panel", [] { clickRow(3); });
  session.measure("change with the selector open", [&] { must(person::enter(property(kStrength), 60 + repetition)); });
  session.open(kRenamerTool);
  session.selectAll();
  must(person::choose(opened(kRenamerTool).at(kMode), kPrefix));
  must(person::type(opened(kRenamerTool).at(kFirstText), "New_"));
  session.measure("rename with all panels open", [] { must(person::press(opened(kRenamerTool).at(kRun))); });
}

void runSelectorAlone(std::size_t faceCount, Costs& costs) {
  Session session(faceCount, true, costs);
  session.measure("open the selector", [&] { session.open(kSelectorTool); });
  session.measure("click in the selector", [] { clickRow(3); });
}

void runInBackground(std::size_t faceCount, int repetition, Costs& costs) {
  Session session(faceCount, false, costs);
  session.open(kPropertyTool);
  showBonePage();
  session.measure("change, mesh in the background", [&] { must(person::enter(property(kStrength), 60 + repetition)); });
}

Costs costsBeside(std::size_t faceCount) {
  Costs costs;
  for (int repetition = 0; repetition < kRepetitions; ++repetition) {
    runAll(faceCount, repetition, costs);
    runSelectorAlone(faceCount, costs);
    runInBackground(faceCount, repetition, costs);
  }
  return costs;
}

struct Row {
  const char* action;
  double wanted;  // the ratio
};
constexpr std::array kActions{
    Row{"bare scan", 0},
    Row{"scan that asks for types within it", 0},
    Row{"change", 3},
    Row{"drag step", 3},
    Row{"change with the selector open", 4},
    Row{"open the property panel", 4},
    Row{"open the selector", 4},
    Row{"open the selector beside it", 4},
    Row{"click in the selector", 4},
    Row{"click in the selector beside the property panel", 4},
    Row{"weight maps by name", 4},
    Row{"rename with all panels open", 4},
};

void printBeside(std::size_t faceCount, const Costs& costs, const Costs& without) {
  const auto ofTheFaces = [&](const char* action) {
    return costs.at(action).milliseconds - without.at(action).milliseconds;
  };
  for (const Row& row : kActions) {
    const Cost& cost = costs.at(row.action);
    const Cost& bare = without.at(row.action);
    std::printf("| %s | %zu | %zu | %.2f | %.2f | %.1f | %.1f | ", row.action, faceCount, cost.scans, cost.milliseconds,
                bare.milliseconds, cost.milliseconds / costs.at("bare scan").milliseconds,
                ofTheFaces(row.action) / ofTheFaces("bare scan"));
    row.wanted > 0 ? std::printf("%g | ", row.wanted) : std::printf(" | ");
    std::printf("%.1f | %lld |\n", static_cast<double>(cost.peak - bare.peak) / static_cast<double>(faceCount),
                static_cast<long long>(cost.allocations) - static_cast<long long>(bare.allocations));
  }
}

}  // namespace

int main() {
  const Costs without = costsBeside(0);
  std::map<std::size_t, Costs> beside;
  for (const std::size_t faceCount : kFaceCounts) beside.emplace(faceCount, costsBeside(faceCount));

  std::puts("### Beside a large mesh\n");
  std::printf(
      "%zu skelegons with %zu settings each, and faces, in the foreground. A host is played that answers for the faces\n",
      kSkelegons, kSettings);
  std::puts(
      "out of an array. Processor time of the whole event, the host's included, the least of several runs. A bare scan");
  std::puts(
      "counts the polygons. One change in the property panel is of one skelegon's setting; a drag step is one of 20. Faces");
  std::puts("alone, and more bytes and allocations: what is beyond the same action without faces.\n");
  std::puts(
      "| action | faces | scans | ms | without faces, ms | of a bare scan | of its faces alone | wanted | more bytes a face "
      "| more allocations |");
  std::puts("|---|---:|---:|---:|---:|---:|---:|---:|---:|---:|");
  for (const auto& [faceCount, costs] : beside) printBeside(faceCount, costs, without);

  std::puts("\nA change with the mesh in a background layer:\n");
  std::puts("| faces | ms | without a mesh, ms | ratio | wanted |\n|---:|---:|---:|---:|---:|");
  for (const auto& [faceCount, costs] : beside) {
    const double spent = costs.at("change, mesh in the background").milliseconds;
    const double alone = without.at("change").milliseconds;
    std::printf("| %zu | %.3f | %.3f | %.2f | 1.5 |\n", faceCount, spent, alone, spent / alone);
  }
  return 0;
}
