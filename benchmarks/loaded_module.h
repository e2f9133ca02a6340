// The module in a host, as the benchmarks use it: what cannot be done, and any fault, ends the program.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

#include "standin/core/module_file.h"
#include "standin/core/program_folder.h"
#include "standin/core/witness.h"
#include "standin/panels/person.h"

namespace varnel::bench {

// Ends the program when it could not be done.
inline void must(const standin::Done& done) {
  if (done) return;
  std::fprintf(stderr, "benchmark: %s\n", done.why.c_str());
  std::exit(1);
}

// The built module, loaded as long as this lives; made after its host.
class LoadedModule {
 public:
  LoadedModule() {
    if (const std::string why = file_.load(standin::modulePath()); !why.empty()) must({false, why});
  }
  LoadedModule(const LoadedModule&) = delete;
  LoadedModule& operator=(const LoadedModule&) = delete;
  ~LoadedModule() {
    standin::panels().moduleUnloaded();
    file_.unload();
    if (!standin::witness().faults().empty()) must({false, standin::witness().report()});
  }

  operator standin::ModuleFile&() { return file_; }

 private:
  standin::ModuleFile file_;
};

// The panel of a tool that was started.
inline standin::Panel& opened(const char* tool) {
  standin::Panel* const panel = standin::panels().find(tool);
  if (panel == nullptr || !panel->isOpen()) must({false, std::string(tool) + " has no open panel"});
  return *panel;
}

}  // namespace varnel::bench
