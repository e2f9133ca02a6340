// Rigs as they are drawn: with what is wrong with their bones, in words, and names that can be read.
#pragma once

#include "program/inspection.h"
#include "standin/layout/scene.h"
#include "views/posed_rig.h"

namespace standin {

views::PosedRig drawnBefore(const InspectedObject& file, rigs::Language language);
// After its conversion, in a scene with this object alone.
views::PosedRig drawnAfter(Scene& scene, const InspectedObject& file, rigs::Language language);

}  // namespace standin
