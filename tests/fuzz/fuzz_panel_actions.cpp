// Bytes as what a user does with Modeler's three panels, one action for each three bytes, through the stand-in host. The
// module is linked in, so that its code guides the fuzzer; it and its panels stay over all inputs, the object is new for
// each.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <tuple>
#include <vector>

#include "module/CustomNodel.h"
#include "objectfile/sample_rigs.h"
#include "standin/core/witness.h"
#include "standin/modeler/modeler_host.h"
#include "standin/panels/person.h"
#include "standin/validate/touch.h"

namespace {

using standin::Answer;
using standin::MeshPolygon;
using standin::ModelerHost;
using standin::Panel;

constexpr std::size_t kMostActions = 60;
constexpr lw::ActivateFunc kTools[] = {&varnel::ActivateProperty, &varnel::ActivateRenamer, &varnel::ActivateSelector};

ModelerHost& host() {
  static ModelerHost instance;
  return instance;
}

void loadObject() {
  host().closeAll();
  host().add(standin::makeBoxedDoll(), "rig.lwo");
  host().showAllLayers();
}

void openPanels() {
  if (standin::panels().open().size() == std::size(kTools)) return;
  for (const lw::ActivateFunc tool : kTools) host().activate(tool);
}

void layAnswer(std::uint8_t number) {
  auto& answers = standin::modelerSession()->messages.answers;
  answers.assign(1, static_cast<Answer>(number % 2));
}

void select(std::uint8_t mask) {
  std::vector<const MeshPolygon*> some;
  for (const MeshPolygon* polygon : host().current()->skelegons()) {
    if ((mask >> some.size() % 8 & 1) != 0 || mask == 0xFF) some.push_back(polygon);
    mask = static_cast<std::uint8_t>(mask >> 1);
  }
  host().selectPolygons(some);
}

void act(std::uint8_t what, std::uint8_t first, std::uint8_t second) {
  constexpr std::uint8_t kControls = 200;
  if (what < kControls) {
    const std::vector<Panel*> open = standin::panels().open();
    if (open.empty()) return;
    const auto usable = standin::validate::usableControls(*open[what % open.size()]);
    if (usable.empty()) return;
    layAnswer(second);
    std::ignore = standin::validate::touch(*usable[first % usable.size()], static_cast<std::uint32_t>(second) * 257U + what);
    return;
  }
  switch (what % 6) {
    case 0: select(first); break;
    case 1: host().undo(); break;
    case 2: host().redo(); break;
    case 3: host().showLayers({first % 2}); break;
    case 4: host().activate(kTools[first % std::size(kTools)]); break;
    default:
      if (const auto open = standin::panels().open(); !open.empty())
        std::ignore = standin::person::close(open[first % open.size()]);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  host().forgetRecords();
  loadObject();
  openPanels();
  const std::span<const std::uint8_t> input(bytes, size);
  for (std::size_t i = 0; i + 2 < input.size() && i < 3 * kMostActions; i += 3) act(input[i], input[i + 1], input[i + 2]);
  if (const std::string faults = standin::witness().report(); !faults.empty()) {
    std::fprintf(stderr, "broken: %s\n", faults.c_str());
    std::abort();
  }
  return 0;
}
