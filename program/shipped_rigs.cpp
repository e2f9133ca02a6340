#include "program/shipped_rigs.h"

#include <array>
#include <iostream>
#include <memory>

#include "objectfile/sample_rigs.h"
#include "program/subcommands.h"
#include "program/support.h"

namespace standin {
namespace {

struct ShippedRig {
  const char* file;
  std::optional<Failure> (*write)(const std::string& path);
};

constexpr std::array kShippedRigs{
    ShippedRig{"lizard.lwo", writeDemoRig},
    ShippedRig{"人形.lwo", writeJapaneseRig},
};

int run(const std::string& folder) {
  return reporting([&] {
    std::error_code error;
    std::filesystem::create_directories(pathFromUtf8(folder), error);
    if (error) throw Trouble{"the folder " + folder + " cannot be made"};
    for (const std::string& path : writeShippedRigs(folder)) std::cout << path << "\n";
  });
}

}  // namespace

std::vector<std::string> writeShippedRigs(const std::string& folder) {
  std::vector<std::string> paths;
  for (const ShippedRig& rig : kShippedRigs) {
    const std::string path = utf8Of(pathFromUtf8(folder) / pathFromUtf8(rig.file));
    if (const auto failure = rig.write(path)) throw Trouble{failure->text};
    paths.push_back(path);
  }
  return paths;
}

Command rigsCommand() {
  const auto folder = std::make_shared<std::string>();
  return {
      .name = "rigs",
      .text = "Write the rigs that come with the program into a folder",
      .options =
          {
              {"folder", folder.get(), "Where to; it is made when it is not there", {.isRequired = true}},
          },
      .footer = "Example:\n  varnel rigs my-rigs",
      .run = [folder] { return run(*folder); },
  };
}

}  // namespace standin
