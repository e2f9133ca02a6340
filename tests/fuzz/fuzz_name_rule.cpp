// The renamer's name rule with any switches, texts and name: it gives a text of bounded length or says that it cannot.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <regex>
#include <string>
#include <string_view>

#include "modeler/renamer/rename_rules.h"
#include "tests/fuzz/fuzz_check.h"

namespace {

using varnel::test::require;

// Takes the input apart: numbers first, then texts that end at a newline.
class Input {
 public:
  Input(const std::uint8_t* bytes, std::size_t size) : rest_(reinterpret_cast<const char*>(bytes), size) {}

  std::uint8_t byte() {
    if (rest_.empty()) return 0;
    const auto value = static_cast<std::uint8_t>(rest_.front());
    rest_.remove_prefix(1);
    return value;
  }
  bool flag(int bit) const { return (flags_ >> bit & 1) != 0; }
  void takeFlags() { flags_ = byte(); }
  std::string text() {
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    std::string value(rest_.substr(0, end));
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    return value;
  }

 private:
  std::string_view rest_;
  unsigned flags_ = 0;
};

mst::RenamerSettings settingsOf(Input& input) {
  mst::RenamerSettings settings;
  input.takeFlags();
  settings.replaceOn = input.flag(0);
  settings.baseNameOn = input.flag(1);
  settings.prefixOn = input.flag(2);
  settings.suffixOn = input.flag(3);
  settings.regexOn = input.flag(4);
  settings.columnOn = input.flag(5);
  settings.rowOn = input.flag(6);
  settings.columnStart = static_cast<std::int8_t>(input.byte());
  settings.rowDigits = 1 + input.byte() % 6;
  settings.rowStart = static_cast<std::int8_t>(input.byte());
  settings.replaceFrom = input.text();
  settings.replaceTo = input.text();
  settings.baseName = input.text();
  settings.prefix = input.text();
  settings.suffix = input.text();
  settings.regexPattern = input.text();
  settings.regexFormat = input.text();
  return settings;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  Input input(bytes, size);
  const mst::RenamerSettings settings = settingsOf(input);
  const std::uint32_t column = input.byte();
  const std::uint32_t row = input.byte();
  const std::string old = input.text();
  try {
    mst::CNameRule rule(settings);
    const std::string first = rule.newText(old, column, row);
    require(first == rule.newText(old, column, row), "the same name gives the same text");
    require(settings.replaceOn || settings.baseNameOn || settings.prefixOn || settings.suffixOn || settings.regexOn ||
                settings.columnOn || settings.rowOn || first == old,
            "with everything off a name stays as it is");
    require(!settings.baseNameOn || settings.regexOn || settings.columnOn || settings.rowOn || settings.prefixOn ||
                settings.suffixOn || first == settings.baseName,
            "the base name alone is the new name");
  } catch (const std::regex_error&) {
    // A bad pattern, or one that goes beyond the limits: said, not suffered.
  }
  return 0;
}
