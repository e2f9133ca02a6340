// The file of facts as it is shown to people: what differs from the defaults comes first.
#include <algorithm>
#include <utility>

#include "program/host_facts.h"
#include "rigs/text.h"

namespace standin {
namespace {

using rigs::printable;

// A row of the table with what the file tells of it; the row is null for what only a newer program knows, the fact for what the
// file does not mention.
struct Answered {
  const HostVariant* row = nullptr;
  const HostFact* fact = nullptr;

  bool isTold() const { return fact != nullptr && fact->value.has_value(); }
  bool isPlayed() const { return isTold() && HostChoice().choose(fact->name, *fact->value); }
  bool isAssumed() const { return isPlayed() && *fact->value == row->values.front().name; }
};

const HostFact* factNamed(const HostFacts& facts, const std::string& name) {
  const auto found =
      std::find_if(facts.facts.begin(), facts.facts.end(), [&](const HostFact& one) { return one.name == name; });
  return found == facts.facts.end() ? nullptr : &*found;
}

// In the order of the table; behind it, in the file's order, what the table does not have.
std::vector<Answered> answersOf(const HostFacts& facts) {
  std::vector<Answered> answers;
  for (const HostVariant* row : allVariants()) answers.push_back({row, factNamed(facts, row->name)});
  for (const HostFact& fact : facts.facts) {
    const auto all = allVariants();
    if (std::none_of(all.begin(), all.end(), [&](const HostVariant* row) { return row->name == fact.name; })) {
      answers.push_back({nullptr, &fact});
    }
  }
  return answers;
}

void addLine(std::string& text, const char* what, const std::string& value) {
  std::string name = what;
  name.resize(18, ' ');
  text.append("      ").append(name).append(value).append("\n");
}

std::string differingText(const Answered& answer) {
  std::string text = "  " + printable(answer.fact->name) + "\n";
  if (answer.row != nullptr) {
    addLine(text, "what may differ", answer.row->question);
    addLine(text, "assumed", answer.row->values.front().name);
  }
  addLine(text, "there", printable(*answer.fact->value));
  addLine(text, "seen", printable(answer.fact->seen));
  if (answer.row != nullptr) addLine(text, "what Varnel does", answer.row->module);
  return text;
}

std::string notToldText(const Answered& answer) {
  return "  " + printable(answer.fact->name) + ": " + printable(answer.fact->seen) + "\n";
}

using Rows = std::vector<const Answered*>;

template <std::string (*Text)(const Answered&)>
std::string eachText(const Rows& rows) {
  std::string text;
  for (const Answered* row : rows) text += Text(*row);
  return text;
}

// The names alone, as many on a line as fit.
std::string namesText(const Rows& rows) {
  constexpr std::size_t kWidth = 100;
  std::string text;
  std::string line;
  for (const Answered* row : rows) {
    if (line.size() + std::string_view(row->row->name).size() > kWidth) text += std::exchange(line, {}) + ",\n";
    line.append(line.empty() ? "  " : ", ").append(row->row->name);
  }
  return text + line + "\n";
}

struct Section {
  const char* heading;
  bool (*takes)(const Answered&);
  std::string (*text)(const Rows&);
};
constexpr Section kSections[] = {
    {"Other than assumed", [](const Answered& a) { return a.isPlayed() && !a.isAssumed(); }, eachText<differingText>},
    {"Answers that no host of the table gives; they are not played",
     [](const Answered& a) { return a.isTold() && !a.isPlayed(); }, eachText<differingText>},
    {"Not told, and why", [](const Answered& a) { return a.fact != nullptr && !a.isTold(); }, eachText<notToldText>},
    {"As assumed", [](const Answered& a) { return a.isAssumed(); }, namesText},
    {"Not asked there", [](const Answered& a) { return a.fact == nullptr; }, namesText},
};

std::string headText(const HostFacts& facts) {
  const std::string host = facts.host.empty() ? " of an unknown release" : " " + printable(facts.host);
  return printable(facts.program) + host + "\nmeasured on " + printable(facts.date) + " by the probe of version " +
         printable(facts.probe) + "\n";
}

std::string counted(const char* heading, std::size_t count) {
  return std::string("\n") + heading + " (" + std::to_string(count) + ")\n";
}

}  // namespace

std::string hostFactsText(const HostFacts& facts) {
  const std::vector<Answered> answers = answersOf(facts);
  std::string text = headText(facts);
  for (const Section& section : kSections) {
    Rows rows;
    for (const Answered& answer : answers) {
      if (section.takes(answer)) rows.push_back(&answer);
    }
    if (!rows.empty()) text += counted(section.heading, rows.size()) + section.text(rows);
  }
  if (!facts.figures.empty()) text += counted("Figures", facts.figures.size());
  for (const HostFigure& figure : facts.figures)
    text += "  " + printable(figure.name) + ": " + printable(figure.seen) + "\n";
  return text;
}

}  // namespace standin
