// "LW Interface Info 8" and "LW Command Interface".
#include <limits>

#include "standin/core/gap_slots.h"
#include "standin/layout/commands.h"
#include "standin/layout/narrow_text.h"
#include "standin/layout/services.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWInterfaceInfo> = "LWInterfaceInfo";

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

}  // namespace standin
