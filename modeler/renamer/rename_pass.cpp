#include "modeler/renamer/rename_pass.h"

#include <regex>
#include <utility>

#include "host/lwtool2_errors.h"
#include "modeler/renamer/deep_stack.h"
#include "modeler/renamer/rename_targets.h"
#include "modeler/shared/skelegon_scan.h"
#include "skelegon/orders.h"

namespace mst {
namespace {

// The matcher's stack: enough for the longest name, whatever the compiler takes for a character. What the limit leaves is for the
// matcher's last call and for a system that shows the end of its stack in advance.
constexpr std::size_t kStackForNames = 268'435'456;
constexpr std::size_t kStackForAMatch = kStackForNames - 16'777'216;

// Works out texts; by a pattern, on a stack on which names of any length can be matched. The host must not be called meanwhile.
template <class Rule, class Work>
void onStackForNames(Rule& rule, Work&& work) {
  rule.useStack(kStackForAMatch);
  if (rule.usesPattern() && runOnStack(kStackForNames, work)) return;
  rule.useStack(kDeepestMatch);
  work();
}

// What `work` gives for a text of a skelegon of that name.
template <class Work>
std::string textFor(std::string_view skelegon, Work&& work) {
  try {
    return work();
  } catch (const CTextRefused& refused) {
    throw NameRefused{refused.why, std::string(skelegon)};
  }
}

// A pattern or a name that cannot be used is an answer for the user and no failure.
template <class Pass>
RenameResult answering(Pass&& pass) {
  try {
    return {.outcome = pass()};
  } catch (const NameRefused& refused) {
    return {.outcome = RenameOutcome::RefusedName, .refused = refused};
  } catch (const std::regex_error& invalid) {
    return {.outcome = RenameOutcome::InvalidPattern, .complaint = invalid.what()};
  }
}

RenameOutcome simplePass(CSimpleRule& rule, bool withProperties) {
  const lw::PolygonIds selected = selectedForRenaming();
  if (selected.empty()) return RenameOutcome::NoSkelegons;
  const std::size_t textsOfEach = withProperties ? kSimpleModeSlots.size() : 1;  // the name first
  lw::TagWrites tags;
  for (const lw::PolygonId polygon : selected) {
    for (std::size_t i = 0; i < textsOfEach; ++i) tags.add(polygon, skg::SlotTagId(kSimpleModeSlots[i]), {});
  }
  const lw::TagTexts old = lw::ReadPolygonTags(tags.polygons, tags.types);
  onStackForNames(rule, [&] {
    for (std::size_t i = 0; i < old.size(); ++i) {
      tags.texts[i] = textFor(old[i - i % textsOfEach], [&] { return rule.newText(old[i]); });
    }
  });
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

lw::TagTexts newNames(const skg::SkelegonNodes& targets, CNameRule& rule) {
  lw::TagTexts names;
  onStackForNames(rule, [&] {
    for (const skg::SkelegonNode* const target : targets) {
      names.push_back(textFor(target->name, [&] { return rule.newText(target->name, target->column, target->row); }));
    }
  });
  return names;
}

// [edit open] The tags that change, in the order in which they are written. `names` are the targets' new ones; none were worked out
// when it is empty.
lw::TagWrites changedTags(const lw::MeshEditOp& edit, const skg::SkelegonNodes& targets, const lw::TagTypes& types,
                          const lw::TagTexts& names, CNameRule& rule) {
  lw::TagTexts old;
  for (const skg::SkelegonNode* const target : targets) {
    for (const std::uint32_t type : types) {
      old.push_back(lw::polygonTag(edit, target->polygon, type).value_or(std::string()));
    }
  }
  lw::TagWrites changed;
  onStackForNames(rule, [&] {
    for (std::size_t i = 0; i < old.size(); ++i) {
      const std::size_t place = i / types.size();
      const skg::SkelegonNode& target = *targets[place];
      const std::uint32_t type = types[i % types.size()];
      const std::string text = type == lw::kTagBone && !names.empty()
                                   ? names[place]
                                   : textFor(target.name, [&] { return rule.newText(old[i], target.column, target.row); });
      if (text != old[i]) changed.add(target.polygon, type, text);
    }
  });
  return changed;
}

[[noreturn]] void endAndThrow(lw::CEditRecord& record, int error, const char* message) {
  record.error = error;
  lw::EndEditInRecord(record);
  lw::throwReported(message);
}

void write(const lw::TagWrites& tags) {
  if (tags.empty()) return;
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
                      const lw::PolygonIds& registered, lw::TagWrites& changed) {
  const lw::PolygonIds all = lw::CollectAllInEdit(record);
  if (record.error != lw::kEditNoError) endAndThrow(record, record.error, "fastPolyScan() !");
  const skg::SkelegonList skelegons = BuildSkelegonList(*record.edit, all);
  const auto [targets, heads] = chooseTargets(settings.target, skelegons, selected, registered);
  if (heads.empty()) return RenameOutcome::NoSkelegons;
  if (settings.columnOn || settings.rowOn) setCounters(targets, skg::order(heads, settings.order, settings.invert));

  CNameRule rule(settings);
  const bool namesMustDiffer = settings.renameSkelegonName && settings.overlapCheck;
  const lw::TagTexts names = namesMustDiffer ? newNames(targets, rule) : lw::TagTexts();
  if (firstDuplicate(names)) return RenameOutcome::DuplicatedNames;
  changed = changedTags(*record.edit, targets, typesToRename(settings), names, rule);
  return RenameOutcome::Renamed;
}

RenameOutcome advancedPass(const RenamerSettings& settings, const lw::PolygonIds& registered) {
  const lw::PolygonIds selected = settings.target == RenameTarget::Selection ? selectedForRenaming() : lw::PolygonIds();
  lw::CEditRecord record;
  if (lw::BeginEditInRecord(record, lw::kEditForTags) == nullptr) return RenameOutcome::NoSkelegons;
  lw::TagWrites changed;
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
  return answering([&] {
    CSimpleRule rule(mode, first, second);
    return simplePass(rule, withProperties);
  });
}

RenameResult runAdvancedPass(const RenamerSettings& settings, const lw::PolygonIds& registered) {
  return answering([&] { return advancedPass(settings, registered); });
}

}  // namespace mst
