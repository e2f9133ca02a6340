// What is open about the panel services.
#include <array>

#include "standin/variants/set.h"

namespace standin {
namespace {

constexpr VariantValue kSetsFire[]{{"silent"}, {"fire", set<&P::setsFireEvents, true>}};
constexpr VariantValue kOpenAnswer[]{
    {"1"}, {"0", set<&P::openAnswer, 0>}, {"minus-1", set<&P::openAnswer, -1>}, {"any", set<&P::openAnswer, 0x5A5A5A5A>}};
constexpr VariantValue kOpenHook[]{{"shown"},
                                   {"before", set<&P::openHook, OpenHook::Before>},
                                   {"later", set<&P::openHook, OpenHook::Later>},
                                   {"later-after-0", set<&P::openHook, OpenHook::Later, &P::openAnswer, 0>}};
constexpr VariantValue kCloseHook[]{{"always"}, {"user", set<&P::closeCallsHook, false>}};
constexpr VariantValue kPanelSize[]{{"resizable"}, {"always", set<&P::sizeNeedsResizable, false>}};
constexpr VariantValue kResizeHook[]{{"user"}, {"sets", set<&P::resizeHookOnSet, true>}};
constexpr VariantValue kRepeatedChoice[]{{"fires"}, {"silent", set<&P::repeatedChoiceFires, false>}};
constexpr VariantValue kOutsideIndex[]{{"kept"},
                                       {"clamped", set<&P::outsideIndex, OutsideIndex::Clamped>},
                                       {"not-negative", set<&P::outsideIndex, OutsideIndex::NotNegative>},
                                       {"ignored", set<&P::outsideIndex, OutsideIndex::Ignored>}};
// A host of both habits: where an index is clamped, only a change of the choice tells.
constexpr VariantValue kMenu[]{
    {"free"},
    {"clamped-and-silent", set<&P::outsideIndex, OutsideIndex::Clamped, &P::repeatedChoiceFires, false>},
    {"ignored-and-silent", set<&P::outsideIndex, OutsideIndex::Ignored, &P::repeatedChoiceFires, false>},
    {"not-negative-and-silent", set<&P::outsideIndex, OutsideIndex::NotNegative, &P::repeatedChoiceFires, false>}};
constexpr VariantValue kPopupFunctions[]{{"menu"}, {"anytime", set<&P::asksPopupsAnytime, true>}};
constexpr VariantValue kErasing[]{{"covers"}, {"spares", set<&P::eraseCovers, false>}};
constexpr VariantValue kMoving[]{{"seen"}, {"drawn", set<&P::movesRepaint, false>}};
constexpr VariantValue kSetting[]{{"seen"}, {"drawn", set<&P::setsRepaint, false>}};
constexpr VariantValue kEarlyDrawing[]{{"holds"}, {"lost", set<&P::drawBeforeOpenHolds, false>}};
constexpr VariantValue kTyping[]{{"at-the-end"}, {"letters", set<&P::firesAtEachLetter, true>}};
constexpr VariantValue kRange[]{{"whole-numbers"},
                                {"all-typed", set<&P::limitsTypedValues, true>},
                                {"all", set<&P::limitsTypedValues, true, &P::limitsSetValues, true>},
                                {"none", set<&P::slidersLimitTyped, false>}};
constexpr VariantValue kRangeUnit[]{{"shown"}, {"value", set<&P::rangesInValueUnit, true, &P::limitsTypedValues, true>}};
constexpr VariantValue kTextKeeping[]{{"read"}, {"copied", set<&P::copiesTexts, true>}};
constexpr VariantValue kCutTexts[]{{"full"}, {"terminated", set<&P::terminatesTexts, true>}};
constexpr VariantValue kFieldLength[]{{"any"}, {"255", set<&P::longestText, 255>}};
constexpr VariantValue kPadding[]{{"0"}, {"3", set<&P::rightPadding, 3>}};
constexpr VariantValue kRows[]{{"20"}, {"18", set<&P::rowHeight, 18>}, {"22", set<&P::rowHeight, 22>}};

constexpr std::array kPanelVariants{
    HostVariant{"sets", "Whether setting a value fires the control's event",
                "samples call their own handler after a set, so it probably does not",
                "ignores events while it sets values itself", kSetsFire},
    HostVariant{
        "open-answer", "What `open` answers for a panel that was shown and does not block",
        "not documented; an answer that is not 0 is what other services give for success",
        "asks the open and close hooks whether a panel is open; a panel of which they told nothing is closed before it is "
        "opened again or destroyed",
        kOpenAnswer},
    HostVariant{"open-hook", "When the open hook is called",
                "documented as after the panel is shown; whether `open` has returned by then is not",
                "does what is to be done to an open panel when `open` returns and again when the hook comes late",
                kOpenHook},
    HostVariant{"close-hook", "Whether `close` calls the close hook",
                "documented for both ways of closing; the user's is the usual one",
                "takes the panel for closed after `close`, with or without the hook", kCloseHook},
    HostVariant{
        "panel-size", "Whether an open panel that is not resizable takes a size from the module",
        "the documents tie sizes of open panels to the resizable flag",
        "sets the size before opening; that the property panel's width changes at each switch is for hosts that take it",
        kPanelSize},
    HostVariant{"resize-hook", "Whether a size that the module sets calls the resize hook",
                "only the hook's signature is known; after the user's dragging it must come",
                "places everything anew at each call, to the same places for the same size", kResizeHook},
    HostVariant{"same-choice", "Whether choosing the entry that is chosen already fires",
                "documented only as: when the user changes them",
                "lets its choosers rest on no entry, so that each choice is a change", kRepeatedChoice},
    HostVariant{
        "outside-index", "What becomes of an index outside its list that the module sets",
        "not documented; the list is the module's, so the host may not know its end",
        "sets none for a fixed list: a stored choice that is outside shows as the default and stays stored. Its choosers "
        "rest on -1, or behind the end; where the index read back is one of the list, on a blank entry at its end",
        kOutsideIndex},
    HostVariant{"silent-menu", "The two before together",
                "each makes the other worse: an entry that the chooser rests on could not be chosen",
                "offers the blank entry to hosts that hold indices to the list, and to no others", kMenu},
    HostVariant{"popup-functions", "When, and for which indices, the functions of a custom popup are called",
                "documented for each opening of the menu; that they must bear any index suggests more",
                "answers at any time, an empty text outside the list and for a control without user data", kPopupFunctions},
    HostVariant{
        "erasing", "Whether erasing a control paints over what else is there",
        "erasing fills an area; the strictest reading is that it looks at nothing else",
        "erases all that go before it shows the first of those that come, at each switch of page, group, mode and name",
        kErasing},
    HostVariant{"moving", "Whether a control moved on an open panel is seen at its new place at once",
                "how the host repaints is not documented", "erases, moves and shows; redraws the panel after a resize",
                kMoving},
    HostVariant{"setting", "Whether a value set on an open panel is seen at once",
                "samples draw edit fields by hand after a set; of other kinds nothing is told",
                "draws every control whose value it has set", kSetting},
    HostVariant{"early-drawing", "Whether what is hidden before a panel opens stays hidden",
                "not documented; a flag of the control is the simplest way to do it",
                "hides and shows once more when the panel is open", kEarlyDrawing},
    HostVariant{"typing", "When typing into a field fires",
                "documented only as: when the user changes them; most fields take a text when they are left",
                "stores each text that it is told of; the last one stays", kTyping},
    HostVariant{
        "range", "For which values the least and greatest value of a field hold",
        "not documented; for whole numbers beside a slider it is likely",
        "gives ranges that hold every sensible value: percents to 100,000, angles to 36,000 degrees, distances and numbers "
        "to 1,000,000, all below zero too",
        kRange},
    HostVariant{"range-unit", "Whether the range of an angle counts degrees or radians",
                "the host's own helpers give 0 to 360, which suggests degrees",
                "gives ranges that are wide enough in either", kRangeUnit},
    HostVariant{"texts", "Whether labels, titles, lists and popup names are copied",
                "not documented; reading them when needed asks more of the module", "keeps them alive as long as the panel",
                kTextKeeping},
    HostVariant{"cut-texts", "Whether a text that fills the buffer ends with a zero",
                "not documented; without it is what asks more of the module",
                "keeps a byte of its own behind the buffer, and ends the text with a whole character", kCutTexts},
    HostVariant{"field-length", "How long a text an edit field holds, in bytes",
                "not documented; a fixed buffer is plausible",
                "ends the text that is left with a whole character, unless it ended so when it was set", kFieldLength},
    HostVariant{"padding", "Pixels right of a control's hot area", "documented: the label width may differ by padding",
                "places hot areas by the label width alone", kPadding},
    HostVariant{"rows", "The height of a control of one row, in pixels", "any metric serves; 20 is close to the host's font",
                "leaves 22 pixels from row to row", kRows},
};

}  // namespace

std::span<const HostVariant> panelVariants() { return kPanelVariants; }

}  // namespace standin
