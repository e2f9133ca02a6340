// What the user is told and asked in Modeler. Meanwhile they may do anything: nothing that was found in the mesh before
// holds afterwards.
#pragma once

namespace lw {

void ShowError(const char* text);

// True for yes.
bool AskYesNo(const char* title, const char* question);

}  // namespace lw
