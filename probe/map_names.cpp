#include "probe/map_names.h"

#include <algorithm>

#include "probe/host_text.h"

namespace probe {

MapNames weightMapNames(const Host& host) {
  constexpr int kMostMaps = 10000;
  const auto& objects = host.service<lw::LWObjectFuncs>("Scene Objects 9");
  const int count = std::clamp(objects.numVMaps(lw::kMapWeight), 0, kMostMaps);
  MapNames names;
  for (int index = 0; index < count; ++index) names.push_back(copied(objects.vmapName(lw::kMapWeight, index)));
  return names;
}

}  // namespace probe
