// The commands of the stand-in Layout: one text each, a name and arguments separated by single spaces.
#pragma once

#include <string>
#include <string_view>

#include "standin/layout/layout_state.h"

namespace standin {

// Runs one command (UTF-8) and enters it in the transcript, with the reason when it is rejected. Gives whether it was
// accepted.
//
// Rejected: an unknown name, arguments of another number or kind, a number out of range, nothing selected or items of a kind
// that the command is not for. A command with an argument missing would make Layout ask the user; it is listed as such.
bool runCommand(LayoutState& state, std::string_view command);

}  // namespace standin
