#include <iostream>
#include <memory>

#include "program/host_option.h"
#include "program/pictured_rigs.h"
#include "program/property_panel.h"
#include "program/subcommands.h"
#include "program/support.h"
#include "standin/panels/geometry.h"
#include "standin/panels/text.h"
#include "standin/variants/played_host.h"

namespace standin {
namespace {

struct PanelsOptions {
  std::string module;
  HostWords host;
  std::vector<std::string> languages = {"en", "ja"};
};

// The panel as text, and what a layout must not have: overlaps, cut labels, controls outside.
void show(const std::string& heading, const Panel& panel) {
  std::cout << "== " << heading << "\n";
  indent(panelText(panel));
  if (const std::string complaints = layoutComplaints(panel); !complaints.empty()) throw Trouble{complaints};
}

// Shows one of Modeler's tools with the skelegon selected whose settings the pictures show.
void showInModeler(const PanelsOptions& options, const std::string& language, const char* tool,
                   void (*showPages)(Panel& panel, const std::string& language)) {
  PlayedModeler host(options.host.options());
  host.options().localeInfo = localeOf(language);
  const PicturedRig rig(language);
  host.add(rig.filled(), rig.file());
  host.showAllLayers();
  host.select({rig.filledSkelegon()});
  ModuleFile module;
  loadModule(module, options.module);
  showPages(openTool(host, module, tool), language);
  endSession(module);
}

void showPropertyPanel(Panel& panel, const std::string& language) {
  for (int page = 0; page < kPropertyPages; ++page) {
    showPage(panel, page);
    const std::string heading = "property panel, " + language + ", page " + std::to_string(page + 1);
    if (page != kControllersPage) {
      show(heading, panel);
      continue;
    }
    for (int group = 0; group < kMotionGroups; ++group) {
      showGroup(panel, group);
      show(heading + ", group " + std::to_string(group + 1), panel);
    }
  }
}

void showSelector(Panel& panel, const std::string& language) { show("selector, " + language, panel); }

// Without the look for cut labels: some of its fields have widths that leave out the end of their longest text,
// deliberately.
void showRenamer(Panel& panel, const std::string& language) {
  const std::size_t modes = person::menu(panel.find(ControlKind::Popup, 0)).size();
  for (std::size_t mode = 0; mode < modes; ++mode) {
    must(person::choose(panel.find(ControlKind::Popup, 0), static_cast<int>(mode)));
    std::cout << "== renamer, " << language << ", mode " << mode + 1 << "\n";
    indent(panelText(panel));
  }
}

void showConversionPanel(const PanelsOptions& options, const std::string& language) {
  PlayedLayout host(options.host.options());
  host.setLocale(localeOf(language));
  ModuleFile module;
  loadModule(module, options.module);
  show("conversion panel, " + language, openTool(host, module, kConversionTool));
  endSession(module);
}

int run(const PanelsOptions& options) {
  return reporting([&] {
    for (const std::string& language : options.languages) {
      showInModeler(options, language, kSelectorTool, &showSelector);
      showInModeler(options, language, kRenamerTool, &showRenamer);
      showInModeler(options, language, kPropertyTool, &showPropertyPanel);
      showConversionPanel(options, language);
    }
  });
}

}  // namespace

Command panelsCommand() {
  const auto options = std::make_shared<PanelsOptions>();
  return {
      .name = "panels",
      .text = "Show every page of the tools' panels as text",
      .options =
          {
              moduleOption(options->module),
              hostOption(options->host),
              languageOption(&options->languages, "Languages to show"),
          },
      .footer = "Example:\n  varnel panels --lang ja",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
