#include "standin/modeler/commands.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>

#include "standin/modeler/session.h"

namespace standin {
namespace {

enum CommandError : int {
  kAccepted = 0,
  kNoMemory = 1,
  kArgumentCount = 2901,
  kArgumentType = 2902,
  kArgumentValue = 2903,
  kFailed = 2904,
};

// The host data that every command call brings along. Its address is all that matters.
int hostData = 0;

std::vector<std::string> words(std::string_view command) {
  std::vector<std::string> list;
  std::size_t at = 0;
  while (at < command.size()) {
    if (command[at] == ' ') {
      ++at;
      continue;
    }
    const char end = command[at] == '"' ? '"' : ' ';
    if (end == '"') ++at;
    const std::size_t stop = std::min(command.find(end, at), command.size());
    list.emplace_back(command.substr(at, stop - at));
    at = stop + (end == '"' ? 1 : 0);
  }
  return list;
}

std::string lower(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

// Layer numbers from 1 to numbers from 0. An error code where that cannot be.
int layerNumbers(const ModelerObject& object, const std::vector<std::string>& arguments, std::vector<int>& numbers) {
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    const std::string& text = arguments[i];
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return kArgumentType;
    if (object.layer(number - 1) == nullptr) return kArgumentValue;
    numbers.push_back(number - 1);
  }
  return numbers.empty() ? kArgumentCount : kAccepted;
}

std::vector<int> shown(const ModelerObject& object, bool MeshLayer::*where) {
  std::vector<int> numbers;
  for (const MeshLayer& layer : object.layers()) {
    if (layer.*where) numbers.push_back(layer.number);
  }
  return numbers;
}

int setLayers(ModelerSession& session, const std::vector<std::string>& arguments, bool foreground) {
  ModelerObject& object = *session.current();
  std::vector<int> numbers;
  if (const int error = layerNumbers(object, arguments, numbers); error != kAccepted) return error;
  if (foreground) {
    object.showLayers(numbers, shown(object, &MeshLayer::background), session.options.layerSwitchDeselects);
  } else {
    object.showLayers(shown(object, &MeshLayer::foreground), numbers, session.options.layerSwitchDeselects);
  }
  return kAccepted;
}

int selectPolygons(ModelerSession& session, const std::vector<std::string>& arguments) {
  if (arguments.size() != 2) return kArgumentCount;
  if (lower(arguments[1]) != "clear") return kArgumentValue;
  session.current()->deselectAll();
  return kAccepted;
}

int run(ModelerSession& session, const std::string& command) {
  const std::vector<std::string> arguments = words(command);
  if (arguments.empty() || session.current() == nullptr) return kFailed;
  const std::string name = lower(arguments[0]);
  if (name == "undo" || name == "redo") {
    if (arguments.size() != 1) return kArgumentCount;
    const bool done = name == "undo" ? session.current()->undo() : session.current()->redo();
    session.listMaps(*session.current());
    return done ? kAccepted : kFailed;
  }
  if (name == "sel_polygon") return selectPolygons(session, arguments);
  if (name == "setlayer") return setLayers(session, arguments, true);
  if (name == "setblayer") return setLayers(session, arguments, false);
  return kFailed;
}

int evaluate(void* data, const char* command) {
  const std::string text = command == nullptr ? std::string() : std::string(command);
  const ModelerCall call("LWModCommand::evaluate");
  ModelerSession* session = call.session();
  if (session == nullptr) return kNoMemory;
  if (data != &hostData) call.fault("was given other host data than that of the activation");
  if (command == nullptr) call.fault("was given no command");
  if (session->edits.isOpen()) {
    call.fault("was sent \"" + text + "\" while an edit is open");
    return kFailed;
  }
  const int result = run(*session, text);
  session->commands.push_back({text, result});
  return result;
}

void undoGroupBegin() {
  const ModelerCall call("LWModCommand::undoGroupBegin");
  if (ModelerSession* session = call.session(); session != nullptr && session->current() != nullptr)
    session->current()->beginGroup();
}

void undoGroupEnd() {
  const ModelerCall call("LWModCommand::undoGroupEnd");
  ModelerSession* session = call.session();
  if (session == nullptr || session->current() == nullptr) return;
  if (!session->current()->endGroup()) call.fault("was called without a group");
}

int lookupCommand(void* /*data*/, const char* /*command*/) {
  const ModelerCall call("LWModCommand::lookup");
  call.fault("is not offered");
  return 0;
}

int executeCommand(void* /*data*/, int /*code*/, int /*count*/, const void* /*values*/, int /*mode*/, void* /*result*/) {
  const ModelerCall call("LWModCommand::execute");
  call.fault("is not offered");
  return kFailed;
}

lw::MeshEditOp* olderEditBegin(int /*pointBytes*/, int /*polygonBytes*/, int /*mode*/) {
  const ModelerCall call("LWModCommand::editBegin");
  call.fault("is the older form, which is not offered");
  return nullptr;
}

// What the overwritten record holds: reading a member late is found out when it is used.
constexpr const char* kLate = "the activation's record was read after the activation returned";

int lateLookup(void* /*data*/, const char* /*command*/) {
  const ModelerCall call("LWModCommand::lookup");
  call.fault(kLate);
  return 0;
}
int lateEvaluate(void* /*data*/, const char* /*command*/) {
  const ModelerCall call("LWModCommand::evaluate");
  call.fault(kLate);
  return kFailed;
}
lw::MeshEditOp* lateEditBegin(int /*pointBytes*/, int /*edgeBytes*/, int /*polygonBytes*/, int /*mode*/) {
  const ModelerCall call("LWModCommand::editBegin2");
  call.fault(kLate);
  return nullptr;
}
void lateUndoGroup() {
  const ModelerCall call("LWModCommand::undoGroup");
  call.fault(kLate);
}

}  // namespace

ActivationRecord::ActivationRecord(const std::string& argument) {
  static std::vector<std::unique_ptr<Storage>> all;
  all.push_back(std::make_unique<Storage>());
  storage_ = all.back().get();
  storage_->argument = argument;
  lw::LWModCommand& record = storage_->record;
  record.data = &hostData;
  record.argument = storage_->argument.c_str();
  record.lookup = &lookupCommand;
  record.execute = &executeCommand;
  record.editBegin = &olderEditBegin;
  record.evaluate = &evaluate;
  record.undoGroupBegin = &undoGroupBegin;
  record.undoGroupEnd = &undoGroupEnd;
  record.editBegin2 = &beginMeshEdit;
}

ActivationRecord::~ActivationRecord() {
  std::fill(storage_->argument.begin(), storage_->argument.end(), '~');
  lw::LWModCommand& record = storage_->record;
  record.data = nullptr;
  record.lookup = &lateLookup;
  record.evaluate = &lateEvaluate;
  record.undoGroupBegin = &lateUndoGroup;
  record.undoGroupEnd = &lateUndoGroup;
  record.editBegin2 = &lateEditBegin;
}

}  // namespace standin
