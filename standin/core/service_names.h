// The services without which no tool runs, by name. A host has more, which the module asks for and can do without.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace standin {

using ServiceNames = std::vector<std::string>;

// clang-format off
// In the order in which a module asks for them: those of the one program first.
inline ServiceNames servicesOf(std::initializer_list<const char*> program) {
  ServiceNames names(program.begin(), program.end());
  for (const char* const name : {
           "Animation Envelopes 4", "Channel Info 3", "Color Picker", "ContextMenuServices 2", "Directory Info 2",
           "File Request", "File Request 3", "Image Utility 6", "LW Image List 9", "Info Messages 4", "Instance Update",
           "Locale Info", "LWPanelServices 3", "RasterServices 4", "Scene Objects 9", "LWShelfFuncs 2",
           "Surface Functions 6", "LWXPanel 3", "LSUniversalRequester", "LW Communication Ring", "NodeInputFuncs 5",
           "NodeOutputFuncs 4", "NodeFuncs 3", "LW Light Info 6"})
    names.emplace_back(name);
  return names;
}
inline ServiceNames modelerServices() { return servicesOf({"LWM: Dynamic Monitor 2", "LWM: State Query 5"}); }
inline ServiceNames layoutServices() {
  return servicesOf({"LW Bone Info 7", "LW Fog Info", "LW Camera Info 10", "LW Interface Info 8", "LW Item Info 9",
                     "LW Object Info 14", "LW Scene Info 12", "LW Time Info", "LW Command Interface"});
}
// clang-format on

}  // namespace standin
