#include "rigs/json_text.h"

#include <set>
#include <vector>

#include "rigs/text.h"

namespace standin::rigs {
namespace {

constexpr int kDeepest = 16;

// Looks on while the text is parsed.
class Watch {
 public:
  struct Refused {
    std::string why;
  };

  bool operator()(int depth, Json::parse_event_t event, Json& parsed) {
    if (depth > kDeepest) throw Refused{"it is nested too deeply"};
    if (event == Json::parse_event_t::object_start) keys_.emplace_back();
    if (event == Json::parse_event_t::object_end) keys_.pop_back();
    if (event == Json::parse_event_t::key) {
      const auto key = parsed.get<std::string>();
      if (!keys_.back().insert(key).second) throw Refused{"the key " + inQuotes(key) + " stands twice in one object"};
    }
    return true;
  }

 private:
  std::vector<std::set<std::string>> keys_;
};

int digitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

std::optional<std::string> bytesOfHex(std::string_view hex) {
  if (hex.size() % 2 != 0) return std::nullopt;
  std::string bytes;
  for (std::size_t i = 0; i < hex.size(); i += 2) {
    const int high = digitOf(hex[i]);
    const int low = digitOf(hex[i + 1]);
    if (high < 0 || low < 0) return std::nullopt;
    bytes += static_cast<char>(high << 4 | low);
  }
  return bytes;
}

void append(std::string& text, std::uint32_t character) {
  const auto byte = [&](std::uint32_t bits) { text += static_cast<char>(bits); };
  if (character < 0x80) return byte(character);
  if (character < 0x800) {
    byte(0xC0 | character >> 6);
  } else {
    if (character < 0x10000) {
      byte(0xE0 | character >> 12);
    } else {
      byte(0xF0 | character >> 18);
      byte(0x80 | (character >> 12 & 0x3F));
    }
    byte(0x80 | (character >> 6 & 0x3F));
  }
  byte(0x80 | (character & 0x3F));
}

// Nothing for what is cut or half a pair.
std::optional<std::string> utf8OfUtf16(std::string_view bytes, bool littleEndian) {
  if (bytes.size() % 2 != 0) return std::nullopt;
  const auto unit = [&](std::size_t i) -> std::uint32_t {
    const auto first = static_cast<unsigned char>(bytes[i]);
    const auto second = static_cast<unsigned char>(bytes[i + 1]);
    return littleEndian ? second * 256U + first : first * 256U + second;
  };
  const auto isOfPair = [](std::uint32_t value, std::uint32_t half) { return (value & 0xFC00) == half; };
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    const std::uint32_t high = unit(i);
    if (isOfPair(high, 0xDC00)) return std::nullopt;
    if (!isOfPair(high, 0xD800)) {
      append(text, high);
      continue;
    }
    i += 2;
    if (i == bytes.size() || !isOfPair(unit(i), 0xDC00)) return std::nullopt;
    append(text, 0x10000 + ((high & 0x3FF) << 10 | (unit(i) & 0x3FF)));
  }
  return text;
}

// Shells of Windows write what a program prints as UTF-16, with a mark before it.
std::optional<std::string> utf8OfFile(std::string_view bytes) {
  for (const bool littleEndian : {true, false}) {
    const std::string_view mark = littleEndian ? "\xFF\xFE" : "\xFE\xFF";
    if (bytes.starts_with(mark)) return utf8OfUtf16(bytes.substr(mark.size()), littleEndian);
  }
  return std::string(bytes);
}

}  // namespace

Outcome<Json> parseJson(std::string_view bytes) {
  const std::optional<std::string> text = utf8OfFile(bytes);
  if (!text) return Failure{"it is neither UTF-8 nor whole UTF-16"};
  try {
    Watch watch;
    return Json::parse(*text,
                       [&](int depth, Json::parse_event_t event, Json& parsed) { return watch(depth, event, parsed); });
  } catch (const Watch::Refused& refused) {
    return Failure{refused.why};
  } catch (const Json::exception& error) {
    // Behind the library's own name for the error.
    const std::string what = error.what();
    const std::size_t end = what.find("] ");
    return Failure{printable(end == std::string::npos ? what : what.substr(end + 2))};
  }
}

std::string dumpJson(const Json& json) { return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n'; }

Json jsonOfText(std::string_view text) {
  if (isUtf8(text)) return std::string(text);
  return Json{{"hex", hexOf(text)}};
}

std::optional<std::string> textOfJson(const Json& json) {
  std::optional<std::string> text;
  if (json.is_string()) text = json.get<std::string>();
  if (json.is_object() && json.size() == 1 && json.contains("hex") && json["hex"].is_string()) {
    text = bytesOfHex(json["hex"].get<std::string>());
  }
  if (text && text->find('\0') != std::string::npos) return std::nullopt;
  return text;
}

}  // namespace standin::rigs
