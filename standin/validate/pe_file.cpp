#include "standin/validate/pe_file.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace standin::validate {
namespace {

constexpr std::size_t kNewHeaderAt = 0x3C;
constexpr std::size_t kFileHeader = 20;
constexpr std::size_t kSectionHeader = 40;
constexpr std::size_t kImportRecord = 20;
constexpr std::uint64_t kOptional64 = 0x20B;
constexpr std::uint64_t kLibraryFlag = 0x2000;
constexpr std::size_t kDirectories64 = 112;  // in the optional header
constexpr std::size_t kMostEntries = 10000;

// Numbers and texts at file offsets; anything outside is nothing.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

  bool has(std::size_t at, std::size_t count) const { return at <= bytes_.size() && count <= bytes_.size() - at; }

  std::optional<std::uint32_t> number(std::size_t at, std::size_t width) const {
    if (!has(at, width)) return std::nullopt;
    std::uint32_t value = 0;
    for (std::size_t i = width; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes_[at + i]);
    return value;
  }
  std::uint32_t orZero(std::size_t at, std::size_t width) const { return number(at, width).value_or(0); }

  std::optional<std::string> text(std::size_t at) const {
    const std::size_t end = at < bytes_.size() ? bytes_.find('\0', at) : std::string_view::npos;
    if (end == std::string_view::npos) return std::nullopt;
    return std::string(bytes_.substr(at, end - at));
  }

 private:
  std::string_view bytes_;
};

struct Section {
  std::uint32_t address, size, offset;
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  std::string read(PeFile& file) {
    const std::size_t header = bytes_.orZero(kNewHeaderAt, 4);
    if (bytes_.number(header, 4) != 0x4550) return "the file has no PE header";
    const std::size_t fileHeader = header + 4;
    const std::size_t optional = fileHeader + kFileHeader;
    file.isLibrary = (bytes_.orZero(fileHeader + 18, 2) & kLibraryFlag) != 0;
    file.is64Bit = bytes_.orZero(optional, 2) == kOptional64;
    if (!file.is64Bit) return "the file is not a 64-bit one";
    readSections(optional + bytes_.orZero(fileHeader + 16, 2), bytes_.orZero(fileHeader + 2, 2));
    const std::string why = readExports(file, bytes_.orZero(optional + kDirectories64, 4));
    return why.empty() ? readImports(file, bytes_.orZero(optional + kDirectories64 + 8, 4)) : why;
  }

 private:
  void readSections(std::size_t at, std::uint32_t count) {
    for (std::uint32_t i = 0; i < count && bytes_.has(at, kSectionHeader); ++i, at += kSectionHeader) {
      sections_.push_back({bytes_.orZero(at + 12, 4), bytes_.orZero(at + 16, 4), bytes_.orZero(at + 20, 4)});
    }
  }

  // The place in the file of an address; past its end when there is none.
  std::size_t placeOf(std::uint32_t address) const {
    for (const Section& section : sections_) {
      if (address >= section.address && address - section.address < section.size) {
        return std::size_t{section.offset} + (address - section.address);
      }
    }
    return std::string_view::npos / 2;
  }

  std::string readExports(PeFile& file, std::uint32_t address) const {
    if (address == 0) return {};
    const std::size_t table = placeOf(address);
    const std::optional<std::uint32_t> count = bytes_.number(table + 24, 4);
    if (!count || *count > kMostEntries) return "the table of exports is damaged";
    const std::size_t names = placeOf(bytes_.orZero(table + 32, 4));
    for (std::uint32_t i = 0; i < *count; ++i) {
      const auto name = bytes_.text(placeOf(bytes_.orZero(names + std::size_t{4} * i, 4)));
      if (!name) return "the table of exports is damaged";
      file.exports.push_back(*name);
    }
    return {};
  }

  std::string readImports(PeFile& file, std::uint32_t address) const {
    if (address == 0) return {};
    std::size_t record = placeOf(address);
    for (std::size_t i = 0; i < kMostEntries; ++i, record += kImportRecord) {
      const std::optional<std::uint32_t> name = bytes_.number(record + 12, 4);
      if (!name) return "the table of imports is damaged";
      if (*name == 0) return {};
      const auto library = bytes_.text(placeOf(*name));
      if (!library) return "the table of imports is damaged";
      file.libraries.push_back(*library);
    }
    return "the table of imports has no end";
  }

  Bytes bytes_;
  std::vector<Section> sections_;
};

}  // namespace

bool looksLikePe(std::string_view bytes) { return bytes.starts_with("MZ"); }

Outcome<PeFile> readPe(std::string_view bytes) {
  if (!looksLikePe(bytes)) return Failure{"the file is no Windows program"};
  PeFile file;
  if (std::string why = Reader(bytes).read(file); !why.empty()) return Failure{std::move(why)};
  return file;
}

}  // namespace standin::validate
