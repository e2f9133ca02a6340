#include "standin/modeler/activation_record.h"

#include <algorithm>

#include "standin/core/gap_slots.h"
#include "standin/modeler/commands.h"
#include "standin/modeler/session.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWModCommand> = "LWModCommand";

namespace {

// The host data that every command call brings along. Its address is all that matters.
int hostData = 0;

// What the overwritten record holds: reading a member late is found out when it is used.
constexpr char kLate[] = "the activation's record was read after the activation returned";

int evaluate(void* data, const char* line) {
  // It may be a text that the host itself lent.
  const std::string command = line == nullptr ? std::string() : std::string(line);
  const ModelerCall call("LWModCommand::evaluate");
  if (data != &hostData) call.fault("was not given the host data of the activation");
  ModelerSession* session = call.session();
  if (session == nullptr) return kCommandFailed;
  session->commands.push_back(command);
  if (session->edits.isOpen()) {
    call.fault("was called while an edit is open");
    return kCommandFailed;
  }
  const std::optional<int> answer = runCommand(*session, command);
  if (!answer) call.fault("was given the unknown command \"" + command + '"');
  return answer.value_or(kCommandFailed);
}

int lateEvaluate(void* /*data*/, const char* /*command*/) {
  ModelerCall("LWModCommand::evaluate").fault(kLate);
  return kCommandFailed;
}

// Modules copy undo groups out of the record, but none calls them.
void undoGroup() { ModelerCall("LWModCommand::undoGroup").fault("was called, which no tool does"); }
void lateUndoGroup() { ModelerCall("LWModCommand::undoGroup").fault(kLate); }

lw::MeshEditOp* lateEditBegin(int /*pointBytes*/, int /*edgeBytes*/, int /*polygonBytes*/, int /*mode*/) {
  ModelerCall("LWModCommand::editBegin2").fault(kLate);
  return nullptr;
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
  STANDIN_FILL_GAP(record, 16);
  record.evaluate = &evaluate;
  record.undoGroupBegin = record.undoGroupEnd = &undoGroup;
  record.editBegin2 = &beginMeshEdit;
}

ActivationRecord::~ActivationRecord() {
  std::fill(storage_->argument.begin(), storage_->argument.end(), '~');
  lw::LWModCommand& record = storage_->record;
  record.data = nullptr;
  record.evaluate = &lateEvaluate;
  record.undoGroupBegin = record.undoGroupEnd = &lateUndoGroup;
  record.editBegin2 = &lateEditBegin;
}

}  // namespace standin
