#include "host/lwtool2_mesh.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <utility>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_eval.h"
#include "host/lwtool2_globals.h"
#include "host/polygon_scan.h"

namespace lw {
namespace {

constexpr std::size_t kFurtherPolygons = 1024;
constexpr int kKeepSelection = 0;  // the last argument of done

MeshEditOp* begunEdit(int mode) {
  MeshEditOp* const edit = modelerCommand().editBegin(0, 0, 0, mode);
  if (edit == nullptr) throwReported(FormatString("lw::mod::edit::begin( 0, 0, 0, %d ) !", mode));
  return edit;
}

// Tags that the host knows itself: they stay when their text is empty.
bool isHostTag(std::uint32_t type) {
  constexpr std::array kHostTags = {kTagBone, kTagPart, kTagBoneWeight, kTagColour};
  return std::find(kHostTags.begin(), kHostTags.end(), type) != kHostTags.end();
}

// Which polygons of a list are there. Lists name a polygon many times in a row, once for each of its tags: one record serves
// all.
class CPresence {
 public:
  explicit CPresence(CMeshEdit& edit) : edit_(edit) {}
  bool isThere(PolygonId polygon) {
    if (polygon != last_) {
      last_ = polygon;
      isThere_ = kNotDeleted.fits(edit_.info(polygon).flags);
    }
    return isThere_;
  }

 private:
  CMeshEdit& edit_;
  PolygonId last_ = nullptr;
  bool isThere_ = false;
};

PolygonIds collect(int mode, int layers, FlagRule rule) {
  CMeshEdit edit(mode);
  PolygonIds polygons;
  edit.forEachSkelegon(layers, [&](PolygonId polygon) {
    if (rule.fits(edit.info(polygon).flags)) polygons.push_back(polygon);
    return true;
  });
  edit.done();
  return polygons;
}

}  // namespace

PolygonScan::PolygonScan(const MeshEditOp& edit, int layers) {
  const FastPolygonScan keep = [](void* user, PolygonId polygon) {
    auto& scan = *static_cast<PolygonScan*>(user);
    // Nothing of this can throw.
    if (scan.found.size() == scan.found.capacity()) [[unlikely]]
      return scan.appendBeyondRoom(polygon);
    scan.found.push_back(polygon);
    return static_cast<int>(kEditNoError);
  };
  // A list that grows is copied each time. A scan finds about as many polygons as the one before, which the user may have added
  // some to.
  static std::size_t expected = kFurtherPolygons;
  const auto run = [&] {
    found.reserve(expected);
    return edit.fastPolyScan(edit.state, keep, this, layers, 0);
  };
  error = guarded(run, static_cast<int>(kEditNoMemory), failure);
  expected = found.size() + kFurtherPolygons;
}

// ---------------------------------------------------------------------------------------------------------------------
// An open edit

CMeshEdit::CMeshEdit(int mode) : edit_(begunEdit(mode)) {}

CMeshEdit::~CMeshEdit() {
  // Only an exception that is none of the host layer's comes here with the edit open.
  if (isOpen()) end(kEditUserAbort);
}

void CMeshEdit::end(int error) {
  MeshEditOp* const edit = std::exchange(edit_, nullptr);
  edit->done(edit->state, error, kKeepSelection);
}

void CMeshEdit::fail(int error, const char* message) {
  end(error);
  throwReported(message);
}

void CMeshEdit::failOf(int error, const std::exception_ptr& failure) {
  if (failure) {
    end(error);
    std::rethrow_exception(failure);
  }
  if (error != kEditNoError) fail(error, "fastPolyScan() !");
}

void CMeshEdit::forEachSkelegon(int layers, const std::function<bool(PolygonId)>& action) {
  const CSkelegonWalk walk(host(), layers);
  failOf(walk.error(), walk.failure());
  walk.forEach(action);
}

// Beside a large mesh the polygons in question are few: they are looked for in the scan, which keeps no list of the others
// and asks nothing.
void CMeshEdit::search(int layers, PolygonSet& missing) {
  // Nothing in it can throw.
  const FastPolygonScan strike = [](void* user, PolygonId polygon) noexcept {
    static_cast<PolygonSet*>(user)->erase(polygon);
    return static_cast<int>(kEditNoError);
  };
  failOf(edit_->fastPolyScan(edit_->state, strike, &missing, layers, 0), nullptr);
}

PolygonSet CMeshEdit::skelegonsAmong(const PolygonIds& polygons) {
  PolygonSet missing(polygons.begin(), polygons.end());
  PolygonSet skelegons;
  const auto known = [](int layers) { return foundSkelegons().in(layers); };
  constexpr std::array<int, 2> kChoices = {kLayersForeground, kLayersAll};  // the second only for what is not in the first
  for (const int layers : kChoices) {
    if (known(layers) == nullptr) continue;
    for (const PolygonId polygon : *known(layers)) {
      if (missing.erase(polygon) != 0) skelegons.insert(polygon);
    }
  }
  for (const int layers : kChoices) {
    const bool isNews = known(layers) == nullptr && known(kLayersAll) == nullptr;
    if (isNews && !missing.empty()) search(layers, missing);
  }
  for (const PolygonId polygon : polygons) {
    if (skelegons.count(polygon) != 0 || missing.count(polygon) != 0) continue;
    const std::uint32_t type = edit_->polyType(edit_->state, polygon);
    // A skelegon whose type the host does not tell must not be left out of what is done to the others.
    if (type == kTypeUnknown) fail(kEditBadArguments, "polyType() !");
    (type == kTypeBone ? skelegons : missing).insert(polygon);
  }
  return skelegons;
}

bool CMeshEdit::isSkelegon(PolygonId polygon) const { return edit_->polyType(edit_->state, polygon) == kTypeBone; }

const EDPolygonInfo& CMeshEdit::info(PolygonId polygon) {
  const EDPolygonInfo* const record = edit_->polyInfo(edit_->state, polygon);
  if (record == nullptr) fail(kEditBadArguments, "polyInfo() !");
  return *record;
}

std::optional<std::string> CMeshEdit::tag(PolygonId polygon, std::uint32_t type) const {
  return polygonTag(host(), polygon, type);
}

void CMeshEdit::setTag(PolygonId polygon, std::uint32_t type, const std::string& text) {
  const int error = setPolygonTag(host(), polygon, type, text);
  if (error != kEditNoError) fail(error, "polTag() !");
}

void CMeshEdit::select(PolygonId polygon, bool on) {
  const int error = edit_->polSelect(edit_->state, polygon, on ? 1 : 0);
  if (error != kEditNoError) fail(error, "polSelect() !");
}

std::optional<std::string> polygonTag(const MeshEditOp& edit, PolygonId polygon, std::uint32_t type) {
  const char* const text = edit.polyTag(edit.state, polygon, type);
  return text == nullptr ? std::nullopt : std::optional<std::string>(text);
}

int setPolygonTag(const MeshEditOp& edit, PolygonId polygon, std::uint32_t type, const std::string& text) {
  const bool removed = text.empty() && !isHostTag(type);
  return edit.polTag(edit.state, polygon, type, removed ? nullptr : text.c_str());
}

// ---------------------------------------------------------------------------------------------------------------------
// Skelegons

bool objectIsLoaded() { return stateQuery().object() != nullptr; }

PolygonIds CollectSkelegons() { return collect(kEditForTags, kLayersAll, kNotDeleted); }

PolygonIds CollectSelectedSkelegons() { return collect(kEditSeesSelection, kLayersForeground, kSelectedNotDeleted); }

void SelectSkelegons(const PolygonIds& polygons) {
  CMeshEdit edit(kEditForSelecting);
  // What a panel remembers may be gone by now; the host must not be asked about such polygons.
  PolygonSet selectable;
  edit.forEachSkelegon(kLayersForeground, [&](PolygonId polygon) {
    const int flags = edit.info(polygon).flags;
    if (kNotDeleted.fits(flags)) selectable.insert(polygon);
    if (kSelectedNotDeleted.fits(flags)) edit.select(polygon, false);
    return true;
  });
  for (const PolygonId polygon : polygons) {
    if (selectable.count(polygon) != 0) edit.select(polygon, true);
  }
  edit.done();
}

TagTexts SkelegonNames(const PolygonIds& polygons) {
  CMeshEdit edit(kEditForTags);
  TagTexts names(polygons.size());
  for (std::size_t i = 0; i < polygons.size(); ++i) {
    if (!edit.isSkelegon(polygons[i])) continue;
    edit.info(polygons[i]);  // the host must know the polygon; a deleted one is named, too: a list made before still has it
    names[i] = edit.tag(polygons[i], kTagBone).value_or("Bone");
  }
  edit.done();
  return names;
}

bool IsLivingSkelegon(PolygonId polygon) {
  CMeshEdit edit(kEditForTags);
  const bool isLiving = edit.skelegonsAmong({polygon}).count(polygon) != 0 && kNotDeleted.fits(edit.info(polygon).flags);
  edit.done();
  return isLiving;
}

void TagWrites::add(PolygonId polygon, std::uint32_t type, std::string_view text) {
  polygons.push_back(polygon);
  types.push_back(type);
  texts.emplace_back(text);
}

void TagWrites::append(const TagWrites& more) {
  for (std::size_t i = 0; i < more.polygons.size(); ++i) add(more.polygons[i], more.types[i], more.texts[i]);
}

TagTexts ReadPolygonTags(const PolygonIds& polygons, const TagTypes& types) {
  assert(types.size() == polygons.size());
  CMeshEdit edit(kEditForTags);
  CPresence presence(edit);
  TagTexts texts(polygons.size());
  for (std::size_t i = 0; i < polygons.size(); ++i) {
    if (presence.isThere(polygons[i])) texts[i] = edit.tag(polygons[i], types[i]).value_or(std::string());
  }
  edit.done();
  return texts;
}

void WritePolygonTags(CMeshEdit& edit, const PolygonIds& polygons, const TagTypes& types, const TagTexts& texts) {
  assert(types.size() == polygons.size() && texts.size() == polygons.size());
  try {
    CPresence presence(edit);
    for (std::size_t i = 0; i < polygons.size(); ++i) {
      if (presence.isThere(polygons[i])) edit.setTag(polygons[i], types[i], texts[i]);
    }
  } catch (const ex::CBaseEx& failure) {
    throw ex::CTagWriteEx(failure.message());
  }
}

namespace {

// Copies what the record holds and then asks for the tags: the record is good only until the next call.
skg::SkelegonInfo skelegonInfo(const MeshEditOp& edit, const EDPolygonInfo& record,
                               std::span<const std::uint32_t> tagTypes) {
  skg::SkelegonInfo info;
  info.polygon = record.pol;
  info.layer = record.layer;
  info.isSelected = kSelectedNotDeleted.fits(record.flags);
  if (record.numPnts >= 2 && record.points != nullptr) {  // a damaged one has no ends
    info.head = record.points[0];
    info.tail = record.points[1];
  }
  info.name = polygonTag(edit, info.polygon, kTagBone).value_or(std::string());
  info.tags.reserve(tagTypes.size());
  for (const std::uint32_t type : tagTypes) info.tags.push_back(polygonTag(edit, info.polygon, type));
  return info;
}

}  // namespace

std::vector<skg::SkelegonInfo> ScanSkelegons(int layers, ReportSource source, std::span<const std::uint32_t> tagTypes) {
  foundSkelegons().shareWithForeground();
  CMeshEdit edit(kEditSeesSelection);
  std::vector<skg::SkelegonInfo> skelegons;
  bool isComplete = true;
  edit.forEachSkelegon(layers, [&](PolygonId polygon) {
    const EDPolygonInfo* const record = edit.host().polyInfo(edit.host().state, polygon);
    isComplete = record != nullptr;
    if (isComplete && kNotDeleted.fits(record->flags)) skelegons.push_back(skelegonInfo(edit.host(), *record, tagTypes));
    return isComplete;
  });
  edit.done();
  if (!isComplete) ReportError(source.file, source.line, "polyInfo() returned NULL !");
  return skelegons;
}

}  // namespace lw
