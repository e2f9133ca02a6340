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
  integer,          // decimal, within a range
  optionalInteger,  // may be left out
  real,
  wholeReal,  // a real text whose value is a whole number
  item,       // 0x and up to eight hexadecimal digits
  word,       // up to the next space
  rest,       // everything that is left, spaces included; not empty
  optionalRest,
};

struct ArgumentRule {
  ArgumentKind kind = ArgumentKind::integer;
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
