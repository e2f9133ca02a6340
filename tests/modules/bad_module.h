// The faults that the bad module can have, as a list for itself and for the test that expects them to be found.
#pragma once

#include <array>
#include <string_view>

namespace varnel::test {

// Chosen by the environment variable of this name; with none the module is sound.
inline constexpr const char* kFaultVariable = "VARNEL_FAULT";

// clang-format off
#define VARNEL_FAULTS(row)                                                                         \
  row(StartsNull,             "starts-null")              /* startup answers null               */ \
  row(StartCrashes,           "start-crashes")                                                     \
  row(StartHangs,             "start-hangs")                                                       \
  row(StaysLoaded,            "stays-loaded")             /* holds itself in memory             */ \
  row(TakesAnyVersion,        "takes-any-version")                                                 \
  row(TakesAnyRelease,        "takes-any-release")                                                 \
  row(ThrowsAtActivation,     "throws-at-activation")                                              \
  row(CrashesWithoutService,  "crashes-without-service")  /* uses what a lookup gave unseen     */ \
  row(RunsWithoutService,     "runs-without-service")                                              \
  row(LeaksPanels,            "leaks-panels")             /* one at each activation             */ \
  row(OverlapsControls,       "overlaps-controls")                                                 \
  row(ThrowsFromCallback,     "throws-from-callback")                                              \
  row(LeavesEditOpen,         "leaves-edit-open")                                                  \
  row(UsesClosedEdit,         "uses-closed-edit")                                                  \
  row(LosesChoices,           "loses-choices")            /* lists do nothing                   */ \
  row(LeavesSwitchesOff,      "leaves-switches-off")      /* after the conversion               */ \
  row(CrashesAtRefusal,       "crashes-at-refusal")       /* where a call within a run is refused */ \
  row(ThrowsWithoutMemory,    "throws-without-memory")                                             \
  row(CrashesWithoutMemory,   "crashes-without-memory")                                            \
  row(CrashesLater,           "crashes-later")            /* at the 300th event                 */ \
  row(CrashesAtLongText,      "crashes-at-long-text")                                              \
  row(HangsAtPercent,         "hangs-at-percent")         /* a text with "%n"                   */ \
  row(CrashesAtDamagedFile,   "crashes-at-damaged-file")  /* of four bytes                      */ \
  row(LeaksMemory,            "leaks-memory")             /* at each event                      */ \
  row(GivesUpAtNestedEvents,  "gives-up-at-nested-events") /* hears nothing any more after one  */
// clang-format on

#define VARNEL_FAULT_ENUMERATOR(name, word) name,
enum class BadFault { None, VARNEL_FAULTS(VARNEL_FAULT_ENUMERATOR) };
#undef VARNEL_FAULT_ENUMERATOR

#define VARNEL_FAULT_WORD(name, word) word,
inline constexpr std::array kFaultWords{"", VARNEL_FAULTS(VARNEL_FAULT_WORD)};
#undef VARNEL_FAULT_WORD

constexpr const char* wordOf(BadFault fault) { return kFaultWords[static_cast<std::size_t>(fault)]; }

}  // namespace varnel::test
