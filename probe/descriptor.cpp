// The one symbol that the probe exports, and the table of its servers.
#include "interface/exported.h"
#include "interface/lightwave.h"
#include "probe/activations.h"
#include "probe/probe_panel.h"

namespace {

const lw::ServerRecord kServers[] = {
    {"CommandSequence", probe::kToolName, probe::activateInModeler, nullptr},
    {"LayoutGeneric", probe::kToolName, probe::activateInLayout, nullptr},
    {nullptr, nullptr, nullptr, nullptr},
};

// Any address but null tells the host that the module is ready.
void* startUp() { return const_cast<lw::ServerRecord*>(kServers); }

void shutDown(void* /*serverData*/) { probe::probePanel().forget(); }

}  // namespace

extern "C" {
extern LW_EXPORTED const lw::ModuleDescriptor _mod_descrip;
const lw::ModuleDescriptor _mod_descrip = {
    lw::kSysSync, lw::kSysVersion, lw::kSysMachine, startUp, shutDown, kServers,
};
}
