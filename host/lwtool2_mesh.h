// The mesh as Modeler's tools need it: skelegons listed, read, tagged and selected, layers and weight maps by name.
// To be called in Modeler only, after its services were acquired, and with no edit open but where it says so.
//
// Each function opens an edit of its own and ends it, whatever happens. When a host call fails, the edit is ended with an
// error code, so that the host drops all of its changes; the failure is reported and thrown as CBaseEx. Identifiers must be
// polygons of the current object.
#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "interface/lightwave.h"
#include "skelegon/skelegon_tree.h"

namespace lw {

using PolygonIds = std::vector<PolygonId>;
using PolygonSet = std::unordered_set<PolygonId>;
using TagTypes = std::vector<std::uint32_t>;
using TagTexts = std::vector<std::string>;

// What an edit is for. In an edit for reading and writing every polygon counts as selected.
inline constexpr int kEditForTags = kEditAll;
inline constexpr int kEditSeesSelection = kEditDirect;
inline constexpr int kEditForSelecting = kEditSelecting | kEditDirect;

// ---------------------------------------------------------------------------------------------------------------------
// An open edit

// Open from its construction to done(), fail() or the end of its life: when an exception ends it, the host drops the
// changes. All members but isOpen() are for an open edit only.
class CMeshEdit {
 public:
  explicit CMeshEdit(int mode);
  ~CMeshEdit();
  CMeshEdit(const CMeshEdit&) = delete;
  CMeshEdit& operator=(const CMeshEdit&) = delete;

  bool isOpen() const { return edit_ != nullptr; }
  // For functions that take an edit of any origin. Good while the edit is open.
  MeshEditOp& host() const { return *edit_; }

  // Ends the edit; the host makes the changes now, as one step of the user's.
  void done() { end(kEditNoError); }
  // Ends the edit with an error code, reports and throws CBaseEx.
  [[noreturn]] void fail(int error, const char* message);

  // Calls `action` for each skelegon of a layer choice in the host's order, until it answers false. Fails with
  // "fastPolyScan() !".
  void forEachSkelegon(int layers, const std::function<bool(PolygonId)>& action);
  // Which of these are skelegons of the current object; deleted ones may be among them. They may be identifiers that name
  // nothing, or something else, by now.
  PolygonSet skelegonsAmong(const PolygonIds& polygons);
  bool isSkelegon(PolygonId polygon) const;
  // The host's record, good until the next call into the host. Fails with "polyInfo() !" when there is none.
  const EDPolygonInfo& info(PolygonId polygon);
  // May not show what this edit itself has changed: the host applies changes at done().
  std::optional<std::string> tag(PolygonId polygon, std::uint32_t type) const;
  // Sets the text, or applies the rule for empty texts (see setPolygonTag). Fails with "polTag() !".
  void setTag(PolygonId polygon, std::uint32_t type, const std::string& text);
  // Only in an edit for selecting. Fails with "polSelect() !".
  void select(PolygonId polygon, bool on);

 private:
  void end(int error);
  // Fails as a scan does.
  void failOf(int error, const std::exception_ptr& failure);
  void search(int layers, PolygonSet& missing);

  MeshEditOp* edit_;
};

// Begins an edit. Throws CBaseEx when the host gives none, as it does while no object is loaded.
inline CMeshEdit EditBegin(int mode) { return CMeshEdit(mode); }

// The text of a polygon's tag, none where it has no such tag. For an open edit of any origin.
std::optional<std::string> polygonTag(const MeshEditOp& edit, PolygonId polygon, std::uint32_t type);

// Sets a polygon's tag. An empty text leaves the host's own tags (name, part, weight map, colour) there, blank, and removes
// any other tag. Gives the host's error code. For an open edit of any origin.
int setPolygonTag(const MeshEditOp& edit, PolygonId polygon, std::uint32_t type, const std::string& text);

// ---------------------------------------------------------------------------------------------------------------------
// Skelegons

// Without an object there is nothing to scan, and the host begins no edit.
bool objectIsLoaded();

// The skelegons of all layers, in the order in which the host scans them. Deleted ones never count.
PolygonIds CollectSkelegons();

// The selected skelegons of the foreground layers, in the same order.
PolygonIds CollectSelectedSkelegons();

// Makes these the selected skelegons of the foreground. Other polygons keep their selection; entries that are not in the
// foreground any more are left out.
void SelectSkelegons(const PolygonIds& polygons);

// Names in the order of `polygons`: "Bone" for a skelegon without a name tag, empty for one whose name is empty, and empty
// for what is no skelegon.
TagTexts SkelegonNames(const PolygonIds& polygons);

// True for a skelegon of the current object that is not deleted, in any layer.
bool IsLivingSkelegon(PolygonId polygon);

// Tags to write: polygon, type and text at the same index. An empty text blanks the host's own tags and removes others.
struct TagWrites {
  PolygonIds polygons;
  TagTypes types;
  TagTexts texts;

  void add(PolygonId polygon, std::uint32_t type, std::string_view text);
  void append(const TagWrites& more);
  bool empty() const { return polygons.empty(); }
};

// Tag texts in the order of `polygons`, polygon and type at the same index; empty where there is no such tag or the polygon
// is deleted. `types` must be as long as `polygons`.
TagTexts ReadPolygonTags(const PolygonIds& polygons, const TagTypes& types);

// [edit for tags open] Writes tags, polygon, type and text at the same index; deleted polygons are passed over. The caller
// ends the edit; when a call fails it has been ended already. Throws CTagWriteEx. The three lists must be equally long.
void WritePolygonTags(CMeshEdit& edit, const PolygonIds& polygons, const TagTypes& types, const TagTexts& texts);

// Whose report it is when the host has no record of a polygon.
struct ReportSource {
  const char* file;
  int line;
};

// The skelegons of a layer choice in scan order, with the tags of the types named. A polygon without a record ends the scan:
// it is reported in the name of `source`, nothing is thrown, and what was found so far is given.
std::vector<skg::SkelegonInfo> ScanSkelegons(int layers, ReportSource source, std::span<const std::uint32_t> tagTypes = {});

// ---------------------------------------------------------------------------------------------------------------------
// Layers and weight maps

// The name of a layer (0 is the first) of the current object, or of every layer up to its highest; "Layer1" and so on for
// layers without a name, and for any index when no object is loaded (LayerNames is empty then).
std::string LayerName(int index);
TagTexts LayerNames();

// The names of the weight maps that Modeler lists; "WMap1" and so on for those without a name.
TagTexts WeightMapNames();

// ---------------------------------------------------------------------------------------------------------------------
// The renamer's edits: through the Modeler functions that were acquired once, and without a word when something fails.

// An edit that is left open between calls, and the last error code. Still open at the end of its life, it is ended with an
// error code.
struct CEditRecord {
  MeshEditOp* edit = nullptr;
  int error = kEditNoError;

  CEditRecord() = default;
  ~CEditRecord();
  CEditRecord(const CEditRecord&) = delete;
  CEditRecord& operator=(const CEditRecord&) = delete;
};

// Begins an edit and keeps it in the record, error code 0. Null when the host gives none.
MeshEditOp* BeginEditInRecord(CEditRecord& record, int mode);

// Ends the record's edit with its error code and empties the record. Nothing when none is open.
void EndEditInRecord(CEditRecord& record);

// [edit open in the record] Selected skelegons of the foreground; the edit is ended and the record emptied. None, here and
// below, when the scan fails.
PolygonIds CollectSelectedInEdit(CEditRecord& record);

// [edit open in the record] Skelegons of all layers; the edit stays open, the scan's code is in the record.
PolygonIds CollectAllInEdit(CEditRecord& record);

}  // namespace lw
