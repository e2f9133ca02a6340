#include "modeler/renamer/rename_pass.h"

#include <regex>
#include <utility>

#include "host/lwtool2_errors.h"
#include "modeler/renamer/rename_targets.h"
#include "modeler/shared/skelegon_scan.h"
#include "skelegon/orders.h"

namespace mst {
namespace {

// Tags by polygon, type and text, at the same index.
struct Tags {
  lw::PolygonIds polygons;
  lw::TagTypes types;
  lw::TagTexts texts;

  void add(lw::PolygonId polygon, std::uint32_t type, std::string text) {
    polygons.push_back(polygon);
    types.push_back(type);
    texts.push_back(std::move(text));
  }
};

// An invalid pattern is an answer for the user and no failure.
template <class Pass>
RenameResult answeringBadPatterns(Pass&& pass) {
  try {
    return {pass(), {}};
  } catch (const std::regex_error& invalid) {
    return {RenameOutcome::InvalidPattern, invalid.what()};
  }
}

RenameOutcome simplePass(CSimpleRule& rule, bool withProperties) {
  const lw::PolygonIds selected = selectedForRenaming();
  if (selected.empty()) return RenameOutcome::NoSkelegons;
  Tags tags;
  for (const lw::PolygonId polygon : selected) {
    for (std::size_t i = 0; i < (withProperties ? kSimpleModeSlots.size() : 1); ++i) {
      tags.add(polygon, skg::SlotTagId(kSimpleModeSlots[i]), {});
    }
  }
  tags.texts = lw::ReadPolygonTags(tags.polygons, tags.types);
  for (std::string& text : tags.texts) text = rule.newText(text);
  lw::CMeshEdit edit(lw::kEditForTags);
  lw::WritePolygonTags(edit, tags.polygons, tags.types, tags.texts);
  edit.done();
  return RenameOutcome::Renamed;
}

lw::TagTypes typesToRename(const RenamerSettings& settings) {
  lw::TagTypes types;
  if (settings.renameSkelegonName) types.push_back(lw::kTagBone);
  if (settings.renameWeightMap) types.push_back(lw::kTagBoneWeight);
  if (settings.renameProperties) {
    for (const skg::Slot slot : skg::kNameBearingSlots) types.push_back(skg::SlotTagId(slot));
  }
  return types;
}

// [edit open] The tags that change, in the order in which they are written.
Tags changedTags(const lw::MeshEditOp& edit, const skg::SkelegonNodes& targets, const lw::TagTypes& types, CNameRule& rule) {
  Tags changed;
  for (const skg::SkelegonNode* const target : targets) {
    for (const std::uint32_t type : types) {
      const std::string old = lw::polygonTag(edit, target->polygon, type).value_or(std::string());
      std::string text = rule.newText(old, target->column, target->row);
      if (text != old) changed.add(target->polygon, type, std::move(text));
    }
  }
  return changed;
}

[[noreturn]] void endAndThrow(lw::CEditRecord& record, int error, const char* message) {
  record.error = error;
  lw::EndEditInRecord(record);
  lw::throwReported(message);
}

void write(const Tags& tags) {
  if (tags.polygons.empty()) return;
  lw::CEditRecord record;
  if (lw::BeginEditInRecord(record, lw::kEditForTags) == nullptr) lw::throwReported("editBegin() !");
  for (std::size_t i = 0; i < tags.polygons.size(); ++i) {
    const int error = lw::setPolygonTag(*record.edit, tags.polygons[i], tags.types[i], tags.texts[i]);
    if (error != lw::kEditNoError) endAndThrow(record, error, "polTag() !");
  }
  lw::EndEditInRecord(record);
}

// [edit open in the record] What a run would write.
RenameOutcome planned(lw::CEditRecord& record, const RenamerSettings& settings, const lw::PolygonIds& selected,
                      const lw::PolygonIds& registered, Tags& changed) {
  const lw::PolygonIds all = lw::CollectAllInEdit(record);
  if (record.error != lw::kEditNoError) endAndThrow(record, record.error, "fastPolyScan() !");
  const skg::SkelegonList skelegons = BuildSkelegonList(*record.edit, all);
  const auto [targets, heads] = chooseTargets(settings.target, skelegons, selected, registered);
  if (heads.empty()) return RenameOutcome::NoSkelegons;
  if (settings.columnOn || settings.rowOn) setCounters(targets, skg::order(heads, settings.order, settings.invert));

  CNameRule rule(settings);
  const bool namesMustDiffer = settings.renameSkelegonName && settings.overlapCheck;
  if (namesMustDiffer && firstDuplicate(targets, rule)) return RenameOutcome::DuplicatedNames;
  changed = changedTags(*record.edit, targets, typesToRename(settings), rule);
  return RenameOutcome::Renamed;
}

RenameOutcome advancedPass(const RenamerSettings& settings, const lw::PolygonIds& registered) {
  const lw::PolygonIds selected = settings.target == RenameTarget::Selection ? selectedForRenaming() : lw::PolygonIds();
  lw::CEditRecord record;
  if (lw::BeginEditInRecord(record, lw::kEditForTags) == nullptr) return RenameOutcome::NoSkelegons;
  Tags changed;
  const RenameOutcome outcome = planned(record, settings, selected, registered, changed);
  lw::EndEditInRecord(record);
  write(changed);
  return outcome;
}

}  // namespace

lw::PolygonIds selectedForRenaming() {
  lw::CEditRecord record;
  if (lw::BeginEditInRecord(record, lw::kEditSeesSelection) == nullptr) return {};
  return lw::CollectSelectedInEdit(record);
}

RenameResult runSimplePass(RenameMode mode, const std::string& first, const std::string& second, bool withProperties) {
  return answeringBadPatterns([&] {
    CSimpleRule rule(mode, first, second);
    return simplePass(rule, withProperties);
  });
}

RenameResult runAdvancedPass(const RenamerSettings& settings, const lw::PolygonIds& registered) {
  return answeringBadPatterns([&] { return advancedPass(settings, registered); });
}

}  // namespace mst
