// What is open about the process that the module is loaded into, whichever program it is.
#include <array>

#include "standin/variants/set.h"

namespace standin {
namespace {

constexpr VariantValue kLocale[]{{"c"}, {"comma", set<&G::commaLocale, true>}};

constexpr VariantValue kServiceTables[]{{"one"}, {"copies", set<&G::copiedTables, true>}};

constexpr std::array kProgramVariants{
    HostVariant{"locale", "How numbers are formatted in the host's process",
                "not documented; a program that sets nothing has the \"C\" locale, and any plug-in can set another",
                "formats and reads numbers with a decimal point in any locale", kLocale},
    HostVariant{
        "service-tables", "Whether each lookup of a service gives the same table or another copy of it",
        "that a service may be asked for again and stays good is documented, not that the pointer is the same",
        "asks for each service at each activation, uses the table that it got last, and writes its lookup function into "
        "each table of the panel services",
        kServiceTables},
};

}  // namespace

std::span<const HostVariant> programVariants() { return kProgramVariants; }

}  // namespace standin
