#include "standin/layout/layout_host.h"

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

#include "standin/core/gap_slots.h"
#include "standin/core/globals.h"
#include "standin/core/service_names.h"
#include "standin/core/witness.h"
#include "standin/layout/command_interface.h"
#include "standin/layout/scene_commands.h"
#include "standin/layout/services.h"
#include "standin/panels/services.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWLayoutGeneric> = "LWLayoutGeneric";

namespace {

LayoutHost* theHost = nullptr;

void offerServices(LayoutHost& host) {
  Globals& offered = globals();
  offered.offerPresence(layoutServices());
  offered.offerTable("LW Item Info 9", itemInfoTable());
  offered.offerTable("LW Object Info 14", objectInfoTable());
  offered.offerTable("LW Bone Info 7", boneInfoTable());
  offered.offerTable("Channel Info 3", channelInfoTable());
  offered.offerTable("Animation Envelopes 4", envelopeTable());
  offered.offer("LW Command Interface", reinterpret_cast<void*>(commandFunction()));
  offered.offer("LW Interface Info 8", std::function<void*()>([&host] { return host.freshInterfaceInfo(); }));
  offered.offer("LW Time Info", std::function<void*()>([&host] { return host.freshTimeInfo(); }));
  offerPanelServices();
}

}  // namespace

LayoutHost::LayoutHost(const LayoutOptions& options)
    : state_(options),
      texts_(options.textLife),
      interfaceRecords_(options.oneInterfaceRecord),
      timeRecords_(options.oneTimeRecord) {
  theHost = this;
  witness().reset();
  globals().reset();
  offerServices(*this);
  setProductInfo(kProductInfo);
  setLocale(kLocaleEnglish);
}

LayoutHost::~LayoutHost() {
  if (theHost != this) return;
  globals().reset();
  theHost = nullptr;
}

LayoutHost& LayoutHost::current() { return *theHost; }

void LayoutHost::setProductInfo(std::uint32_t word) { globals().offerNumber("Product Info", word); }
void LayoutHost::setLocale(std::uint32_t language) { globals().offerNumber("Locale Info", language); }

std::vector<Item*> LayoutHost::loadObject(const std::string& path, std::string* why) {
  return loadIntoScene(scene(), path, why);
}

void LayoutHost::select(const std::vector<Item*>& items) {
  scene().deselectAll();
  for (Item* item : items) scene().addToSelection(*item);
}

bool LayoutHost::command(std::string_view utf8) { return runCommand(state_, utf8); }

std::optional<int> LayoutHost::activate(ModuleFile& module, std::string_view server, int version) {
  const auto local = std::make_unique<lw::LWLayoutGeneric>();
  STANDIN_FILL_GAP(*local, 0);
  const std::optional<int> result = module.activate(server, version, local.get(), "LayoutGeneric");
  panels().turn();
  return result;
}

void* LayoutHost::freshInterfaceInfo() {
  InterfaceRecord& record = interfaceRecords_.next(&spoilInterfaceRecord);
  record.info = {};
  const LayoutOptions& options = scene().options();
  record.selection = scene().selectionList();
  const bool none = scene().selection().empty() && options.selectedItemsNullWhenEmpty;
  const std::vector<lw::ItemId>& list = options.selectionFollows ? scene().followingList() : record.selection;
  record.info.selItems = none ? nullptr : list.data();
  fillInterfaceInfo(record.info, state_);
  return &record.info;
}

void* LayoutHost::freshTimeInfo() {
  lw::LWTimeInfo& info = timeRecords_.next([](lw::LWTimeInfo& old) {
    old.time = std::numeric_limits<double>::quiet_NaN();
    old.frame = std::numeric_limits<int>::min();
  });
  info.time = state_.time;
  info.frame = static_cast<int>(std::lround(state_.time * scene().options().framesPerSecond));
  return &info;
}

}  // namespace standin
