// The commands of the stand-in Modeler: one line each, a name and arguments.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/modeler/session.h"

namespace standin {

// What the host answers to a command; 0 is success.
enum CommandError : int {
  kCommandDone = 0,
  kCommandFiles = 2,
  kCommandArgumentCount = 2901,
  kCommandArgumentType = 2902,
  kCommandArgumentValue = 2903,
  kCommandFailed = 2904,
};

// The words of a line. Spaces separate them; double quotes delimit what holds spaces. Nothing when a quote is left open.
std::optional<std::vector<std::string>> commandWords(std::string_view line);

// Runs one command (UTF-8). Names are not case-sensitive. Nothing when there is no such command, else what is answered.
std::optional<int> runCommand(ModelerSession& session, std::string_view line);

}  // namespace standin
