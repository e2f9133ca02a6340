// The module's object reader: beside another reader of the same file, and beside a plain copy of the file's bytes into fresh
// memory, which is about the least that anything can cost that ends in memory of its own.
#include <assimp/scene.h>
#include <benchmark/benchmark.h>

#include <assimp/Importer.hpp>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "benchmarks/object_files.h"
#include "benchmarks/timing.h"
#include "reader/object_reader.h"

namespace {

using lwp::st::ObjectFileData;
using lwp::st::ObjectLayer;
using namespace varnel::bench;

constexpr std::size_t kMeshBytes = 100'000'000;
constexpr std::uint32_t kSkelegons = 100'000;
constexpr unsigned kSettings = 20;

ObjectFileData readFile(const std::string& path) {
  ObjectFileData data;
  if (!lwp::st::ReadObjectFile(data, path)) throw std::runtime_error("not read: " + path);
  return data;
}

ObjectFileData parse(std::span<const std::byte> file) {
  ObjectFileData data;
  if (!lwp::st::ParseObjectFile(data, file, "bench.lwo")) throw std::runtime_error("not parsed");
  return data;
}

std::unique_ptr<std::byte[]> copy(std::span<const std::byte> file) {
  auto memory = std::make_unique_for_overwrite<std::byte[]>(file.size());
  // The compiler knows what memcpy and the taking of memory mean, and leaves both out where it can.
  std::byte* to = memory.get();
  benchmark::DoNotOptimize(to);
  std::memcpy(to, file.data(), file.size());
  benchmark::ClobberMemory();
  return memory;
}

std::unique_ptr<Assimp::Importer> readWithAssimp(const std::string& path) {
  auto importer = std::make_unique<Assimp::Importer>();
  if (importer->ReadFile(path, 0) == nullptr) throw std::runtime_error(importer->GetErrorString());
  return importer;
}

std::unique_ptr<Assimp::Importer> parseWithAssimp(std::span<const std::byte> file) {
  auto importer = std::make_unique<Assimp::Importer>();
  if (importer->ReadFileFromMemory(file.data(), file.size(), 0, "lwo") == nullptr) {
    throw std::runtime_error(importer->GetErrorString());
  }
  return importer;
}

// Both readers have to have read the same thing before their times say anything.
void requireSameFaces(const std::string& path) {
  const ObjectFileData data = readFile(path);
  const auto importer = readWithAssimp(path);
  std::size_t faces = 0;
  for (unsigned i = 0; i < importer->GetScene()->mNumMeshes; ++i) faces += importer->GetScene()->mMeshes[i]->mNumFaces;
  if (faces == 0 || faces != data.layer(0).faceCount()) throw std::runtime_error("the two readers differ");
}

void requireAllTags(const ObjectFileData& data) {
  const ObjectLayer layer = data.layer(0);
  if (layer.skelegonCount() != kSkelegons) throw std::runtime_error("not all skelegons were read");
  for (const lwp::st::SkelegonRecord& skelegon : layer.skelegons()) {
    if (skelegon.tags.size() != kSettings) throw std::runtime_error("not all settings were read");
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;

  const std::vector<std::byte> mesh = makeMesh(kMeshBytes);
  const std::vector<std::byte> rig = makeRig(kSkelegons, kSettings);
  const BenchFolder folder;
  const std::string meshPath = folder.write("mesh.lwo", mesh);
  const std::string rigPath = folder.write("rig.lwo", rig);
  requireSameFaces(meshPath);
  requireAllTags(readFile(rigPath));
  add("mesh/copy", [&] { return copy(mesh); });
  add("mesh/parse", [&] { return parse(mesh); });
  add("mesh/read", [&] { return readFile(meshPath); });
  add("rig/copy", [&] { return copy(rig); });
  add("rig/parse", [&] { return parse(rig); });
  add("rig/read", [&] { return readFile(rigPath); });
  add("mesh/assimp/parse", [&] { return parseWithAssimp(mesh); })->Iterations(1)->Repetitions(5);
  add("mesh/assimp/read", [&] { return readWithAssimp(meshPath); })->Iterations(1)->Repetitions(5);

  KeepingReporter times;
  benchmark::RunSpecifiedBenchmarks(&times);
  std::puts("### Object reader\n");
  std::printf("A mesh of %.1f MB, points and triangles, and a rig of %.1f MB, %u skelegons with %u settings each.\n",
              static_cast<double>(mesh.size()) / 1e6, static_cast<double>(rig.size()) / 1e6, kSkelegons, kSettings);
  std::puts(
      "Processor time, the system's for the program included. The ratio says how many times faster the reader is than");
  std::puts("assimp, or which share of the speed of a memcpy into fresh memory it has.\n");
  printRatios(times, {{"mesh parsed in memory, beside assimp doing the same", "mesh/parse", "mesh/assimp/parse", 12},
                      {"mesh read from disk, beside assimp doing the same", "mesh/read", "mesh/assimp/read", 12},
                      {"mesh parsed in memory, beside a memcpy of its bytes", "mesh/parse", "mesh/copy", 0.7},
                      {"mesh read from disk, beside a memcpy of its bytes", "mesh/read", "mesh/copy"},
                      {"rig parsed in memory, beside a memcpy of its bytes", "rig/parse", "rig/copy", 0.3},
                      {"rig read from disk, beside a memcpy of its bytes", "rig/read", "rig/copy"}});
  return 0;
}
