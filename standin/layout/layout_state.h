// One session of the stand-in Layout: the scene and everything beside it that commands change and queries show.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standin/layout/options.h"
#include "standin/layout/scene.h"
#include "standin/layout/transcript.h"

namespace standin {

struct LayoutState {
  explicit LayoutState(const LayoutOptions& options) : scene(options) {}

  Scene scene;
  Transcript transcript;
  double time = 0;  // of the interface, in seconds
  bool ikEnabled = true;
  bool motionControllersEnabled = true;
  bool deformationsEnabled = true;
  int autoConfirm = 0;  // 1 answers yes, -1 answers no, 0 asks
  std::size_t refreshes = 0;
  // The server plug-ins that this host has to apply to items.
  std::vector<AppliedServer> knownServers{{"CustomObjHandler", "LW_ItemShape"}};
  // Looks on behind each command that was accepted, before another plug-in acts.
  std::function<void(LayoutState&, std::string_view command)> watch;
};

}  // namespace standin
