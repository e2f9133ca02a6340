// "LW Interface Info 8" and "LW Command Interface".
#include "standin/core/gap_slots.h"
#include "standin/layout/command_interface.h"
#include "standin/layout/narrow_text.h"
#include "standin/layout/services.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWInterfaceInfo> = "LWInterfaceInfo";

namespace {

int command(const char* text) {
  const HostCall call("LW Command Interface");
  if (!checkedOutput(call, text)) return 0;
  LayoutState& state = LayoutHost::current().state();
  if (call.refused()) {
    state.transcript.add({EventKind::Rejected, fromNarrow(text), kRefused, std::nullopt});
    return 0;
  }
  const std::string utf8 = fromNarrow(text);
  if (!runCommand(state, utf8)) return 0;
  const LayoutOptions& options = currentScene().options();
  return utf8.starts_with("StatusMsg") ? options.statusResult : options.acceptedResult;
}

int itemVisibility(lw::ItemId id) {
  const HostCall call("LWInterfaceInfo::itemVis");
  const Item* item = checkedItem(call, id);
  return item == nullptr || call.refused() ? 0 : item->settings.visibility;
}

int itemColor(lw::ItemId id) {
  const HostCall call("LWInterfaceInfo::itemColor");
  const Item* item = checkedItem(call, id);
  return item == nullptr || call.refused() ? 0 : item->settings.colour;
}

unsigned generalFlags(const LayoutState& state) {
  return (state.scene.options().parentInPlace ? lw::kGeneralParentInPlace : 0U) | (state.ikEnabled ? lw::kGeneralIK : 0U) |
         (state.motionControllersEnabled ? lw::kGeneralMotionControllers : 0U);
}

}  // namespace

void fillInterfaceInfo(lw::LWInterfaceInfo& info, const LayoutState& state) {
  info.itemVis = &itemVisibility;
  info.itemColor = &itemColor;
  info.generalFlags = generalFlags(state);
  STANDIN_FILL_GAP(info, 16);
  STANDIN_FILL_GAP(info, 40);
  STANDIN_FILL_GAP(info, 80);
  STANDIN_FILL_GAP(info, 104);
}

void spoilInterfaceRecord(InterfaceRecord& record) {
  // What a stale list holds is an item of no scene, so using it is noticed.
  static const lw::ItemId noItem =
      reinterpret_cast<lw::ItemId>(std::uintptr_t{0x7A5C0000DEAD0000});  // NOLINT(performance-no-int-to-ptr)
  for (lw::ItemId& id : record.selection) {
    if (id != nullptr) id = noItem;
  }
}

lw::CommandFunc commandFunction() { return &command; }

}  // namespace standin
