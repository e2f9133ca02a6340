#include "program/drawn_rigs.h"

#include <map>
#include <string>
#include <vector>

#include "rigs/findings.h"
#include "rigs/japanese_texts.h"

namespace standin {
namespace {

// By skelegon; empty for those without.
std::vector<std::string> problemsOf(const rigs::Inspected& file, rigs::Language language) {
  std::vector<std::string> problems(file.rig.skelegons.size());
  for (const rigs::Finding& finding : file.findings) {
    if (!isProblem(finding) || !finding.skelegon) continue;
    std::string& problem = problems[*finding.skelegon];
    problem += (problem.empty() ? "" : " / ") + sentenceOf(finding, language);
  }
  return problems;
}

void mark(views::PosedBone& bone, const std::string& problem) {
  bone.isMarked = !problem.empty();
  bone.remark = problem;
}

}  // namespace

views::PosedRig drawnBefore(const InspectedObject& file, rigs::Language language) {
  views::PosedRig posed = views::posedBefore(file.object, file.inspected.rig);
  const std::vector<std::string> problems = problemsOf(file.inspected, language);
  for (std::size_t i = 0; i < posed.bones.size(); ++i) mark(posed.bones[i], problems[i]);
  return posed;
}

views::PosedRig drawnAfter(Scene& scene, const InspectedObject& file, rigs::Language language) {
  views::PosedRig posed = views::posedAfter(scene, file.object);
  // The scene has the names as they are stored.
  const auto readable = [&](const std::string& name) { return file.inspected.rig.isInJapanese ? rigs::inUtf8(name) : name; };
  const std::vector<std::string> problems = problemsOf(file.inspected, language);
  std::map<std::string, std::string> byName;
  for (std::size_t i = 0; i < problems.size(); ++i) {
    if (!problems[i].empty()) byName.emplace(file.inspected.rig.skelegons[i].name, problems[i]);
  }
  for (views::PosedBone& bone : posed.bones) {
    const auto problem = byName.find(readable(bone.givenName));
    if (problem != byName.end()) mark(bone, problem->second);
    bone.name = readable(bone.name);
  }
  for (views::PosedNull& null : posed.nulls) null.name = readable(null.name);
  for (views::PosedLayer& layer : posed.layers) layer.name = readable(layer.name);
  return posed;
}

}  // namespace standin
