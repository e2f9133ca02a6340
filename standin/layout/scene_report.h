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

enum class SceneReportForm {
  Short,  // behind each item how many of its settings differ; at the end each such setting with the number of its items
  Full,   // below each item every setting that differs, with its value
};

// Objects with their bones as a tree, then nulls, lights and cameras, then the counts. Lines are folded to kReportColumns.
inline constexpr std::size_t kReportColumns = 98;
std::string sceneReport(Scene& scene, SceneReportForm form = SceneReportForm::Short, double time = 0);

}  // namespace standin
