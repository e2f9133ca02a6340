#include "program/shipped_rigs.h"

#include <array>
#include <iostream>
#include <memory>

#include "objectfile/sample_rigs.h"
#include "program/rig_tool_support.h"
#include "program/subcommands.h"

namespace standin {
namespace {

struct ShippedRig {
  const char* file;
  ObjectFile (*make)();
};

constexpr std::array kShippedRigs{
    ShippedRig{"lizard.lwo", makeDemoRig},
    ShippedRig{"人形.lwo", makeJapaneseRig},
};

struct RigsOptions {
  std::string folder;
  bool force = false;
};

int run(const RigsOptions& options) {
  return exitCodeOf([&] {
    mustBeFolder(options.folder);
    for (const std::string& path : writeShippedRigs(options.folder, existingFiles(options.force))) {
      std::cout << path << "\n";
    }
    return 0;
  });
}

}  // namespace

std::vector<std::string> writeShippedRigs(const std::string& folder, Existing existing) {
  std::vector<std::string> paths;
  paths.reserve(kShippedRigs.size());
  for (const ShippedRig& rig : kShippedRigs) {
    paths.push_back(utf8Of(pathFromUtf8(folder) / pathFromUtf8(rig.file)));
  }
  mustBeWritten(refusedFiles(paths, existing));
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const Outcome<std::string> bytes = serializeObject(kShippedRigs[i].make());
    if (!bytes) throw Trouble{bytes.why()};
    mustBeWritten(writeWholeFile(paths[i], *bytes, existing));
  }
  return paths;
}

Command rigsCommand() {
  const auto options = std::make_shared<RigsOptions>();
  return {
      .name = "rigs",
      .text = "Write the rigs that come with the program into a folder",
      .options =
          {
              {"folder", &options->folder, "Where to; it is made when it is not there", {.isRequired = true}},
              forceOption(options->force),
          },
      .footer =
          "Files that are there stay, and then none is written. Exit codes: 0; 2 trouble.\n"
          "Examples:\n"
          "  varnel rigs my-rigs\n"
          "  varnel rigs my-rigs --force",
      .run = [options] { return run(*options); },
  };
}

}  // namespace standin
