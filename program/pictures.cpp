#include <algorithm>
#include <array>
#include <functional>
#include <iostream>
#include <memory>

#include "objectfile/sample_rigs.h"
#include "objectfile/temporary_folder.h"
#include "objectfile/whole_file.h"
#include "program/host_option.h"
#include "program/pictured_rigs.h"
#include "program/property_panel.h"
#include "program/rig_tool_support.h"
#include "program/subcommands.h"
#include "program/support.h"
#include "standin/measure/measure.h"
#include "standin/variants/played_host.h"
#include "standin/windows/desk_window.h"
#include "standin/windows/driver.h"

namespace standin {
namespace {

struct PicturesOptions {
  std::string folder = "pictures";
  std::string module;
  HostWords host;
  std::vector<std::string> languages = {"en", "ja"};
  std::vector<std::string> only;
  bool force = false;
};

// Takes the pictures of one tool in one language.
class Album {
 public:
  Album(const PicturesOptions& options, std::string language) : options_(options), language_(std::move(language)) {}

  const std::string& language() const { return language_; }
  PicturedRig rig() const { return PicturedRig(language_); }
  const std::string& module() const { return options_.module; }
  HostOptions host() const { return options_.host.options(); }

  void take(Driver& driver, const Panel& panel, const std::string& tool, const std::string& name) const {
    keep(driver.picture(panel), tool, name);
  }
  // Writes "TOOL-LANGUAGE-NAME.png", without the name where it is empty.
  void keep(const Picture& picture, const std::string& tool, const std::string& name) const {
    const std::string file = tool + "-" + language_ + (name.empty() ? "" : "-" + name) + ".png";
    const std::string path = utf8Of(pathFromUtf8(options_.folder) / pathFromUtf8(file));
    if (!savePng(picture, path)) throw Trouble{path + " could not be written"};
    std::cout << file << std::endl;
  }

 private:
  const PicturesOptions& options_;
  std::string language_;
};

// Modeler with an object, in real windows.
struct Workplace {
  ModelerHost& host;
  ModuleFile& module;
  WindowsFront& front;
  Driver& driver;
};

template <class Action>
void inModeler(const Album& album, ObjectFile object, const std::string& file, const std::vector<std::string>& selected,
               Action&& action) {
  PlayedModeler host(album.host());
  host.options().localeInfo = localeOf(album.language());
  host.add(std::move(object), file);
  host.showAllLayers();
  host.select(selected);
  ModuleFile module;
  loadModule(module, album.module());
  {
    WindowsFront front;
    Driver driver(front);
    std::forward<Action>(action)(Workplace{host, module, front, driver});
  }
  endSession(module);
}

// With the pictures' rig as it is.
template <class Action>
void withTheRig(const Album& album, const std::vector<const char*>& selected, Action&& action) {
  const PicturedRig rig = album.rig();
  std::vector<std::string> names;
  for (const char* const name : selected) names.push_back(rig.name(name));
  inModeler(album, rig.plain(), rig.file(), names, std::forward<Action>(action));
}

void takePropertyPanel(const Album& album) {
  const PicturedRig rig = album.rig();
  inModeler(album, rig.filled(), rig.file(), {rig.filledSkelegon()}, [&](const Workplace& at) {
    const Panel& panel = openTool(at.host, at.module, kPropertyTool);
    const Control* const pages = panel.find(ControlKind::TabChoice, 0);
    for (int page = 0; page < kPropertyPages; ++page) {
      must(at.driver.chooseTab(*pages, page));
      const std::string name = "page" + std::to_string(page + 1);
      if (page != kControllersPage) {
        album.take(at.driver, panel, "property", name);
        continue;
      }
      for (int group = 0; group < kMotionGroups; ++group) {
        must(at.driver.chooseTab(*panel.find(ControlKind::TabChoice, 1), group));
        album.take(at.driver, panel, "property", name + "-group" + std::to_string(group + 1));
      }
    }
  });
}

void takeConversionPanel(const Album& album) {
  PlayedLayout host(album.host());
  host.setLocale(localeOf(album.language()));
  ModuleFile module;
  loadModule(module, album.module());
  {
    WindowsFront front;
    Driver driver(front);
    album.take(driver, openTool(host, module, kConversionTool), "conversion", "");
  }
  endSession(module);
}

// Places in the tree: rows are of this height, and their names reach to the right of every triangle.
constexpr int kTreeRow = 14;
constexpr int kBesideTriangles = 200;
constexpr int kOutermostTriangle = 10;
constexpr int kRowOfMaps = 27;  // in the lizard's tree

void takeSelector(const Album& album) {
  withTheRig(album, {}, [&](const Workplace& at) {
    const Panel& panel = openTool(at.host, at.module, kSelectorTool);
    const Control& tree = *must(panel.find(ControlKind::OpenGL), "the tree");
    album.take(at.driver, panel, "selector", "plain");
    const auto clickRow = [&](int row, Held held, int x = kBesideTriangles) {
      must(at.driver.clickAt(tree, x, row * kTreeRow + kTreeRow / 2, MouseButton::Left, held));
    };
    must(at.driver.resize(panel, 150, 250));
    clickRow(kRowOfMaps, {}, kOutermostTriangle);
    album.take(at.driver, panel, "selector", "resized");
    clickRow(3, {});
    clickRow(6, {.shift = true});
    clickRow(9, {.control = true});
    album.take(at.driver, panel, "selector", "selections");
    must(at.driver.resize(panel, -180, -550));  // fewer rows than there are
    const POINT thumb{tree.hot().right() - 6, tree.hot().y + 20};
    must(at.driver.drag(panel, thumb, {thumb.x, thumb.y + 60}));
    album.take(at.driver, panel, "selector", "scrolled");
  });
}

// What a rigger has typed into the renamer, in the lizard's names.
struct Typed {
  RenamerControl field;
  const char* text;
};
constexpr Typed kNewName{kFirstText, "Tail_07"};
constexpr std::array kAdvancedTexts{Typed{kBaseText, "Tail_[col]_[row]"}, Typed{kSuffixText, "_Lizard"}};
constexpr std::array kAdvancedSwitches{kBaseName, kSuffixOn, kColumns, kRows};

void takeRenamer(const Album& album) {
  withTheRig(album, {"Tail_01", "Tail_02"}, [&](const Workplace& at) {
    const Panel& panel = openTool(at.host, at.module, kRenamerTool);
    const auto control = [&](RenamerControl place) -> const Control& { return *must(panel.at(place), "a control"); };
    const auto type = [&](const Typed& typed) {
      must(at.driver.type(control(typed.field), album.rig().name(typed.text)));
      at.driver.key(VK_TAB);
    };
    must(at.driver.choose(control(kMode), kChange));
    type(kNewName);
    album.take(at.driver, panel, "renamer", "simple");
    must(at.driver.choose(control(kMode), kAdvanced));
    must(at.driver.click(control(kAdd)));
    for (const RenamerControl place : kAdvancedSwitches) must(at.driver.click(control(place)));
    for (const Typed& typed : kAdvancedTexts) type(typed);
    album.take(at.driver, panel, "renamer", "advanced");
  });
}

void takeDesk(const Album& album) {
  withTheRig(album, {"Tail_01", "Tail_02"}, [&](const Workplace& at) {
    const DeskWindow desk(at.host, at.module, at.front);
    at.front.settle();
    album.keep(pictureOf(desk.handle()), "desk", "");
  });
}

// The manual's first trip is made with a rig of the zip.
struct FirstTrip {
  const char* language;
  ObjectFile (*rig)();
  const char* file;
  int row;  // of the skelegon, in the tree
  const char* skelegon;
};
constexpr std::array kFirstTrips{
    FirstTrip{"en", &makeDemoRig, "lizard.lwo", 21, "Tail_01"},
    FirstTrip{"ja", &makeJapaneseRig, "人形.lwo", 3, "背骨"},
};

// What the manual's first trip does: picks a skelegon in the tree, chooses its falloff in the panel.
void takeFirstTrip(const Album& album) {
  const FirstTrip& trip = *std::find_if(kFirstTrips.begin(), kFirstTrips.end(),
                                        [&](const FirstTrip& each) { return each.language == album.language(); });
  inModeler(album, trip.rig(), trip.file, {}, [&](const Workplace& at) {
    const Panel& selector = openTool(at.host, at.module, kSelectorTool);
    const Control& tree = *must(selector.find(ControlKind::OpenGL), "the tree");
    must(at.driver.clickAt(tree, kBesideTriangles, trip.row * kTreeRow + kTreeRow / 2));
    if (at.host.selectedNames() != std::vector<std::string>{trip.skelegon}) throw Trouble{"another row was picked"};
    album.take(at.driver, selector, "first-trip", "selector");

    Panel& properties = openTool(at.host, at.module, kPropertyTool);
    must(at.driver.choose(*must(falloffControl(properties), "the falloff control"), kInverseDistance4));
    album.take(at.driver, properties, "first-trip", "property");
  });
}

constexpr const char* kProbeTool = "Varnel:HostFacts";

// Its own panel and the four that it asks with, in English whatever the host's language is.
void takeProbe(const Album& album) {
  PlayedModeler host(album.host());
  host.options().localeInfo = localeOf(album.language());
  excuseTrials();
  ModuleFile module;
  loadModule(module, probeFile({}));
  {
    const TemporaryFolder folder;
    WindowsFront front;
    Driver driver(front);
    const Panel& own = openTool(host, module, kProbeTool);
    front.settle();
    album.take(driver, own, "probe", "start");
    must(driver.type(*must(own.find("File"), "the file"), folder.file("facts.json")));
    driver.key(VK_TAB);
    const Panel* shown = &own;
    int number = 0;
    for (const char* const button : {"Start", "Next", "Skip", "Skip"}) {
      must(driver.click(*must(shown->find(button), button)));
      front.settle();
      shown = must(panels().find("Varnel probe "), "a panel of the probe");
      album.take(driver, *shown, "probe", std::to_string(++number));
    }
  }
  endSession(module);
}

struct Subject {
  const char* name;
  void (*take)(const Album&);
};
constexpr std::array kSubjects{
    Subject{"property", &takePropertyPanel},
    Subject{"conversion", &takeConversionPanel},
    Subject{"selector", &takeSelector},
    Subject{"renamer", &takeRenamer},
    Subject{"first-trip", &takeFirstTrip},
    Subject{"desk", &takeDesk},
    Subject{"probe", &takeProbe},
};

bool isWanted(const PicturesOptions& options, const Subject& subject) {
  return options.only.empty() || std::find(options.only.begin(), options.only.end(), subject.name) != options.only.end();
}

// Whether the name is one of those that the pictures to be taken get.
bool isToBeTaken(const PicturesOptions& options, const std::string& name) {
  return name.ends_with(".png") && std::any_of(kSubjects.begin(), kSubjects.end(), [&](const Subject& subject) {
           return isWanted(options, subject) &&
                  std::any_of(options.languages.begin(), options.languages.end(), [&](const std::string& language) {
                    return name.starts_with(std::string(subject.name) + "-" + language);
                  });
         });
}

// Before any picture is taken: makes the folder, or finds nothing there that would be written over.
void prepareFolder(const PicturesOptions& options) {
  mustBeFolder(options.folder);
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(pathFromUtf8(options.folder))) {
    if (isToBeTaken(options, utf8Of(entry.path().filename()))) paths.push_back(utf8Of(entry.path()));
  }
  mustBeWritten(refusedFiles(paths, existingFiles(options.force)));
}

int run(const PicturesOptions& options) {
  return exitCodeOf([&] {
    prepareFolder(options);
    int result = 0;
    for (const std::string& language : options.languages) {
      const Album album(options, language);
      for (const Subject& subject : kSubjects) {
        if (isWanted(options, subject)) result |= reporting([&] { subject.take(album); });
      }
    }
    return result;
  });
}

std::vector<std::string> subjectNames() {
  std::vector<std::string> names;
  for (const Subject& subject : kSubjects) names.emplace_back(subject.name);
  return names;
}

}  // namespace

Command picturesCommand() {
  const auto options = std::make_shared<PicturesOptions>();
  return {
      .name = "pictures",
      .text = "Write pictures of the tools' panels as real windows (Windows only)",
      .options =
          {
              {"folder", &options->folder, "Where the pictures go"},
              moduleOption(options->module),
              hostOption(options->host),
              languageOption(&options->languages, "Languages to show"),
              {"--only", &options->only, "What to show", {.choices = subjectNames(), .separator = ','}},
              forceOption(options->force),
          },
      .footer =
          "Pictures that are there stay, and then none is taken. Exit codes: 0; 1 when one failed; 2 trouble.\n"
          "Examples:\n"
          "  varnel pictures --lang ja shots\n"
          "  varnel pictures --only renamer,desk --force shots",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
