// "LWM: State Query 5" and "Scene Objects 9". The first counts layers from 1, the second from 0.
#include <algorithm>
#include <cstring>

#include "standin/core/gap_slots.h"
#include "standin/modeler/session.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWStateQueryFuncs> = "LWStateQueryFuncs";
template <>
inline constexpr const char* kTableName<lw::LWObjectFuncs> = "LWObjectFuncs";

namespace {

// --- state query ---------------------------------------------------------------------------------------------------------

int numLayers() {
  const ModelerCall call("LWStateQueryFuncs::numLayers");
  const ModelerSession* session = call.session();
  if (session == nullptr || session->current() == nullptr) return 0;
  const ModelerObject& object = *session->current();
  const std::vector<MeshLayer>& layers = object.layers();
  return static_cast<int>(
      std::count_if(layers.begin(), layers.end(), [&](const MeshLayer& layer) { return object.holdsData(layer); }));
}

const char* layerList(int layers, const char* name) {
  // The text lent by the last call may be what names the object now.
  const std::string wanted = name == nullptr ? std::string() : std::string(name);
  const ModelerCall call("LWStateQueryFuncs::layerList");
  ModelerSession* session = call.session();
  if (session == nullptr) return nullptr;
  const ModelerObject* object = session->current();
  if (name != nullptr) {
    const auto found = std::find_if(session->objects.begin(), session->objects.end(),
                                    [&](const auto& candidate) { return candidate->name() == wanted; });
    object = found == session->objects.end() ? nullptr : found->get();
  }
  if (object == nullptr) return nullptr;
  const auto chosen = object->chosen(layers);
  if (!chosen) {
    call.fault("was asked for the unknown layer choice " + std::to_string(layers));
    return nullptr;
  }
  std::string list;
  for (std::size_t i = chosen->size(); i-- > 0;) {
    if (!list.empty()) list += ' ';
    list += std::to_string((*chosen)[i]->number + 1);
  }
  return session->text.lend(list);
}

const char* objectName() {
  const ModelerCall call("LWStateQueryFuncs::object");
  ModelerSession* session = call.session();
  if (session == nullptr || session->current() == nullptr) return nullptr;
  return session->text.lend(session->current()->name());
}

// --- scene objects -------------------------------------------------------------------------------------------------------

int numObjects() {
  const ModelerCall call("LWObjectFuncs::numObjects");
  const ModelerSession* session = call.session();
  return session == nullptr ? 0 : static_cast<int>(session->objects.size());
}

// Null, with a fault, for an index that is not one.
const ModelerObject* objectAt(const ModelerCall& call, int index) {
  const ModelerSession* session = call.session();
  if (session == nullptr) return nullptr;
  if (index < 0 || static_cast<std::size_t>(index) >= session->objects.size()) {
    call.fault("was asked for object " + std::to_string(index) + " of " + std::to_string(session->objects.size()));
    return nullptr;
  }
  return session->objects[static_cast<std::size_t>(index)].get();
}

const char* filename(int index) {
  const ModelerCall call("LWObjectFuncs::filename");
  const ModelerObject* object = objectAt(call, index);
  if (object == nullptr) return nullptr;
  const UnsavedFileName unsaved = modelerSession()->options.unsavedFileName;
  if (object->wasSaved() || unsaved == UnsavedFileName::Reference) return modelerSession()->text.lend(object->name());
  return unsaved == UnsavedFileName::Null ? nullptr : modelerSession()->text.lend("");
}

int maxLayers(int index) {
  const ModelerCall call("LWObjectFuncs::maxLayers");
  const ModelerObject* object = objectAt(call, index);
  return object == nullptr || object->layers().empty() ? 0 : object->layers().back().number + 1;
}

int layerExists(int index, int layer) {
  const ModelerCall call("LWObjectFuncs::layerExists");
  const ModelerObject* object = objectAt(call, index);
  return object != nullptr && object->layer(layer) != nullptr ? 1 : 0;
}

const char* layerName(int index, int number) {
  const ModelerCall call("LWObjectFuncs::layerName");
  const ModelerObject* object = objectAt(call, index);
  if (object == nullptr) return nullptr;
  const MeshLayer* layer = object->layer(number);
  if (layer == nullptr) return nullptr;
  ModelerSession& session = *modelerSession();
  if (layer->name.empty() && !session.options.unnamedLayerIsEmpty) return nullptr;
  return session.text.lend(layer->name);
}

const char* refName(int index) {
  const ModelerCall call("LWObjectFuncs::refName");
  const ModelerObject* object = objectAt(call, index);
  return object == nullptr ? nullptr : modelerSession()->text.lend(object->referenceName());
}

std::vector<std::string> mapNames(const ModelerSession& session, std::uint32_t type) {
  std::vector<std::string> names;
  for (const auto& map : session.maps) {
    if (type != 0 && type != map.first) continue;
    if (session.options.mapsAreTheObjects && (session.current() == nullptr || !session.current()->hasMap(map))) continue;
    names.push_back(map.second);
  }
  return names;
}

int numVMaps(std::uint32_t type) {
  const ModelerCall call("LWObjectFuncs::numVMaps");
  const ModelerSession* session = call.session();
  return session == nullptr ? 0 : static_cast<int>(mapNames(*session, type).size());
}

const char* vmapName(std::uint32_t type, int index) {
  const ModelerCall call("LWObjectFuncs::vmapName");
  ModelerSession* session = call.session();
  if (session == nullptr) return nullptr;
  const std::vector<std::string> names = mapNames(*session, type);
  if (index < 0 || static_cast<std::size_t>(index) >= names.size()) {
    call.fault("was asked for map " + std::to_string(index) + " of " + std::to_string(names.size()));
    return nullptr;
  }
  const std::string& name = names[static_cast<std::size_t>(index)];
  if (name.empty() && !session->options.unnamedMapIsEmpty) return nullptr;
  return session->text.lend(name);
}

}  // namespace

lw::LWStateQueryFuncs* stateQuery() {
  static lw::LWStateQueryFuncs table = [] {
    lw::LWStateQueryFuncs t{};
    t.numLayers = &numLayers;
    STANDIN_FILL_GAP(t, 8);
    t.layerList = &layerList;
    t.object = &objectName;
    STANDIN_FILL_GAP(t, 48);
    return t;
  }();
  return &table;
}

lw::LWObjectFuncs* sceneObjects() {
  static lw::LWObjectFuncs table = [] {
    lw::LWObjectFuncs t{};
    t.numObjects = &numObjects;
    t.filename = &filename;
    t.maxLayers = &maxLayers;
    t.layerExists = &layerExists;
    STANDIN_FILL_GAP(t, 32);
    t.numVMaps = &numVMaps;
    t.vmapName = &vmapName;
    STANDIN_FILL_GAP(t, 64);
    t.layerName = &layerName;
    STANDIN_FILL_GAP(t, 88);
    t.refName = &refName;
    STANDIN_FILL_GAP(t, 112);
    return t;
  }();
  return &table;
}

}  // namespace standin
