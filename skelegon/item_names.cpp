#include "skelegon/item_names.h"

#include <algorithm>

#include "skelegon/numbers.h"

namespace skg {
namespace {

bool endsWith(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

// The length of a counter such as " (2)" at the end of the text; 0 when it has none.
std::size_t counterLength(std::string_view text) {
  if (!endsWith(text, ")")) return 0;
  const std::size_t open = text.rfind(" (");
  if (open == std::string_view::npos) return 0;
  const std::string_view digits = text.substr(open + 2, text.size() - open - 3);
  const bool isCounter = !digits.empty() && std::all_of(digits.begin(), digits.end(), isDigit);
  return isCounter ? text.size() - open : 0;
}

}  // namespace

bool isObjectFileName(std::string_view name) {
  return endsWith(name, ".lwo") && name.find_first_of("\n\r") == std::string_view::npos;
}

std::string splitItemName(std::string_view name, int group) {
  const std::size_t colon = name.find(':');
  if (colon == std::string_view::npos || colon == 0) return {};
  std::string_view layer = name.substr(colon + 1);
  layer.remove_suffix(counterLength(layer));
  if (layer.empty() || layer.find(' ') != std::string_view::npos) return {};
  return std::string(group == 1 ? name.substr(0, colon) : layer);
}

std::string fileBaseName(std::string_view path) {
  // The host's own paths have backslashes; where it runs on another system, they have slashes.
  const std::size_t separator = path.find_last_of("\\/");
  if (separator != std::string_view::npos) path.remove_prefix(separator + 1);
  return std::string(path.substr(0, path.rfind('.')));
}

}  // namespace skg
