// Slots of the host's tables that no module calls. Each answers with a fault that names its table and offset.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>

#include "standin/core/witness.h"

namespace standin {

// The table's name in faults. Specialised beside the code that fills the table.
template <class Table>
inline constexpr const char* kTableName = "a host table";

template <class Table, std::size_t Offset>
void* gapSlot() {
  const HostCall call(kTableName<Table>);
  call.fault("the unused slot at offset " + std::to_string(Offset) + " was called");
  return nullptr;
}

template <class Table, std::size_t Offset>
void* gapPointer() {
  return reinterpret_cast<void*>(&gapSlot<Table, Offset>);
}

// Fills one gap member of a table: an array of slots, or a single one, that begins at the offset.
template <class Table, std::size_t Offset, std::size_t Count>
void fillGap(void* (&slots)[Count]) {
  [&]<std::size_t... I>(std::index_sequence<I...>) { ((slots[I] = gapPointer<Table, Offset + I * sizeof(void*)>()), ...); }
  (std::make_index_sequence<Count>());
}

template <class Table, std::size_t Offset>
void fillGap(void*& slot) {
  slot = gapPointer<Table, Offset>();
}

}  // namespace standin

// Fills the gap member that begins at an offset and bears the offset in its name.
#define STANDIN_FILL_GAP(table, offset) \
  ::standin::fillGap<std::remove_reference_t<decltype(table)>, offset>((table).gap_##offset)
