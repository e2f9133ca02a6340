#include "probe/modeler_questions.h"

#include <optional>

#include "host/lwtool2_errors.h"
#include "probe/modeler_objects.h"
#include "probe/modeler_site.h"

namespace probe {
namespace {

using Tables = ModelerQuestions (*)();
constexpr Tables kTables[]{editQuestions, scanQuestions, tagQuestions, nameQuestions, objectQuestions};

// Each question of the loaded rig in turn; the first layer is in the foreground.
void askRig(ModelerSite& site, const UnsavedObject& unsaved, Facts& facts) {
  lw::guarded([&] { site.host.command("setlayer 1"); });  // where it is not, single questions tell
  // First: what saves the rig gives it a file name, where loading has not.
  facts.tell("object-name", answerOf([&] { return objectName(unsaved, site); }));
  for (const Tables table : kTables) ask<ModelerSite>(table(), site, facts);
  for (const ModelerFigure& figure : modelerFigures()) {
    facts.figure(figure.name, sentenceOf([&] { return figure.measure(site); }));
  }
}

void tellNothing(const std::string& why, Facts& facts) {
  for (const Tables table : kTables) {
    for (const Question<ModelerSite>& question : table()) facts.tell(question.name, notTold(why));
  }
  facts.tell("object-name", notTold(why));
}

// What is told once the rig is gone again.
Answer mapOwnerBy(const Host& host, const UnsavedObject& unsaved, Facts& facts) {
  const RigFile file;
  LoadedRig rig(host, file);
  ModelerSite site{host, rig};
  askRig(site, unsaved, facts);
  const bool wasListed = listsRigMap(host);
  rig.close();
  return mapOwner(host, wasListed);
}

}  // namespace

void measureModeler(Host& host, Facts& facts) {
  const Answer edit = answerOf([&] { return editWithoutObject(host); });
  facts.tell("edit-without-object", edit);
  const UnsavedObject unsaved = unsavedObject(host);
  const std::size_t known = facts.facts().size();
  const Answer owner = answerOf([&] { return mapOwnerBy(host, unsaved, facts); });
  if (facts.facts().size() == known) tellNothing(owner.seen, facts);
  facts.tell("map-owner", owner);
  // The empty object that was in the way may have gone with the rig.
  if (edit.value.empty()) facts.tell("edit-without-object", answerOf([&] { return editWithoutObject(host); }));
}

}  // namespace probe
