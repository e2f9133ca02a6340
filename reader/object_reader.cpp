#include "reader/object_reader.h"

#include <new>
#include <utility>

#include "reader/CLWOFileStream.h"
#include "reader/object_passes.h"

namespace lwp::st {

namespace {

// The file is gone through chunk by chunk up to three times, each time cheaply: to count what it holds, to count the tags of
// each skelegon, and to put everything into memory that was taken once. Memory that is touched for the first time costs more
// than all of this, and lists that grow would touch twice as much of it.
bool readObject(ObjectStore& store, std::span<const std::byte> chunks) {
  CountingPass counting;
  if (!CLWOFileStream(chunks).readChunks(counting)) return false;

  store.skelegons = SkelegonStore(counting.counts().skelegons.polygons);
  TagCountingPass tagCounting(store.skelegons);
  if (!CLWOFileStream(chunks).readChunks(tagCounting)) return false;
  store.skelegons.layOut();

  FillingPass filling(store, counting.counts(), tagCounting.listsAscend());
  if (!CLWOFileStream(chunks).readChunks(filling)) return false;
  filling.finish();
  return true;
}

bool readForm(ObjectFileData& data, CLWOFileStream& file, std::string path) {
  ObjectStore store;
  if (!file.enterForm() || !readObject(store, file.rest())) return false;
  data = ObjectFileData(std::move(path), std::move(store));
  return true;
}

// A file that does not fit into memory is one that cannot be read.
template <class Read>
bool falseWhenOutOfMemory(Read read) {
  try {
    return read();
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace

bool ReadObjectFile(ObjectFileData& data, std::string narrowPath) {
  data.clear();
  return falseWhenOutOfMemory([&] {
    CLWOFileStream file;
    return file.load(narrowPath) && readForm(data, file, std::move(narrowPath));
  });
}

bool ParseObjectFile(ObjectFileData& data, std::span<const std::byte> file, std::string path) {
  data.clear();
  return falseWhenOutOfMemory([&] {
    CLWOFileStream stream(file);
    return readForm(data, stream, std::move(path));
  });
}

}  // namespace lwp::st
