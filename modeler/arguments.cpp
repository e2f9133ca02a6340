#include "modeler/arguments.h"

namespace mst {

std::vector<std::string> splitArguments(std::string_view argument) {
  std::vector<std::string> words;
  while (true) {
    const std::size_t start = argument.find_first_not_of(' ');
    if (start == std::string_view::npos) return words;
    const bool quoted = argument[start] == '"';
    argument.remove_prefix(start + (quoted ? 1 : 0));
    const std::size_t end = argument.find(quoted ? '"' : ' ');
    words.emplace_back(argument.substr(0, end));
    if (end == std::string_view::npos) return words;
    argument.remove_prefix(end + (quoted ? 1 : 0));
  }
}

}  // namespace mst
