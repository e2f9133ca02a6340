#include "standin/modeler/session.h"

#include <algorithm>

#include "standin/modeler/repeated_tags.h"

namespace standin {
namespace {

constexpr std::uint32_t kMapTexture = lw::fourCharacters('T', 'X', 'U', 'V');
constexpr std::uint32_t kMapMorph = lw::fourCharacters('M', 'O', 'R', 'F');

ModelerSession* theSession = nullptr;

}  // namespace

ModelerSession* modelerSession() { return theSession; }
void setModelerSession(ModelerSession* session) { theSession = session; }

ModelerCall::ModelerCall(const char* function) : HostCall(function), session_(modelerSession()) {
  if (session_ == nullptr) {
    fault("was called while no Modeler runs");
  } else {
    session_->text.expire();
  }
}

// --- objects -------------------------------------------------------------------------------------------------------------

Outcome<ModelerObject*> ModelerSession::open(const std::string& path) {
  Outcome<ObjectFile> file = readObject(path);
  if (!file) return Failure{file.why()};
  file = withOneOfEachTag(std::move(*file), options.firstTagCounts);
  if (!file) return Failure{file.why()};
  return &add(std::move(*file), path);
}

ModelerObject& ModelerSession::add(ObjectFile file, const std::string& fileName) {
  const std::string reference = "Unnamed " + std::to_string(++objectsMade);
  const std::string& savedAs = options.objectsAreUnsaved ? std::string() : fileName;
  objects.push_back(std::make_unique<ModelerObject>(std::move(file), savedAs, reference, handles));
  currentObject = objects.back().get();
  listMaps(*currentObject);
  return *currentObject;
}

void ModelerSession::close(const ModelerObject& object) {
  handles.objectClosed(object);
  if (currentObject == &object) currentObject = nullptr;
  std::erase_if(objects, [&](const auto& candidate) { return candidate.get() == &object; });
  if (currentObject == nullptr && !objects.empty()) currentObject = objects.back().get();
}

// Undo and redo change which vertex maps are there.
bool ModelerSession::undo() {
  const bool done = currentObject != nullptr && currentObject->undo();
  if (done) listMaps(*currentObject);
  return done;
}

bool ModelerSession::redo() {
  const bool done = currentObject != nullptr && currentObject->redo();
  if (done) listMaps(*currentObject);
  return done;
}

void ModelerSession::showLayers(const std::vector<int>& foreground) {
  if (currentObject != nullptr) currentObject->showLayers(foreground, options.layerSwitchDeselects);
}

std::optional<Failure> ModelerSession::saveAs(const std::string& path) {
  if (currentObject == nullptr) return Failure{"there is no object to save"};
  return currentObject->save(path);
}

// --- vertex maps ---------------------------------------------------------------------------------------------------------

void ModelerSession::listMaps(const ModelerObject& object) {
  if (options.otherMapsBearNames) {
    for (const std::uint32_t type : {kMapTexture, kMapMorph}) {
      for (const MeshPolygon* skelegon : object.skelegons()) listMap({type, skelegon->tag(lw::kTagBone)});
    }
  }
  for (const MeshLayer& layer : object.layers()) {
    for (const VertexMap& map : object.maps(layer)) listMap({map.type, map.name});
  }
}

void ModelerSession::listMap(const std::pair<std::uint32_t, std::string>& map) {
  if (std::find(maps.begin(), maps.end(), map) == maps.end()) maps.push_back(map);
}

}  // namespace standin
