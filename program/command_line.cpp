// The one file that knows the library for command lines: its header takes longer to compile than all that is said here.
#include "program/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>
#include <type_traits>

#include "program/nearest_name.h"
#include "program/support.h"
#include "program/system_language.h"

namespace standin {
namespace {

CLI::Option* addOption(CLI::App& app, const CommandOption& option) {
  return std::visit(
      [&](auto* target) {
        if constexpr (std::is_same_v<decltype(target), bool*>) {
          return app.add_flag(option.name, *target, option.text);
        } else {
          return app.add_option(option.name, *target, option.text);
        }
      },
      option.target);
}

// The limits are shown as numbers of the target's kind.
CLI::Range rangeFor(const OptionTarget& target, std::pair<double, double> limits) {
  if (std::holds_alternative<double*>(target)) return {limits.first, limits.second};
  return {static_cast<int>(limits.first), static_cast<int>(limits.second)};
}

bool isListBehindOption(const CommandOption& row) {
  return row.name.starts_with('-') && std::holds_alternative<std::vector<std::string>*>(row.target);
}

void addRow(CLI::App& app, const CommandOption& row) {
  const OptionRules& rules = row.rules;
  CLI::Option* const option = addOption(app, row);
  option->required(rules.isRequired);
  if (rules.showsDefault) option->capture_default_str();
  if (!rules.choices.empty()) option->check(CLI::IsMember(rules.choices));
  if (rules.range) option->check(rangeFor(row.target, *rules.range));
  if (rules.separator != 0) option->delimiter(rules.separator);
  if (isListBehindOption(row)) option->allow_extra_args(false);
  if (rules.refusal) option->check(rules.refusal);
  if (!rules.excludes.empty()) option->excludes(app.get_option(rules.excludes));
}

// What stands behind a command is its own: nobody asks for the options of another.
bool areOptionsAskedFor(const Command& command, const std::vector<std::string>& words) {
  return words.empty() || words.front().starts_with('-') || words.front() == command.name;
}

void addCommand(CLI::App& app, const Command& command, bool hasOptions, int& result) {
  CLI::App* const subcommand = app.add_subcommand(command.name, command.text);
  if (command.isHidden) subcommand->group("");
  if (command.takesAnything) subcommand->allow_extras();
  if (hasOptions) {
    for (const CommandOption& option : command.options) addRow(*subcommand, option);
  }
  subcommand->footer(command.footer);
  subcommand->callback([&command, &result] { result = command.run(); });
}

// These may stand before the command; all others are a command's own.
constexpr std::array<std::string_view, 4> kProgramsOptions{"-h", "--help", "--help-all", "--version"};

// Why the words cannot be read as a command and what stands behind it; empty when they can.
std::string refusalOfCommand(const Program& program, const std::vector<std::string>& words) {
  if (!words.empty() && words.front().starts_with('-') &&
      std::find(kProgramsOptions.begin(), kProgramsOptions.end(), words.front()) == kProgramsOptions.end()) {
    return "the option " + words.front() + " cannot stand before the command; options stand behind it";
  }
  const auto word = std::find_if(words.begin(), words.end(), [](const std::string& w) { return !w.starts_with('-'); });
  if (word == words.end()) return {};
  std::vector<std::string> names;
  for (const Command& command : program.commands) {
    if (command.name == *word) return {};
    if (!command.isHidden) names.push_back(command.name);
  }
  const std::string near = nearestName(*word, names);
  return "there is no command \"" + *word + "\"" + (near.empty() ? "" : "; did you mean \"" + near + "\"?");
}

int refused(const std::string& why) {
  printTrouble({why});
  std::cerr << "varnel --help names the commands, varnel COMMAND --help what they take\n";
  return kTrouble;
}

}  // namespace

int runCommandLine(const Program& program, std::vector<std::string> words) {
  CLI::App app{program.text, "varnel"};
  app.require_subcommand(1);
  app.allow_windows_style_options(false);  // a path may begin with a slash
  app.set_help_all_flag("--help-all", "Print the help of every command and exit");
  app.set_version_flag("--version", program.version);
  int result = 0;
  for (const Command& command : program.commands) addCommand(app, command, areOptionsAskedFor(command, words), result);
  if (const std::string why = refusalOfCommand(program, words); !why.empty()) return refused(why);
  std::reverse(words.begin(), words.end());  // the parser takes them from the back
  try {
    app.parse(words);
  } catch (const CLI::ParseError& error) {
    return error.get_exit_code() == 0 ? app.exit(error) : refused(error.what());
  }
  return result;
}

CommandOption moduleOption(std::string& target) {
  return {"--module", &target, "The module's file (the one beside this program by default)"};
}

CommandOption languageOption(OptionTarget target, const std::string& text) {
  if (std::string* const* const one = std::get_if<std::string*>(&target)) {
    **one = systemLanguage();
    return {"--lang", target, text + " (the system's by default)", {.choices = {"en", "ja"}}};
  }
  return {"--lang", target, text, {.choices = {"en", "ja"}, .separator = ','}};
}

CommandOption forceOption(bool& target) { return {"--force", &target, "Write over files that are there"}; }

}  // namespace standin
