// The split of item names and the look at file names, on any bytes. The expressions that they stand for say the same; those
// are tried on short names only, for the library's matcher overflows the stack on long ones.
#include <cstddef>
#include <cstdint>
#include <regex>
#include <string>

#include "skelegon/item_names.h"
#include "tests/fuzz/fuzz_check.h"

namespace {

using varnel::test::require;

constexpr std::size_t kShort = 500;

std::string splitByExpression(const std::string& name, std::size_t group) {
  static const std::regex expression(R"(^([^:]+):([^ ]+)( \([0-9]+\))?$)");
  std::smatch match;
  return std::regex_match(name, match, expression) ? match[group].str() : std::string();
}

bool isFileNameByExpression(const std::string& name) {
  static const std::regex expression(R"(^.*\.lwo$)");
  return std::regex_match(name, expression);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string name(reinterpret_cast<const char*>(bytes), size);
  const std::string object = skg::splitItemName(name, 1);
  const std::string layer = skg::splitItemName(name, 2);
  const bool isFileName = skg::isObjectFileName(name);
  const std::string base = skg::fileBaseName(name);
  require(object.empty() == layer.empty(), "a name has both parts or none");
  require(object.find(':') == std::string::npos, "the object's part ends before the colon");
  require(layer.find(' ') == std::string::npos, "the layer's part has no blank");
  require(base.find_first_of("/\\") == std::string::npos, "a base name has no separator");
  require(name.find(base) != std::string::npos, "a base name is a part of the name");
  if (size > kShort) return 0;
  require(object == splitByExpression(name, 1), "the object's part is what the expression finds");
  require(layer == splitByExpression(name, 2), "the layer's part is what the expression finds");
  require(isFileName == isFileNameByExpression(name), "a file name is what the expression takes");
  return 0;
}
