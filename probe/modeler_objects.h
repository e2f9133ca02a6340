// Questions about objects that come and go.
#pragma once

#include <optional>
#include <string>

#include "probe/facts.h"
#include "probe/modeler_site.h"

namespace probe {

// Only where no object is loaded.
Answer editWithoutObject(const Host& host);

// An object that was never saved, as the host calls it. It is closed again.
struct UnsavedObject {
  std::string name;                     // of the current object
  std::optional<std::string> fileName;  // of the same among all objects
  std::string why;                      // it is not told
};
UnsavedObject unsavedObject(const Host& host);
Answer objectName(const UnsavedObject& unsaved, ModelerSite& site);

ModelerQuestions objectQuestions();

// After the rig is closed; before that its weight map was listed or not.
Answer mapOwner(const Host& host, bool wasListed);
bool listsRigMap(const Host& host);

}  // namespace probe
