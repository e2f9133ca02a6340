// What it costs to convert several layers of one file, each of which is an item in Layout, beside one of them. Reading the file
// of a real character takes longer than all else that is done for a few bones.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "benchmarks/loaded_module.h"
#include "benchmarks/measuring.h"
#include "benchmarks/object_files.h"
#include "objectfile/sample_rigs.h"
#include "standin/core/tool_names.h"
#include "standin/layout/layout_host.h"

namespace {

using namespace standin;
using namespace varnel::bench;

constexpr std::size_t kLayers = 10, kSettings = 20;
constexpr int kRepetitions = 15;

// The layers share the faces: each has as many quads on points of its own, and a chain of skelegons with 20 settings each.
ObjectFile characterOf(std::size_t faces, std::size_t skelegonsOfALayer) {
  ObjectFile character;
  for (std::size_t i = 0; i < kLayers; ++i) {
    ObjectLayer layer = makeChainRig(skelegonsOfALayer, kSettings).layers.front();
    layer.number = static_cast<std::uint16_t>(i);
    layer.name = "Part" + std::to_string(i);
    PolygonGroup quads;
    for (std::size_t face = 0; face < faces / kLayers; ++face) {
      const auto first = static_cast<std::uint32_t>(layer.points.size());
      const auto x = static_cast<float>(face);
      for (const FilePoint& point : {FilePoint{x, 0, 0}, {x + 1, 0, 0}}) layer.points.push_back(point);
      quads.polygons.push_back({{first, first + 1, first == 0 ? 0 : first - 1, first < 2 ? 0 : first - 2}, 0, {}});
    }
    layer.groups.push_back(std::move(quads));
    character.layers.push_back(std::move(layer));
  }
  return character;
}

// The bones are made once; what is measured gives them their settings, with the file read.
class Character {
 public:
  explicit Character(const std::string& path) {
    host_.state().transcript.record(false);
    items_ = host_.loadObject(path);
    host_.select(items_);
    host_.activate(module_, kConversionTool);
    press();
    must(person::switchTo(opened(kConversionTool).find(ControlKind::Bool, 0), false));
  }

  // One run over so many layers.
  double milliseconds(std::size_t layers) {
    host_.select({items_.begin(), items_.begin() + static_cast<std::ptrdiff_t>(layers)});
    forgetUsedMemory();
    const double before = processorMilliseconds();
    press();
    return processorMilliseconds() - before;
  }

 private:
  static void press() { must(person::press(opened(kConversionTool).find(ControlKind::Button, 0))); }

  LayoutHost host_;
  LoadedModule module_;
  std::vector<Item*> items_;
};

}  // namespace

int main() {
  const BenchFolder folder;
  const std::string path = folder.file("character.lwo");
  std::puts("### Layers of one file\n");
  std::printf(
      "A file of %zu layers with quads and skelegons of 20 settings each; one layer is selected, or all, and \"Run\" is\n",
      kLayers);
  std::puts("pressed over bones that are there. Processor time, the host's included, the least of several runs.\n");
  std::puts("| faces in all | skelegons of a layer | one layer, ms | ten layers, ms | ratio | wanted |");
  std::puts("|---:|---:|---:|---:|---:|---:|");
  for (const std::size_t faces : kFaceCounts) {
    for (const std::size_t skelegons : {1U, 20U}) {
      if (writeObject(characterOf(faces, skelegons), path)) must({false, "the file cannot be written"});
      Character character(path);
      double one = character.milliseconds(1), all = character.milliseconds(kLayers);
      for (int repetition = 1; repetition < kRepetitions; ++repetition) {
        one = std::min(one, character.milliseconds(1));
        all = std::min(all, character.milliseconds(kLayers));
      }
      std::printf("| %zu | %zu | %.2f | %.2f | %.2f | %s |\n", faces, skelegons, one, all, all / one,
                  skelegons == 1 ? "1.2" : "");
    }
  }
  return 0;
}
