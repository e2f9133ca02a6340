// What is open about the panel services.
#include <array>

#include "standin/variants/variants.h"

namespace standin {
namespace {

constexpr VariantValue kMouse[]{
    {"both"},
    {"hooks",
     [](HostOptions& host) {
       host.panels.mouse = MouseDelivery::Hooks;
       host.panels.hooksNeedMouseFlag = false;
     }},
    {"control", [](HostOptions& host) { host.panels.mouse = MouseDelivery::Control; }},
};
constexpr VariantValue kSetsFire[]{
    {"silent"},
    {"fire", [](HostOptions& host) { host.panels.setsFireEvents = true; }},
};

constexpr std::array kPanelVariants{
    HostVariant{"mouse", "By which way mouse input over a panel arrives",
                "both ways are documented: the panel's hooks, and the event of the control below the pointer",
                "takes each press once, whichever way it comes", kMouse},
    HostVariant{"sets", "Whether setting a value fires the control's event",
                "samples call their own handler after a set, so it probably does not",
                "ignores events while it sets values itself", kSetsFire},
};

}  // namespace

std::span<const HostVariant> panelVariants() { return kPanelVariants; }

}  // namespace standin
