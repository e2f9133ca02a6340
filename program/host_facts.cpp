#include "program/host_facts.h"

#include <algorithm>
#include <set>

#include "objectfile/file_bytes.h"
#include "rigs/json_text.h"
#include "rigs/text.h"

namespace standin {
namespace {

using rigs::inQuotes;
using rigs::Json;
using rigs::printable;

constexpr const char* kFormat = "varnel host facts";
constexpr int kVersion = 1;

// What is wrong with the file.
struct Refused {
  std::string why;
};

const Json& member(const Json& object, const char* key, const std::string& where) {
  const auto found = object.find(key);
  if (found == object.end()) throw Refused{where + " has no " + inQuotes(key)};
  return *found;
}

std::string textIn(const Json& object, const char* key, const std::string& where) {
  const Json& text = member(object, key, where);
  if (!text.is_string()) throw Refused{inQuotes(key) + " of " + where + " is no text"};
  return text.get<std::string>();
}

const Json& listIn(const Json& object, const char* key) {
  const Json& list = member(object, key, "it");
  if (!list.is_array()) throw Refused{inQuotes(key) + " is no list"};
  for (const Json& one : list) {
    if (!one.is_object()) throw Refused{inQuotes(key) + " holds something that is no object"};
  }
  return list;
}

std::string nameIn(const Json& entry, const char* list) {
  std::string name = textIn(entry, "name", std::string("an entry of ") + inQuotes(list));
  if (name.empty()) throw Refused{"an entry of " + inQuotes(list) + " has an empty name"};
  return name;
}

HostFact factIn(const Json& entry, std::set<std::string>& names) {
  HostFact fact;
  fact.name = nameIn(entry, "facts");
  if (!names.insert(fact.name).second) throw Refused{"\"facts\" tells of " + inQuotes(fact.name) + " twice"};
  const Json& value = member(entry, "value", inQuotes(fact.name));
  if (!value.is_null()) fact.value = textIn(entry, "value", inQuotes(fact.name));
  fact.seen = textIn(entry, "seen", inQuotes(fact.name));
  return fact;
}

// A host may lack the services that tell these.
std::string hostIn(const Json& host) {
  if (!host.is_object()) throw Refused{"\"host\" is no object"};
  std::string text;
  for (const char* const key : {"release", "build", "year", "language", "word"}) {
    const auto found = host.find(key);
    if (found == host.end() || found->is_null()) continue;
    if (!found->is_string() && !found->is_number_integer()) {
      throw Refused{inQuotes(key) + " of \"host\" is neither a text nor a number"};
    }
    const std::string value = found->is_string() ? found->get<std::string>() : found->dump();
    const bool isRelease = std::string_view(key) == "release";
    text.append(text.empty() ? "" : ", ").append(isRelease ? "" : std::string(key) + " ").append(value);
  }
  return text;
}

HostFacts factsIn(const Json& json) {
  if (!json.is_object() || !json.contains("format") || json["format"] != kFormat)
    throw Refused{"it is no file of host facts"};
  const Json& version = member(json, "version", "it");
  if (version != kVersion) {
    throw Refused{"it is of version " + printable(version.dump()) + ", and this program reads version " +
                  std::to_string(kVersion)};
  }
  HostFacts facts;
  facts.probe = textIn(json, "probe", "it");
  facts.program = textIn(json, "program", "it");
  facts.host = hostIn(member(json, "host", "it"));
  facts.date = textIn(json, "date", "it");
  std::set<std::string> names;
  for (const Json& entry : listIn(json, "facts")) facts.facts.push_back(factIn(entry, names));
  for (const Json& entry : listIn(json, "figures")) {
    const std::string name = nameIn(entry, "figures");
    facts.figures.push_back({name, textIn(entry, "seen", inQuotes(name))});
  }
  return facts;
}

bool isOfTable(const std::string& name) {
  const auto all = allVariants();
  return std::any_of(all.begin(), all.end(), [&](const HostVariant* row) { return row->name == name; });
}

std::string notPlayedText(const HostFact& fact) {
  const std::string answer = inQuotes(fact.name) + " is " + inQuotes(*fact.value) + " there and not played: ";
  if (!isOfTable(fact.name)) return answer + "this program does not know it";
  return answer + "no host of the table is so. What was seen: " + printable(fact.seen);
}

}  // namespace

Outcome<HostFacts> parseHostFacts(std::string_view bytes) {
  if (bytes.empty()) return Failure{"the file is empty"};
  const Outcome<Json> json = rigs::parseJson(bytes);
  if (!json) return Failure{"it is no file of host facts, or a damaged one: " + json.why()};
  try {
    return factsIn(*json);
  } catch (const Refused& refused) {
    return Failure{refused.why};
  }
}

Outcome<HostFacts> readHostFacts(const std::string& path) {
  const Outcome<std::string> bytes = readFileBytes(path);
  if (!bytes) return Failure{bytes.why()};
  Outcome<HostFacts> facts = parseHostFacts(*bytes);
  if (!facts) return Failure{path + ": " + facts.why()};
  return facts;
}

std::vector<std::string> settle(HostChoice& choice, const HostFacts& facts) {
  std::vector<std::string> remarks;
  for (const HostFact& fact : facts.facts) {
    if (!fact.value) continue;
    const char* const before = choice.settled(fact.name);
    if (!choice.choose(fact.name, *fact.value)) {
      remarks.push_back(notPlayedText(fact));
    } else if (before != nullptr && *fact.value != before) {
      remarks.push_back(inQuotes(fact.name) + " is " + inQuotes(*fact.value) + " there, which is played, and was " +
                        inQuotes(before) + " before");
    }
  }
  return remarks;
}

}  // namespace standin
