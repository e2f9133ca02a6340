// The stand-in for Modeler: what a test or the program `varnel` drives, as a person in front of the screen would.
//
// Make one, open objects, activate the module's servers, use its panels (standin/panels), look at the objects. Making it
// begins a new session: the witness, the globals and the panel services start afresh. One at a time; everything on one
// thread. witness().report() tells what the module did wrong.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "interface/lightwave.h"
#include "standin/core/globals.h"
#include "standin/core/module_file.h"
#include "standin/core/witness.h"
#include "standin/modeler/activation_record.h"
#include "standin/modeler/session.h"

namespace standin {

class ModelerHost {
 public:
  explicit ModelerHost(const ModelerOptions& options = {});
  ~ModelerHost();
  ModelerHost(const ModelerHost&) = delete;
  ModelerHost& operator=(const ModelerHost&) = delete;

  // May be changed at any time.
  ModelerOptions& options() { return session_.options; }

  // --- the module --------------------------------------------------------------------------------------------------------

  // Runs a "CommandSequence" server. Gives its result; empty when there is no such server or it let an exception out.
  std::optional<int> activate(ModuleFile& module, std::string_view server, const std::string& argument = {},
                              int version = lw::kModCommandVersion);
  // The same for a bare activation function.
  std::optional<int> activate(lw::ActivateFunc function, const std::string& argument = {},
                              int version = lw::kModCommandVersion);

  // --- files and objects -------------------------------------------------------------------------------------------------

  // Opens an object file and makes it the current object. The object lives until it is closed.
  Outcome<ModelerObject*> open(const std::string& path) { return session_.open(path); }
  // An object that comes from code. With a file name it passes for one that was opened from there.
  ModelerObject& add(ObjectFile file, const std::string& fileName = {}) { return session_.add(std::move(file), fileName); }
  // Closes an object; the one opened before it becomes the current one. Its identifiers are dead.
  void close(const ModelerObject& object) { session_.close(object); }
  void closeAll();
  // Saves the current object under its name, or under another. Empty when saved, else the failure.
  std::optional<Failure> save();
  std::optional<Failure> saveAs(const std::string& path) { return session_.saveAs(path); }

  // Null when none is loaded.
  ModelerObject* current() const { return session_.currentObject; }
  void makeCurrent(ModelerObject& object) { session_.currentObject = &object; }
  const std::vector<std::unique_ptr<ModelerObject>>& objects() const { return session_.objects; }

  // --- what a person does to the current object ---------------------------------------------------------------------------

  // Select exactly these, as far as they lie in the foreground.
  void select(const std::vector<std::string>& skelegonNames);
  void selectPolygons(const std::vector<const MeshPolygon*>& polygons);
  void deselectAll();
  // Layer numbers from 0. The others are hidden.
  void showLayers(const std::vector<int>& foreground) { session_.showLayers(foreground); }
  void showAllLayers();
  void deleteSkelegons(const std::vector<std::string>& names);
  void deletePolygons(const std::vector<const MeshPolygon*>& polygons);
  void removeWeightMap(const std::string& name);
  bool undo() { return session_.undo(); }
  bool redo() { return session_.redo(); }
  // Lays ready what the user answers to the next questions.
  void answer(Answer answer) { session_.messages.answers.push_back(answer); }
  // Lets a person see the messages and answer the questions.
  void showMessagesTo(std::function<Answer(const Message&)> person) { session_.messages.person = std::move(person); }

  // --- what happened -----------------------------------------------------------------------------------------------------

  // Names of the selected skelegons of the current object, in scan order.
  std::vector<std::string> selectedNames() const;
  const std::vector<Message>& messages() const { return session_.messages.shown; }
  // All commands that were sent, in order, also those that were refused.
  const std::vector<std::string>& commands() const { return session_.commands; }
  const std::vector<EditRecord>& edits() const { return session_.edits.records(); }
  // Names of the program's weight maps.
  std::vector<std::string> weightMaps() const;
  void forgetRecords() { session_.messages.shown.clear(); }

 private:
  void offerGlobals();

  ModelerSession session_;
};

}  // namespace standin
