// Questions about Layout's commands, records and texts.
#include <array>

#include "probe/layout_site.h"

namespace probe::layout {
namespace {

// The switch is left as it was, by whatever way proves to work.
Answer switches(LayoutSite& site) { return switchAnswer(site.scene, "EnableIK", lw::kGeneralIK); }

Answer answerTo(LayoutSite& site, const std::string& command, std::initializer_list<std::pair<int, const char*>> known) {
  const int answer = site.scene.host().command(command);
  const std::string seen = "\"" + command + "\" answered " + std::to_string(answer);
  for (const auto& [number, value] : known) {
    if (answer == number) return told(value, seen);
  }
  return other(seen);
}

Answer accepted(LayoutSite& site) { return answerTo(site, "RefreshNow", {{1, "1"}, {2, "2"}, {-1, "minus-1"}}); }
Answer statusAnswer(LayoutSite& site) { return answerTo(site, "StatusMsg Varnel:HostFacts", {{1, "1"}, {0, "0"}}); }

template <class Record>
Answer recordOf(LayoutSite& site, const char* name) {
  const Host& host = site.scene.host();
  const Record* const first = &host.service<Record>(name);
  const bool isOne = &host.service<Record>(name) == first;
  return told(isOne ? "one" : "new",
              std::string("\"") + name + "\" asked twice gives " + (isOne ? "one and the same record" : "two records"));
}

Answer interfaceRecord(LayoutSite& site) { return recordOf<lw::LWInterfaceInfo>(site, "LW Interface Info 8"); }
Answer timeRecord(LayoutSite& site) { return recordOf<lw::LWTimeInfo>(site, "LW Time Info"); }

// A text that is not the host's any more must not be read: where it lies tells enough. It is read only where the host has
// given out the same place for the same name again, after the names of others.
Answer layoutTexts(LayoutSite& site) {
  const LayoutScene& scene = site.scene;
  const lw::LWItemInfo& info = scene.items();
  const lw::ItemId a = site.nulls().first().null;
  const std::string name = scene.nameOf(a);
  const char* const first = info.name(a);
  const char* const second = info.name(site.nulls().second().null);
  const char* const third = info.name(site.nulls().third().null);
  if (first == nullptr || second == nullptr) throw Trouble{"a null has no name"};
  if (first == second && second == third) return told("one-place", "the names of three nulls lie in one place");
  const bool isThere = info.name(a) == first;
  info.name(site.nulls().second().null);
  return isThere && textOfHost(first) == name
             ? told("session", "a name is where and as it was after the names of others")
             : told("until-next", "a name is not where and as it was after the names of others");
}

constexpr std::array<Question<LayoutSite>, 6> kServiceQuestions{{
    {"switches", switches},
    {"accepted", accepted},
    {"status-answer", statusAnswer},
    {"interface-record", interfaceRecord},
    {"time-record", timeRecord},
    {"layout-texts", layoutTexts},
}};

}  // namespace

Answer switchAnswer(const LayoutScene& scene, const std::string& command, lw::GeneralFlags bit) {
  const bool was = scene.isOn(bit);
  const std::string same = command + (was ? " 1" : " 0");
  const std::string opposite = command + (was ? " 0" : " 1");
  const std::string before = std::string("while it is ") + (was ? "on" : "off") + ", " + same;
  if (scene.host().command(same) == 0) return told("refuse", before + " is refused");
  if (scene.isOn(bit) != was) {
    scene.setSwitch(command, bit, was);
    return told("toggle", before + " switches it over");
  }
  scene.host().mustDo(opposite);
  if (scene.isOn(bit) == was) return other(before + " and " + opposite + " leave it as it is");
  scene.setSwitch(command, bit, was);
  return told("set", before + " leaves it, and " + opposite + " switches it");
}

LayoutQuestions serviceQuestions() { return kServiceQuestions; }

}  // namespace probe::layout
