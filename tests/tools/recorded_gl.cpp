// The recorder in the place of the system's OpenGL, which is then not linked in.
#include "host/platform.h"
#include "tests/unit/gl_recorder.h"

const GlCalls* platform::glCalls() { return &mst::GlRecorder::calls(); }
