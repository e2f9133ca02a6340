#include "standin/validate/traveller.h"

#include <algorithm>
#include <array>
#include <map>
#include <sstream>

#include "standin/core/witness.h"
#include "standin/validate/touch.h"

namespace standin::validate {
namespace {

// The first difference of two texts, line by line.
std::string firstDifference(const std::string& one, const std::string& other) {
  std::size_t from = 0;
  std::size_t at = 0;
  for (; at < one.size() && at < other.size() && one[at] == other[at]; ++at) {
    if (one[at] == '\n') from = at + 1;
  }
  const auto line = [&](const std::string& text) { return text.substr(from, text.find('\n', from) - from); };
  return '"' + line(one) + "\" instead of \"" + line(other) + '"';
}

}  // namespace

Traveller::Traveller(const TripOrder& order, Program program)
    : order_(order), session_(program, *order.rig, order.module, order.host.options()) {
  session_.setLocale(order.language);
  if (!session_.refusal().empty()) report_.broken.push_back(session_.refusal());
}

void Traveller::begin() const {
  if (order_.begin) order_.begin();
}

void Traveller::end() {
  refused_ = witness().refusedFunction();
  if (order_.end) order_.end();
  for (Panel* panel : panels().open()) panels().paintWanted(*panel);
}

bool Traveller::wasDeceived() const {
  // A refused question for an item's type is answered with 0, which is an object's.
  constexpr std::array kSilent{"control set", "control get", "control draw",    "panel set",
                               "panel get",   "panel draw",  "LWItemInfo::type"};
  return std::find(kSilent.begin(), kSilent.end(), refused_) != kSilent.end();
}

void Traveller::mustHold(bool holds, const std::string& rule) {
  if (!holds) report_.broken.push_back("broken: " + rule);
}

void Traveller::judgeNextRun() {
  if (wasDeceived()) mustHold(session_.reload(), "the module can be loaded again");
  mustHold(session_.activate(kProperty) == lw::kActivationOk, "the next activation of the property tool succeeds");
  Panel* const panel = panels().find(kProperty.server);
  const bool isOpen = panel != nullptr && panel->isOpen();
  mustHold(isOpen, "the next run of the property tool opens its panel");
  if (!isOpen) return;
  const std::string shown = everythingShown(*panel);
  const std::string& expected = freshView();
  mustHold(shown == expected, "panels show what is stored: " + firstDifference(shown, expected));
}

TripReport Traveller::finish() {
  if (session_.modeler() != nullptr) {
    const auto& edits = session_.modeler()->edits();
    mustHold(std::all_of(edits.begin(), edits.end(), [](const EditRecord& edit) { return edit.done; }),
             "every mesh edit is ended");
  }
  if (const std::string complaints = notOfDeception(session_.end()); !complaints.empty()) {
    report_.broken.push_back(complaints);
  }
  report_.troubles = troubles();
  return std::move(report_);
}

// What a freshly loaded module shows for the mesh as it is. It depends on nothing else but the host, so it is kept.
const std::string& Traveller::freshView() {
  static std::map<std::string, std::string> views;
  const std::string key = order_.host.text() + '\n' + std::to_string(order_.language) + '\n' + meshText(session_);
  if (const auto found = views.find(key); found != views.end()) return found->second;
  std::string view;
  if (session_.reload()) {
    if (Panel* const panel = session_.open(kProperty)) view = everythingShown(*panel);
  }
  return views[key] = view;
}

// Complaints without the one that only says that the dropped call was dropped.
std::string Traveller::notOfDeception(const std::string& complaints) const {
  if (!wasDeceived()) return complaints;
  std::string kept;
  std::istringstream lines(complaints);
  for (std::string line; std::getline(lines, line);) {
    constexpr std::array kOfDeception{"user data was never set", "instead of an object"};
    const bool isOfDeception = std::any_of(kOfDeception.begin(), kOfDeception.end(),
                                           [&](const char* words) { return line.find(words) != std::string::npos; });
    if (!isOfDeception) kept += line + '\n';
  }
  return kept;
}

void convertSaved(const TripOrder& order, const std::string& saved, TripReport& report,
                  const std::function<void(Traveller&, Scene&)>& look) {
  const Outcome<ObjectFile> object = readObject(saved);
  if (!object) {
    report.troubles.push_back(object.why());
    return;
  }
  const TripRig rig{*object, saved};
  TripOrder inLayout = order;
  inLayout.rig = &rig;
  Traveller user(inLayout, Program::Layout);
  Panel* const panel = user.session().open(kConversion);
  user.finds(panel != nullptr, "the conversion panel opens");
  if (panel != nullptr) user.does(person::press(panel->find(ControlKind::Button, 0)));
  user.end();
  look(user, user.session().layout()->scene());
  const TripReport further = user.finish();
  report.troubles.insert(report.troubles.end(), further.troubles.begin(), further.troubles.end());
  report.broken.insert(report.broken.end(), further.broken.begin(), further.broken.end());
}

std::vector<std::string> skelegonNames(Session& session, std::size_t most) {
  std::vector<std::string> names;
  for (const MeshPolygon* polygon : session.modeler()->current()->skelegons()) {
    if (names.size() < most) names.push_back(polygon->tag(lw::kTagBone));
  }
  return names;
}

std::string meshText(Session& session) {
  std::string text;
  for (const MeshPolygon* polygon : session.modeler()->current()->skelegons()) {
    text += polygon->selected ? "selected\n" : "\n";
    for (const PolygonTag& tag : polygon->content.tags) text += std::to_string(tag.type) + '=' + tag.text + '\n';
  }
  return text;
}

}  // namespace standin::validate
