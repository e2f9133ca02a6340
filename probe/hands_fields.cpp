// What choosing from a list and typing into fields tells.
#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <string>

#include "probe/ask.h"
#include "probe/hands.h"
#include "probe/hands_values.h"
#include "probe/number_text.h"
#include "probe/units.h"

namespace probe {
namespace {

constexpr double kNear = 1e-4;

bool isNear(double a, double b) { return std::abs(a - b) < kNear; }

// What came while the user was at it.
std::span<const Called> logOf(const Step& step) {
  if (!step.whyNot.empty()) throw Trouble{step.whyNot};
  return std::span(step.panel->log()).subspan(step.start);
}

// ---------------------------------------------------------------------------------------------------------------------
// Lists

Answer sameChoice(Hands& hands) {
  const std::span<const Called> log = logOf(hands.fields);
  const auto isEvent = [&](const Called& c) { return c.call == Call::Event && c.control == hands.list; };
  const auto events = std::count_if(log.begin(), log.end(), isEvent);
  if (events > 0) {
    const auto first = std::find_if(log.begin(), log.end(), isEvent);
    if (first->value != kFirstEntry) return notTold("another entry was chosen than the one that was shown");
    return told("fires", "the entry that was shown was chosen, and the event came");
  }
  const bool wasOpened = std::any_of(log.begin(), log.end(), [](const Called& c) { return c.call == Call::PopupCount; });
  if (!wasOpened) return notTold("the list was not opened");
  return told("silent", "the list was opened, and no event came");
}

Answer silentMenu(Hands& hands, const Facts& facts) {
  const Answer choice = sameChoice(hands);
  if (choice.value.empty()) return notTold(choice.seen);
  const std::string kept = facts.answerTo("outside-index").value;
  if (kept.empty() || kept == kOther) return notTold("it follows from \"outside-index\", which was not told");
  if (choice.value == "fires" || kept == "kept")
    return told("free", "not both of \"same-choice\" and \"outside-index\" hold");
  return told(kept + "-and-silent", "\"outside-index\" is " + kept + " and \"same-choice\" is silent");
}

// ---------------------------------------------------------------------------------------------------------------------
// Fields

Answer typing(Hands& hands) {
  const std::span<const Called> log = logOf(hands.fields);
  std::string values;
  bool isByLetters = false;
  for (const Called& called : log) {
    if (called.call != Call::Event || called.control != hands.slider) continue;
    values += (values.empty() ? "" : ", ") + shown(called.value);
    isByLetters = isByLetters || called.value == 1 || called.value == 15;
  }
  if (hands.typedWhole == kFirstWhole) return notTold("nothing was typed into the whole number");
  if (values.empty()) return other("typing into the whole number fired no event");
  return told(isByLetters ? "letters" : "at-the-end", "typing 150 fired events with " + values);
}

enum class Limit { Held, Free, Unclear };

Limit limitOf(double value, double typed, double bound) {
  return isNear(value, bound) ? Limit::Held : isNear(value, typed) ? Limit::Free : Limit::Unclear;
}

// How far typed values are held.
struct Limits {
  Limit whole;
  Limit percent;
  Limit angle;  // taken for degrees
  std::string seen;
};

bool limitsSetWhole(const Hands& hands) { return hands.setWhole == kGreatestWhole; }
bool limitsSetReal(const Hands& hands) { return isNear(hands.setPercent, kGreatestPercent); }

Limits limitsOf(Hands& hands) {
  logOf(hands.fields);
  return {limitOf(hands.typedWhole, kTypedWhole, kGreatestWhole),
          limitOf(hands.typedPercent, kTypedPercent, kGreatestPercent),
          limitOf(hands.typedAngle, kTypedAngle * kDegree, kGreatestAngle * kDegree),
          "150 typed became the whole number " + std::to_string(hands.typedWhole) + " and the percent " +
              shown(hands.typedPercent) + " in ranges to 100, and 30 the angle " + shown(hands.typedAngle / kDegree) +
              " in a range to 10; 150 that was set became the whole number " + std::to_string(hands.setWhole) +
              " and the percent " + shown(hands.setPercent)};
}

Answer range(Hands& hands) {
  const Limits limits = limitsOf(hands);
  if (limits.whole == Limit::Unclear || limits.percent == Limit::Unclear) return notTold(limits.seen);
  const bool isWhole = limits.whole == Limit::Held;
  const bool isPercent = limits.percent == Limit::Held;
  if (!isWhole) {
    // Where the percent is held all the same, the range is of another kind, which "range-unit" tells.
    const bool isOfUnit = isPercent && limits.angle == Limit::Free;
    const bool isSet = limitsSetWhole(hands) || limitsSetReal(hands);
    return isSet || (isPercent && !isOfUnit) ? other(limits.seen) : told("none", limits.seen);
  }
  if (!isPercent) return limitsSetWhole(hands) ? other(limits.seen) : told("whole-numbers", limits.seen);
  if (limitsSetWhole(hands) != limitsSetReal(hands)) return other(limits.seen);
  return told(limitsSetWhole(hands) ? "all" : "all-typed", limits.seen);
}

Answer rangeUnit(Hands& hands) {
  const Limits limits = limitsOf(hands);
  if (limits.angle == Limit::Unclear || limits.percent == Limit::Unclear) return notTold(limits.seen);
  if (limits.angle == Limit::Held) return told("shown", limits.seen);
  if (limits.percent == Limit::Held) return told("value", limits.seen);
  return told("shown", limits.seen + ": no range holds a typed angle, so that its unit is of no matter");
}

constexpr std::array kFieldQuestions{
    Question<Hands>{"same-choice", sameChoice},
    Question<Hands>{"typing", typing},
    Question<Hands>{"range", range},
    Question<Hands>{"range-unit", rangeUnit},
};

}  // namespace

void askFields(Hands& hands, Facts& facts) {
  ask(std::span<const Question<Hands>>(kFieldQuestions), hands, facts);
  facts.tell("silent-menu", answerOf([&] { return silentMenu(hands, facts); }));
}

}  // namespace probe
