#include "program/host_option.h"

#include <iostream>

#include "objectfile/file_bytes.h"
#include "program/host_facts.h"
#include "program/support.h"
#include "rigs/text.h"

namespace standin {
namespace {

// No name or value of the table looks like this.
bool isNamedJson(const std::string& word) {
  std::string end = word.size() < 5 ? std::string() : word.substr(word.size() - 5);
  for (char& c : end) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return end == ".json";
}

bool isFile(const std::string& word) {
  std::error_code ignored;
  return isNamedJson(word) || std::filesystem::exists(pathFromUtf8(word), ignored);
}

// A sentence when the word cannot be taken.
std::string takeFile(HostChoice& choice, const std::string& path, std::vector<std::string>& remarks) {
  const Outcome<HostFacts> facts = readHostFacts(path);
  if (!facts) return facts.why();
  for (const std::string& remark : settle(choice, *facts)) {
    remarks.push_back(path);
    remarks.back().append(": ").append(remark);
  }
  return {};
}

std::string take(HostChoice& choice, const std::string& word, std::vector<std::string>& remarks) {
  std::string refusal = choice.take(word);
  if (refusal.empty()) return {};
  if (isFile(word)) return takeFile(choice, word, remarks);
  // Not all the names: who mistyped a file's name would not find the sentence behind them.
  if (word.find('=') == std::string::npos)
    return rigs::inQuotes(word) + " is neither NAME=VALUE nor a file; \"varnel hosts\" lists the names";
  return refusal;
}

}  // namespace

const HostChoice& HostWords::choice() const {
  if (choice_) return *choice_;
  HostChoice choice;
  std::vector<std::string> remarks;
  for (const std::string& word : words_) {
    if (const std::string refusal = take(choice, word, remarks); !refusal.empty()) throw Trouble{refusal};
  }
  for (const std::string& remark : remarks) std::cerr << "varnel: " << remark << "\n";
  return choice_.emplace(std::move(choice));
}

CommandOption hostOption(HostWords& host) {
  return {"--host",
          &host.words_,
          "The host to play: NAME=VALUE, as \"varnel hosts\" lists them, or a file of facts",
          {.refusal = [](const std::string& word) {
            HostChoice choice;
            std::vector<std::string> remarks;
            return take(choice, word, remarks);
          }}};
}

}  // namespace standin
