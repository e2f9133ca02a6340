// What is open about the process that the module is loaded into, whichever program it is.
#include <array>

#include "standin/variants/variants.h"

namespace standin {
namespace {

constexpr VariantValue kLocale[]{
    {"c"},
    {"comma", [](HostOptions& host) { host.program.commaLocale = true; }},
};

constexpr std::array kProgramVariants{
    HostVariant{"locale", "How numbers are formatted in the host's process",
                "not documented; a program that sets nothing has the \"C\" locale, and any plug-in can set another",
                "formats and reads numbers with a decimal point in any locale", kLocale},
};

}  // namespace

std::span<const HostVariant> programVariants() { return kProgramVariants; }

}  // namespace standin
