// The services that the stand-in host offers by name, and a record of what the module asked for.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
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
  static void* lookUp(const char* name, int use);

  std::map<std::string, std::function<void*()>> services_;
  std::set<std::string> withheld_;
  std::vector<std::string> asked_;
};

Globals& globals();

}  // namespace standin
