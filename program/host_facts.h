// A file of facts: what the module varnel-probe found out about a host, question by question.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "objectfile/outcome.h"
#include "standin/variants/variants.h"

namespace standin {

// The answer to a variant of the table.
struct HostFact {
  std::string name;
  std::optional<std::string> value;  // the name of a value of the table, or "other"; nothing when it could not be told
  std::string seen;                  // what was observed, or why nothing could be told
};

// What was measured besides, for people.
struct HostFigure {
  std::string name;
  std::string seen;
};

struct HostFacts {
  std::string probe;  // the probe's version
  std::string program;
  std::string host;  // "15.0.0, build 100, year 2023, language 0x409, word 0x08f00641": as much of it as the file tells
  std::string date;
  std::vector<HostFact> facts;
  std::vector<HostFigure> figures;
};

// Of the bytes of a file. What is not understood whole is refused with a sentence; what a newer probe adds is passed over.
Outcome<HostFacts> parseHostFacts(std::string_view bytes);
// Of a file; the sentence names it.
Outcome<HostFacts> readHostFacts(const std::string& path);

// Settles what the facts tell, whatever was settled before. Gives a sentence for each answer that no host of the table gives,
// which is not played, and for each that contradicts what was settled.
std::vector<std::string> settle(HostChoice& choice, const HostFacts& facts);

// What differs from the defaults, what it means for the module, and what could not be told: for a terminal.
std::string hostFactsText(const HostFacts& facts);

}  // namespace standin
