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

}  // namespace

Outcome<Json> parseJson(std::string_view text) {
  try {
    Watch watch;
    return Json::parse(text,
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
