// A module in miniature, built several times with one thing wrong each, to see that the loader says what it is.
#include <stdexcept>

#include "interface/exported.h"
#include "interface/lightwave.h"

#ifndef SAMPLE_SYNC
#define SAMPLE_SYNC lw::kSysSync
#endif
#ifndef SAMPLE_VERSION
#define SAMPLE_VERSION lw::kSysVersion
#endif
#ifndef SAMPLE_MACHINE
#define SAMPLE_MACHINE lw::kSysMachine
#endif
#ifndef SAMPLE_SYMBOL
#define SAMPLE_SYMBOL _mod_descrip
#endif

namespace {

int starts = 0;

void* startUp() {
#ifdef SAMPLE_STARTUP_NULL
  return nullptr;
#else
#ifdef SAMPLE_STARTUP_THROWS
  throw std::runtime_error("no");
#endif
  ++starts;
  return &starts;
#endif
}

void shutDown(void* serverData) { *static_cast<int*>(serverData) = 0; }

// 1 for another version, 2 without the item service or with wrong data, else 0; asks for a message on the way.
int activate(int version, lw::GlobalFunc global, void* local, void* serverData) {
#ifdef SAMPLE_ACTIVATE_THROWS
  throw std::runtime_error("no");
#endif
  if (version != lw::kLayoutGenericVersion) return lw::kActivationBadVersion;
  const bool started = serverData == &starts && starts == 1;
  if (!started || local == nullptr || global("LW Item Info 9", lw::kUseTransient) == nullptr)
    return lw::kActivationBadGlobal;
  return lw::kActivationOk;
}

const lw::ServerRecord servers[] = {
    {"LayoutGeneric", "Sample:One", &activate, nullptr},
    {"CommandSequence", "Sample:Two", &activate, nullptr},
    {nullptr, nullptr, nullptr, nullptr},
};

}  // namespace

extern "C" {
extern LW_EXPORTED lw::ModuleDescriptor SAMPLE_SYMBOL;
LW_EXPORTED lw::ModuleDescriptor SAMPLE_SYMBOL = {SAMPLE_SYNC, SAMPLE_VERSION, SAMPLE_MACHINE, &startUp, &shutDown, servers};
}
