// A conversion as the user of the panel makes it: an object loaded, its items selected, the tool opened, its options set, the
// button pressed. For the subcommands that show one.
#pragma once

#include <string>
#include <vector>

#include "program/command_line.h"
#include "program/conversion_verdict.h"
#include "program/host_option.h"
#include "program/progress.h"
#include "program/support.h"
#include "standin/variants/played_host.h"

namespace standin {

struct ConversionOptions {
  std::string module;
  HostWords host;
  std::string language;
  bool noSkelegons = false;
  bool noPivot = false;
};

// The rows of these options; `options` has to live as long as they do.
std::vector<CommandOption> conversionOptions(ConversionOptions& options, const std::string& languageOfWhat);

class Conversion {
 public:
  // Loads the file with all its layers and selects them. Throws Trouble, as all of these do.
  Conversion(const std::string& file, const ConversionOptions& options, Progress& progress);

  LayoutHost& host() { return host_; }
  // Opens the tool and sets its options.
  const Panel& open();
  // Presses the button.
  ConversionVerdict run(Progress& progress);
  void end();

 private:
  const ConversionOptions& options_;
  std::string name_;  // of the file
  PlayedLayout host_;
  ModuleFile module_;
  const Panel* panel_ = nullptr;
};

}  // namespace standin
