// What is open about Layout: items, commands, channels, names.
#include <array>

#include "standin/variants/variants.h"

namespace standin {
namespace {

constexpr VariantValue kNewBones[]{
    {"left"},
    {"selected", [](HostOptions& host) { host.layout.newBonesSelected = true; }},
};

constexpr std::array kLayoutVariants{
    HostVariant{"new-bones", "Whether SkelegonsToBones selects the new bones",
                "the selection after the command is not documented", "selects each bone itself and restores the selection",
                kNewBones},
};

}  // namespace

std::span<const HostVariant> layoutVariants() { return kLayoutVariants; }

}  // namespace standin
