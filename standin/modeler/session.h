// The state behind the functions that the module calls: there is one session at a time, that of the running ModelerHost.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "interface/lightwave.h"
#include "standin/core/witness.h"
#include "standin/modeler/handles.h"
#include "standin/modeler/lent_text.h"
#include "standin/modeler/mesh_edit.h"
#include "standin/modeler/messages.h"
#include "standin/modeler/modeler_object.h"
#include "standin/modeler/options.h"

namespace standin {

struct ModelerSession {
  explicit ModelerSession(std::uint32_t number) : handles(number), edits(number) {}

  ModelerObject* currentObject = nullptr;  // null when none is loaded
  std::vector<std::unique_ptr<ModelerObject>> objects;
  ModelerOptions options;
  Handles handles;
  MeshEdits edits;
  MessageDesk messages;
  // Vertex maps belong to the program: they stay listed after their object is gone.
  std::vector<std::pair<std::uint32_t, std::string>> maps;
  LentText text;
  std::vector<std::string> commands;  // all that were sent, in order
  int objectsMade = 0;

  ModelerObject* current() const { return currentObject; }

  // What a person does to objects, and what commands do. All but the first two need a loaded object.
  Outcome<ModelerObject*> open(const std::string& path);
  ModelerObject& add(ObjectFile file, const std::string& fileName);
  void close(const ModelerObject& object);
  bool undo();
  bool redo();
  void showLayers(const std::vector<int>& foreground);  // layer numbers from 0
  std::optional<Failure> saveAs(const std::string& path);

  void listMaps(const ModelerObject& object);
  void listMap(const std::pair<std::uint32_t, std::string>& map);  // type and name
};

// Null while no Modeler runs.
ModelerSession* modelerSession();
void setModelerSession(ModelerSession* session);

// Stands at the head of every function of the stand-in Modeler. What the last call lent to the module is lost now.
class ModelerCall : public HostCall {
 public:
  explicit ModelerCall(const char* function);

  // Null, with a fault, when no Modeler runs; null also when this call was chosen to fail.
  ModelerSession* session() const { return refused() ? nullptr : session_; }

 private:
  ModelerSession* session_;
};

// Fill the tables, once.
lw::LWStateQueryFuncs* stateQuery();
lw::LWObjectFuncs* sceneObjects();
lw::LWMessageFuncs* messageServices();

}  // namespace standin
