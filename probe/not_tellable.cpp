#include "probe/not_tellable.h"

#include <array>

namespace probe {
namespace {

constexpr const char* kEyes = "only eyes can tell";

constexpr std::array kNotTellable{
    NotTellable{"erasing", nullptr, kEyes},
    NotTellable{"moving", nullptr, kEyes},
    NotTellable{"setting", nullptr, kEyes},
};

}  // namespace

std::span<const NotTellable> notTellable() { return kNotTellable; }

}  // namespace probe
