// What a command line may say, as tables: the program, its commands, and what each of them takes.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace standin {

// Where the words of an option go. A truth is a switch, which takes no word. A list of words that have their
// places takes all there are; one behind an option takes a word each time, so that the next may be a file.
using OptionTarget = std::variant<bool*, int*, unsigned*, std::uint64_t*, double*, std::string*, std::vector<std::string>*>;

struct OptionRules {
  bool isRequired = false;
  bool showsDefault = false;  // in the help
  std::vector<std::string> choices = {};
  std::optional<std::pair<double, double>> range = {};
  char separator = 0;         // between the parts of one word; none by default
  std::string excludes = {};  // an option of an earlier row that must not stand beside this one
  // Why a word cannot be taken; empty when it can.
  std::function<std::string(const std::string& word)> refusal = {};
};

struct CommandOption {
  std::string name;  // "file" for a word that has its place, "--lang" or "-o,--output" else
  OptionTarget target;
  std::string text = {};
  OptionRules rules = {};
};

struct Command {
  std::string name;
  std::string text;
  std::vector<CommandOption> options = {};
  std::string footer = {};   // of the help: exit codes, examples
  std::function<int()> run;  // called when the targets hold what was typed; the exit code
  bool isHidden = false;     // from the help
  bool takesAnything = false;
};

struct Program {
  std::string text = {};
  std::string version = {};
  std::vector<Command> commands;  // in the order of the help; one of them has to be named
};

// Runs the command that the words name, or prints the help, or to the error output what is wrong with them. The exit code:
// the command's own, 0 after a help, else kTrouble.
int runCommandLine(const Program& program, std::vector<std::string> words);

// Options that many commands have.
CommandOption moduleOption(std::string& target);
// A single language is the system's unless one is named.
CommandOption languageOption(OptionTarget target, const std::string& text);
// Asks to write over files that are there.
CommandOption forceOption(bool& target);

}  // namespace standin
