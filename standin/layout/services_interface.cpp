// "LW Interface Info 8", "LW Command Interface" and "Info Messages 4".
#include <limits>

#include "standin/core/gap_slots.h"
#include "standin/layout/commands.h"
#include "standin/layout/narrow_text.h"
#include "standin/layout/services.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWInterfaceInfo> = "LWInterfaceInfo";
template <>
inline constexpr const char* kTableName<lw::LWMessageFuncs> = "LWMessageFuncs";

namespace {

// ---------------------------------------------------------------------------------------------------------------------
// Interface info

constexpr unsigned kFlagSelected = 1;

unsigned itemFlags(lw::ItemId id) {
  const HostCall call("LWInterfaceInfo::itemFlags");
  const Item* item = checkedItem(call, id);
  return item != nullptr && !call.refused() && item->selected ? kFlagSelected : 0;
}

int itemVisibility(lw::ItemId id) {
  const HostCall call("LWInterfaceInfo::itemVis");
  const Item* item = checkedItem(call, id);
  return item == nullptr || call.refused() ? 0 : item->settings.visibility;
}

int itemColour(lw::ItemId id) {
  const HostCall call("LWInterfaceInfo::itemColor");
  const Item* item = checkedItem(call, id);
  return item == nullptr || call.refused() ? 0 : item->settings.colour;
}

template <class Result>
Result staleFunction(lw::ItemId) {
  const HostCall call(kTableName<lw::LWInterfaceInfo>);
  call.fault("a record was used after a newer one was asked for");
  return Result();
}

// ---------------------------------------------------------------------------------------------------------------------
// Commands

int command(const char* text) {
  const HostCall call("LW Command Interface");
  if (!checkedOutput(call, text)) return 0;
  LayoutState& state = LayoutHost::current().state();
  if (call.refused()) {
    state.transcript.add({EventKind::rejected, fromNarrow(text), kRefused, std::nullopt});
    return 0;
  }
  const std::string utf8 = fromNarrow(text);
  if (!runCommand(state, utf8)) return 0;
  const LayoutOptions& options = currentScene().options();
  return utf8.starts_with("StatusMsg") ? options.statusResult : options.acceptedResult;
}

// ---------------------------------------------------------------------------------------------------------------------
// Messages

std::string joined(const char* first, const char* second) {
  const std::string start = first == nullptr ? std::string() : first;
  return second == nullptr || *second == '\0' ? start : start + " / " + second;
}

void show(const char* kind, std::string text) {
  LayoutHost::current().state().transcript.add({EventKind::message, std::move(text), kind, std::nullopt});
}

void info(const char* first, const char* second) {
  const HostCall call("LWMessageFuncs::info");
  if (checkedOutput(call, first)) show("info", joined(first, second));
}

void error(const char* first, const char* second) {
  const HostCall call("LWMessageFuncs::error");
  if (checkedOutput(call, first)) show("error", joined(first, second));
}

void warning(const char* first, const char* second) {
  const HostCall call("LWMessageFuncs::warning");
  if (checkedOutput(call, first)) show("warning", joined(first, second));
}

// The next answer of the queue, within the answers of the question; without one the user cancels.
int ask(const HostCall& call, const char* kind, int greatest, const char* title, const char* first, const char* second) {
  if (!checkedOutput(call, title)) return 0;
  show(kind, joined(title, joined(first, second).c_str()));
  auto& answers = LayoutHost::current().state().answers;
  if (call.refused() || answers.empty()) return 0;
  const int answer = answers.front();
  answers.pop_front();
  return answer < 0 || answer > greatest ? 0 : answer;
}

int okCancel(const char* title, const char* first, const char* second) {
  return ask(HostCall("LWMessageFuncs::okCancel"), "ok or cancel", 1, title, first, second);
}
int yesNo(const char* title, const char* first, const char* second) {
  return ask(HostCall("LWMessageFuncs::yesNo"), "yes or no", 1, title, first, second);
}
int yesNoCancel(const char* title, const char* first, const char* second) {
  return ask(HostCall("LWMessageFuncs::yesNoCan"), "yes, no or cancel", 2, title, first, second);
}
int yesNoAll(const char* title, const char* first, const char* second) {
  return ask(HostCall("LWMessageFuncs::yesNoAll"), "yes, no or all", 3, title, first, second);
}

const char* askName(const char*, const char*, const char*) {
  const HostCall call("LWMessageFuncs::askName");
  call.fault("is not offered by this host");
  return nullptr;
}

}  // namespace

void fillInterfaceFunctions(lw::LWInterfaceInfo& info) {
  info.itemFlags = &itemFlags;
  info.itemVis = &itemVisibility;
  info.itemColor = &itemColour;
  STANDIN_FILL_GAP(info, 40);
  STANDIN_FILL_GAP(info, 80);
  STANDIN_FILL_GAP(info, 104);
}

void spoilInterfaceRecord(InterfaceRecord& record) {
  record.info.curTime = std::numeric_limits<double>::quiet_NaN();
  record.info.itemFlags = &staleFunction<unsigned>;
  record.info.itemVis = &staleFunction<int>;
  record.info.itemColor = &staleFunction<int>;
  // What a stale list holds is an item of no scene, so using it is noticed.
  static const lw::ItemId noItem =
      reinterpret_cast<lw::ItemId>(std::uintptr_t{0x7A5C0000DEAD0000});  // NOLINT(performance-no-int-to-ptr)
  for (lw::ItemId& id : record.selection) {
    if (id != nullptr) id = noItem;
  }
}

lw::CommandFunc commandFunction() { return &command; }

lw::LWMessageFuncs* messageTable() {
  static lw::LWMessageFuncs table{&info, &error, &warning, &okCancel, &yesNo, &yesNoCancel, &yesNoAll, &askName};
  return &table;
}

}  // namespace standin
