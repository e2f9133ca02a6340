#include "standin/modeler/modeler_host.h"

#include <algorithm>
#include <utility>

#include "standin/core/service_names.h"
#include "standin/panels/services.h"

namespace standin {
namespace {

std::uint32_t sessionCount = 0;

// Services that are there in Modeler as well; some modules ask for them.
const ServiceNames kMore = {
    "Texture Functions 6",  "LWVParmFuncs 4", "NodeEditorFuncs 7", "File Type Pattern",         "LWColorSpace",
    "LWM: Dynamic Monitor", "File IO 5",      "Mesh Functions 2",  "SurfaceEditor Functions 2", "Texture Editor 3"};

}  // namespace

ModelerHost::ModelerHost(const ModelerOptions& options) : session_(++sessionCount) {
  const bool another = modelerSession() != nullptr;
  session_.options = options;
  if (options.identifiersAreUsedAgain) session_.handles.useAgain();
  setModelerSession(&session_);
  witness().reset();
  if (another) witness().fault("stand-in", "a second Modeler was started while one runs");
  globals().reset();
  offerGlobals();
  offerPanelServices();
  witness().afterModule([this](const char* function) {
    if (!session_.edits.isOpen() || session_.edits.scans > 0) return;
    witness().fault(function, "returned with a mesh edit still open");
    session_.edits.end(lw::kEditUserAbort);
  });
}

ModelerHost::~ModelerHost() {
  if (modelerSession() != &session_) return;
  witness().afterModule(nullptr);
  globals().reset();
  setModelerSession(nullptr);
}

void ModelerHost::offerGlobals() {
  const auto number = [](std::uint32_t value) {
    return reinterpret_cast<void*>(static_cast<std::uintptr_t>(value));  // NOLINT(performance-no-int-to-ptr)
  };
  globals().offerPresence(modelerServices());
  globals().offerPresence(kMore);
  globals().offer("Product Info", [this, number] { return number(session_.options.productInfo); });
  globals().offer("Locale Info", [this, number] { return number(session_.options.localeInfo); });
  globals().offerTable("LWM: State Query 5", stateQuery());
  globals().offerTable("Scene Objects 9", sceneObjects());
  globals().offerTable("Info Messages 4", messageServices());
}

// --- the module ----------------------------------------------------------------------------------------------------------

std::optional<int> ModelerHost::activate(ModuleFile& module, std::string_view server, const std::string& argument,
                                         int version) {
  const ActivationRecord record(argument);
  const std::optional<int> result = module.activate(server, version, record.get(), "CommandSequence");
  panels().turn();
  return result;
}

std::optional<int> ModelerHost::activate(lw::ActivateFunc function, const std::string& argument, int version) {
  const ActivationRecord record(argument);
  return callModule("activation", [&] { return function(version, Globals::lookup(), record.get(), nullptr); });
}

// --- files and objects ---------------------------------------------------------------------------------------------------

void ModelerHost::closeAll() {
  while (!session_.objects.empty()) close(*session_.objects.back());
}

std::optional<Failure> ModelerHost::save() {
  if (current() == nullptr) return Failure{"there is no object to save"};
  return saveAs(current()->name());
}

// --- what a person does --------------------------------------------------------------------------------------------------

void ModelerHost::select(const std::vector<std::string>& skelegonNames) {
  if (current() == nullptr) return;
  std::vector<const MeshPolygon*> chosen;
  for (const MeshPolygon* polygon : current()->skelegons()) {
    const bool wanted =
        std::find(skelegonNames.begin(), skelegonNames.end(), polygon->tag(lw::kTagBone)) != skelegonNames.end();
    if (wanted && current()->layer(polygon->layer)->foreground) chosen.push_back(polygon);
  }
  current()->select(chosen);
}

void ModelerHost::selectPolygons(const std::vector<const MeshPolygon*>& polygons) {
  if (current() != nullptr) current()->select(polygons);
}

void ModelerHost::deselectAll() { selectPolygons({}); }

void ModelerHost::showAllLayers() {
  std::vector<int> numbers;
  if (current() != nullptr)
    for (const MeshLayer& layer : current()->layers()) numbers.push_back(layer.number);
  showLayers(numbers);
}

void ModelerHost::deleteSkelegons(const std::vector<std::string>& names) {
  if (current() == nullptr) return;
  std::vector<const MeshPolygon*> chosen;
  for (const MeshPolygon* polygon : current()->skelegons()) {
    if (std::find(names.begin(), names.end(), polygon->tag(lw::kTagBone)) != names.end()) chosen.push_back(polygon);
  }
  deletePolygons(chosen);
}

void ModelerHost::deletePolygons(const std::vector<const MeshPolygon*>& polygons) {
  if (current() != nullptr) current()->remove(polygons);
}

void ModelerHost::removeWeightMap(const std::string& name) {
  if (current() == nullptr) return;
  current()->removeMap(lw::kMapWeight, name);
  const std::pair entry(lw::kMapWeight, name);
  const bool used = std::any_of(session_.objects.begin(), session_.objects.end(),
                                [&](const auto& object) { return object->hasMap(entry); });
  if (!used) std::erase(session_.maps, entry);
}

// --- what happened -------------------------------------------------------------------------------------------------------

std::vector<std::string> ModelerHost::selectedNames() const {
  std::vector<std::string> names;
  if (current() == nullptr) return names;
  for (const MeshPolygon* polygon : current()->skelegons()) {
    if (polygon->selected) names.push_back(polygon->tag(lw::kTagBone));
  }
  return names;
}

std::vector<std::string> ModelerHost::weightMaps() const {
  std::vector<std::string> names;
  for (const auto& [type, name] : session_.maps) {
    if (type == lw::kMapWeight) names.push_back(name);
  }
  return names;
}

}  // namespace standin
