// The tree is not drawn on these systems.
#include "host/platform.h"

namespace platform {

const GlCalls* glCalls() { return nullptr; }

}  // namespace platform
