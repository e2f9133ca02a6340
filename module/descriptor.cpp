// The one symbol that the module exports, and the table of its servers.
#include "interface/exported.h"
#include "interface/lightwave.h"
#include "layout/conversion.h"
#include "modeler/shared/tool_names.h"
#include "modeler/tools.h"
#include "module/CustomNodel.h"

namespace {

constexpr const char* kModelerCommand = "CommandSequence";
constexpr const char* kLayoutCommand = "LayoutGeneric";

const lw::ServerRecord kServers[] = {
    {kModelerCommand, mst::kSelectorName, varnel::ActivateSelector, nullptr},
    {kModelerCommand, mst::kRenamerName, varnel::ActivateRenamer, nullptr},
    {kModelerCommand, mst::kPropertyName, varnel::ActivateProperty, nullptr},
    {kLayoutCommand, lwp::kOptimizeName, varnel::ActivateOptimize, nullptr},
    {nullptr, nullptr, nullptr, nullptr},
};

// Any address but null tells the host that the module is ready; nothing hangs on it.
void* startUp() {
  return reinterpret_cast<void*>(4);  // NOLINT(performance-no-int-to-ptr)
}

void shutDown(void* /*serverData*/) {}

}  // namespace

extern "C" {
extern LW_EXPORTED const lw::ModuleDescriptor _mod_descrip;
const lw::ModuleDescriptor _mod_descrip = {
    lw::kSysSync, lw::kSysVersion, lw::kSysMachine, startUp, shutDown, kServers,
};
}
