// A person who runs the probe in one of the two programs: starts it, does by hand what it asks for, and takes the file.
#pragma once

#include <string>

#include "standin/core/module_file.h"
#include "standin/variants/variants.h"

namespace standin {

// Lets the probe break, until the next session, the one rule that it breaks on purpose: it sets a tag in an edit for selecting,
// to see with which code a host refuses. For those who run it themselves.
void excuseTrials();

// Whether the module has the probe's command.
bool isProbe(const ModuleFile& module);

struct MeasuredHost {
  std::string facts;       // what the file holds; empty when there is none
  std::string last;        // the probe's last line
  std::string complaints;  // rules of the host that the probe broke, and what it left in the scene; empty when none
};

// In a fresh Modeler or Layout with nothing loaded. The file is written into the folder and read from there. Throws
// std::runtime_error when the module cannot be loaded, or shows no panel.
MeasuredHost measuredModeler(const std::string& module, const HostOptions& host, const std::string& folder);
MeasuredHost measuredLayout(const std::string& module, const HostOptions& host, const std::string& folder);

}  // namespace standin
