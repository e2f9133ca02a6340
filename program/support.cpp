#include "program/support.h"

#include <iostream>
#include <random>
#include <sstream>

#include "standin/core/program_folder.h"
#include "standin/core/witness.h"
#include "standin/layout/layout_host.h"

namespace standin {

namespace fs = std::filesystem;

fs::path pathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

std::string utf8Of(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::string fileNameOf(const std::string& path) { return utf8Of(pathOf(path).filename()); }

TemporaryFolder::TemporaryFolder()
    : path_(fs::temp_directory_path() / ("varnel-" + std::to_string(std::random_device()()))) {
  fs::create_directories(path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::string TemporaryFolder::path() const { return utf8Of(path_); }

std::string TemporaryFolder::file(const std::string& name) const { return utf8Of(path_ / pathOf(name)); }

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

void endSession(ModuleFile& module) {
  panels().moduleUnloaded();
  module.unload();
  if (!witness().faults().empty()) throw Trouble{"faults of the module\n" + witness().report()};
}

std::uint32_t localeOf(const std::string& language) { return language == "ja" ? kLocaleJapanese : kLocaleEnglish; }

void printTrouble(const Trouble& trouble) { std::cout << "  failed: " << trouble.why << "\n"; }

}  // namespace standin
