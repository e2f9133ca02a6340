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
#include "standin/core/program_folder.h"
#include "standin/measure/measure.h"

namespace standin {
namespace {

constexpr std::size_t kDiffering = 10;  // of a host by chance

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

// The file of --module, else the probe beside the program or in its folder of the zip.
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

// Gives the exit code.
int keep(const ProbeOptions& options, const std::string& name, const MeasuredHost& measured) {
  if (measured.facts.empty()) throw Trouble{"the probe left no file: " + measured.last};
  const std::string path = utf8Of(pathFromUtf8(options.folder) / name);
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
  std::cout << "host: " << host.text() << "\n";
  try {
    const TemporaryFolder folder;
    const int modeler = keep(options, "modeler.json", measuredModeler(module, host.options(), folder.path()));
    const int layout = keep(options, "layout.json", measuredLayout(module, host.options(), folder.path()));
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
