// Modeler or Layout on a chosen host: the program with its options, the panel services with theirs, and the process around
// them.
#pragma once

#include <optional>

#include "standin/core/comma_locale.h"
#include "standin/core/globals.h"
#include "standin/layout/layout_host.h"
#include "standin/modeler/modeler_host.h"
#include "standin/panels/panel.h"
#include "standin/variants/variants.h"

namespace standin {

// Throws std::runtime_error where the system cannot be such a host's.
template <class Host, auto OptionsOfHost>
class PlayedHost : public Host {
 public:
  explicit PlayedHost(const HostOptions& options) : Host(options.*OptionsOfHost) {
    panels().options = options.panels;
    if (options.program.copiedTables) globals().copyTables();
    if (options.program.commaLocale) locale_.emplace();
  }

 private:
  std::optional<CommaLocale> locale_;
};

using PlayedModeler = PlayedHost<ModelerHost, &HostOptions::modeler>;
using PlayedLayout = PlayedHost<LayoutHost, &HostOptions::layout>;

}  // namespace standin
