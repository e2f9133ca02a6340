#include <iostream>
#include <memory>

#include "program/rig_tool_support.h"
#include "program/subcommands.h"
#include "rigs/difference.h"
#include "rigs/report.h"

namespace standin {
namespace {

struct DiffOptions {
  std::string before;
  std::string after;
  std::string language;
  bool json = false;
};

// Version control names the null device where one side has no such file.
rigs::Rig rigAt(const std::string& path) {
  if (path == "/dev/null" || path == "nul" || path == "NUL") return {};
  return rigs::rigOf(readRigFile(path), fileNameOf(path));
}

int run(const DiffOptions& options) {
  return exitCodeOf([&] {
    const auto differences = rigs::differencesOf(rigAt(options.before), rigAt(options.after), languageOf(options.language));
    if (options.json) {
      std::cout << rigs::differencesJson(differences);
    } else if (!differences.empty()) {
      std::cout << "--- " << options.before << "\n+++ " << options.after << "\n";
      std::cout << rigs::differencesText(differences, languageOf(options.language));
    }
    return differences.empty() ? 0 : 1;
  });
}

}  // namespace

Command diffCommand() {
  const auto options = std::make_shared<DiffOptions>();
  return {
      .name = "diff",
      .text = "Show what differs between two states of a rig",
      .options =
          {
              {"before", &options->before, "Object file", {.isRequired = true}},
              {"after", &options->after, "Object file", {.isRequired = true}},
              languageOption(&options->language, "Language of the settings' names"),
              {"--json", &options->json, "Print JSON"},
          },
      .footer =
          "Compared are the skelegons and what they store, not the mesh. Exit codes: 0 equal, 1 different, 2 trouble.\n"
          "Examples:\n"
          "  varnel export rigs/lizard.lwo -o lizard.json\n"
          "  varnel import rigs/lizard.lwo lizard.json -o lizard-2.lwo\n"
          "  varnel diff rigs/lizard.lwo lizard-2.lwo\n"
          "With git, as a difftool (git difftool -t varnel):\n"
          "  git config difftool.varnel.cmd 'varnel diff \"$LOCAL\" \"$REMOTE\"'\n"
          "and within git diff and git log, with a line \"*.lwo diff=varnel\" in .gitattributes:\n"
          "  git config diff.varnel.textconv 'varnel export --textconv'",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
