#include "probe/process_questions.h"

#include <array>
#include <cstdio>

#include "probe/ask.h"

namespace probe {
namespace {

Answer numberLocale(Host& /*host*/) {
  std::array<char, 8> text{};
  // What this function makes of the process's locale is the question.
  std::snprintf(text.data(), text.size(), "%.1f", 0.5);
  const std::string number = text.data();
  const std::string seen = "one half was formatted as \"" + number + '"';
  if (number == "0.5") return told("c", seen);
  return number == "0,5" ? told("comma", seen) : other(seen);
}

Answer serviceTables(Host& host) {
  const std::array names{"LWPanelServices 3", host.program == Program::Modeler ? "Scene Objects 9" : "LW Item Info 9"};
  std::size_t copies = 0;
  for (const char* name : names) {
    if (&host.service<char>(name) != &host.service<char>(name)) ++copies;
  }
  const std::string seen =
      std::to_string(copies) + " of " + std::to_string(names.size()) + " services gave another table when asked again";
  if (copies == 0) return told("one", seen);
  return copies == names.size() ? told("copies", seen) : other(seen);
}

constexpr std::array kProcessQuestions{
    Question<Host>{"locale", numberLocale},
    Question<Host>{"service-tables", serviceTables},
};

}  // namespace

void measureProcess(Host& host, Facts& facts) { ask<Host>(kProcessQuestions, host, facts); }

}  // namespace probe
