// The real tools with one fault put in from outside, chosen by an environment variable: it shows that validation finds each.
//
// The activations stand around the real ones. While one runs, every control that the tool makes is noted, and its event
// callback is put behind the one here.
#include "tests/modules/bad_module.h"

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <string>
#include <thread>
#include <unordered_map>
#include <vector>

#include "interface/exported.h"
#include "interface/lightwave.h"
#include "module/CustomNodel.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace {

using varnel::test::BadFault;

// Read at each use: the module is loaded many times, and it is a test's.
BadFault chosenFault() {
  const char* const word = std::getenv(varnel::test::kFaultVariable);
  for (std::size_t i = 0; word != nullptr && i < varnel::test::kFaultWords.size(); ++i) {
    if (std::strcmp(word, varnel::test::kFaultWords[i]) == 0) return static_cast<BadFault>(i);
  }
  return BadFault::None;
}

bool has(BadFault fault) { return chosenFault() == fault; }

struct BadControl {
  std::string kind;
  lw::ControlEvent event = nullptr;
};

std::unordered_map<lw::LWControl*, BadControl> controls;
std::unordered_map<lw::PanelId, std::vector<lw::LWControl*>> controlsOf;
lw::PanelId newPanel = nullptr;  // of the activation that runs
lw::LWControl* (*realAddControl)(lw::PanelId, const char*, lw::LWPanControlDesc*, const char*) = nullptr;
void (*realDestroy)(lw::PanelId) = nullptr;
lw::GlobalFunc realLookup = nullptr;
lw::EditBeginFunc beginEdit = nullptr;
int events = 0;
int runningEvents = 0;
bool hasGivenUp = false;

constexpr int kNoAfter = 0;
constexpr std::size_t kSomeMemory = 256;

// Asleep: it hangs as well as if it turned round and round, and leaves the machine to others.
[[noreturn]] void hang() {
  for (;;) std::this_thread::sleep_for(std::chrono::hours(1));
}

// Where nothing is. Known to the whole program, so that no compiler thinks the look at it away.
volatile char* volatile nowhere = nullptr;

void crash() { *nowhere = static_cast<char>(*nowhere + 1); }

std::string textOf(lw::LWControl* control) {
  std::string text(100000, '\0');
  lw::LWValue value{};
  value.str = {lw::kValueString, text.data(), static_cast<int>(text.size())};
  control->get(control, lw::kControlValue, &value);
  text.resize(std::strlen(text.c_str()));
  return text;
}

bool isDamaged(const char* path) {
  std::error_code error;
  return std::filesystem::file_size(std::filesystem::path(reinterpret_cast<const char8_t*>(path)), error) == 4 && !error;
}

// Any file beside the temporary ones that was cut to four bytes.
bool seesDamagedFile() {
  auto* const items = static_cast<lw::LWItemInfo*>(realLookup("LW Item Info 9", lw::kUseTransient));
  auto* const objects = static_cast<lw::LWObjectInfo*>(realLookup("LW Object Info 14", lw::kUseTransient));
  if (items == nullptr || objects == nullptr) return false;
  for (lw::ItemId item = items->first(lw::kItemObject, nullptr); item != nullptr; item = items->next(item)) {
    const char* const path = objects->filename(item);
    if (path != nullptr && isDamaged(path)) return true;
  }
  return false;
}

void closeAndUse() {
  lw::MeshEditOp* const edit = beginEdit == nullptr ? nullptr : beginEdit(0, 0, 0, lw::kEditAll);
  if (edit == nullptr) return;
  edit->done(edit->state, lw::kEditNoError, kNoAfter);
  edit->polyType(edit->state, nullptr);
}

void misbehave(lw::LWControl* control) {
  const bool isText = controls[control].kind == "EditControl";
  switch (chosenFault()) {
    case BadFault::ThrowsFromCallback: throw std::runtime_error("out of a callback");
    case BadFault::LeavesEditOpen:
      if (beginEdit != nullptr) beginEdit(0, 0, 0, lw::kEditAll);
      break;
    case BadFault::UsesClosedEdit: closeAndUse(); break;
    case BadFault::LeavesSwitchesOff:
      if (auto* const send = reinterpret_cast<lw::CommandFunc>(realLookup("LW Command Interface", lw::kUseTransient))) {
        send("EnableIK 0");
      }
      break;
    case BadFault::CrashesAtRefusal:
      if (realLookup("Scene Objects 9", lw::kUseTransient) == nullptr) crash();
      break;
    case BadFault::ThrowsWithoutMemory: delete new std::string(kSomeMemory, 'x'); break;
    case BadFault::CrashesWithoutMemory: {
      char* const memory = new (std::nothrow) char[kSomeMemory];
      std::memset(memory, 1, kSomeMemory);
      delete[] memory;
      break;
    }
    case BadFault::CrashesLater:
      if (++events == 300) crash();
      break;
    case BadFault::CrashesAtLongText:
      if (isText && textOf(control).size() > 60000) crash();
      break;
    case BadFault::HangsAtPercent:
      if (isText && textOf(control).find("%n") != std::string::npos) hang();
      break;
    case BadFault::CrashesAtDamagedFile:
      if (seesDamagedFile()) crash();
      break;
    case BadFault::LeaksMemory: static_cast<void>(new std::string(kSomeMemory, 'x')); break;
    default: break;
  }
}

// Whether the tool does not hear of an event: the fault.
bool isLost(const BadControl& control) {
  // Only a host whose sets fire events lets one come while another runs, but for the one that paints.
  const bool isNested = runningEvents > 0 && control.kind != "OpenGLControl";
  if (isNested && has(BadFault::GivesUpAtNestedEvents)) hasGivenUp = true;
  return hasGivenUp || (has(BadFault::LosesChoices) && control.kind == "PopupControl");
}

void badEvent(lw::LWControl* control, void* user) {
  const BadControl& known = controls[control];
  if (!isLost(known) && known.event != nullptr) {
    ++runningEvents;
    known.event(control, user);
    --runningEvents;
  }
  misbehave(control);
}

lw::LWControl* badAddControl(lw::PanelId panel, const char* kind, lw::LWPanControlDesc* description, const char* label) {
  lw::LWControl* const control = realAddControl(panel, kind, description, label);
  if (control != nullptr) {
    controls[control] = {kind, nullptr};
    controlsOf[panel].push_back(control);
    newPanel = panel;
  }
  return control;
}

// A tool takes down its former panel, and one that could not be built.
void badDestroy(lw::PanelId panel) {
  for (lw::LWControl* control : controlsOf[panel]) controls.erase(control);
  controlsOf.erase(panel);
  realDestroy(panel);
}

void setInteger(lw::LWControl* control, int attribute, int number) {
  lw::LWValue value{};
  value.intv = {lw::kValueInteger, number, 0};
  control->set(control, attribute, &value);
}

// Puts the event callback here before the tool's own.
void wrap(lw::LWControl* control, BadControl& known) {
  lw::LWValue value{};
  value.ptr = {lw::kValuePointer, nullptr};
  control->get(control, lw::kControlEventCallback, &value);
  if (value.ptr.ptr == nullptr) return;
  known.event = reinterpret_cast<lw::ControlEvent>(value.ptr.ptr);
  value.ptr = {lw::kValuePointer, reinterpret_cast<void*>(&badEvent)};
  control->set(control, lw::kControlEventCallback, &value);
}

// A number of the host's, or a service; some faults lie about them.
void* badLookup(const char* name, int use) {
  void* const found = realLookup(name, use);
  if (has(BadFault::TakesAnyRelease) && std::strcmp(name, "Product Info") == 0) {
    return reinterpret_cast<void*>(std::uintptr_t{0x08F00641});
  }
  if (has(BadFault::RunsWithoutService) && std::strcmp(name, "Color Picker") == 0) return reinterpret_cast<void*>(&events);
  return found;
}

int activateBadly(lw::ActivateFunc real, int wanted, int version, lw::GlobalFunc global, void* local, void* serverData) {
  realLookup = global;
  if (has(BadFault::ThrowsAtActivation)) throw std::runtime_error("out of an activation");
  if (has(BadFault::TakesAnyVersion)) version = wanted;
  if (has(BadFault::CrashesWithoutService)) {
    const auto* const service = static_cast<const char*>(global("Color Picker", lw::kUseTransient));
    static_cast<void>(*static_cast<const volatile char*>(service));
  }
  if (wanted == lw::kModCommandVersion && local != nullptr) beginEdit = static_cast<lw::LWModCommand*>(local)->editBegin2;
  auto* const services = static_cast<lw::LWPanelFuncs*>(global("LWPanelServices 3", lw::kUseTransient));
  if (services == nullptr) return real(version, &badLookup, local, serverData);
  realAddControl = services->addControl;
  realDestroy = services->destroy;
  services->addControl = &badAddControl;
  services->destroy = &badDestroy;
  newPanel = nullptr;
  const int answer = real(version, &badLookup, local, serverData);
  services->addControl = realAddControl;
  services->destroy = realDestroy;
  services->globalFun = global;
  for (lw::LWControl* control : controlsOf[newPanel]) wrap(control, controls[control]);
  if (has(BadFault::LeaksPanels)) services->create("left behind", services);
  return answer;
}

int activateSelector(int version, lw::GlobalFunc global, void* local, void* serverData) {
  return activateBadly(&varnel::ActivateSelector, lw::kModCommandVersion, version, global, local, serverData);
}
int activateRenamer(int version, lw::GlobalFunc global, void* local, void* serverData) {
  return activateBadly(&varnel::ActivateRenamer, lw::kModCommandVersion, version, global, local, serverData);
}
int activateProperty(int version, lw::GlobalFunc global, void* local, void* serverData) {
  return activateBadly(&varnel::ActivateProperty, lw::kModCommandVersion, version, global, local, serverData);
}
int activateOptimize(int version, lw::GlobalFunc global, void* local, void* serverData) {
  const int answer = activateBadly(&varnel::ActivateOptimize, lw::kLayoutGenericVersion, version, global, local, serverData);
  if (has(BadFault::OverlapsControls)) {
    for (lw::LWControl* control : controlsOf[newPanel]) {
      if (controls[control].kind == "BoolControl") setInteger(control, lw::kControlY, 10);
    }
  }
  return answer;
}

void stayLoaded() {
#if defined(_WIN32)
  HMODULE self = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                     reinterpret_cast<LPCWSTR>(&stayLoaded), &self);
#else
  Dl_info self{};
  if (dladdr(reinterpret_cast<void*>(&stayLoaded), &self) != 0) dlopen(self.dli_fname, RTLD_NOW);
#endif
}

void* startUp() {
  runningEvents = 0;
  hasGivenUp = false;
  if (has(BadFault::StartCrashes)) crash();
  if (has(BadFault::StartHangs)) hang();
  if (has(BadFault::StaysLoaded)) stayLoaded();
  return has(BadFault::StartsNull) ? nullptr : static_cast<void*>(&events);
}

void shutDown(void* /*serverData*/) {}

const lw::ServerRecord kServers[] = {
    {"CommandSequence", "Orlo:SkelegonSelector", &activateSelector, nullptr},
    {"CommandSequence", "Orlo:SkelegonRenamer", &activateRenamer, nullptr},
    {"CommandSequence", "Orlo:SkelegonProperty", &activateProperty, nullptr},
    {"LayoutGeneric", "Orlo:SkelegonOptimize", &activateOptimize, nullptr},
    {nullptr, nullptr, nullptr, nullptr},
};

}  // namespace

extern "C" {
extern LW_EXPORTED const lw::ModuleDescriptor _mod_descrip;
const lw::ModuleDescriptor _mod_descrip = {lw::kSysSync, lw::kSysVersion, lw::kSysMachine, &startUp, &shutDown, kServers};
}
