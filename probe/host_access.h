// The host as the probe reaches it. Unlike the product the probe takes each service for itself: what is missing is a fact.
#pragma once

#include <string>

#include "interface/lightwave.h"
#include "probe/trouble.h"
#include "probe/whole_tables.h"

namespace probe {

enum class Program { Modeler, Layout };

const char* nameOf(Program program);

struct Host {
  Program program = Program::Modeler;
  lw::GlobalFunc global = nullptr;
  // Of Modeler's local data, which is gone after the activation. Null in Layout.
  void* data = nullptr;
  lw::EvaluateFunc evaluate = nullptr;
  lw::EditBeginFunc editBegin = nullptr;

  // Throws Trouble when the host does not offer it, or not with all the functions that the probe calls.
  template <class Table>
  Table& service(const char* name) const {
    Table& table = *static_cast<Table*>(found(name));
    if (!isWhole(table)) throw Trouble{"a function is missing in the host's \"" + std::string(name) + "\""};
    return table;
  }

  // Sends a command, UTF-8; what the host answers. In Layout it goes out in the system's narrow encoding. Throws Trouble
  // when it cannot be sent.
  int command(const std::string& text) const;
  // The same; throws Trouble when the host refuses it.
  void mustDo(const std::string& text) const;

  // A service that is a number. 0 when the host does not have it.
  unsigned number(const char* name) const;

 private:
  void* found(const char* name) const;
};

}  // namespace probe
