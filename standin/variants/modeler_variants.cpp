// What is open about Modeler: edits, tags, layers, maps.
#include <array>

#include "standin/variants/variants.h"

namespace standin {
namespace {

constexpr VariantValue kOwnChanges[]{
    {"hidden"},
    {"seen", [](HostOptions& host) { host.modeler.editsShowOwnChanges = true; }},
};

constexpr std::array kModelerVariants{
    HostVariant{"own-changes", "Whether an edit shows its own changes before it is done",
                "changes are documented as buffered; whether reads see the buffer is not",
                "never reads back within the edit that writes", kOwnChanges},
};

}  // namespace

std::span<const HostVariant> modelerVariants() { return kModelerVariants; }

}  // namespace standin
