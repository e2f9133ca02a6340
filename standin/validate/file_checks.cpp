// The first level: the module's file and its descriptor, before any host is there.
#include <algorithm>
#include <array>
#include <cctype>

#include "objectfile/file_bytes.h"
#include "standin/core/module_file.h"
#include "standin/core/shared_library.h"
#include "standin/core/witness.h"
#include "standin/validate/check.h"
#include "standin/validate/check_run.h"
#include "standin/validate/pe_file.h"
#include "standin/validate/tools.h"

namespace standin::validate {
namespace {

constexpr std::size_t kLoads = 1000;

// Libraries that every Windows has: a module must run where nobody installed a compiler's own.
constexpr std::array kSystemLibraries{"kernel32.dll", "user32.dll",  "gdi32.dll",    "opengl32.dll", "msvcrt.dll",
                                      "ucrtbase.dll", "shell32.dll", "advapi32.dll", "ole32.dll"};

bool isSystemLibrary(std::string name) {
  std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return name.starts_with("api-ms-win-crt-") ||
         std::find(kSystemLibraries.begin(), kSystemLibraries.end(), name) != kSystemLibraries.end();
}

// The tables of a Windows module; nothing, with the check failed or skipped, where they cannot be read.
std::optional<PeFile> tablesOf(CheckRun& run) {
  const Outcome<std::string> bytes = readFileBytes(run.module());
  if (!bytes) {
    run.fail(bytes.why());
    return std::nullopt;
  }
  if (!looksLikePe(*bytes)) {
    run.skip("only the tables of Windows files are read");
    return std::nullopt;
  }
  Outcome<PeFile> file = readPe(*bytes);
  run.judge(file.why());
  return file ? std::optional<PeFile>(*std::move(file)) : std::nullopt;
}

void exports(CheckRun& run) {
  const auto file = tablesOf(run);
  if (!file) return;
  if (!file->isLibrary) run.fail("the file is a program, not a library");
  if (std::find(file->exports.begin(), file->exports.end(), "_mod_descrip") == file->exports.end()) {
    run.fail("the file does not export the symbol _mod_descrip");
  }
  for (const std::string& name : file->exports) {
    if (name != "_mod_descrip") run.fail("the file exports " + name + " too");
  }
}

void imports(CheckRun& run) {
  const auto file = tablesOf(run);
  if (!file) return;
  for (const std::string& library : file->libraries) {
    if (!isSystemLibrary(library)) run.fail("the file needs " + library + ", which not every Windows has");
  }
}

void descriptor(CheckRun& run) {
  ModuleFile module;
  run.judge(module.load(run.module()));
  module.unload();
  run.judge(witness().report());
}

void servers(CheckRun& run) {
  ModuleFile module;
  if (const std::string why = module.load(run.module()); !why.empty()) return run.fail(why);
  if (module.servers().size() != kTools.size()) {
    run.fail("the server table has " + std::to_string(module.servers().size()) + " servers");
  }
  for (const Tool& tool : kTools) {
    if (module.server(tool.className, tool.server) == nullptr) {
      run.fail(std::string("there is no server ") + tool.server + " of class " + tool.className);
    }
  }
  for (const lw::ServerRecord& server : module.servers()) {
    const std::string_view name = server.name;
    const bool printable = std::all_of(name.begin(), name.end(), [](char c) { return c >= 33; });
    if (name.empty() || !printable) run.fail("a server's name has characters other than 33 to 127: " + std::string(name));
  }
}

void loading(CheckRun& run) {
  for (std::size_t i = 0; i < kLoads; ++i) {
    ModuleFile module;
    if (const std::string why = module.load(run.module()); !why.empty()) {
      return run.fail("load " + std::to_string(i + 1) + ": " + why);
    }
    module.unload();
    if (isLibraryLoaded(run.module())) return run.fail("the file stays in memory after it was closed");
  }
  run.cases(kLoads);
  run.judge(witness().report());
}

constexpr std::array kFileChecks{
    Check{"file-exports", 1, "A Windows file exports the descriptor and nothing else", exports},
    Check{"file-imports", 1, "A Windows file needs only libraries that every Windows has", imports},
    Check{"descriptor", 1, "The descriptor is found and right, and the module starts", descriptor},
    Check{"servers", 1, "The server table lists the four tools", servers},
    Check{"loading", 1, "The module is loaded and unloaded a thousand times, and is gone each time", loading},
};

}  // namespace

std::span<const Check> fileChecks() { return kFileChecks; }

}  // namespace standin::validate
