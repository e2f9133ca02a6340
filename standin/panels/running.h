// Marks a panel as one whose callback is on the stack: it must not be destroyed meanwhile.
#pragma once

#include "standin/panels/panel.h"

namespace standin {

class Running {
 public:
  explicit Running(Panel& panel) : panel_(panel) { ++panel_.runningCallbacks; }
  ~Running() { --panel_.runningCallbacks; }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

 private:
  Panel& panel_;
};

}  // namespace standin
