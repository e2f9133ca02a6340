#include <iostream>
#include <memory>

#include "objectfile/sample_rigs.h"
#include "objectfile/temporary_folder.h"
#include "program/host_option.h"
#include "program/property_panel.h"
#include "program/subcommands.h"
#include "program/support.h"
#include "standin/layout/scene_report.h"
#include "standin/variants/played_host.h"

namespace standin {
namespace {

constexpr const char* kSkelegon = "Tail_01";

struct TripOptions {
  std::string module;
  HostWords host;
  std::string language;
};

class Steps {
 public:
  void say(const std::string& what) { std::cout << ++count_ << ". " << what << "\n"; }

 private:
  int count_ = 0;
};

std::string storedFalloff(const ModelerHost& host) {
  const MeshPolygon* const skelegon = host.current()->skelegon(kSkelegon);
  const std::optional<std::string> text = skelegon->tag(settingTag(kFalloffSetting));
  return text ? "\"" + *text + "\"" : "no tag";
}

// In Modeler: picks the skelegon, chooses in the panel and saves.
void inModeler(const TripOptions& options, const std::string& path, Steps& steps) {
  PlayedModeler host(options.host.options());
  host.options().localeInfo = localeOf(options.language);
  steps.say("Modeler opens " + fileNameOf(path));
  const auto object = host.open(path);
  if (!object) throw Trouble{object.why()};
  host.showAllLayers();
  ModuleFile module;
  loadModule(module, options.module);

  steps.say(std::string("The rigger selects the skelegon ") + kSkelegon + " and opens the property panel");
  host.select({kSkelegon});
  Panel& panel = openTool(host, module, kPropertyTool);
  Control* const falloff = must(falloffControl(panel), "the falloff control");
  std::cout << "   " << falloff->label.read() << " = " << falloff->shown() << ", stored: " << storedFalloff(host) << "\n";

  const std::string choice = falloff->items()[kInverseDistance4];
  steps.say("The rigger chooses \"" + choice + "\"");
  must(person::choose(falloff, choice));
  std::cout << "   " << falloff->label.read() << " = " << falloff->shown() << ", stored: " << storedFalloff(host) << "\n";

  steps.say("The rigger saves the object");
  if (const auto failure = host.save()) throw Trouble{failure->text};
  endSession(module);
}

// In Layout: loads the object, runs the conversion, looks at the bone.
void inLayout(const TripOptions& options, const std::string& path, Steps& steps) {
  PlayedLayout host(options.host.options());
  host.setLocale(localeOf(options.language));
  steps.say("Layout loads " + fileNameOf(path));
  std::string why;
  const std::vector<Item*> items = host.loadObject(path, &why);
  if (items.empty()) throw Trouble{why};
  host.select(items);
  ModuleFile module;
  loadModule(module, options.module);

  steps.say(std::string("The animator runs ") + kConversionTool);
  must(person::press(openTool(host, module, kConversionTool).find(ControlKind::Button, 0)));
  std::cout << "   " << host.transcript().commandCount() << " commands\n";

  const Item* const bone = must(host.scene().find(kSkelegon), "the bone");
  const int falloff = bone->bone.falloff;
  steps.say("The bone " + host.scene().nameOf(*bone) + " has falloff " + std::to_string(falloff) + " (inverse distance^" +
            std::to_string(1 << falloff) + ")");
  endSession(module);
  if (falloff != kInverseDistance4) throw Trouble{"that is not what was chosen"};
}

int run(const TripOptions& options) {
  return reporting([&] {
    const TemporaryFolder folder;
    const std::string path = folder.file("lizard.lwo");
    if (const auto failure = writeDemoRig(path)) throw Trouble{failure->text};
    Steps steps;
    inModeler(options, path, steps);
    inLayout(options, path, steps);
  });
}

}  // namespace

Command tripCommand() {
  const auto options = std::make_shared<TripOptions>();
  return {
      .name = "trip",
      .text = "Follow one setting from the property panel to the bone",
      .options =
          {
              moduleOption(options->module),
              hostOption(options->host),
              languageOption(&options->language, "Language of the panels"),
          },
      .footer = "Example:\n  varnel trip --lang ja",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
