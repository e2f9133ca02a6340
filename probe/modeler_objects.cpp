#include "probe/modeler_objects.h"

#include <algorithm>
#include <array>
#include <vector>

#include "host/lwtool2_errors.h"
#include "probe/host_text.h"
#include "probe/map_names.h"
#include "probe/mesh_access.h"

namespace probe {
namespace {

// The current object among all, by the name that is its own for as long as it is open.
int indexOf(const lw::LWObjectFuncs& objects, const std::string& reference) {
  const int count = objectCount(objects);
  for (int index = 0; index < count; ++index) {
    if (copied(objects.refName(index)) == reference) return index;
  }
  if (count == 1) return 0;
  throw Trouble{"the new object is not among the host's objects"};
}

std::vector<lw::PolygonId> polygonsOf(const Host& host) { return MeshEdit(host, lw::kEditAll).scan(lw::kLayersAll); }

// The folder is another one in each run.
std::optional<std::string> withoutFolder(const std::optional<std::string>& path) {
  return path ? std::optional(path->substr(path->find_last_of("/\\:") + 1)) : std::nullopt;
}

// Those of an object that is closed, compared with those of the same object loaded again.
Answer identifiers(ModelerSite& site) {
  const RigFile file("varnel-probe-again.lwo");
  LoadedRig first(site.host, file);
  const std::vector<lw::PolygonId> gone = polygonsOf(site.host);
  first.close();
  LoadedRig second(site.host, file);
  const std::vector<lw::PolygonId> loaded = polygonsOf(site.host);
  second.close();
  const auto used = std::count_if(loaded.begin(), loaded.end(), [&](const lw::PolygonId polygon) {
    return std::find(gone.begin(), gone.end(), polygon) != gone.end();
  });
  const std::string seen = std::to_string(used) + " of " + std::to_string(loaded.size()) +
                           " polygons had identifiers of polygons of an object that was closed";
  return told(used == 0 ? "once" : "again", seen);
}

constexpr std::array kObjectQuestions{
    Question<ModelerSite>{"identifiers", identifiers},
};

}  // namespace

Answer editWithoutObject(const Host& host) {
  if (currentObject(host)) return notTold("the program has an empty object even when nothing is loaded");
  if (host.editBegin == nullptr) return notTold("the host has no function that begins an edit");
  lw::MeshEditOp* const op = host.editBegin(0, 0, 0, lw::kEditAll);
  if (op == nullptr) return told("null", "no edit begins while no object is loaded");
  if (op->done != nullptr) op->done(op->state, lw::kEditUserAbort, 0);
  return told("empty", "an edit begins while no object is loaded");
}

UnsavedObject unsavedObject(const Host& host) {
  UnsavedObject unsaved;
  unsaved.why = troubleOf([&] {
    const std::optional<std::string> before = currentObject(host);
    host.mustDo("new");
    // An empty object that was there is the user's, and stays.
    bool isAsBefore = false;
    if (before) lw::guarded([&] { isAsBefore = currentObject(host) == before; });
    if (isAsBefore) throw Trouble{"the host took \"new\", and no other object came in front"};
    FrontObject object(host);
    unsaved.name = object.name();
    const auto& objects = host.service<lw::LWObjectFuncs>("Scene Objects 9");
    unsaved.fileName = copied(objects.filename(indexOf(objects, unsaved.name)));
    object.close();
  });
  return unsaved;
}

Answer objectName(const UnsavedObject& unsaved, ModelerSite& site) {
  if (!unsaved.why.empty()) return notTold(unsaved.why);
  std::string seen = "the file name of an object that was never saved is " + shown(unsaved.fileName);
  if (!unsaved.fileName) return told("unsaved-null", seen);
  if (unsaved.fileName->empty()) return told("unsaved-empty", seen);
  if (unsaved.fileName != unsaved.name) return other(seen);
  const auto& objects = site.host.service<lw::LWObjectFuncs>("Scene Objects 9");
  const int rig = site.rig.index();
  const std::optional<std::string> reference = copied(objects.refName(rig));
  const std::optional<std::string> fileName = copied(objects.filename(rig));
  seen += ", and its reference name; of one that was loaded it is " + shown(withoutFolder(fileName));
  return told(fileName == reference ? "reference" : "file", seen);
}

ModelerQuestions objectQuestions() { return kObjectQuestions; }

bool listsRigMap(const Host& host) {
  const MapNames names = weightMapNames(host);
  return std::find(names.begin(), names.end(), std::string(kRigWeightMap)) != names.end();
}

Answer mapOwner(const Host& host, bool wasListed) {
  if (!wasListed) return notTold("the weight map of the loaded rig was not listed");
  return listsRigMap(host) ? told("program", "a weight map was still listed when its object was closed")
                           : told("object", "a weight map was no longer listed when its object was closed");
}

}  // namespace probe
