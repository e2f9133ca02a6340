#include "probe/not_tellable.h"

#include <array>

namespace probe {
namespace {

constexpr const char* kEyes = "only eyes can tell";
constexpr const char* kObject = "a matter of the object, not of the host";

constexpr std::array kNotTellable{
    NotTellable{"erasing", nullptr, kEyes},
    NotTellable{"moving", nullptr, kEyes},
    NotTellable{"setting", nullptr, kEyes},
    NotTellable{"other-maps", nullptr, kObject},
};

}  // namespace

std::span<const NotTellable> notTellable() { return kNotTellable; }

}  // namespace probe
