// The subcommands of the program. Where no comment says otherwise, the exit codes are 0 for done and 1 for something went
// wrong.
#pragma once

#include "program/command_line.h"

namespace standin {

// Loads object files into the stand-in Layout, lets the module convert them, and shows before and after.
Command convertCommand();
// The typical trip of a setting, from the property panel in Modeler to the bone in Layout.
Command tripCommand();
// The panels of the tools as text.
Command panelsCommand();
// What the renamer does, as trees before and after.
Command renameCommand();
// Pictures of the module's panels, shown as real windows and used by a person's hands. Where panels cannot be shown as
// windows this command and the next only say so.
Command picturesCommand();
// A person opens an object, uses the module's Modeler tools in real windows, and saves.
Command deskCommand();
// Writes the rigs that come with the program as files.
Command rigsCommand();

// Those that look into rigs. Exit codes: 0, 1 where a command says so, and 2 when a file cannot be read or written.
Command inspectCommand();
Command commandsCommand();
Command diffCommand();
Command exportCommand();
Command importCommand();

// What hosts may differ in, for the option --host.
Command hostsCommand();

// The ladder of checks against a module's file. Exit codes: 0 sound, 1 something was found, 2 nothing could be checked.
Command validateCommand();
// A single check, for the processes of their own; the help hides it.
Command validateCheckCommand();

}  // namespace standin
