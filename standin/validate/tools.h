// What the module under test has to offer, and what it may need from the host for it.
#pragma once

#include <array>

#include "interface/lightwave.h"
#include "standin/core/tool_names.h"

namespace standin::validate {

enum class Program { Modeler, Layout };

struct Tool {
  const char* server;
  const char* className;
  Program program;
  int version;  // of its local data
};

inline constexpr Tool kSelector{kSelectorTool, "CommandSequence", Program::Modeler, lw::kModCommandVersion};
inline constexpr Tool kRenamer{kRenamerTool, "CommandSequence", Program::Modeler, lw::kModCommandVersion};
inline constexpr Tool kProperty{kPropertyTool, "CommandSequence", Program::Modeler, lw::kModCommandVersion};
inline constexpr Tool kConversion{kConversionTool, "LayoutGeneric", Program::Layout, lw::kLayoutGenericVersion};
// In the order of the server table.
inline constexpr std::array kTools{kSelector, kRenamer, kProperty, kConversion};

constexpr const char* nameOf(Program program) { return program == Program::Modeler ? "Modeler" : "Layout"; }

}  // namespace standin::validate
