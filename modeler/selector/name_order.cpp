#include "modeler/selector/name_order.h"

#include <algorithm>
#include <cstddef>

#include "skelegon/numbers.h"

namespace mst {
namespace {

// Takes the number off the front of a text; without its leading zeros, as digits, for it may be of any length.
std::string_view takeNumber(std::string_view& text) {
  const auto isOther = [](char character) { return !skg::isDigit(character); };
  const auto length = static_cast<std::size_t>(std::find_if(text.begin(), text.end(), isOther) - text.begin());
  std::string_view digits = text.substr(0, length);
  text.remove_prefix(length);
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return digits;
}

// Negative, 0, positive as the first is less, equal, greater.
int compareNumbers(std::string_view first, std::string_view second) {
  if (first.size() != second.size()) return first.size() < second.size() ? -1 : 1;
  return first.compare(second);
}

}  // namespace

bool comesBefore(std::string_view first, std::string_view second) {
  // What both begin with decides nothing, but for a number that may go on behind it.
  const auto differ = std::mismatch(first.begin(), first.end(), second.begin(), second.end()).first;
  auto same = static_cast<std::size_t>(differ - first.begin());
  while (same > 0 && skg::isDigit(first[same - 1])) --same;
  first.remove_prefix(same);
  second.remove_prefix(same);
  while (!first.empty() && !second.empty()) {
    if (skg::isDigit(first.front()) && skg::isDigit(second.front())) {
      const int order = compareNumbers(takeNumber(first), takeNumber(second));
      if (order != 0) return order < 0;
      continue;
    }
    if (first.front() != second.front()) {
      return static_cast<unsigned char>(first.front()) < static_cast<unsigned char>(second.front());
    }
    first.remove_prefix(1);
    second.remove_prefix(1);
  }
  return first.empty() && !second.empty();
}

}  // namespace mst
