// What the subcommands of the program share.
#pragma once

#include <string>
#include <utility>

#include "interface/lightwave.h"
#include "objectfile/file_bytes.h"
#include "standin/core/module_file.h"
#include "standin/core/tool_names.h"
#include "standin/panels/panel.h"
#include "standin/panels/person.h"

namespace standin {

// Exit codes, beside 0: something that the command looked at went wrong, or it could not do what it was asked for.
inline constexpr int kNotAllWell = 1;
inline constexpr int kTrouble = 2;

// What ends a subcommand: a sentence for the user.
struct Trouble {
  std::string why;
};

std::string fileNameOf(const std::string& path);

// Prints the text with each line moved in.
void indent(const std::string& text);

// Throws Trouble unless it could be done.
void must(const Done& done);
// The same for a result that has to be there.
template <class T>
T* must(T* thing, const std::string& what) {
  if (thing == nullptr) throw Trouble{what + " is missing"};
  return thing;
}

// The module of --module, else the one beside the program. Throws Trouble.
void loadModule(ModuleFile& module, const std::string& chosen);

// The file of --module, else the probe beside the program or in its folder of the zip. Throws Trouble.
std::string probeFile(const std::string& chosen);

// Makes the folder when it is not there. Throws Trouble.
void mustBeFolder(const std::string& path);

// Runs a tool in Modeler or Layout; the panel that it opened. Throws Trouble.
template <class Host>
Panel& openTool(Host& host, ModuleFile& module, const char* tool) {
  if (host.activate(module, tool) != 0) throw Trouble{std::string(tool) + " could not be activated"};
  return *must(panels().find(tool), std::string("the panel of ") + tool);
}

// Ends the module's stay; throws Trouble with the faults that the host noted.
void endSession(ModuleFile& module);

// The locale of --lang: "en" or "ja".
std::uint32_t localeOf(const std::string& language);

// To the error output, so that what is printed stays data.
void printTrouble(const Trouble& trouble);

// Runs the action, which gives the exit code, and prints what ended it.
template <class Action>
int exitCodeOf(Action&& action) {
  try {
    return std::forward<Action>(action)();
  } catch (const Trouble& trouble) {
    printTrouble(trouble);
    return kTrouble;
  }
}

// The same for an action that is done when it returns.
template <class Action>
int reporting(Action&& action) {
  return exitCodeOf([&] {
    std::forward<Action>(action)();
    return 0;
  });
}

}  // namespace standin
