// What is open about the mouse over a panel, and about who paints when.
#include <array>

#include "standin/variants/variants.h"

namespace standin {
namespace {

void hooksOnly(HostOptions& host) {
  host.panels.mouse = MouseDelivery::Hooks;
  host.panels.hooksNeedMouseFlag = false;
}
void eventOnly(HostOptions& host) { host.panels.mouse = MouseDelivery::Control; }

constexpr VariantValue kMouse[]{
    {"event"},
    {"event-buttons",
     [](HostOptions& host) {
       eventOnly(host);
       host.panels.eventMouse = EventMouse::Buttons;
     }},
    {"event-presses",
     [](HostOptions& host) {
       eventOnly(host);
       host.panels.eventMouse = EventMouse::Presses;
     }},
    {"hooks", hooksOnly},
    {"both", [](HostOptions& host) { host.panels.hooksNeedMouseFlag = false; }},
    {"both-presses",
     [](HostOptions& host) {
       host.panels.hooksNeedMouseFlag = false;
       host.panels.eventMouse = EventMouse::Presses;
     }},
    {"hooks-beside",
     [](HostOptions& host) {
       host.panels.hooksNeedMouseFlag = false;
       host.panels.hooksBesideControlsOnly = true;
     }},
};
constexpr VariantValue kFirst[]{
    {"hooks"},
    {"event", [](HostOptions& host) { host.panels.eventBeforeHooks = true; }},
};
constexpr VariantValue kDragHook[]{
    {"motion"},
    {"button", [](HostOptions& host) { host.panels.dragHook = DragHook::Button; }},
};
constexpr VariantValue kClicks[]{
    {"place"},
    {"time", [](HostOptions& host) { host.panels.clickCount = ClickCount::ByTime; }},
    {"constant", [](HostOptions& host) { host.panels.clickCount = ClickCount::Constant; }},
    {"never", [](HostOptions& host) { host.panels.clickCount = ClickCount::Never; }},
};
constexpr VariantValue kQualifiers[]{
    {"last"},
    {"told", [](HostOptions& host) { host.panels.qualifiersAreOfTold = true; }},
};
constexpr VariantValue kPosition[]{
    {"panel"},
    {"control", [](HostOptions& host) { host.panels.mouseFromControl = true; }},
};
constexpr VariantValue kWheel[]{
    {"up"},
    {"down", [](HostOptions& host) { host.panels.wheelCountsDown = true; }},
};
constexpr VariantValue kPainter[]{
    {"draw"},
    {"event", [](HostOptions& host) { host.panels.painter = Painter::EventCallback; }},
    {"both", [](HostOptions& host) { host.panels.painter = Painter::Both; }},
};
constexpr VariantValue kPaintTime[]{
    {"later"},
    {"within", [](HostOptions& host) { host.panels.paintsAtOnce = true; }},
};
constexpr VariantValue kContext[]{
    {"callbacks"},
    {"hooks", [](HostOptions& host) { host.panels.contextInHooks = true; }},
};
constexpr VariantValue kOpenResize[]{
    {"silent"},
    {"told", [](HostOptions& host) { host.panels.resizeHookOnOpen = true; }},
};

constexpr std::array kMouseVariants{
    HostVariant{
        "mouse", "By which calls the mouse over the tree arrives, for a panel opened without flag 8",
        "documented are the hooks, which need flag 8, and the control's event; of what the event tells is not said: all, "
        "presses and releases, or presses only. With hooks-beside a press that a control hears reaches no hook",
        "takes each press once. Until the first release is heard, a step with the button down counts as a press, however "
        "short; the first release shows such presses to have been moves and takes them back, but not where the event "
        "paints too, for a paint may show the button up: there a hand that trembles twice during a click may click twice. "
        "Where the event tells of presses only and paints, a second press at the same place, while a paint is due, is told "
        "in the words of a "
        "paint and is taken for one, unless the host counts it",
        kMouse},
    HostVariant{"mouse-order", "Which call comes first where a press arrives in both ways", "not documented",
                "knows the press by place and bits; later on counts presses by the hooks only", kFirst},
    HostVariant{"drag-hook", "Which hook tells of moves with a button down", "the motion hook is the plain reading",
                "takes a further press of the same button, where releases are told, for a move", kDragHook},
    HostVariant{
        "clicks", "How quick clicks are counted", "attribute 24 is a click count; its rule is not documented",
        "takes the second of two quick clicks on one row for a double-click; where none are counted the right button opens "
        "and closes rows",
        kClicks},
    HostVariant{
        "qualifiers", "Of which event the panel's qualifiers are",
        "documented as those of the last mouse event; whether one counts that was told by no call is not said",
        "takes what stands there when the panel opens for old, and a repetition, where the event paints, for nothing",
        kQualifiers},
    HostVariant{"mouse-origin", "From where a control's mouse position counts",
                "documented as relative to the panel; the name of the attribute says otherwise",
                "compares it with the panel's own position", kPosition},
    HostVariant{
        "wheel", "Which way the wheel's count is positive", "not documented; up is usual",
        "scrolls three rows for each count, up for a positive one: by a wheel that counts the other way it scrolls the "
        "other way",
        kWheel},
    HostVariant{"painter", "Which callback of an OpenGLControl an exposure calls",
                "not documented; the context is current in both, and a sample paints from the event callback",
                "draws in both, after it has done what the mouse asks for", kPainter},
    HostVariant{"paint-time", "When a control that is to be repainted is painted", "not documented; windows paint later",
                "takes an event that comes while it asks for the paint for that paint", kPaintTime},
    HostVariant{"context", "Whether the drawing context is current in the panel's hooks, too",
                "documented for the control's callbacks only", "draws in the control's callbacks only", kContext},
    HostVariant{"open-resize", "Whether opening a panel calls its resize hook", "only the hook's signature is documented",
                "lays the panel out whenever it is told a size", kOpenResize},
};

}  // namespace

std::span<const HostVariant> mouseVariants() { return kMouseVariants; }

}  // namespace standin
