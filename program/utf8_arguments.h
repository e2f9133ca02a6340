// Arguments and output in UTF-8 on every system, and output with the same bytes.
#pragma once

#include <string>
#include <vector>

namespace standin {

// The arguments behind the program's name, with files in the place of "*" and "?".
std::vector<std::string> utf8Arguments(int argc, char** argv);

// Lets standard output take UTF-8 and write line ends as they are.
void useUtf8Streams();

}  // namespace standin
