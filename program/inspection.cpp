#include "program/inspection.h"

#include <charconv>
#include <filesystem>
#include <system_error>

#include "objectfile/file_bytes.h"
#include "program/support.h"
#include "rigs/japanese_texts.h"

namespace standin {
namespace {

// In the units that the host's limit counts. A name that is no text, as unpacking in a wrong code page leaves it, has its
// bytes.
std::size_t lengthOf(const std::filesystem::path& path) {
  try {
    return path.u16string().size();
  } catch (const std::filesystem::filesystem_error&) {
    return path.native().size();
  }
}

}  // namespace

CommandOption codePageOption(std::string& target) {
  return {"--code-page", &target,
          "Code page of the system that runs Layout: 932, 1252, ... or utf-8 (this system's on Windows, else 932)"};
}

rigs::CodePage codePageOf(const std::string& name) {
  if (name.empty()) return rigs::CodePage(rigs::CodePage::usual());
  if (name == "utf-8") return rigs::CodePage(rigs::kUtf8CodePage);
  int number = 0;
  const char* const end = name.data() + name.size();
  const auto read = std::from_chars(name.data(), end, number);
  rigs::CodePage codePage(number);
  if (read.ptr != end || read.ec != std::errc() || !codePage.isKnown()) {
    throw Trouble{"code page " + name + " is not known here"};
  }
  return codePage;
}

InspectedObject inspectObject(const std::string& path, const rigs::CodePage& codePage) {
  InspectedObject file{{path, {}, {}, {}}, {}};
  Outcome<ObjectFile> object = readObject(path, TextlessTags::LeaveOut);
  if (!object) {
    file.inspected.trouble = object.why();
    return file;
  }
  file.object = std::move(*object);
  rigs::Rig& rig = file.inspected.rig;
  rig = rigs::rigOf(file.object, fileNameOf(path));
  rig.pathLength = lengthOf(std::filesystem::absolute(pathFromUtf8(path)));
  file.inspected.findings = rigs::findingsOf(rig, codePage);
  if (rig.isInJapanese) {
    rigs::putInUtf8(file.object);
    rig = rigs::rigOf(file.object, fileNameOf(path));
    rig.isInJapanese = true;
  }
  return file;
}

}  // namespace standin
