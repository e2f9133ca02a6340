#include "program/conversion_verdict.h"

#include <algorithm>
#include <map>
#include <utility>

#include "standin/core/tool_names.h"
#include "standin/panels/folded_text.h"

namespace standin {
namespace {

constexpr std::size_t kColumns = 100;
constexpr std::size_t kMostNamed = 10;  // names, or kinds of one trouble, in one verdict

bool isToolsOwn(const Event& status, const char* word) { return status.text == kConversionTool + std::string(word); }
bool isDone(const Event& status) { return isToolsOwn(status, " done."); }

// The tool says where it begins and ends, and moves the progress bar. Whatever else it says is a failure.
bool isFailure(const Event& status) { return !status.progress && !isDone(status) && !isToolsOwn(status, " start..."); }

bool isRefusal(const Event& event) { return event.kind == EventKind::Rejected || event.kind == EventKind::Asked; }

// An object without skelegons is nothing to convert, which is no trouble.
bool isNoTrouble(const Event& event) { return event.why == kNoSkelegons; }

std::string nameOfCommand(const std::string& command) { return command.substr(0, command.find(' ')); }

// What stands between the first and the last quotation mark.
std::string quotedIn(const std::string& text) {
  const std::size_t first = text.find('"');
  const std::size_t last = text.rfind('"');
  return first == last ? std::string() : text.substr(first + 1, last - first - 1);
}

// Fills a list with equal things counted: a large rig can have tens of thousands of failures, each of another name.
class Counter {
 public:
  explicit Counter(std::vector<ConversionVerdict::Counted>& list) : list_(list) {}

  void add(const std::string& text, const std::string& why) {
    const auto [place, isNew] = places_.try_emplace({text, why}, list_.size());
    if (isNew) list_.push_back({text, why, 0});
    ++list_[place->second].count;
  }

 private:
  std::vector<ConversionVerdict::Counted>& list_;
  std::map<std::pair<std::string, std::string>, std::size_t> places_;
};

std::string whyPassedOver(const Item& item, bool hasSkelegons, bool wasCutOff) {
  if (!hasSkelegons) return "it has no skelegons";
  if (!item.source->path.ends_with(".lwo")) return "its file's name does not end in .lwo, in small letters";
  return wasCutOff ? "the run was cut off before it" : "its skelegons were not made into bones";
}

// ---------------------------------------------------------------------------------------------------------------------
// Text

std::string listed(const std::vector<std::string>& names) {
  std::string text;
  for (std::size_t i = 0; i < std::min(names.size(), kMostNamed); ++i) text += (i == 0 ? "" : ", ") + names[i];
  if (names.size() > kMostNamed) text += " and " + std::to_string(names.size() - kMostNamed) + " more";
  return text;
}

std::string line(const std::string& text) { return folded("  " + text, kColumns, 6) + '\n'; }

std::string timesText(std::size_t count) { return count == 1 ? "" : ", " + std::to_string(count) + " times"; }

template <class Row, class TextOf>
std::string lines(const std::vector<Row>& rows, TextOf&& textOf) {
  std::string text;
  for (std::size_t i = 0; i < std::min(rows.size(), kMostNamed); ++i) text += line(textOf(rows[i]));
  if (rows.size() > kMostNamed) text += line("and " + std::to_string(rows.size() - kMostNamed) + " more of these");
  return text;
}

}  // namespace

bool ConversionVerdict::isSound() const {
  const bool onlyNormal = std::all_of(passedOver.begin(), passedOver.end(), [](const auto& p) { return p.isNormal; });
  return converted > 0 && onlyNormal && partlySet.empty() && notSet.empty() && refused.empty() && failures.empty() &&
         !wasCutOff;
}

std::string verdictText(const ConversionVerdict& v) {
  const auto ofAll = [](std::size_t part, std::size_t all) { return std::to_string(part) + " of " + std::to_string(all); };
  std::string text = v.isSound() ? "verdict: all went well\n" : "verdict: not all went well\n";
  text += line("objects converted: " + ofAll(v.converted, v.objects));
  text += line("bones set: " + ofAll(v.set, v.bones));
  if (!v.partlySet.empty()) text += line("bones set only in part: " + listed(v.partlySet));
  if (!v.notSet.empty()) text += line("bones without settings: " + listed(v.notSet));
  text += lines(v.refused, [](const auto& c) { return "refused by Layout: " + c.text + timesText(c.count) + ": " + c.why; });
  text += lines(v.failures, [](const auto& c) { return "on the status line" + timesText(c.count) + ": " + c.text; });
  text += lines(v.passedOver, [](const auto& p) { return "passed over: " + p.item + ", since " + p.why; });
  if (v.wasCutOff) text += line("the run was cut off: the tool never said that it is done");
  return text;
}

ConversionWatch::ConversionWatch(LayoutHost& host, std::function<void(double)> told)
    : host_(host), told_(std::move(told)), firstEvent_(host.transcript().events().size()) {
  for (Item* item : host.scene().selection()) {
    if (item->source) objects_.push_back({item, item->bones.size(), !item->skelegons.polygons.empty()});
  }
  host.state().watch = [this](LayoutState& state, std::string_view command) { look(state, command); };
}

ConversionWatch::~ConversionWatch() { host_.state().watch = nullptr; }

// Whose settings are being sent is the first bone that is selected after the progress bar has moved; other items may be
// selected on the way.
void ConversionWatch::look(const LayoutState& state, std::string_view command) {
  if (command.starts_with("StatusMsg")) {
    const std::vector<Event>& events = state.transcript.events();
    const auto status =
        std::find_if(events.rbegin(), events.rend(), [](const Event& e) { return e.kind == EventKind::Status; });
    if (status != events.rend()) lookAtStatus(*status);
    return;
  }
  const std::vector<Item*>& selection = state.scene.selection();
  if (selection.size() != 1 || selection.front()->kind != ItemKind::Bone) return;
  if (bone_ == nullptr && command.starts_with("SelectItem")) bone_ = selection.front();
  if (bone_ == selection.front() && command.starts_with("Bone")) begun_.insert(bone_);
}

void ConversionWatch::lookAtStatus(const Event& status) {
  if (isFailure(status) && bone_ != nullptr) troubled_.insert(bone_);
  if (!status.progress && !isDone(status)) return;
  bone_ = nullptr;
  if (status.progress && told_) told_(*status.progress);
}

void ConversionWatch::judgeEvents(ConversionVerdict& verdict) const {
  std::set<std::string> refused;
  Counter refusals(verdict.refused);
  Counter failures(verdict.failures);
  verdict.wasCutOff = true;
  const std::vector<Event>& events = host_.transcript().events();
  for (std::size_t i = firstEvent_; i < events.size(); ++i) {
    const Event& event = events[i];
    if (isRefusal(event)) {
      refused.insert(event.text);
      if (!isNoTrouble(event)) refusals.add(nameOfCommand(event.text), event.why);
    } else if (event.kind == EventKind::Status) {
      if (isDone(event)) verdict.wasCutOff = false;
      if (isFailure(event) && refused.count(quotedIn(event.text)) == 0) failures.add(event.text, {});
    }
  }
}

void ConversionWatch::judgeObjects(ConversionVerdict& verdict) const {
  const Scene& scene = host_.scene();
  for (const Object& object : objects_) {
    const std::vector<Item*>& bones = object.item->bones;
    ++verdict.objects;
    if (bones.size() > object.bonesBefore) {
      ++verdict.converted;
    } else {
      verdict.passedOver.push_back({scene.nameOf(*object.item),
                                    whyPassedOver(*object.item, object.hasSkelegons, verdict.wasCutOff),
                                    !object.hasSkelegons});
    }
    for (std::size_t i = object.bonesBefore; i < bones.size(); ++i) {
      ++verdict.bones;
      const bool inTrouble = troubled_.count(bones[i]) != 0 || (verdict.wasCutOff && bones[i] == bone_);
      if (begun_.count(bones[i]) == 0) {
        verdict.notSet.push_back(scene.nameOf(*bones[i]));
      } else if (inTrouble) {
        verdict.partlySet.push_back(scene.nameOf(*bones[i]));
      } else {
        ++verdict.set;
      }
    }
  }
}

ConversionVerdict ConversionWatch::verdict() const {
  ConversionVerdict verdict;
  judgeEvents(verdict);
  judgeObjects(verdict);
  return verdict;
}

}  // namespace standin
