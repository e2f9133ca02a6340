#include "modeler/renamer/rename_rules.h"

#include <algorithm>
#include <utility>

namespace mst {
namespace {

constexpr std::string_view kColumnMark = "[col]";
constexpr std::string_view kRowMark = "[row]";

void checkLength(std::size_t size, std::size_t sizeBefore) {
  if (size > kLongestName && size > sizeBefore) refuseLongName();
}

std::string joined(std::string_view first, std::string_view second) {
  checkLength(first.size() + second.size(), std::max(first.size(), second.size()));
  return std::string(first).append(second);
}

// Where the mark is, else at the end.
std::string withCounter(const std::string& name, std::string_view mark, const std::string& counter) {
  if (name.find(mark) != std::string::npos) return replacedAll(name, mark, counter);
  return joined(name, "_" + counter);
}

}  // namespace

std::string columnText(std::int32_t start, std::uint32_t column) {
  constexpr std::int64_t kLetters = 24;
  const std::int64_t sum = std::int64_t{start} + column;
  if (sum < 0) return {};
  return std::string(1, static_cast<char>('A' + sum % kLetters));
}

std::string rowText(std::int32_t start, std::uint32_t row, std::int32_t digits) {
  const std::int64_t number = std::int64_t{start} + row;
  std::string text = std::to_string(number);
  const std::size_t wanted = digits > 0 ? static_cast<std::size_t>(digits) : 0;
  if (text.size() < wanted) text.insert(number < 0 ? 1 : 0, wanted - text.size(), '0');
  return text;
}

std::string replacedAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  std::string_view left = text;
  for (std::size_t found = left.find(from); found != std::string_view::npos; found = left.find(from)) {
    result.append(left.substr(0, found)).append(to);
    left.remove_prefix(found + from.size());
    checkLength(result.size(), text.size());  // while it grows: it might take all memory
  }
  result.append(left);
  checkLength(result.size(), text.size());
  return result;
}

CNameRule::CNameRule(const RenamerSettings& settings)
    : settings_(settings), regex_(settings.regexPattern, settings.regexFormat) {}

bool CNameRule::usesPattern() const {
  return settings_.regexOn && !settings_.regexPattern.empty() && !settings_.regexFormat.empty();
}

std::string CNameRule::newText(std::string_view old, std::uint32_t column, std::uint32_t row) {
  const RenamerSettings& s = settings_;
  std::string name(old);
  if (s.replaceOn && !s.replaceFrom.empty()) name = replacedAll(name, s.replaceFrom, s.replaceTo);
  if (s.baseNameOn) name = s.baseName;
  if (s.prefixOn && !name.empty()) name = joined(s.prefix, name);
  if (s.suffixOn && !name.empty()) name = joined(name, s.suffix);
  if (usesPattern() && !name.empty()) name = regex_.replaced(name);
  if (s.columnOn) name = withCounter(name, kColumnMark, columnText(s.columnStart, column));
  if (s.rowOn) name = withCounter(name, kRowMark, rowText(s.rowStart, row, s.rowDigits));
  return name;
}

CSimpleRule::CSimpleRule(RenameMode mode, std::string first, std::string second)
    : mode_(mode), first_(std::move(first)), second_(std::move(second)), regex_(first_, second_) {}

std::string CSimpleRule::newText(std::string_view old) {
  switch (mode_) {
    case RenameMode::Change: return first_;  // also when it is empty: that clears names
    case RenameMode::Prefix: return joined(first_, old);
    case RenameMode::Suffix: return joined(old, first_);
    case RenameMode::Replace:
      if (!first_.empty()) return replacedAll(old, first_, second_);
      break;
    case RenameMode::RegularExpression:
      if (!first_.empty()) return regex_.replaced(old);
      break;
    case RenameMode::Advanced: break;
  }
  return std::string(old);
}

}  // namespace mst
