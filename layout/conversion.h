// The conversion of the selected objects: skelegons to bones, then the stored settings onto the bones.
// Called in Layout, from the panel's button.
#pragma once

#include "host/lwtool2_scene.h"
#include "interface/lightwave.h"
#include "layout/last_object_file.h"

namespace lwp {

inline constexpr const char* kOptimizeName = "Orlo:SkelegonOptimize";

// Converts every selected object that was loaded from an object file. IK, motion controllers and deformations are off
// meanwhile and on afterwards, whatever they were before; the selection is restored. A throw of the host layer ends the
// run and passes through, with all of that put back.
void convertSelection(bool executeSkelegonToBone, bool recordPivotRotation);

// Lets Layout turn the object's own skelegons into bones.
bool ConvertSkelegons(lw::ItemId object);

// Reads the object's file, unless the run has read it last, and gives the bones of its layer their stored settings. False
// only when the file cannot be read.
bool ConvertObjectSkelegons(lw::CSceneItems& scene, CLastObjectFile& file, lw::ItemId object, bool recordPivot);

}  // namespace lwp
