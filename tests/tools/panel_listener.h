// Another open tool panel: it keeps what it is told. For tests that have a tool's code in their own program.
#pragma once

#include <vector>

#include "modeler/shared/open_panels.h"

namespace varnel::test {

class PanelListener {
 public:
  PanelListener() {
    mst::enterPanel(this, [](void* self, mst::PanelNews news) { static_cast<PanelListener*>(self)->heard.push_back(news); });
  }
  ~PanelListener() { mst::removePanel(this); }
  PanelListener(const PanelListener&) = delete;
  PanelListener& operator=(const PanelListener&) = delete;

  std::vector<mst::PanelNews> heard;
};

}  // namespace varnel::test
