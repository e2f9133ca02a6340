#include "module/CustomNodel.h"

#include <cstdint>
#include <string>
#include <vector>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_globals.h"
#include "layout/ST_CSkgConvPanel.h"
#include "layout/conversion.h"
#include "modeler/arguments.h"
#include "modeler/tools.h"

namespace varnel {
namespace {

constexpr const char* kSource = "CustomNodel";

// A missing lookup function passes here, where it cannot be asked for the release: that is a missing service, which the
// activation finds next.
bool fits(int version, int wanted, lw::GlobalFunc global) {
  return version == wanted && (global == nullptr || CheckHostVersion(global));
}

// Runs a tool. A run that throws has failed like one that answers 0; either way the failure is reported and the host told
// that the command is done.
template <class Run>
void runAndReport(Run&& run, int line) {
  const int result = lw::guarded(run, 0);
  if (result == 0) lw::ReportError(kSource, line, "");
}

// Everything of an activation that may throw is inside: the host gets "ok", as after any failure that is not its own.
template <class Activation>
int activation(Activation&& body) {
  return lw::guarded(body, static_cast<int>(lw::kActivationOk));
}

lwp::CSkgConvPanel& conversionTool() {
  static lwp::CSkgConvPanel tool;
  return tool;
}

// Emptied at each activation of the Layout tool, with its storage kept. Nothing fills it; the clearing stays as it is.
std::vector<void*>& spareItems() {
  static std::vector<void*> items;
  return items;
}

}  // namespace

bool CheckHostVersion(lw::GlobalFunc global) {
  constexpr unsigned kSupportedMajor = 15;
  struct Product {
    unsigned code, build, minor, major;
  };
  const auto word = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(global("Product Info", lw::kUseTransient)));
  const Product product{word & 0xF, word >> 4 & 0xFFF, word >> 16 & 0xF, word >> 20 & 0xF};
  return product.major == kSupportedMajor;  // product, build and minor do not matter
}

int ActivateSelector(int version, lw::GlobalFunc global, void* local, void* /*serverData*/) {
  return activation([&]() -> int {
    if (!fits(version, lw::kModCommandVersion, global)) return lw::kActivationBadVersion;
    const bool acquired = lw::AcquireHostGlobals(lw::Program::Modeler, global, local);
    // Before the check, unlike in the renamer, on purpose: the functions are taken at the first activation of all, complete
    // or not.
    lw::AcquireModelerFunctions(lw::modelerFunctions(), global, local);
    if (!acquired) return lw::kActivationBadGlobal;
    lw::LoadModelerStrings(global);
    lw::LoadRenamerStrings(global);
    runAndReport([] { return mst::runSelector(); }, 47);
    return lw::kActivationOk;
  });
}

int ActivateRenamer(int version, lw::GlobalFunc global, void* local, void* /*serverData*/) {
  return activation([&]() -> int {
    if (!fits(version, lw::kModCommandVersion, global)) return lw::kActivationBadVersion;
    if (!lw::AcquireHostGlobals(lw::Program::Modeler, global, local)) return lw::kActivationBadGlobal;
    lw::AcquireModelerFunctions(lw::modelerFunctions(), global, local);
    lw::LoadModelerStrings(global);
    lw::LoadRenamerStrings(global);
    // Split and held for the run, which does not get them: the tools have no arguments, yet a host may pass some.
    const char* const argument = static_cast<const lw::LWModCommand*>(local)->argument;
    const std::vector<std::string> words = mst::splitArguments(argument == nullptr ? "" : argument);
    lw::guarded([] { return mst::runRenamer(); }, 0);  // not tested, nothing reported
    return lw::kActivationOk;
  });
}

int ActivateProperty(int version, lw::GlobalFunc global, void* local, void* /*serverData*/) {
  return activation([&]() -> int {
    if (!fits(version, lw::kModCommandVersion, global)) return lw::kActivationBadVersion;
    if (!lw::AcquireHostGlobals(lw::Program::Modeler, global, local)) return lw::kActivationBadGlobal;
    lw::LoadModelerStrings(global);
    lw::LoadRenamerStrings(global);
    runAndReport([] { return mst::runProperty(); }, 92);
    return lw::kActivationOk;
  });
}

int ActivateOptimize(int version, lw::GlobalFunc global, void* /*local*/, void* /*serverData*/) {
  return activation([&]() -> int {
    if (!fits(version, lw::kLayoutGenericVersion, global)) return lw::kActivationBadVersion;
    if (!lw::AcquireHostGlobals(lw::Program::Layout, global, nullptr)) return lw::kActivationBadGlobal;
    spareItems().clear();
    lw::loadLayoutStrings(global);
    runAndReport([] { return conversionTool().OpenConversionPanel(); }, 114);
    return lw::kActivationOk;
  });
}

}  // namespace varnel
