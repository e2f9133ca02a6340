#include "program/support.h"

#include <iostream>
#include <sstream>
#include <system_error>

#include "standin/core/program_folder.h"
#include "standin/core/witness.h"
#include "standin/layout/layout_host.h"

namespace standin {

std::string fileNameOf(const std::string& path) { return utf8Of(pathFromUtf8(path).filename()); }

void indent(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) std::cout << "  " << line << "\n";
}

void must(const Done& done) {
  if (!done) throw Trouble{done.why};
}

void loadModule(ModuleFile& module, const std::string& chosen) {
  const std::string path = chosen.empty() ? modulePath() : chosen;
  if (path.empty()) throw Trouble{"there is no module beside the program; name one with --module"};
  if (const std::string refusal = module.load(path); !refusal.empty()) throw Trouble{refusal};
}

std::string probeFile(const std::string& chosen) {
  if (!chosen.empty()) return chosen;
  const std::filesystem::path own = pathFromUtf8(moduleFileName());
  const std::filesystem::path name = own.stem().string() + "-probe" + own.extension().string();
  const std::filesystem::path folder = pathFromUtf8(programFolder());
  for (const std::filesystem::path& path : {folder / name, folder / "probe" / name}) {
    if (std::filesystem::exists(path)) return utf8Of(path);
  }
  throw Trouble{"there is no probe beside the program; name its file with --module"};
}

void mustBeFolder(const std::string& path) {
  std::error_code error;
  std::filesystem::create_directories(pathFromUtf8(path), error);
  if (error) throw Trouble{"the folder " + path + " cannot be made: " + error.message()};
}

void endSession(ModuleFile& module) {
  panels().moduleUnloaded();
  module.unload();
  if (!witness().faults().empty()) throw Trouble{"faults of the module\n" + witness().report()};
}

std::uint32_t localeOf(const std::string& language) { return language == "ja" ? kLocaleJapanese : kLocaleEnglish; }

void printTrouble(const Trouble& trouble) {
  std::cout.flush();
  std::cerr << "varnel: " << trouble.why << "\n";
}

}  // namespace standin
