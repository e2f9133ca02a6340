// The subcommands of the program. Exit codes: 0 for done, 1 where a comment says so, 2 for what could not be done, with the
// reason on the error output.
#pragma once

#include "program/command_line.h"

namespace standin {

// Loads object files into the stand-in Layout, lets the module convert them, and shows before and after with a verdict; 1 when
// not all went well.
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

// Those that look into rigs; their helps say when they end with 1.
Command inspectCommand();
Command commandsCommand();
Command diffCommand();
Command exportCommand();
Command importCommand();
// Writes a page for each rig.
Command reportCommand();

// Draws the bones of a rig; 1 when the conversion before it did not go all well.
Command pictureCommand();

// What hosts may differ in, for the option --host.
Command hostsCommand();
// What a file of facts tells of a host.
Command hostCommand();

// A person's run of the probe in a host that is played. 1 when it broke a rule of the host.
Command probeCommand();

// The ladder of checks against a module's file. 1 when something was found.
Command validateCommand();
// A single check, for the processes of their own; the help hides it.
Command validateCheckCommand();

}  // namespace standin
