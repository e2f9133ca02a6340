// Modeler or Layout on a chosen host: the program with its options, and the panel services with theirs.
#pragma once

#include "standin/layout/layout_host.h"
#include "standin/modeler/modeler_host.h"
#include "standin/panels/panel.h"
#include "standin/variants/variants.h"

namespace standin {

class PlayedModeler : public ModelerHost {
 public:
  explicit PlayedModeler(const HostOptions& options) : ModelerHost(options.modeler) { panels().options = options.panels; }
};

class PlayedLayout : public LayoutHost {
 public:
  explicit PlayedLayout(const HostOptions& options) : LayoutHost(options.layout) { panels().options = options.panels; }
};

}  // namespace standin
