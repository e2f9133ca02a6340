// The services that the stand-in host offers by name, and a record of what the module asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "interface/lightwave.h"

namespace standin {

class Globals {
 public:
  // Forgets every service, every withheld name and the record.
  void reset();

  // Offers a service under a name. The maker form is asked anew at each lookup, for services that describe the moment.
  void offer(const std::string& name, void* service);
  void offer(const std::string& name, std::function<void*()> maker);
  // A table of the host's.
  template <class Table>
  void offerTable(const std::string& name, Table* table) {
    services_[name] = {[table] { return table; }, sizeof(Table)};
  }
  // From now on each lookup of a table gives another copy of it.
  void copyTables() { copiesTables_ = true; }
  // What lookups of a service gave.
  const std::set<void*>& given(const std::string& name) { return given_[name]; }
  // A number carried in the pointer.
  void offerNumber(const std::string& name, std::uint32_t value);
  // Offers the names as services that are there but never to be called: a pointer to bytes that fault when used as a table.
  void offerPresence(const std::vector<std::string>& names);

  void withhold(const std::string& name) { withheld_.insert(name); }
  void giveBack(const std::string& name) { withheld_.erase(name); }

  // The names asked for since the last reset or clearAsked, in order.
  const std::vector<std::string>& asked() const { return asked_; }
  void clearAsked() { asked_.clear(); }

  // The function that the module gets.
  static lw::GlobalFunc lookup();

 private:
  struct Service {
    std::function<void*()> maker;
    std::size_t tableSize = 0;  // 0 for what is no table: a function, a number, a record of the moment
  };

  static void* lookUp(const char* name, int use);
  void* give(const Service& service);

  std::map<std::string, Service> services_;
  std::map<std::string, std::set<void*>> given_;
  bool copiesTables_ = false;
  std::vector<std::unique_ptr<std::byte[]>> copies_;
  std::set<std::string> withheld_;
  std::vector<std::string> asked_;
};

Globals& globals();

}  // namespace standin
