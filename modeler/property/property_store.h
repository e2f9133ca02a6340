// Bone settings in Modeler: how they are read from a skelegon's tags, and which tags each action of the property panel
// writes.
//
// The writesFor... functions only compute; applyWrites is the one place that changes the mesh. Unless one says otherwise,
// they write to the selected skelegons of those given.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/lwtool2_mesh.h"
#include "skelegon/setting_groups.h"
#include "skelegon/slots.h"

namespace mst {

// As the panel knows them from its last scan.
using PanelSkelegons = std::span<const skg::SkelegonInfo>;
using lw::TagWrites;

// The skelegons of the foreground layers as they are now. A polygon without a record is reported and ends the scan; what was
// found is given. Throws CBaseEx.
std::vector<skg::SkelegonInfo> ScanPanelSkelegons();

lw::PolygonIds selectedPolygons(PanelSkelegons skelegons);

// ---------------------------------------------------------------------------------------------------------------------
// Reading

// The settings stored on a skelegon; the default where nothing, or an empty text, is stored. All defaults for null.
// Throws CBaseEx.
skg::SkelegonProperties ReadSkelegonProperties(lw::PolygonId polygon);

// ---------------------------------------------------------------------------------------------------------------------
// Values as texts, independent of the user's locale

std::string formatInteger(int value);          // as "%d"
std::string formatReal(double value);          // as "%.6f"
std::string_view colourName(int colourIndex);  // empty for an index that is none of the 16

// ---------------------------------------------------------------------------------------------------------------------
// Writing

// A control's value, as text. The default text is not stored. Object-wide settings go to every skelegon given, selected or
// not, in a layer that has a selected one, since each layer becomes one object in Layout. Nothing for reserved slots.
TagWrites writesForValue(PanelSkelegons skelegons, skg::Slot slot, std::string_view text);

// The skelegon's name: the host's name tag and part tag alike.
TagWrites writesForName(PanelSkelegons skelegons, std::string_view name);

// The bone's colour: the host's colour tag and the copy in our own.
TagWrites writesForColour(PanelSkelegons skelegons, int colourIndex);

// A linked item's name: each skelegon's own name with the slot's suffix, if it has one ("_tar").
TagWrites writesForLinkedNames(PanelSkelegons skelegons, skg::Slot slot);

// Each skelegon takes the weight map of its own name and becomes active; where there is none it becomes inactive.
TagWrites writesForWeightMapsByName(PanelSkelegons skelegons, const std::vector<std::string>& mapNames);

// One value for the three controllers of a group.
enum class Controller : int { KeyFrames = 0, InverseKinematics = 3, SameAsItem = 6 };
TagWrites writesForControllerPreset(PanelSkelegons skelegons, skg::MotionGroup group, Controller controller);

// Removes every setting of these polygons. Name, weight map and colour, which have tags of the host's, stay.
TagWrites writesForReset(const lw::PolygonIds& polygons);

// Makes the writes in one mesh edit; no edit at all when there is nothing to write. What is no longer a skelegon of the
// current object is left out. True when all were made, and there was one. Throws CBaseEx; nothing is written then.
bool applyWrites(const TagWrites& writes);

// Stores a control's value, as applyWrites() does.
bool WriteSlotValue(PanelSkelegons skelegons, skg::Slot slot, std::string_view text);

}  // namespace mst
