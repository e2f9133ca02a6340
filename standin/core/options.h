// What hosts may differ in whichever program they are. The defaults are the well-behaved reading.
#pragma once

namespace standin {

struct ProgramOptions {
  bool commaLocale = false;  // numbers are formatted with a decimal comma in the host's process

  bool operator==(const ProgramOptions&) const = default;
};

}  // namespace standin
