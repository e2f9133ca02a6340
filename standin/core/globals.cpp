#include "standin/core/globals.h"

#include <array>
#include <cstring>
#include <utility>

#include "standin/core/witness.h"

namespace standin {
namespace {

void* fromNumber(std::uint32_t value) {
  return reinterpret_cast<void*>(static_cast<std::uintptr_t>(value));  // NOLINT(performance-no-int-to-ptr)
}

// Large enough for every table of the host; every slot is this one function.
void neverCalled() { witness().fault("a service that is present only", "was called"); }

using PresenceTable = std::array<void (*)(), 128>;

PresenceTable* presenceTable() {
  static PresenceTable table = [] {
    PresenceTable slots{};
    slots.fill(&neverCalled);
    return slots;
  }();
  return &table;
}

}  // namespace

Globals& globals() {
  static Globals instance;
  return instance;
}

void Globals::reset() { *this = Globals(); }

void Globals::offer(const std::string& name, void* service) {
  offer(name, [service] { return service; });
}

void Globals::offer(const std::string& name, std::function<void*()> maker) { services_[name] = {std::move(maker)}; }

void Globals::offerNumber(const std::string& name, std::uint32_t value) { offer(name, fromNumber(value)); }

void Globals::offerPresence(const std::vector<std::string>& names) {
  for (const std::string& name : names) offerTable(name, presenceTable());
}

lw::GlobalFunc Globals::lookup() { return &lookUp; }

void* Globals::lookUp(const char* name, int use) {
  const HostCall call("global lookup");
  if (name == nullptr) {
    call.fault("was asked for a null name");
    return nullptr;
  }
  if (use != lw::kUseTransient) call.fault(std::string("was asked for \"") + name + "\" with another use than transient");
  Globals& self = globals();
  self.asked_.emplace_back(name);
  if (call.refused() || self.withheld_.count(name) != 0) return nullptr;
  const auto found = self.services_.find(name);
  if (found == self.services_.end()) return nullptr;
  void* const service = self.give(found->second);
  self.given_[name].insert(service);
  return service;
}

void* Globals::give(const Service& service) {
  void* const original = service.maker();
  if (!copiesTables_ || service.tableSize == 0) return original;
  copies_.push_back(std::make_unique<std::byte[]>(service.tableSize));
  return std::memcpy(copies_.back().get(), original, service.tableSize);
}

}  // namespace standin
