// Arguments of commands: what kinds there are and how their texts are read.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/layout/scene.h"

namespace standin {

enum class ArgumentKind {
  Integer,          // decimal, within a range
  OptionalInteger,  // may be left out
  Real,
  WholeReal,  // a real text whose value is a whole number
  Item,       // 0x and up to eight hexadecimal digits
  Word,       // up to the next space
  Rest,       // everything that is left, spaces included; not empty
  OptionalRest,
};

struct ArgumentRule {
  ArgumentKind kind = ArgumentKind::Integer;
  int least = 0;
  int greatest = 0;
};

struct Argument {
  bool given = false;
  int integer = 0;
  double real = 0;
  Item* item = nullptr;
  std::string text;
};

using Arguments = std::vector<Argument>;

struct ArgumentFailure {
  bool missing = false;  // the user would be asked for it
  std::string why;
};

// `text` is what follows the name: empty, or a space and the arguments. Fills one argument for each rule.
std::optional<ArgumentFailure> readArguments(Scene& scene, const std::vector<ArgumentRule>& rules, std::string_view text,
                                             Arguments& out);

}  // namespace standin
