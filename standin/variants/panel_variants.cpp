// What is open about the panel services.
#include <array>

#include "standin/variants/variants.h"

namespace standin {
namespace {

constexpr VariantValue kSetsFire[]{
    {"silent"},
    {"fire", [](HostOptions& host) { host.panels.setsFireEvents = true; }},
};

constexpr std::array kVariants{
    HostVariant{"sets", "Whether setting a value fires the control's event",
                "samples call their own handler after a set, so it probably does not",
                "ignores events while it sets values itself", kSetsFire},
};

}  // namespace

std::span<const HostVariant> panelVariants() { return kVariants; }

}  // namespace standin
