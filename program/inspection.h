// A file looked into, for the subcommands that tell what was found.
#pragma once

#include <string>

#include "objectfile/object_file.h"
#include "program/command_line.h"
#include "rigs/code_page.h"
#include "rigs/report.h"

namespace standin {

// The option --code-page, and the code page that it names. Throws Trouble for one that is not known.
CommandOption codePageOption(std::string& target);
rigs::CodePage codePageOf(const std::string& name);

// As it is shown: texts in the Japanese code page are read, and judged as they are stored.
struct InspectedObject {
  rigs::Inspected inspected;  // with why the file cannot be read, if so
  ObjectFile object;
};
InspectedObject inspectObject(const std::string& path, const rigs::CodePage& codePage);

}  // namespace standin
