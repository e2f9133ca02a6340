// The probe's rig, loaded into Modeler.
#pragma once

#include <optional>
#include <string>

#include "probe/host_access.h"
#include "probe/rig_file.h"

namespace probe {

// An object that a command has just put in front. It is closed when this goes.
class FrontObject {
 public:
  // Throws Trouble, after it closed the object, when the host does not tell its name.
  explicit FrontObject(const Host& host);
  ~FrontObject();
  FrontObject(const FrontObject&) = delete;
  FrontObject& operator=(const FrontObject&) = delete;

  // As the host calls it.
  const std::string& name() const { return name_; }
  // Throws Trouble when it is not the current object any more.
  void mustBeInFront() const;
  // The host may call it otherwise from now on.
  void renamed();
  // Throws Trouble when it stays open: the host refuses to close it, or an object that holds data came in front.
  void close();

 private:
  const Host& host_;
  std::string name_;
  bool isOpen_ = true;
};

// Loaded when it is made, closed when it goes.
class LoadedRig {
 public:
  // Throws Trouble when the host does not load it.
  LoadedRig(const Host& host, const RigFile& file);
  ~LoadedRig();
  LoadedRig(const LoadedRig&) = delete;
  LoadedRig& operator=(const LoadedRig&) = delete;

  // Its place among the loaded objects. Throws Trouble when it is not there.
  int index() const;
  // Throws Trouble when it is not the current object: what deletes or undoes must not reach another one.
  void mustBeInFront() const;
  // Writes it over its file. Throws Trouble when it is not the current object, or the host refuses.
  void save();
  const std::string& path() const { return file_.path(); }
  // Throws Trouble when it stays open.
  void close();

 private:
  const Host& host_;
  const RigFile& file_;
  FrontObject object_;
};

// The number of loaded objects.
int objectCount(const lw::LWObjectFuncs& objects);
// The host's name of the current object; nothing when none is loaded.
std::optional<std::string> currentObject(const Host& host);

}  // namespace probe
