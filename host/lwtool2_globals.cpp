#include "host/lwtool2_globals.h"

#include <cstdint>
#include <string_view>

#include "host/lwtool2_errors.h"

namespace lw {
namespace {

enum class Where { Layout, Modeler, Both };

struct WantedService {
  Service service;
  Where where;
  const char* name;
};

// Asked in this order; each is required where it is asked for, even by tools that never use it.
constexpr WantedService kWanted[] = {
    // clang-format off
    {Service::BoneInfo,            Where::Layout,  "LW Bone Info 7"},
    {Service::FogInfo,             Where::Layout,  "LW Fog Info"},
    {Service::CameraInfo,          Where::Layout,  "LW Camera Info 10"},
    {Service::InterfaceInfo,       Where::Layout,  "LW Interface Info 8"},
    {Service::ItemInfo,            Where::Layout,  "LW Item Info 9"},
    {Service::ObjectInfo,          Where::Layout,  "LW Object Info 14"},
    {Service::SceneInfo,           Where::Layout,  "LW Scene Info 12"},
    {Service::TimeInfo,            Where::Layout,  "LW Time Info"},
    {Service::CommandInterface,    Where::Layout,  "LW Command Interface"},
    {Service::DynamicMonitor,      Where::Modeler, "LWM: Dynamic Monitor 2"},
    {Service::StateQuery,          Where::Modeler, "LWM: State Query 5"},
    {Service::Envelopes,           Where::Both,    "Animation Envelopes 4"},
    {Service::ChannelInfo,         Where::Both,    "Channel Info 3"},
    {Service::ColorPicker,         Where::Both,    "Color Picker"},
    {Service::ContextMenu,         Where::Both,    "ContextMenuServices 2"},
    {Service::DirectoryInfo,       Where::Both,    "Directory Info 2"},
    {Service::FileRequest,         Where::Both,    "File Request"},
    {Service::FileRequest3,        Where::Both,    "File Request 3"},
    {Service::ImageUtility,        Where::Both,    "Image Utility 6"},
    {Service::ImageList,           Where::Both,    "LW Image List 9"},
    {Service::Messages,            Where::Both,    "Info Messages 4"},
    {Service::InstanceUpdate,      Where::Both,    "Instance Update"},
    {Service::LocaleInfo,          Where::Both,    "Locale Info"},  // a number: zero counts as missing
    {Service::Panels,              Where::Both,    "LWPanelServices 3"},
    {Service::Raster,              Where::Both,    "RasterServices 4"},
    {Service::SceneObjects,        Where::Both,    "Scene Objects 9"},
    {Service::Shelf,               Where::Both,    "LWShelfFuncs 2"},
    {Service::Surface,             Where::Both,    "Surface Functions 6"},
    {Service::XPanel,              Where::Both,    "LWXPanel 3"},
    {Service::UniversalRequester,  Where::Both,    "LSUniversalRequester"},
    {Service::CommRing,            Where::Both,    "LW Communication Ring"},
    {Service::NodeInput,           Where::Both,    "NodeInputFuncs 5"},
    {Service::NodeOutput,          Where::Both,    "NodeOutputFuncs 4"},
    {Service::NodeFuncs,           Where::Both,    "NodeFuncs 3"},
    {Service::InstanceUpdateAgain, Where::Both,    "Instance Update"},  // asked for twice, on purpose
    {Service::LightInfo,           Where::Both,    "LW Light Info 6"},
    // clang-format on
};

constexpr bool rowsStandInServiceOrder() {
  std::size_t i = 0;
  for (const WantedService& row : kWanted) {
    if (static_cast<std::size_t>(row.service) != i++) return false;
  }
  return i == kServiceCount;
}
static_assert(rowsStandInServiceOrder());

// clang-format off
constexpr const char* kModelerFunctionNames[] = {
    "Surface Functions 6", "Texture Functions 6", "LWVParmFuncs 4", "Animation Envelopes 4", "LW Item Info 9",
    "LW Object Info 14", "Scene Objects 9", "LW Scene Info 12", "NodeInputFuncs 5", "NodeOutputFuncs 4", "NodeFuncs 3",
    "NodeEditorFuncs 7", "Instance Update", "LW Light Info 6", "File Type Pattern", "Directory Info 2", "LWXPanel 3",
    "LWPanelServices 3", "Image Utility 6", "LW Image List 9", "LW Communication Ring", "File Request 3",
    "LW Interface Info 8", "LW Camera Info 10", "LW Viewport Info 9", "Channel Info 3", "LW Time Info", "Info Messages 4",
    "RasterServices 4", "ContextMenuServices 2", "LWColorSpace", "AOV Functions", "LW Backdrop Info 3", "LW Bone Info 7",
    "Buffer List Global 2", "BSDF Functions 2", "LW Camera Evaluation Funcs 4", "LW Compositing Info", "Dopetrack Proxy 2",
    "Fiber Info 2", "LW Fog Info", "ItemInstancerFuncs 2", "ItemInstanceInfo", "LWM: Dynamic Monitor", "LW List Info",
    "Particle Services 3", "LW Timer", "LW Base Funcs 2", "Color Picker", "File IO 5", "Mesh Functions 2", "LWShelfFuncs 2",
    "SurfaceEditor Functions 2", "Texture Editor 3",
};
// clang-format on
static_assert(std::size(kModelerFunctionNames) == std::tuple_size_v<decltype(ModelerFunctions::others)>);

struct HostState {
  GlobalFunc global = nullptr;
  std::array<void*, kServiceCount> services{};
  ModelerCommand modeler;
  ModelerFunctions modelerFunctions;
  PanelTexts propertyTexts;
  RenamerTexts renamerTexts;
  const texts::LayoutTexts* layoutTexts = &texts::layoutTexts(texts::Language::English);
};

// The module-wide state of the host layer. The host calls on one thread only.
HostState& state() {
  static HostState instance;
  return instance;
}

void*& slot(Service service) { return state().services[static_cast<std::size_t>(service)]; }

template <class Table>
const Table& table(Service service) {
  return *static_cast<const Table*>(slot(service));
}

const char* nameOf(Service service) { return kWanted[static_cast<std::size_t>(service)].name; }

// Stores what the host gives; a missing service leaves the slot as it was, since a panel that is still open may need it.
bool acquire(Service service) {
  if (state().global == nullptr) return false;  // an activation came without; panels of earlier ones may still be open
  void* const found = state().global(nameOf(service), kUseTransient);
  if (found == nullptr) return false;
  slot(service) = found;
  // The host's panel services work only once they know the lookup function.
  if (service == Service::Panels) static_cast<LWPanelFuncs*>(found)->globalFun = state().global;
  return true;
}

// A required member of the command data: copied when it is there.
template <class Member>
bool copyMember(Member& to, Member from) {
  if (from == nullptr) return false;
  to = from;
  return true;
}

bool copyCommandData(const void* local) {
  if (local == nullptr) return false;
  const auto& command = *static_cast<const LWModCommand*>(local);
  ModelerCommand& to = state().modeler;
  return copyMember(to.editBegin, command.editBegin2) && copyMember(to.evaluate, command.evaluate) &&
         copyMember(to.data, command.data);
}

void refresh(Service service, const char* failure) {
  if (!acquire(service)) throwReported(failure);
}

template <class Rows>
void selectTexts(PanelTexts& to, std::span<const char* const> labels, const Rows& rows, texts::Language language) {
  to.labels = labels;
  to.choices.clear();
  to.choices.reserve(rows.size());
  to.counts.clear();
  to.counts.reserve(rows.size());
  for (const auto& row : rows) {
    to.choices.push_back(row.in(language));
    to.counts.push_back(row.count);
  }
}

}  // namespace

bool AcquireHostGlobals(Program program, GlobalFunc global, const void* local) {
  state().global = global;
  if (global == nullptr) return false;
  for (const WantedService& row : kWanted) {
    const bool wantedHere = row.where == Where::Both || (row.where == Where::Layout) == (program == Program::Layout);
    if (wantedHere && !acquire(row.service)) return false;
  }
  return program == Program::Layout || copyCommandData(local);
}

void resetHostState() { state() = HostState(); }

ModelerFunctions& modelerFunctions() { return state().modelerFunctions; }

void AcquireModelerFunctions(ModelerFunctions& table, GlobalFunc global, const void* local) {
  // Without a lookup function there is nothing to fill it with, and what is filled is kept for good.
  if (table.filled || global == nullptr) return;
  table = ModelerFunctions{};
  table.filled = true;
  table.global = global;
  if (local != nullptr) {
    const auto& command = *static_cast<const LWModCommand*>(local);
    table.evaluate = command.evaluate;
    table.data = command.data;
    table.editBegin = command.editBegin2;
    table.undoGroupBegin = command.undoGroupBegin;
    table.undoGroupEnd = command.undoGroupEnd;
    table.stateQuery = global(nameOf(Service::StateQuery), kUseTransient);
    table.dynamicMonitor = global(nameOf(Service::DynamicMonitor), kUseTransient);
  } else {
    table.commandInterface = reinterpret_cast<CommandFunc>(global(nameOf(Service::CommandInterface), kUseTransient));
  }
  for (std::size_t i = 0; i < table.others.size(); ++i) table.others[i] = global(kModelerFunctionNames[i], kUseTransient);
}

void RefreshInterfaceInfo() { refresh(Service::InterfaceInfo, "g_global( LWINTERFACEINFO_GLOBAL, GFUSE_TRANSIENT )"); }

void RefreshTimeInfo() { refresh(Service::TimeInfo, "g_global( LWTIMEINFO_GLOBAL, GFUSE_TRANSIENT )"); }

const LWItemInfo& itemInfo() { return table<LWItemInfo>(Service::ItemInfo); }
const LWObjectInfo& objectInfo() { return table<LWObjectInfo>(Service::ObjectInfo); }
const LWBoneInfo& boneInfo() { return table<LWBoneInfo>(Service::BoneInfo); }
const LWInterfaceInfo& interfaceInfo() { return table<LWInterfaceInfo>(Service::InterfaceInfo); }
const LWTimeInfo& timeInfo() { return table<LWTimeInfo>(Service::TimeInfo); }
const LWChannelInfo& channelInfo() { return table<LWChannelInfo>(Service::ChannelInfo); }
const LWEnvelopeFuncs& envelopes() { return table<LWEnvelopeFuncs>(Service::Envelopes); }
const LWStateQueryFuncs& stateQuery() { return table<LWStateQueryFuncs>(Service::StateQuery); }
const LWObjectFuncs& sceneObjects() { return table<LWObjectFuncs>(Service::SceneObjects); }
const LWMessageFuncs& messages() { return table<LWMessageFuncs>(Service::Messages); }
const LWPanelFuncs& panels() { return table<LWPanelFuncs>(Service::Panels); }
CommandFunc layoutCommand() { return reinterpret_cast<CommandFunc>(slot(Service::CommandInterface)); }
const ModelerCommand& modelerCommand() { return state().modeler; }

texts::Language hostLanguage(GlobalFunc global) {
  constexpr std::uintptr_t kLanguageBits = 0xFFFF;
  constexpr std::uintptr_t kJapanese = 0x411;
  const auto locale = reinterpret_cast<std::uintptr_t>(global(nameOf(Service::LocaleInfo), kUseTransient));
  return (locale & kLanguageBits) == kJapanese ? texts::Language::Japanese : texts::Language::English;
}

void LoadModelerStrings(GlobalFunc global) {
  const texts::Language language = hostLanguage(global);
  selectTexts(state().propertyTexts, texts::propertyLabels(language), texts::propertyChoices(), language);
}

void LoadRenamerStrings(GlobalFunc global) {
  const texts::Language language = hostLanguage(global);
  selectTexts(state().renamerTexts, texts::renamerLabels(language), texts::renamerChoices(), language);
  state().renamerTexts.messages = &texts::renamerMessages(language);
  state().renamerTexts.refusals = &texts::renamerRefusals(language);
}

void loadLayoutStrings(GlobalFunc global) { state().layoutTexts = &texts::layoutTexts(hostLanguage(global)); }

const PanelTexts& propertyTexts() { return state().propertyTexts; }
const RenamerTexts& renamerTexts() { return state().renamerTexts; }
const texts::LayoutTexts& layoutTexts() { return *state().layoutTexts; }

}  // namespace lw
