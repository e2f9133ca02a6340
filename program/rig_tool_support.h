// What the subcommands that look into rigs share.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "objectfile/object_file.h"
#include "program/support.h"
#include "rigs/rig.h"

namespace standin {

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

}  // namespace standin
