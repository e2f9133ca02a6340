// The mesh edit: one at a time, changes buffered until it is done, every misuse a fault.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "interface/lightwave.h"
#include "standin/modeler/lent_text.h"
#include "standin/modeler/modeler_object.h"

namespace standin {

// What the edits of a session were, for tests: how many, in which modes, how they ended.
struct EditRecord {
  int mode = 0;
  bool done = false;
  int error = 0;
  std::size_t changes = 0;  // calls that set a tag or a selection
  std::vector<int> scans;   // layer choices of the scans, in order
};

class MeshEdits {
 public:
  explicit MeshEdits(std::uint32_t session) : session_(session) {}

  bool isOpen() const { return open_; }
  const std::vector<EditRecord>& records() const { return records_; }

  // Begins an edit of the object, which may be null: an edit over nothing.
  lw::MeshEditOp* begin(ModelerObject* object, int mode);
  // True when this is the state of the open edit.
  bool isCurrent(lw::EditId state) const;
  // True when an edit of this session had the state.
  bool wasCurrent(lw::EditId state) const;
  void end(int error);

  ModelerObject* object() const { return object_; }
  // Whether everything but ending the edit is refused now.
  bool refusesQuestions() const;
  bool maySelect() const { return (mode_ & lw::kEditSelecting) != 0; }
  void buffer(MeshChange change);
  void scanned(int layers) { records_.back().scans.push_back(layers); }
  const MeshStep& buffered() const { return changes_; }

  // Whether the polygon counts as selected in the open edit.
  bool countsAsSelected(const MeshPolygon& polygon) const;

  lw::EDPolygonInfo polygonRecord{};
  LentPoints recordPoints;
  LentPoints lentPoints;
  LentText recordSurface;
  int scans = 0;  // running now

  // What the last call left to the module is spoilt, where records end so early.
  void callBegins();

 private:
  lw::EditId stateOf(std::size_t number) const;
  void spoilRecords();

  std::uint32_t session_;
  bool open_ = false;
  ModelerObject* object_ = nullptr;
  int mode_ = 0;
  MeshStep changes_;
  std::vector<EditRecord> records_;
};

// The fault of a tag that is set in an edit for selecting. Who measures what such a call answers makes it on purpose.
inline constexpr const char* kSetsATag = "MeshEditOp::polTag";
inline constexpr const char* kTagWhileSelecting = "was used in an edit that may only query and select";

// The operation record of an edit, without the state and the layer.
lw::MeshEditOp meshEditFunctions();

// The function that the module begins edits with.
lw::MeshEditOp* beginMeshEdit(int pointBytes, int edgeBytes, int polygonBytes, int mode);

}  // namespace standin
