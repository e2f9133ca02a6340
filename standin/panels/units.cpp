#include "standin/panels/units.h"

#include <array>
#include <charconv>
#include <numbers>

namespace standin {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

struct Unit {
  std::string_view name;
  double factor;  // to what the module reads
};

constexpr std::array kDistanceUnits{Unit{"", 1},  Unit{"um", 1e-6}, Unit{"mm", 1e-3}, Unit{"cm", 1e-2},
                                    Unit{"m", 1}, Unit{"km", 1e3},  Unit{"Mm", 1e6}};
constexpr std::array kPercentUnits{Unit{"", 1}, Unit{"%", 1}};
constexpr std::array kAngleUnits{Unit{"", kDegree}, Unit{"\xC2\xB0", kDegree}};
constexpr std::array kNoUnits{Unit{"", 1}};

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

template <class Units>
std::optional<double> factorOf(const Units& units, std::string_view name) {
  for (const Unit& unit : units) {
    if (unit.name == name) return unit.factor;
  }
  return std::nullopt;
}

std::optional<double> factorFor(ControlKind kind, std::string_view unit) {
  switch (kind) {
    case ControlKind::MiniDistance: return factorOf(kDistanceUnits, unit);
    case ControlKind::Percent: return factorOf(kPercentUnits, unit);
    case ControlKind::Angle: return factorOf(kAngleUnits, unit);
    default: return factorOf(kNoUnits, unit);
  }
}

}  // namespace

std::string plainNumber(double value) {
  std::array<char, 64> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 6);
  const std::string text(buffer.data(), end.ptr);
  return text == "-0" ? "0" : text;
}

std::string shownNumber(ControlKind kind, double value) {
  switch (kind) {
    case ControlKind::Percent: return plainNumber(value) + " %";
    case ControlKind::Angle: return plainNumber(value / kDegree) + "\xC2\xB0";
    case ControlKind::MiniDistance: return plainNumber(value) + " m";
    default: return plainNumber(value);
  }
}

double valueOfShown(ControlKind kind, double shown) { return kind == ControlKind::Angle ? shown * kDegree : shown; }

std::optional<double> parseTyped(ControlKind kind, std::string_view typed) {
  const std::string_view text = trimmed(typed);
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return std::nullopt;
  const std::string_view unit = trimmed(text.substr(static_cast<std::size_t>(end - text.data())));
  const std::optional<double> factor = factorFor(kind, unit);
  if (!factor) return std::nullopt;
  return number * *factor;
}

}  // namespace standin
