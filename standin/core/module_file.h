// The module's file, loaded and called as the host does it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interface/lightwave.h"

namespace standin {

// A loaded module. Ends it (shutdown, then closing the file) when it goes. One file can be loaded again after that.
class ModuleFile {
 public:
  ModuleFile() = default;
  ~ModuleFile() { unload(); }
  ModuleFile(const ModuleFile&) = delete;
  ModuleFile& operator=(const ModuleFile&) = delete;

  // Opens the file (a UTF-8 path), finds its descriptor, checks the three leading words, starts the module and reads the
  // servers to the closing record. Gives an empty text, or a sentence that says what failed; nothing stays loaded then.
  std::string load(const std::string& path);
  // Does nothing when nothing is loaded.
  void unload();

  bool loaded() const { return descriptor_ != nullptr; }
  // What the module's start gave; null when nothing is loaded.
  void* startupResult() const { return serverData_; }
  // In the module's order, without the closing record.
  const std::vector<lw::ServerRecord>& servers() const { return servers_; }
  // Null when the module has no such server.
  const lw::ServerRecord* server(std::string_view className, std::string_view name) const;
  const lw::ServerRecord* server(std::string_view name) const;

  // Activates a server with the globals' lookup and the startup result. Empty when there is no such server, or when it let
  // an exception out; both are faults of the witness. Of servers of one name, that of the program's own class.
  std::optional<int> activate(std::string_view name, int version, void* local, std::string_view ownClass = {});

 private:
  std::string readDescriptor();
  std::string start();
  std::string readServers();

  void* library_ = nullptr;
  const lw::ModuleDescriptor* descriptor_ = nullptr;
  bool started_ = false;
  void* serverData_ = nullptr;
  std::vector<lw::ServerRecord> servers_;
};

}  // namespace standin
