#include "standin/validate/walk.h"

#include <tuple>
#include <vector>

#include "standin/panels/person.h"
#include "standin/validate/touch.h"

namespace standin::validate {
namespace {

constexpr std::size_t kMostObjects = 12;  // objects in the scene before some are removed

}  // namespace

Walk::Walk(Session& session, const TripRig& rig, std::uint64_t seed) : session_(session), rig_(rig), random_(seed) {}

std::string Walk::act() {
  const std::uint32_t choice = below(100);
  if (choice < 3 || panels().open().empty()) return openTool();
  if (choice < 80) return useControl();
  if (choice < 87) return usePanel();
  if (session_.layout() != nullptr) return changeScene();
  return choice < 98 ? changeMesh() : changeObjects();
}

std::string Walk::openTool() {
  std::vector<const Tool*> here;
  for (const Tool& tool : kTools) {
    if ((tool.program == Program::Modeler) == (session_.modeler() != nullptr)) here.push_back(&tool);
  }
  const Tool& tool = *here[below(static_cast<std::uint32_t>(here.size()))];
  session_.activate(tool);
  return std::string("open ") + tool.server;
}

std::string Walk::useControl() {
  const std::vector<Panel*> open = panels().open();
  const Panel& panel = *open[below(static_cast<std::uint32_t>(open.size()))];
  const std::vector<Control*> usable = usableControls(panel);
  if (usable.empty()) return "nothing to use";
  Control& control = *usable[below(static_cast<std::uint32_t>(usable.size()))];
  std::string what = "use " + control.describe();
  session_.layAnswer(static_cast<Answer>(below(2)));
  const std::uint32_t pick = below(1U << 16);
  const Done done = touch(control, pick);
  return what + " with " + std::to_string(pick) + (done ? "" : ", in vain");
}

std::string Walk::usePanel() {
  const std::vector<Panel*> open = panels().open();
  Panel& panel = *open[below(static_cast<std::uint32_t>(open.size()))];
  switch (below(3)) {
    case 0: std::ignore = person::close(&panel); return "close a panel";
    case 1:
      if (panel.leastWidth == 0) return "leave a panel as large as it is";  // it may be made too small
      std::ignore = person::resize(&panel, static_cast<int>(below(900)) + 1, static_cast<int>(below(900)) + 1);
      return "resize a panel";
    default: panels().paintWanted(panel); return "paint a panel";
  }
}

std::string Walk::changeMesh() {
  ModelerHost& host = *session_.modeler();
  if (host.current() == nullptr) return changeObjects();
  std::vector<const MeshPolygon*> some;
  for (const MeshPolygon* polygon : host.current()->skelegons()) {
    if (below(3) == 0) some.push_back(polygon);
  }
  switch (below(8)) {
    case 0: host.undo(); return "undo";
    case 1: host.redo(); return "redo";
    case 2: {
      std::vector<int> front;
      for (const MeshLayer& layer : host.current()->layers()) {
        if (below(2) == 0) front.push_back(layer.number);
      }
      host.showLayers(front);
      return "show other layers";
    }
    case 3:
      if (some.size() > 2) some.resize(2);
      if (below(4) == 0) host.deletePolygons(some);
      return "delete skelegons";
    case 4: host.deselectAll(); return "select nothing";
    default: host.selectPolygons(some); return "select " + std::to_string(some.size()) + " skelegons";
  }
}

std::string Walk::changeObjects() {
  ModelerHost& host = *session_.modeler();
  if (host.current() != nullptr && below(2) == 0) {
    host.close(*host.current());
    return "close the object";
  }
  if (host.objects().size() > 3) host.closeAll();
  host.add(rig_.object, rig_.path);
  host.showAllLayers();
  return "open an object";
}

std::string Walk::changeScene() {
  LayoutHost& host = *session_.layout();
  Scene& scene = host.scene();
  if (scene.objects().size() > kMostObjects || below(8) == 0) {
    while (!scene.objects().empty()) scene.remove(*scene.objects().back());
    host.select(scene.addObject(rig_.object, rig_.path));
    return "clear the scene and load the object";
  }
  if (below(4) == 0) {
    host.setTime(below(100) / 10.0);
    return "go to another time";
  }
  std::vector<Item*> some;
  for (Item* item : scene.objects()) {
    if (below(2) == 0) some.push_back(item);
    for (Item* bone : item->bones) {
      if (below(30) == 0) some.push_back(bone);
    }
  }
  if (below(6) == 0 && !some.empty()) {
    scene.remove(*some.front());
    return "remove an item";
  }
  host.select(some);
  return "select " + std::to_string(some.size()) + " items";
}

}  // namespace standin::validate
