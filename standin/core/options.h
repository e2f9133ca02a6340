// What hosts may differ in whichever program they are. The defaults are the well-behaved reading.
#pragma once

namespace standin {

struct ProgramOptions {
  bool commaLocale = false;   // numbers are formatted with a decimal comma in the host's process
  bool copiedTables = false;  // each lookup of a service gives another copy of its table; the copies before it stay good

  bool operator==(const ProgramOptions&) const = default;
};

}  // namespace standin
