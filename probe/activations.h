// What the host sees of the probe: one command in each program.
#pragma once

#include "interface/lightwave.h"

namespace probe {

int activateInModeler(int version, lw::GlobalFunc global, void* local, void* serverData);
int activateInLayout(int version, lw::GlobalFunc global, void* local, void* serverData);

}  // namespace probe
