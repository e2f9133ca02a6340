// The scene as text: what is there, and which settings differ from those of a fresh item. The same on every machine.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "standin/layout/scene.h"

namespace standin {

// One setting by its English name, with its value and unit as text.
struct Setting {
  std::string name;
  std::string value;
  bool operator==(const Setting&) const = default;
};

// Every setting that the item's kind has, always in the same order.
std::vector<Setting> settingsOf(const Scene& scene, const Item& item);
// Those that a fresh item of the kind does not have.
std::vector<Setting> changedSettings(const Scene& scene, const Item& item);

struct SceneCounts {
  std::size_t objects = 0;  // that come from files
  std::size_t nulls = 0;
  std::size_t bones = 0;
  std::size_t lights = 0;
  std::size_t cameras = 0;
  std::size_t changed = 0;  // settings that differ, of all items
};

SceneCounts countScene(const Scene& scene);

// Objects with their bones as a tree, then nulls, lights and cameras, then the counts.
std::string sceneReport(Scene& scene, double time = 0);

}  // namespace standin
