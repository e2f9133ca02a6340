// The picture of the probe's mouse area: two halves, so that the user sees which is meant.
#pragma once

namespace probe {

// In a callback in which the area's drawing context is current. Leaves OpenGL's state as it was.
void paintHalves(int width, int height);

}  // namespace probe
