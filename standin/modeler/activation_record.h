// The record that a Modeler activation gets.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "interface/lightwave.h"

namespace standin {

// Makes the local data of an activation; the record and its argument text are overwritten when this goes, as in a host whose
// record lies on its stack. Function pointers and host data that the module copied stay good.
class ActivationRecord {
 public:
  explicit ActivationRecord(const std::string& argument);
  ~ActivationRecord();
  ActivationRecord(const ActivationRecord&) = delete;
  ActivationRecord& operator=(const ActivationRecord&) = delete;

  lw::LWModCommand* get() const { return &storage_->record; }

 private:
  struct Storage {
    lw::LWModCommand record{};
    std::string argument;
  };
  Storage* storage_;  // kept by the program for good: a module may still look at it
};

}  // namespace standin
