// What the subcommands that look into rigs share.
#pragma once

#include <iostream>
#include <optional>
#include <string>
#include <utility>

#include "objectfile/object_file.h"
#include "program/support.h"
#include "rigs/rig.h"

namespace standin {

inline constexpr int kTrouble = 2;

// Throws Trouble.
inline ObjectFile readRigFile(const std::string& path) {
  Outcome<ObjectFile> object = readObject(path);
  if (!object) throw Trouble{object.why()};
  return std::move(*object);
}

inline void mustBeWritten(const std::optional<Failure>& failure) {
  if (failure) throw Trouble{failure->text};
}

inline rigs::Language languageOf(const std::string& name) {
  return name == "ja" ? rigs::Language::Japanese : rigs::Language::English;
}

// Runs the action, which gives the exit code. What ends it goes to the error output, so that what is printed stays data.
template <class Action>
int exitCodeOf(Action&& action) {
  try {
    return std::forward<Action>(action)();
  } catch (const Trouble& trouble) {
    std::cout.flush();
    std::cerr << "varnel: " << trouble.why << "\n";
    return kTrouble;
  }
}

}  // namespace standin
