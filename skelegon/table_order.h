// For tables that are looked up by an enumerator: whether the row of each stands at its number. To be asserted below a table.
#pragma once

#include <cstddef>

namespace skg {

// `key` is the member that holds the row's enumerator.
template <class Rows, class Row, class Key>
constexpr bool standInOrder(const Rows& rows, Key Row::*key) {
  std::size_t place = 0;
  for (const Row& row : rows) {
    if (static_cast<std::size_t>(row.*key) != place++) return false;
  }
  return true;
}

}  // namespace skg
