// Services of the host's that lack a function.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <deque>
#include <functional>
#include <string>

#include "standin/core/globals.h"

namespace standin {

// Runs with each pointer of a service null in turn. Those that are no functions of the probe's change nothing.
template <class Table>
void withEachSlotNull(const char* name, const std::function<void()>& run) {
  auto* const table = static_cast<Table*>(Globals::lookup()(name, lw::kUseTransient));
  static std::deque<Table> tables;  // panels that were made with one stay with it
  for (std::size_t offset = 0; offset < sizeof(Table); offset += sizeof(void*)) {
    SCOPED_TRACE(std::string(name) + " without the slot at " + std::to_string(offset));
    Table& holed = tables.emplace_back(*table);
    std::memset(reinterpret_cast<char*>(&holed) + offset, 0, sizeof(void*));
    globals().offer(name, &holed);
    run();
  }
  globals().offer(name, table);
}

}  // namespace standin
