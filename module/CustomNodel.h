// What the host sees of the module: the descriptor, the servers and their activations.
#pragma once

#include "interface/lightwave.h"

namespace varnel {

// True for the host releases that the module works with: major revision 15.
bool CheckHostVersion(lw::GlobalFunc global);

// The host's activation signature. They check the interface version and the host, acquire its services and texts, and run
// their tool. A tool that fails is reported and counts as done: the host must not ask again.
int ActivateSelector(int version, lw::GlobalFunc global, void* local, void* serverData);
int ActivateRenamer(int version, lw::GlobalFunc global, void* local, void* serverData);
int ActivateProperty(int version, lw::GlobalFunc global, void* local, void* serverData);
int ActivateOptimize(int version, lw::GlobalFunc global, void* local, void* serverData);

}  // namespace varnel
