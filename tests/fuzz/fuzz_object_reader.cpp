// The object reader on any bytes. It has to agree with the plain reader on what is sound and what is in it, and to leave
// nothing behind of what it refuses; the sanitizers watch the rest.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <span>

#include "tests/unit/read_object.h"

namespace {

using varnel::test::PlainObject;
using varnel::test::PlainObjectReader;

void require(bool isSo, const char* rule) {
  if (isSo) return;
  std::fprintf(stderr, "broken: %s\n", rule);
  std::abort();
}

// In a mutated file: makes the form as long as it says. A file that only fails there would teach nothing.
void mendFormSize(std::span<std::uint8_t> file) {
  constexpr std::size_t kIdAndSize = 8;
  if (file.size() < kIdAndSize) return;
  const std::size_t size = file.size() - kIdAndSize;
  for (std::size_t i = 0; i < 4; ++i) file[4 + i] = static_cast<std::uint8_t>(size >> (24 - 8 * i));
}

}  // namespace

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* bytes, std::size_t size, std::size_t maxSize);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* bytes, std::size_t size, std::size_t maxSize, unsigned seed) {
  const std::size_t mutated = LLVMFuzzerMutate(bytes, size, maxSize);
  // Now and then the size is left wrong.
  if (seed % 16 != 0) mendFormSize({bytes, mutated});
  return mutated;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::span file(reinterpret_cast<const std::byte*>(bytes), size);
  lwp::st::ObjectFileData data;
  const bool isSound = lwp::st::ParseObjectFile(data, file, "fuzzed.lwo");
  const std::optional<PlainObject> expected = PlainObjectReader::read(file);

  require(isSound == expected.has_value(), "a sound file is read, and no other");
  require(isSound || varnel::test::isEmpty(data), "a refused file leaves no data");
  require(!isSound || data.path() == "fuzzed.lwo", "a file that was read leaves its path");
  require(!isSound || varnel::test::plainObject(data) == *expected, "what is read is what is in the file");
  return 0;
}
