#include "standin/modeler/commands.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <iterator>
#include <span>
#include <utility>

namespace standin {
namespace {

using Words = std::span<const std::string>;

int load(ModelerSession& session, Words arguments) { return session.open(arguments[0]) ? kCommandDone : kCommandFiles; }

int newObject(ModelerSession& session, Words /*arguments*/) {
  ObjectFile empty;
  empty.layers.emplace_back();
  session.add(std::move(empty), {});
  return kCommandDone;
}

int save(ModelerSession& session, Words arguments) {
  if (session.current() == nullptr) return kCommandFailed;
  return session.saveAs(arguments[0]) ? kCommandFiles : kCommandDone;
}

int close(ModelerSession& session, Words /*arguments*/) {
  if (session.current() == nullptr) return kCommandFailed;
  session.close(*session.current());
  return kCommandDone;
}

int undo(ModelerSession& session, Words /*arguments*/) { return session.undo() ? kCommandDone : kCommandFailed; }

// Layers count from 1 here.
int setLayers(ModelerSession& session, Words arguments) {
  const ModelerObject* object = session.current();
  if (object == nullptr) return kCommandFailed;
  std::vector<int> numbers;
  for (const std::string& word : arguments) {
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size()) return kCommandArgumentType;
    if (object->layer(number - 1) == nullptr) return kCommandArgumentValue;
    numbers.push_back(number - 1);
  }
  session.showLayers(numbers);
  return kCommandDone;
}

// With nothing selected everything in the foreground counts as selected.
int deletePolygons(ModelerSession& session, Words /*arguments*/) {
  ModelerObject* object = session.current();
  if (object == nullptr) return kCommandFailed;
  std::vector<const MeshPolygon*> all = object->scan(*object->chosen(lw::kLayersForeground));
  std::vector<const MeshPolygon*> selected = all;
  std::erase_if(selected, [](const MeshPolygon* polygon) { return !polygon->selected; });
  object->remove(selected.empty() ? all : selected);
  return kCommandDone;
}

struct Command {
  std::string_view name;
  std::size_t least;
  std::size_t most;
  int (*run)(ModelerSession& session, Words arguments);
};

constexpr std::size_t kMostLayers = 99;

constexpr Command kCommands[]{
    // name, arguments at least and at most
    {"load", 1, 1, load},
    {"new", 0, 0, newObject},
    {"save", 1, 1, save},
    {"close", 0, 0, close},
    {"undo", 0, 0, undo},
    {"setlayer", 1, kMostLayers, setLayers},
    {"delete", 0, 0, deletePolygons},
};

std::string lowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return text;
}

}  // namespace

std::optional<std::vector<std::string>> commandWords(std::string_view line) {
  std::vector<std::string> words;
  while (true) {
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    if (line.empty()) return words;
    const bool isQuoted = line.front() == '"';
    if (isQuoted) line.remove_prefix(1);
    const std::size_t end = line.find(isQuoted ? '"' : ' ');
    if (isQuoted && end == std::string_view::npos) return std::nullopt;
    words.emplace_back(line.substr(0, end));
    line.remove_prefix(std::min(end, line.size() - 1) + 1);
  }
}

std::optional<int> runCommand(ModelerSession& session, std::string_view line) {
  const auto words = commandWords(line);
  if (!words) return kCommandArgumentType;
  if (words->empty()) return std::nullopt;
  const std::string name = lowerCase(words->front());
  const Command* const command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                              [&](const Command& candidate) { return candidate.name == name; });
  if (command == std::end(kCommands)) return std::nullopt;
  const Words arguments = Words(*words).subspan(1);
  if (arguments.size() < command->least || arguments.size() > command->most) return kCommandArgumentCount;
  return command->run(session, arguments);
}

}  // namespace standin
