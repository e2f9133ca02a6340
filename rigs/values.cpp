#include "rigs/values.h"

#include <array>
#include <charconv>
#include <cmath>
#include <numbers>
#include <system_error>

#include "rigs/text.h"
#include "skelegon/numbers.h"

namespace standin::rigs {
namespace {

using skg::SlotKind;

bool isReal(SlotKind kind) {
  return kind == SlotKind::Percent || kind == SlotKind::Distance || kind == SlotKind::Number || kind == SlotKind::Angle;
}

template <class Number>
Reading reading(std::string_view text) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::invalid_argument) return Reading::Nothing;
  if (error == std::errc::result_out_of_range) return std::is_integral_v<Number> ? Reading::Beginning : Reading::Nothing;
  return end == text.data() + text.size() ? Reading::Whole : Reading::Beginning;
}

std::string withUnit(const Setting& setting, double value) {
  switch (setting.kind) {
    case SlotKind::Percent: return shortNumber(value) + " %";
    case SlotKind::Distance: return shortNumber(value) + " m";
    case SlotKind::Angle: {
      constexpr double kStored = 1e-6;  // what six decimals of a radian tell, in degrees a fraction of a thousandth
      const double degrees = value * 180 / std::numbers::pi;
      const double rounded = std::round(degrees * 1000) / 1000;
      const double whole = std::round(degrees);
      return shortNumber(std::abs(degrees - whole) < kStored * 180 / std::numbers::pi ? whole : rounded) + "°";
    }
    default: return shortNumber(value);
  }
}

std::string flagWord(bool on, Language language) {
  if (language == Language::Japanese) return on ? "オン" : "オフ";
  return on ? "on" : "off";
}

std::string colourWord(const Setting& setting, std::string_view text, Language language) {
  for (std::size_t i = 0; i < skg::BoneColourNames.size(); ++i) {
    if (skg::BoneColourNames[i] == text) return setting.choices(language)[i];
  }
  return inQuotes(text);
}

}  // namespace

bool isNumeric(SlotKind kind) {
  return isReal(kind) || kind == SlotKind::Flag || kind == SlotKind::Choice || kind == SlotKind::Integer;
}

Reading readingOf(SlotKind kind, std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
  if (start == std::string_view::npos) return Reading::Nothing;
  text.remove_prefix(start);
  if (!isReal(kind)) return reading<int>(text);
  const std::size_t digit = text.find_first_not_of("+-");
  const bool isWord = digit == std::string_view::npos || (text[digit] != '.' && (text[digit] < '0' || text[digit] > '9'));
  return isWord ? Reading::Nothing : reading<double>(text);
}

bool isInList(const Setting& setting, std::string_view text) {
  const int value = skg::leadingInteger(text);
  if (setting.kind == SlotKind::Flag) return value == 0 || value == 1;
  if (setting.kind != SlotKind::Choice) return true;
  return value >= 0 && static_cast<std::size_t>(value) < setting.englishChoices.size();
}

bool meansTheSame(const Setting& setting, std::string_view a, std::string_view b) {
  if (isReal(setting.kind)) return skg::leadingReal(a) == skg::leadingReal(b);
  if (setting.kind == SlotKind::Flag) return (skg::leadingInteger(a) != 0) == (skg::leadingInteger(b) != 0);
  if (isNumeric(setting.kind)) return skg::leadingInteger(a) == skg::leadingInteger(b);
  if (setting.kind == SlotKind::Colour) return skg::colourIndex(a) == skg::colourIndex(b);
  return a == b;
}

std::string shown(const Setting& setting, std::string_view text, Language language) {
  if (setting.kind == SlotKind::Colour) return colourWord(setting, text, language);
  if (!isNumeric(setting.kind)) return text.empty() ? inQuotes(text) : printable(text);
  if (readingOf(setting.kind, text) != Reading::Whole || !isInList(setting, text)) return inQuotes(text);
  if (isReal(setting.kind)) return withUnit(setting, skg::leadingReal(text));
  const int value = skg::leadingInteger(text);
  if (setting.kind == SlotKind::Flag) return flagWord(value != 0, language);
  if (setting.kind == SlotKind::Choice) return setting.choices(language)[static_cast<std::size_t>(value)];
  return std::to_string(value);
}

const char* defaultRemark(Language language) { return language == Language::Japanese ? " (初期値)" : " (default)"; }

std::string sixDecimals(double value) {
  std::array<char, 512> buffer;  // the greatest double has 309 digits
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 6);
  return {buffer.data(), result.ptr};
}

std::string shortNumber(double value) {
  std::string text = sixDecimals(value);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text == "-0" ? "0" : text;
}

}  // namespace standin::rigs
