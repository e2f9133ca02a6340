#include <algorithm>
#include <functional>
#include <iostream>
#include <memory>

#include "objectfile/rig_builder.h"
#include "objectfile/sample_rigs.h"
#include "program/host_option.h"
#include "program/subcommands.h"
#include "program/support.h"
#include "standin/panels/metrics.h"
#include "standin/validate/panel_places.h"
#include "standin/variants/played_host.h"

namespace standin {
namespace {

struct RenameOptions {
  std::string module;
  HostWords host;
  std::string language;
};

// ---------------------------------------------------------------------------------------------------------------------
// Trees

struct TreeLine {
  int depth = 0;
  const MeshPolygon* skelegon = nullptr;
};

// The skelegons below a point, or those that nothing ends at.
void collect(const std::vector<const MeshPolygon*>& all, const MeshPolygon* parent, int depth,
             std::vector<TreeLine>& lines) {
  for (const MeshPolygon* const skelegon : all) {
    const auto endsAtHead = [&](const MeshPolygon* other) { return other->points[1] == skelegon->points[0]; };
    const bool isBelow = parent != nullptr ? endsAtHead(parent) : std::none_of(all.begin(), all.end(), endsAtHead);
    if (!isBelow) continue;
    lines.push_back({depth, skelegon});
    collect(all, skelegon, depth + 1, lines);
  }
}

std::vector<std::string> treeText(const ModelerObject& object) {
  std::vector<TreeLine> lines;
  collect(object.skelegons(), nullptr, 0, lines);
  std::vector<std::string> text;
  for (const TreeLine& line : lines) {
    const std::string name = line.skelegon->tag(lw::kTagBone);
    text.push_back(std::string(2 * static_cast<std::size_t>(line.depth), ' ') + (name.empty() ? "(empty)" : name));
  }
  return text;
}

std::string padded(const std::string& text, int width) {
  const int cells = textWidth(text) / kCellWidth;
  return text + std::string(static_cast<std::size_t>(std::max(1, width - cells)), ' ');
}

// Both trees side by side. Of a long run of lines that stay as they are, only the number is shown.
void printTrees(const std::vector<std::string>& before, const std::vector<std::string>& after) {
  constexpr int kColumn = 28;
  std::cout << "   " << padded("before", kColumn) << "after\n";
  std::size_t unchanged = 0;
  const auto tellUnchanged = [&] {
    if (unchanged > 0) std::cout << "   (" << unchanged << " as they were)\n";
    unchanged = 0;
  };
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (before[i] == after[i]) {
      ++unchanged;
      continue;
    }
    tellUnchanged();
    std::cout << "   " << padded(before[i], kColumn) << after[i] << "\n";
  }
  tellUnchanged();
}

// ---------------------------------------------------------------------------------------------------------------------
// What a rigger does

class Rigger {
 public:
  Rigger(const RenameOptions& options, ObjectFile rig) : host(options.host.options()) {
    host.options().localeInfo = localeOf(options.language);
    host.add(std::move(rig), "rig.lwo");
    host.showAllLayers();
    loadModule(module_, options.module);
    panel_ = &openTool(host, module_, kRenamerTool);
  }

  void choose(RenamerControl place, int index) { must(person::choose(control(place), index)); }
  void type(RenamerControl place, std::string_view text) { must(person::type(control(place), text)); }
  void enter(RenamerControl place, int number) { must(person::enter(control(place), number)); }
  void switchOn(RenamerControl place, bool on = true) { must(person::switchTo(control(place), on)); }
  void press(RenamerControl place) { must(person::press(control(place))); }
  void registerThese(const std::vector<std::string>& names) {
    host.select(names);
    press(kAdd);
  }

  // Presses "Run" and shows what it did.
  void run() {
    const std::vector<std::string> before = treeText(*host.current());
    host.forgetRecords();
    const std::size_t editsBefore = host.edits().size();
    press(kRun);
    for (const Message& message : host.messages()) std::cout << "   message: \"" << message.first << "\"\n";
    printTrees(before, treeText(*host.current()));
    std::size_t edits = 0;
    std::size_t tags = 0;
    for (std::size_t i = editsBefore; i < host.edits().size(); ++i) {
      edits += host.edits()[i].changes > 0 ? 1 : 0;
      tags += host.edits()[i].changes;
    }
    std::cout << "   tags written: " << tags << ", in edits: " << edits << "\n";
  }

  void leave() { endSession(module_); }

  PlayedModeler host;

 private:
  Control* control(RenamerControl place) const { return panel_->at(place); }

  ModuleFile module_;
  Panel* panel_ = nullptr;
};

const std::vector<std::string> kFrontLegs = {"FrontLeg_L_01", "FrontLeg_L_02", "FrontLeg_L_03",
                                             "FrontLeg_R_01", "FrontLeg_R_02", "FrontLeg_R_03"};

void setCounters(Rigger& rigger, const char* baseName, int start, int digits) {
  rigger.choose(kMode, kAdvanced);
  rigger.switchOn(kBaseName);
  rigger.type(kBaseText, baseName);
  rigger.switchOn(kColumns);
  rigger.switchOn(kRows);
  rigger.enter(kRowStart, start);
  rigger.enter(kRowDigits, digits);
}

void countInTheName(Rigger& rigger) {
  rigger.host.select(kFrontLegs);
  setCounters(rigger, "Bone01_[col]_[row]", 1, 2);
  rigger.run();
}

void countBehindTheName(Rigger& rigger) {
  rigger.host.select(kFrontLegs);
  setCounters(rigger, "Arm", 0, 1);
  rigger.run();
}

ObjectFile manyHeads() {
  RigBuilder rig;
  for (int i = 1; i <= 25; ++i) {
    const auto x = static_cast<float>(i);
    rig.root("Rib" + std::to_string(i), {x, 0, 0}, {x, 1, 0});
  }
  return rig.take();
}

void wrapColumns(Rigger& rigger) {
  rigger.choose(kMode, kAdvanced);
  rigger.choose(kTarget, kAll);
  rigger.switchOn(kColumns);
  rigger.run();
}

void leftToRight(Rigger& rigger) {
  rigger.choose(kMode, kAdvanced);
  rigger.choose(kTarget, kAll);
  rigger.switchOn(kOverlapCheck, false);  // the right side bears these names already
  rigger.switchOn(kRegexOn);
  rigger.run();
}

void leftToRightChecked(Rigger& rigger) {
  rigger.choose(kMode, kAdvanced);
  rigger.choose(kTarget, kAll);
  rigger.switchOn(kRegexOn);
  rigger.run();
}

void leftToRightWithLinks(Rigger& rigger) {
  rigger.host.select({"FrontLeg_L_01", "FrontLeg_L_02", "FrontLeg_L_03"});
  const MeshPolygon* const hip = rigger.host.current()->skelegon("FrontLeg_L_01");
  rigger.choose(kMode, kReplace);
  rigger.switchOn(kBoneProperty);
  const auto pole = [&] { return "\"" + hip->tag(settingTag(53)) + "\""; };
  std::cout << "   pole item of FrontLeg_L_01: " << pole() << "\n";
  rigger.run();
  std::cout << "   pole item of " << hip->tag(lw::kTagBone) << ": " << pole() << "\n";
}

void emptyNames(Rigger& rigger) {
  rigger.host.select({"Jaw"});
  rigger.choose(kMode, kChange);
  rigger.type(kFirstText, "");
  std::cout << "   (a name is cleared with \"Change\")\n";
  rigger.run();
  rigger.choose(kMode, kAdvanced);
  rigger.choose(kTarget, kAll);
  rigger.switchOn(kPrefixOn);
  rigger.type(kPrefixText, "My_");
  rigger.switchOn(kSuffixOn);
  rigger.type(kSuffixText, "_end");
  std::cout << "   (then \"My_\" is added to the head and \"_end\" to the end of all)\n";
  rigger.run();
}

void registrationHasNoRows(Rigger& rigger) {
  setCounters(rigger, "Bone_[col]_[row]", 1, 2);
  rigger.registerThese({"Tail_01", "Tail_02", "Tail_03"});
  rigger.choose(kTarget, kRegistered);
  rigger.run();
}

void nothingChosen(Rigger& rigger) {
  rigger.choose(kMode, kAdvanced);
  rigger.choose(kTarget, kRegistered);
  rigger.run();
}

struct Example {
  const char* what;
  ObjectFile (*rig)();
  void (*act)(Rigger&);
};

constexpr Example kExamples[] = {
    {"base name \"Bone01_[col]_[row]\" for two chains of three, rows from 1 with 2 digits", makeDemoRig, countInTheName},
    {"base name \"Arm\" without places for the counters, rows from 0 with 1 digit", makeDemoRig, countBehindTheName},
    {"25 heads: the last column begins at \"A\" again", manyHeads, wrapColumns},
    {"pattern \"(.*)_L(.*)\" to \"$1_R$2\" on all: other names are not written", makeDemoRig, leftToRight},
    {"the same with the overlap check: the names are taken, nothing is renamed", makeDemoRig, leftToRightChecked},
    {"simple mode Replace, left to right, with the names of linked items", makeDemoRig, leftToRightWithLinks},
    {"head and end of an empty name: nothing is added", makeDemoRig, emptyNames},
    {"target Registration: each is a column, and every row is the first", makeDemoRig, registrationHasNoRows},
    {"target Registration with nothing registered", makeDemoRig, nothingChosen},
};

int run(const RenameOptions& options) {
  return reporting([&] {
    int number = 0;
    for (const Example& example : kExamples) {
      if (number > 0) std::cout << "\n";
      std::cout << ++number << ". " << example.what << "\n";
      Rigger rigger(options, example.rig());
      example.act(rigger);
      rigger.leave();
    }
  });
}

}  // namespace

Command renameCommand() {
  const auto options = std::make_shared<RenameOptions>();
  return {
      .name = "rename",
      .text = "Show what the renamer does, as trees before and after",
      .options =
          {
              moduleOption(options->module),
              hostOption(options->host),
              languageOption(&options->language, "Language of the panel"),
          },
      .footer = "Example:\n  varnel rename --lang ja",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
