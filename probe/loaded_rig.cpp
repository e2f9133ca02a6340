#include "probe/loaded_rig.h"

#include <algorithm>

#include "host/lwtool2_errors.h"
#include "probe/host_text.h"

namespace probe {
namespace {

bool isFrontEmpty(const Host& host) {
  return currentObject(host) && host.service<lw::LWStateQueryFuncs>("LWM: State Query 5").numLayers() == 0;
}

// Where the empty object that was in front still is, it is the user's: the host took the command and loaded nothing. A host
// that does not tell has loaded the rig, which is then closed.
const Host& loaded(const Host& host, const std::string& path) {
  const std::optional<std::string> before = currentObject(host);
  host.mustDo("load \"" + path + '"');
  bool isAsBefore = false;
  if (before) lw::guarded([&] { isAsBefore = currentObject(host) == before && isFrontEmpty(host); });
  if (isAsBefore) throw Trouble{"the host took \"load\", and the rig is not in front"};
  return host;
}

}  // namespace

int objectCount(const lw::LWObjectFuncs& objects) {
  // What a person can have loaded; more is no count.
  constexpr int kMostObjects = 1000;
  return std::clamp(objects.numObjects(), 0, kMostObjects);
}

std::optional<std::string> currentObject(const Host& host) {
  return copied(host.service<lw::LWStateQueryFuncs>("LWM: State Query 5").object());
}

// --- an object in front ----------------------------------------------------------------------------------------------------

FrontObject::FrontObject(const Host& host) : host_(host) {
  std::optional<std::string> name;
  lw::guarded([&] { name = currentObject(host_); });
  if (name) {
    name_ = *name;
  } else {
    host_.command("close");
    throw Trouble{"the host does not tell the name of the current object"};
  }
}

// Whoever wanted to know has called close().
FrontObject::~FrontObject() {
  lw::guarded([&] { close(); });
}

void FrontObject::mustBeInFront() const {
  if (!isOpen_ || currentObject(host_) != name_) throw Trouble{"another object came in front of " + shown(name_)};
}

void FrontObject::renamed() {
  if (const std::optional<std::string> name = currentObject(host_)) name_ = *name;
}

// With an empty object nothing is lost.
void FrontObject::close() {
  if (!isOpen_) return;
  if (currentObject(host_) != name_ && isFrontEmpty(host_)) host_.mustDo("close");
  mustBeInFront();
  host_.mustDo("close");
  isOpen_ = false;
}

// --- the rig -------------------------------------------------------------------------------------------------------------

LoadedRig::LoadedRig(const Host& host, const RigFile& file) : host_(host), file_(file), object_(loaded(host, file.path())) {}

LoadedRig::~LoadedRig() {
  lw::guarded([&] { close(); });
}

int LoadedRig::index() const {
  const auto& objects = host_.service<lw::LWObjectFuncs>("Scene Objects 9");
  for (int object = objectCount(objects) - 1; object >= 0; --object) {
    if (objects.layerExists(object, 0) != 0 && copied(objects.layerName(object, 0)) == kRigLayer) return object;
  }
  throw Trouble{"the rig is not among the host's objects"};
}

void LoadedRig::mustBeInFront() const { object_.mustBeInFront(); }

void LoadedRig::save() {
  object_.mustBeInFront();
  host_.mustDo("save \"" + file_.path() + '"');
  object_.renamed();
}

// It is saved first, so that nobody is asked whether to.
void LoadedRig::close() {
  lw::guarded([&] { save(); });
  object_.close();
}

}  // namespace probe
