#include "standin/validate/tools.h"

namespace standin::validate {
namespace {

// clang-format off
constexpr std::array kModelerServices{
    "LWM: Dynamic Monitor 2", "LWM: State Query 5",
    "Animation Envelopes 4", "Channel Info 3", "Color Picker", "ContextMenuServices 2", "Directory Info 2", "File Request",
    "File Request 3", "Image Utility 6", "LW Image List 9", "Info Messages 4", "Instance Update", "Locale Info",
    "LWPanelServices 3", "RasterServices 4", "Scene Objects 9", "LWShelfFuncs 2", "Surface Functions 6", "LWXPanel 3",
    "LSUniversalRequester", "LW Communication Ring", "NodeInputFuncs 5", "NodeOutputFuncs 4", "NodeFuncs 3",
    "LW Light Info 6",
};
constexpr std::array kLayoutServices{
    "LW Bone Info 7", "LW Fog Info", "LW Camera Info 10", "LW Interface Info 8", "LW Item Info 9", "LW Object Info 14",
    "LW Scene Info 12", "LW Time Info", "LW Command Interface",
    "Animation Envelopes 4", "Channel Info 3", "Color Picker", "ContextMenuServices 2", "Directory Info 2", "File Request",
    "File Request 3", "Image Utility 6", "LW Image List 9", "Info Messages 4", "Instance Update", "Locale Info",
    "LWPanelServices 3", "RasterServices 4", "Scene Objects 9", "LWShelfFuncs 2", "Surface Functions 6", "LWXPanel 3",
    "LSUniversalRequester", "LW Communication Ring", "NodeInputFuncs 5", "NodeOutputFuncs 4", "NodeFuncs 3",
    "LW Light Info 6",
};
// clang-format on

}  // namespace

std::span<const char* const> requiredServices(Program program) {
  if (program == Program::Modeler) return kModelerServices;
  return kLayoutServices;
}

}  // namespace standin::validate
