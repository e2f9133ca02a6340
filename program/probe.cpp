#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <random>
#include <stdexcept>

#include "objectfile/temporary_folder.h"
#include "objectfile/whole_file.h"
#include "program/host_option.h"
#include "program/rig_tool_support.h"
#include "program/subcommands.h"
#include "program/support.h"
#include "standin/measure/measure.h"

namespace standin {
namespace {

constexpr std::size_t kDiffering = 10;  // of a host by chance
constexpr const char* kModelerFile = "modeler.json";
constexpr const char* kLayoutFile = "layout.json";

struct ProbeOptions {
  std::string folder;
  std::string module;
  HostWords host;
  std::uint64_t seed = 0;
  bool force = false;
};

// Differs in ten things more than what is settled, the same ones for the same seed; zero adds none.
HostChoice byChance(std::uint64_t seed, HostChoice host) {
  if (seed == 0) return host;
  std::mt19937_64 random(seed);
  for (std::size_t added = 0; added < kDiffering;) {
    const HostVariant& row = *allVariants()[random() % allVariants().size()];
    const VariantValue& value = row.values[1 + random() % (row.values.size() - 1)];
    if (host.settled(row.name) == nullptr && host.choose(row.name, value.name)) ++added;
  }
  return host;
}

std::string pathIn(const ProbeOptions& options, const char* name) { return utf8Of(pathFromUtf8(options.folder) / name); }

// Gives the exit code.
int keep(const ProbeOptions& options, const char* name, const MeasuredHost& measured) {
  if (measured.facts.empty()) throw Trouble{"the probe left no file: " + measured.last};
  const std::string path = pathIn(options, name);
  mustBeWritten(writeWholeFile(path, measured.facts, existingFiles(options.force)));
  std::cout << path << "\n";
  if (measured.complaints.empty()) return 0;
  indent(measured.complaints);
  return kNotAllWell;
}

int runProbe(const ProbeOptions& options) {
  const std::string module = probeFile(options.module);
  const HostChoice host = byChance(options.seed, options.host.choice());
  mustBeFolder(options.folder);
  mustBeWritten(refusedFiles({pathIn(options, kModelerFile), pathIn(options, kLayoutFile)}, existingFiles(options.force)));
  std::cout << "host: " << host.text() << "\n";
  try {
    const TemporaryFolder folder;
    const int modeler = keep(options, kModelerFile, measuredModeler(module, host.options(), folder.path()));
    const int layout = keep(options, kLayoutFile, measuredLayout(module, host.options(), folder.path()));
    return std::max(modeler, layout);
  } catch (const std::runtime_error& failure) {
    throw Trouble{failure.what()};
  }
}

}  // namespace

Command probeCommand() {
  const auto options = std::make_shared<ProbeOptions>();
  return {
      .name = "probe",
      .text = "Run the probe in both programs of the stand-in, and keep the files of facts that it writes",
      .options =
          {
              {"folder",
               &options->folder,
               "For modeler.json and layout.json; made when it is not there",
               {.isRequired = true}},
              {"--module", &options->module, "The probe's file (the one beside this program by default)"},
              hostOption(options->host),
              {"--seed", &options->seed, "Differ in ten more things by chance, the same for the same number"},
              forceOption(options->force),
          },
      .footer =
          "Exit codes: 0 both are measured, 1 the probe broke a rule of the host, 2 it could not run.\n\nExamples:\n"
          "  varnel probe facts\n  varnel probe facts-2 --host texts=copied --seed 7",
      .run = [options] { return runProbe(*options); },
  };
}

}  // namespace standin
