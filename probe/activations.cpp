#include "probe/activations.h"

#include "host/lwtool2_errors.h"
#include "probe/probe_panel.h"

namespace probe {
namespace {

int activation(int version, int wanted, const Host& host) {
  return lw::guarded(
      [&]() -> int {
        if (version != wanted) return lw::kActivationBadVersion;
        try {
          probePanel().open(host);
        } catch (const Trouble&) {
          return lw::kActivationBadGlobal;  // without panels there is nobody to ask
        }
        return lw::kActivationOk;
      },
      static_cast<int>(lw::kActivationBadGlobal));
}

}  // namespace

int activateInModeler(int version, lw::GlobalFunc global, void* local, void* /*serverData*/) {
  Host host{Program::Modeler, global};
  if (version == lw::kModCommandVersion && local != nullptr) {
    const auto& command = *static_cast<const lw::LWModCommand*>(local);
    host.data = command.data;
    host.evaluate = command.evaluate;
    host.editBegin = command.editBegin2;
  }
  return activation(version, lw::kModCommandVersion, host);
}

int activateInLayout(int version, lw::GlobalFunc global, void* /*local*/, void* /*serverData*/) {
  return activation(version, lw::kLayoutGenericVersion, {Program::Layout, global});
}

}  // namespace probe
