#include <memory>

#include "objectfile/sample_rigs.h"
#include "program/host_option.h"
#include "program/subcommands.h"
#include "program/support.h"
#include "standin/measure/measure.h"
#include "standin/variants/played_host.h"
#include "standin/windows/desk_window.h"

namespace standin {
namespace {

struct DeskOptions {
  std::string file;
  std::string module;
  HostWords host;
  std::string language;
  bool isEmpty = false;
};

void openObject(ModelerHost& host, const std::string& file) {
  if (file.empty()) {
    host.add(makeDemoRig());
  } else if (const auto object = host.open(file); !object) {
    throw Trouble{object.why()};
  }
  host.showAllLayers();
}

int run(const DeskOptions& options) {
  return reporting([&] {
    PlayedModeler host(options.host.options());
    host.options().localeInfo = localeOf(options.language);
    if (!options.isEmpty) openObject(host, options.file);
    ModuleFile module;
    loadModule(module, options.module);
    if (isProbe(module)) excuseTrials();
    {
      WindowsFront front;
      DeskWindow desk(host, module, front);
      front.runUntil([&] {
        desk.refresh();
        return desk.isOver();
      });
    }
    endSession(module);
  });
}

}  // namespace

Command deskCommand() {
  const auto options = std::make_shared<DeskOptions>();
  return {
      .name = "desk",
      .text = "Open an object and use the tools in real windows (Windows only)",
      .options =
          {
              {"file", &options->file, "Object file (a rig that comes with the program by default)"},
              {"--empty", &options->isEmpty, "Open no object", {.excludes = "file"}},
              moduleOption(options->module),
              hostOption(options->host),
              languageOption(&options->language, "Language of the panels"),
          },
      .footer = "Examples:\n  varnel desk rigs/lizard.lwo\n  varnel desk --empty --module probe/varnel-probe.p",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
