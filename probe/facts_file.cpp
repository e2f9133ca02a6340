#include "probe/facts_file.h"

#include <array>
#include <chrono>
#include <ctime>

#include "probe/json_text.h"
#include "probe/number_text.h"

namespace probe {
namespace {

std::string today() {
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::array<char, 16> text{};
  const std::tm* const day = std::gmtime(&now);  // one thread calls here: the host's
  if (day == nullptr || std::strftime(text.data(), text.size(), "%Y-%m-%d", day) == 0) return "unknown";
  return text.data();
}

std::string hostText(const Host& host) {
  const unsigned word = host.number("Product Info");
  const std::string release = std::to_string(word >> 20 & 0xF) + "." + std::to_string(word >> 16 & 0xF);
  constexpr unsigned kFirstYear = 2015;
  constexpr unsigned kMajorWithYear = 15;  // of others the bits of the year mean nothing
  const std::string year = (word >> 20 & 0xF) == kMajorWithYear ? std::to_string(kFirstYear + (word >> 24 & 0x3F)) : "null";
  return "{\"release\": " + jsonText(release) + ", \"build\": " + std::to_string(word >> 4 & 0xFFF) + ", \"year\": " + year +
         ", \"language\": " + jsonText(hexadecimal(host.number("Locale Info") & 0xFFFF)) +
         ", \"word\": " + jsonText(hexadecimal(word)) + "}";
}

template <class Row, class Text>
std::string list(const std::vector<Row>& rows, Text&& textOf) {
  std::string result;
  for (const Row& row : rows) result += (result.empty() ? "\n    " : ",\n    ") + textOf(row);
  return "[" + result + (rows.empty() ? "]" : "\n  ]");
}

std::string factText(const Fact& fact) {
  const std::string value = fact.answer.value.empty() ? "null" : jsonText(fact.answer.value);
  return "{\"name\": " + jsonText(fact.name) + ", \"value\": " + value + ", \"seen\": " + jsonText(fact.answer.seen) + "}";
}

std::string figureText(const Figure& figure) {
  return "{\"name\": " + jsonText(figure.name) + ", \"seen\": " + jsonText(figure.seen) + "}";
}

}  // namespace

std::string factsText(const Host& host, const Facts& facts) {
  const std::string version = std::to_string(VARNEL_VERSION_MAJOR) + "." + std::to_string(VARNEL_VERSION_MINOR);
  return "{\n  \"format\": \"varnel host facts\",\n  \"version\": 1,\n  \"probe\": " + jsonText(version) +
         ",\n  \"program\": " + jsonText(nameOf(host.program)) + ",\n  \"host\": " + hostText(host) +
         ",\n  \"date\": " + jsonText(today()) + ",\n  \"facts\": " + list(facts.facts(), factText) +
         ",\n  \"figures\": " + list(facts.figures(), figureText) + "\n}\n";
}

}  // namespace probe
