#include "standin/core/module_file.h"

#include <algorithm>

#include "standin/core/globals.h"
#include "standin/core/shared_library.h"
#include "standin/core/witness.h"

namespace standin {
namespace {

constexpr const char* kDescriptorSymbol = "_mod_descrip";
// A table without its closing record would be read for ever.
constexpr std::size_t kMostServers = 1000;

std::string hexadecimal(unsigned value) {
  constexpr const char* digits = "0123456789abcdef";
  std::string text = "0x";
  for (int shift = 28; shift >= 0; shift -= 4) text += digits[value >> shift & 0xF];
  return text;
}

std::string wrongWord(const char* word, unsigned found, unsigned wanted) {
  if (found == wanted) return {};
  return std::string("the descriptor's ") + word + " is " + hexadecimal(found) + ", not " + hexadecimal(wanted);
}

}  // namespace

std::string ModuleFile::load(const std::string& path) {
  unload();
  std::string why;
  library_ = openLibrary(path, why);
  if (why.empty()) why = readDescriptor();
  if (why.empty()) why = start();
  if (why.empty()) why = readServers();
  if (!why.empty()) unload();
  return why;
}

std::string ModuleFile::readDescriptor() {
  const auto* descriptor = static_cast<const lw::ModuleDescriptor*>(findSymbol(library_, kDescriptorSymbol));
  if (descriptor == nullptr) return std::string("the file does not export the symbol ") + kDescriptorSymbol;
  std::string why = wrongWord("sync word", descriptor->sysSync, lw::kSysSync);
  if (why.empty()) why = wrongWord("version", descriptor->sysVersion, lw::kSysVersion);
  if (why.empty()) why = wrongWord("machine", descriptor->sysMachine, lw::kSysMachine);
  if (why.empty() && descriptor->startup == nullptr) why = "the descriptor has no startup function";
  if (why.empty() && descriptor->shutdown == nullptr) why = "the descriptor has no shutdown function";
  if (why.empty() && descriptor->serverDefs == nullptr) why = "the descriptor has no server table";
  if (why.empty()) descriptor_ = descriptor;
  return why;
}

std::string ModuleFile::start() {
  const auto result = callModule("startup", descriptor_->startup);
  if (!result) return "startup let an exception out";
  if (*result == nullptr) return "startup returned null";
  serverData_ = *result;
  started_ = true;
  return {};
}

std::string ModuleFile::readServers() {
  for (const lw::ServerRecord* record = descriptor_->serverDefs; record->className != nullptr; ++record) {
    if (servers_.size() == kMostServers) return "the server table has no end";
    if (record->name == nullptr || record->activate == nullptr) return "a server has no name or no activation function";
    servers_.push_back(*record);
  }
  return {};
}

void ModuleFile::unload() {
  if (started_) {
    callModule("shutdown", [this] { descriptor_->shutdown(serverData_); });
  }
  servers_.clear();
  started_ = false;
  serverData_ = nullptr;
  descriptor_ = nullptr;
  if (library_ != nullptr) closeLibrary(library_);
  library_ = nullptr;
}

const lw::ServerRecord* ModuleFile::server(std::string_view className, std::string_view name) const {
  const auto found = std::find_if(servers_.begin(), servers_.end(), [&](const lw::ServerRecord& record) {
    return record.className == className && record.name == name;
  });
  return found == servers_.end() ? nullptr : &*found;
}

const lw::ServerRecord* ModuleFile::server(std::string_view name) const {
  const auto found =
      std::find_if(servers_.begin(), servers_.end(), [&](const lw::ServerRecord& record) { return record.name == name; });
  return found == servers_.end() ? nullptr : &*found;
}

std::optional<int> ModuleFile::activate(std::string_view name, int version, void* local, std::string_view ownClass) {
  const lw::ServerRecord* record = server(ownClass, name);
  if (record == nullptr) record = server(name);
  if (record == nullptr) {
    witness().fault("activation", "the module has no server \"" + std::string(name) + '"');
    return std::nullopt;
  }
  return callModule(record->name, [&] { return record->activate(version, Globals::lookup(), local, serverData_); });
}

}  // namespace standin
