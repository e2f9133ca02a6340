// The host's services and the texts in the host's language: module-wide, filled anew at each activation, read everywhere
// else. Nothing here is freed: the tables belong to the host.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "interface/lightwave.h"
#include "texts/texts.h"

namespace lw {

enum class Program : int { Modeler = 0, Layout = 1 };

enum class Service : std::size_t {
  // Layout only
  BoneInfo,
  FogInfo,
  CameraInfo,
  InterfaceInfo,
  ItemInfo,
  ObjectInfo,
  SceneInfo,
  TimeInfo,
  CommandInterface,
  // Modeler only
  DynamicMonitor,
  StateQuery,
  // both
  Envelopes,
  ChannelInfo,
  ColorPicker,
  ContextMenu,
  DirectoryInfo,
  FileRequest,
  FileRequest3,
  ImageUtility,
  ImageList,
  Messages,
  InstanceUpdate,
  LocaleInfo,
  Panels,
  Raster,
  SceneObjects,
  Shelf,
  Surface,
  XPanel,
  UniversalRequester,
  CommRing,
  NodeInput,
  NodeOutput,
  NodeFuncs,
  InstanceUpdateAgain,
  LightInfo,
};
inline constexpr std::size_t kServiceCount = static_cast<std::size_t>(Service::LightInfo) + 1;

// Asks the host for every service that the program must offer, and in Modeler copies what the tools need of `local` (an
// LWModCommand; ignored in Layout). False at the first thing missing: slots before it are new, it and later ones unchanged.
bool AcquireHostGlobals(Program program, GlobalFunc global, const void* local);

// Forgets everything that was acquired, as if the module were new. For tests, which begin many sessions in one process.
void resetHostState();

// A second, larger record of Modeler services. Filled once and kept: its command data are those of the first activation,
// so mesh edits and commands that must be current go through the slots above.
struct ModelerFunctions {
  bool filled = false;
  GlobalFunc global = nullptr;
  EvaluateFunc evaluate = nullptr;
  void* data = nullptr;
  EditBeginFunc editBegin = nullptr;
  UndoFunc undoGroupBegin = nullptr;
  UndoFunc undoGroupEnd = nullptr;
  void* stateQuery = nullptr;
  void* dynamicMonitor = nullptr;
  CommandFunc commandInterface = nullptr;
  std::array<void*, 54> others{};  // in the order in which they are asked for; a missing one stays null
};
ModelerFunctions& modelerFunctions();
// Without a lookup function nothing is filled.
void AcquireModelerFunctions(ModelerFunctions& table, GlobalFunc global, const void* local);

// Asks again for the services that describe one moment only. Throw CBaseEx, after reporting, when the host has none.
void RefreshInterfaceInfo();
void RefreshTimeInfo();

// The services. To be called only after AcquireHostGlobals was true in the program that has them.
const LWItemInfo& itemInfo();
const LWObjectInfo& objectInfo();
const LWBoneInfo& boneInfo();
const LWInterfaceInfo& interfaceInfo();
const LWTimeInfo& timeInfo();
const LWChannelInfo& channelInfo();
const LWEnvelopeFuncs& envelopes();
const LWStateQueryFuncs& stateQuery();
const LWObjectFuncs& sceneObjects();
const LWMessageFuncs& messages();
const LWPanelFuncs& panels();
CommandFunc layoutCommand();  // null in Modeler

// Modeler's command data, all null in Layout.
struct ModelerCommand {
  EditBeginFunc editBegin = nullptr;
  EvaluateFunc evaluate = nullptr;
  void* data = nullptr;
};
const ModelerCommand& modelerCommand();

// ---------------------------------------------------------------------------------------------------------------------
// Texts

// The language of the host's locale, read from the host now: Japanese for 0x411 in the low 16 bits, else English.
texts::Language hostLanguage(GlobalFunc global);

struct PanelTexts {
  std::span<const char* const> labels{};
  std::vector<texts::Choices> choices{};
  std::vector<unsigned> counts{};  // entries of each list with its null; nobody needs them, a popup ends at the null
};

struct RenamerTexts : PanelTexts {
  const texts::RenamerMessages* messages = nullptr;
  const texts::RenamerRefusals* refusals = nullptr;
};

void LoadModelerStrings(GlobalFunc global);
void LoadRenamerStrings(GlobalFunc global);
void loadLayoutStrings(GlobalFunc global);
const PanelTexts& propertyTexts();
const RenamerTexts& renamerTexts();
const texts::LayoutTexts& layoutTexts();

}  // namespace lw
