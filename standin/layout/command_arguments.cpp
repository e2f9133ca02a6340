#include "standin/layout/command_arguments.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace standin {
namespace {

template <class Number, class... Form>
bool readWhole(std::string_view text, Number& out, Form... form) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), out, form...);
  return error == std::errc() && end == text.data() + text.size();
}

std::string quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

// Each gives an empty text, or why the argument is wrong.

std::string readInteger(const ArgumentRule& rule, std::string_view text, Argument& out) {
  if (!readWhole(text, out.integer)) return quoted(text) + " is no whole number";
  if (out.integer < rule.least || out.integer > rule.greatest) return std::string(text) + " is out of range";
  return {};
}

std::string readReal(std::string_view text, Argument& out) {
  if (!readWhole(text, out.real, std::chars_format::fixed) || !std::isfinite(out.real))
    return quoted(text) + " is no number";
  return {};
}

std::string readWholeReal(std::string_view text, Argument& out) {
  std::string why = readReal(text, out);
  if (!why.empty()) return why;
  if (std::trunc(out.real) != out.real || std::abs(out.real) > std::numeric_limits<int>::max()) {
    return std::string(text) + " is not whole";
  }
  out.integer = static_cast<int>(out.real);
  return {};
}

std::string readItem(Scene& scene, std::string_view text, Argument& out) {
  std::uint32_t number = 0;
  if (!text.starts_with("0x") || !readWhole(text.substr(2), number, 16)) return quoted(text) + " is no item identifier";
  out.item = scene.byNumber(number);
  if (out.item == nullptr) return std::string(text) + " is no item";
  if (!out.item->alive) return std::string(text) + " is an item that was removed";
  return {};
}

std::string readOne(Scene& scene, const ArgumentRule& rule, std::string_view text, Argument& out) {
  out.given = true;
  switch (rule.kind) {
    case ArgumentKind::Integer:
    case ArgumentKind::OptionalInteger: return readInteger(rule, text, out);
    case ArgumentKind::Real: return readReal(text, out);
    case ArgumentKind::WholeReal: return readWholeReal(text, out);
    case ArgumentKind::Item: return readItem(scene, text, out);
    case ArgumentKind::Word:
    case ArgumentKind::Rest:
    case ArgumentKind::OptionalRest: out.text = text; return {};
  }
  return "unknown kind of argument";
}

bool takesRest(ArgumentKind kind) { return kind == ArgumentKind::Rest || kind == ArgumentKind::OptionalRest; }
bool mayBeMissing(ArgumentKind kind) { return kind == ArgumentKind::OptionalInteger || kind == ArgumentKind::OptionalRest; }

}  // namespace

std::optional<ArgumentFailure> readArguments(Scene& scene, const std::vector<ArgumentRule>& rules, std::string_view text,
                                             Arguments& out) {
  out.assign(rules.size(), Argument());
  for (std::size_t i = 0; i < rules.size(); ++i) {
    const bool nothingLeft = text.empty() || text == " ";
    if (nothingLeft && mayBeMissing(rules[i].kind)) {
      text = {};
      continue;
    }
    if (nothingLeft) return ArgumentFailure{true, "argument " + std::to_string(i + 1) + " is missing"};
    text.remove_prefix(1);
    const std::size_t end = takesRest(rules[i].kind) ? text.size() : std::min(text.find(' '), text.size());
    if (end == 0) return ArgumentFailure{false, "two spaces in a row"};
    std::string why = readOne(scene, rules[i], text.substr(0, end), out[i]);
    if (!why.empty()) return ArgumentFailure{false, std::move(why)};
    text.remove_prefix(end);
  }
  if (!text.empty()) return ArgumentFailure{false, "too many arguments"};
  return std::nullopt;
}

}  // namespace standin
