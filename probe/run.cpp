#include "probe/run.h"

#include <array>

#include "host/lwtool2_errors.h"
#include "probe/ask.h"
#include "probe/layout_area.h"
#include "probe/loaded_rig.h"
#include "probe/modeler_questions.h"
#include "probe/not_tellable.h"
#include "probe/process_questions.h"

namespace probe {
namespace {

constexpr int kModeler = 1, kLayout = 2, kBoth = 3;

// What is measured without hands, in this order. An area opens, measures and removes what it needs by itself.
struct Area {
  const char* name;
  int programs;
  void (*measure)(Host&, Facts&);
};

void leaveWhatNobodyCanTell(Host& /*host*/, Facts& facts) {
  for (const NotTellable& row : notTellable()) {
    if (row.value == nullptr) facts.tell(row.name, notTold(row.why));
  }
}

constexpr std::array kAreas{
    Area{"what only eyes can tell", kBoth, leaveWhatNobodyCanTell},
    Area{"the process", kBoth, measureProcess},
    Area{"objects and edits", kModeler, measureModeler},
    Area{"items and commands", kLayout, measureLayout},
};

// A host may have an empty object when nothing is loaded; of further ones any may hold data.
bool hasOtherObjects(const Host& host) {
  int count = 0;
  lw::guarded([&] { count = objectCount(host.service<lw::LWObjectFuncs>("Scene Objects 9")); });
  return count > 1;
}

bool isIn(const Area& area, Program program) {
  return (area.programs & (program == Program::Modeler ? kModeler : kLayout)) != 0;
}

}  // namespace

std::string refusal(const Host& host) {
  if (host.program == Program::Modeler) {
    const auto& query = host.service<lw::LWStateQueryFuncs>("LWM: State Query 5");
    const bool isEmpty = query.object() == nullptr || query.numLayers() == 0;
    if (!isEmpty) return "The object holds data. Close all objects, then start.";
    return hasOtherObjects(host) ? "There are other objects. Close all objects, then start." : "";
  }
  const auto& items = host.service<lw::LWItemInfo>("LW Item Info 9");
  return items.first(lw::kItemObject, nullptr) == nullptr ? "" : "The scene has objects. Clear the scene, then start.";
}

void measureAlone(Host& host, Facts& facts, const Progress& progress) {
  for (const Area& area : kAreas) {
    if (!isIn(area, host.program)) continue;
    progress(area.name);
    const std::string trouble = troubleOf([&] { area.measure(host, facts); });
    if (!trouble.empty()) facts.figure(area.name, trouble);
  }
}

}  // namespace probe
