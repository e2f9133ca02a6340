#include "standin/modeler/activation_record.h"

#include <algorithm>

#include "standin/core/gap_slots.h"
#include "standin/modeler/session.h"

namespace standin {

template <>
inline constexpr const char* kTableName<lw::LWModCommand> = "LWModCommand";

namespace {

constexpr int kFailed = 2904;

// The host data that every command call brings along. Its address is all that matters.
int hostData = 0;

// Modules copy commands and undo groups out of the record, but none calls them.
constexpr char kUncalled[] = "was called, which no tool does";
// What the overwritten record holds: reading a member late is found out when it is used.
constexpr char kLate[] = "the activation's record was read after the activation returned";

template <const char* Fault>
int evaluate(void* /*data*/, const char* /*command*/) {
  ModelerCall("LWModCommand::evaluate").fault(Fault);
  return kFailed;
}

template <const char* Fault>
void undoGroup() {
  ModelerCall("LWModCommand::undoGroup").fault(Fault);
}

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
  record.evaluate = &evaluate<kUncalled>;
  record.undoGroupBegin = record.undoGroupEnd = &undoGroup<kUncalled>;
  record.editBegin2 = &beginMeshEdit;
}

ActivationRecord::~ActivationRecord() {
  std::fill(storage_->argument.begin(), storage_->argument.end(), '~');
  lw::LWModCommand& record = storage_->record;
  record.data = nullptr;
  record.evaluate = &evaluate<kLate>;
  record.undoGroupBegin = record.undoGroupEnd = &undoGroup<kLate>;
  record.editBegin2 = &lateEditBegin;
}

}  // namespace standin
