// Gives a bone the settings that were stored on its skelegon, by sending Layout one command after another.
// Called by the conversion tool, in Layout, with the host's services acquired.
//
// All functions answer false when the sequence had to end; what was sent before stays in effect. Failures of the host layer
// (a channel that is missing, a service that is gone) pass through as CBaseEx.
#pragma once

#include <string>

#include "host/lwtool2_scene.h"
#include "skelegon/slots.h"

namespace lwp {

// Selects the bone and sends it its settings; helper items that do not exist yet are made as nulls.
bool ApplyBoneParameters(lw::CSceneItems& scene, lw::ItemId bone, const skg::SkelegonProperties& properties);

// Parents the bone and its helper items; a pair whose items are not both there is passed over.
bool ApplyItemParents(lw::CSceneItems& scene, const skg::SkelegonProperties& properties);

// Visibility, colour and shape of the helper items.
bool ApplyItemShapes(lw::CSceneItems& scene, const skg::SkelegonProperties& properties);

// The item of that name, or a new null of that name ("Null" for an empty one) placed at the reference: always at its
// position, at its rotation and scale where these are to match. Null when none could be made; the selection is as before.
lw::ItemId FindOrCreateNull(lw::CSceneItems& scene, const std::string& name, lw::ItemId reference, bool matchRotation,
                            bool matchScale);

// A colour index of 15 leaves the colour alone.
bool SetItemLook(lw::ItemId item, bool visible, int colourIndex, bool addShape);

// Gives the item the shape server, unless it has it.
bool EnsureItemShape(lw::ItemId item);

// Moves `item` to where `reference` is in the world, whatever its own parent and rotation order are. False when the parent's
// scale leaves no such place.
bool MatchTransform(lw::ItemId item, lw::ItemId reference, bool matchRotation, bool matchScale);

}  // namespace lwp
