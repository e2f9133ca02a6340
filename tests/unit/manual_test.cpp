// The manual says everything that the program says, in both languages: labels, choices, messages, services.
#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <optional>
#include <set>

#include "objectfile/file_bytes.h"
#include "objectfile/temporary_folder.h"
#include "rigs/findings.h"
#include "standin/core/program_folder.h"
#include "standin/validate/child_process.h"
#include "tests/unit/documents.h"
#include "texts/texts.h"

namespace varnel::test {
namespace {

namespace rigs = standin::rigs;
using texts::Language;

struct Edition {
  Language language;
  const char* folder;
};
constexpr Edition kEditions[] = {{Language::English, "en"}, {Language::Japanese, "ja"}};

fs::path folderOf(const Edition& edition) { return repository() / "docs" / "manual" / edition.folder; }
std::string page(const Edition& edition, const char* name) { return textOf(folderOf(edition) / name); }

// A label as the manual quotes it: bold in English, in corner brackets in Japanese.
bool quotes(const Edition& edition, const std::string& page, const std::string& label) {
  const bool isJapanese = edition.language == Language::Japanese;
  return contains(page, isJapanese ? "「" + label + "」" : "**" + label + "**");
}

// Without the code of the picture that the host draws before it; empty when it is nothing but a picture.
std::string withoutPicture(const char* label) {
  const std::string text = label;
  return text.starts_with('\x03') ? text.substr(text.find(')') + 1) : text;
}

void expectQuoted(const Edition& edition, const char* name, const std::string& page, const char* label) {
  const std::string text = withoutPicture(label);
  EXPECT_TRUE(text.empty() || quotes(edition, page, text)) << edition.folder << "/" << name << " lacks: " << text;
}

template <class Labels>
void expectLabels(const char* name, Labels&& labels) {
  for (const Edition& edition : kEditions) {
    const std::string text = page(edition, name);
    for (const char* label : labels(edition.language)) expectQuoted(edition, name, text, label);
  }
}

template <class Lists>
void expectChoices(const char* name, const Lists& lists) {
  for (const Edition& edition : kEditions) {
    const std::string text = page(edition, name);
    for (const auto& list : lists) {
      for (texts::Choices choice = list.in(edition.language); *choice != nullptr; ++choice)
        expectQuoted(edition, name, text, *choice);
    }
  }
}

TEST(Manual, ExplainsEveryLabelOfThePropertyPanel) { expectLabels("property-panel.md", texts::propertyLabels); }

TEST(Manual, ExplainsEveryChoiceOfThePropertyPanel) { expectChoices("property-panel.md", texts::propertyChoices()); }

TEST(Manual, ExplainsEveryLabelOfTheRenamer) { expectLabels("renamer.md", texts::renamerLabels); }

TEST(Manual, ExplainsEveryChoiceOfTheRenamer) { expectChoices("renamer.md", texts::renamerChoices()); }

TEST(Manual, ExplainsEveryLabelOfTheConversion) { expectLabels("conversion.md", texts::layoutTexts); }

TEST(Manual, ExplainsTheRenamersMessages) {
  for (const Edition& edition : kEditions) {
    const std::string text = page(edition, "messages.md");
    for (const std::string message : texts::renamerMessages(edition.language)) {
      const bool isTitle = message == "Error";  // the host shows none
      EXPECT_EQ(message.empty() || contains(text, "`" + message + "`"), !isTitle) << edition.folder << ": " << message;
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Texts that stand in the sources

// The text literals of a source. Those in comments count too: they only ask for more.
std::vector<std::string> literalsOf(const std::string& source) {
  std::vector<std::string> literals;
  for (std::size_t at = source.find('"'); at != std::string::npos; at = source.find('"', at + 1)) {
    if (at > 0 && source[at - 1] == '\'') continue;  // the character '"'
    std::string literal;
    for (++at; at < source.size() && source[at] != '"' && source[at] != '\n'; ++at) {
      if (source[at] == '\\') ++at;
      literal += source[at];
    }
    literals.push_back(literal);
  }
  return literals;
}

bool isMessage(const std::string& literal) {
  const bool hasWords = std::any_of(literal.begin(), literal.end(), [](char c) { return c >= 'a' && c <= 'z'; });
  const bool soundsLikeOne = contains(literal, "!") || literal.ends_with("...") || literal.ends_with("done.") ||
                             literal.ends_with(" ?") || contains(literal, "_GLOBAL,");
  return hasWords && soundsLikeOne;
}

// What stands between the places that are filled in.
std::vector<std::string> fixedParts(const std::string& message) {
  std::vector<std::string> parts(1);
  for (std::size_t i = 0; i < message.size(); ++i) {
    if (message[i] == '%' && i + 1 < message.size()) {
      parts.emplace_back();
      ++i;
    } else {
      parts.back() += message[i];
    }
  }
  return parts;
}

std::set<std::string> messagesInSources() {
  std::set<std::string> messages;
  for (const char* folder : {"host", "layout", "modeler"}) {
    for (const std::string& file : filesIn(repository() / folder, ".cpp")) {
      for (const std::string& literal : literalsOf(textOf(repository() / folder / file))) {
        // The command that shows the message is no part of it.
        const std::string_view command = "StatusMsg {1.0} ";
        if (isMessage(literal)) messages.insert(literal.starts_with(command) ? literal.substr(command.size()) : literal);
      }
    }
  }
  return messages;
}

TEST(Manual, ExplainsEveryMessageOfTheSources) {
  const std::set<std::string> messages = messagesInSources();
  EXPECT_EQ(messages.count("polSelect() !"), 1u);  // the search works
  for (const Edition& edition : kEditions) {
    const std::string text = page(edition, "messages.md");
    for (const std::string& message : messages) {
      for (const std::string& part : fixedParts(message)) {
        EXPECT_TRUE(contains(text, part)) << edition.folder << ": " << part << "  of  " << message;
      }
    }
  }
}

TEST(Manual, NamesEveryServiceThatTheHostMustOffer) {
  const std::string source = textOf(repository() / "host" / "lwtool2_globals.cpp");
  const std::size_t begin = source.find("kWanted[] = {");
  const std::vector<std::string> services = literalsOf(source.substr(begin, source.find("};", begin) - begin));
  EXPECT_GT(services.size(), 30u);  // the search works
  for (const Edition& edition : kEditions) {
    const std::string text = page(edition, "install.md");
    for (const std::string& service : services)
      EXPECT_TRUE(contains(text, "`" + service + "`")) << edition.folder << ": " << service;
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// The program

// What stands under a heading of the third level, up to the next heading of that level or a higher one.
std::string sectionOf(const std::string& page, const std::string& title) {
  std::string section;
  bool isInside = false;
  for (const std::string& line : linesOf(page)) {
    const bool ends = line.starts_with("# ") || line.starts_with("## ") || line.starts_with("### ");
    if (ends) isInside = line == "### " + title;
    if (isInside) section += line + "\n";
  }
  return section;
}

struct CommandOption {
  std::string command;
  std::string option;
};

// The text in quotes behind `mark` where the line begins with it.
std::optional<std::string> quotedAfter(const std::string& line, std::string_view mark) {
  const std::size_t start = std::min(line.find_first_not_of(' '), line.size());
  const std::size_t open = start + mark.size();
  if (!std::string_view(line).substr(start).starts_with(mark) || line[open] != '"') return {};
  return line.substr(open + 1, line.find('"', open + 1) - open - 1);
}

// Subcommands and their options as the tables of the sources list them; a command that the help hides is left out. What a
// command has more names than one, counts once for each: "-o,--output".
std::vector<CommandOption> commandOptions() {
  std::vector<CommandOption> found;
  for (const std::string& file : filesIn(repository() / "program", ".cpp")) {
    std::string command;
    for (const std::string& line : linesOf(textOf(repository() / "program" / file))) {
      if (const auto name = quotedAfter(line, ".name = ")) {
        command = *name == "validate-check" ? "" : *name;
        if (!command.empty()) found.push_back({command, {}});
      } else if (const auto row = quotedAfter(line, "{"); row && !command.empty()) {
        for (std::string names = *row + ','; !names.empty(); names.erase(0, names.find(',') + 1)) {
          found.push_back({command, names.substr(0, names.find(','))});
        }
      }
    }
  }
  return found;
}

bool explains(const std::string& section, const std::string& option) {
  return contains(section, "`" + option + "`") || contains(section, "`" + option + " ");
}

// The sources know the options of both systems; the help those that functions make for several commands too.
TEST(Manual, ExplainsEveryCommandAndOptionOfTheProgram) {
  const std::vector<CommandOption> options = commandOptions();
  EXPECT_GT(options.size(), 30u);  // the search works
  for (const Edition& edition : kEditions) {
    const std::string text = page(edition, "tools.md");
    for (const auto& [command, option] : options) {
      const std::string section = sectionOf(text, command);
      EXPECT_TRUE(option.empty() ? !section.empty() : explains(section, option))
          << edition.folder << ": " << command << " " << option;
    }
  }
}

// What the built program prints for "--help-all".
std::string helpOfTheProgram() {
  const fs::path program = standin::pathFromUtf8(standin::programFolder()).parent_path() / VARNEL_PROGRAM;
  const standin::TemporaryFolder folder;
  const std::string printed = folder.file("help.txt");
  standin::validate::ChildProcess process(standin::utf8Of(program), {"--help-all"}, printed);
  return process.why().empty() && process.wait(60'000) ? textOf(standin::pathFromUtf8(printed)) : "";
}

// Commands with their options and positionals, as the help lists them: a command stands at the beginning of a line, what it
// takes four places in. What stands before the commands is for all of them, and is listed two places in.
std::vector<CommandOption> optionsInHelp(const std::string& help) {
  std::vector<CommandOption> found;
  std::string command;
  bool areCommands = false;
  for (const std::string& line : linesOf(help)) {
    const std::size_t indent = std::min(line.find_first_not_of(' '), line.size());
    const std::string word = line.substr(indent, line.find_first_of(" \r", indent) - indent);
    if (indent == 0) {
      if (areCommands && !word.empty()) {
        command = word;
        found.push_back({command, {}});
      }
      areCommands = areCommands || word == "Subcommands:";
    } else if (indent == (areCommands ? 4U : 2U)) {
      for (std::string names = word + ','; !names.empty(); names.erase(0, names.find(',') + 1)) {
        found.push_back({command, names.substr(0, names.find(','))});
      }
    }
  }
  return found;
}

TEST(Manual, ExplainsWhatTheProgramsOwnHelpLists) {
  const std::vector<CommandOption> options = optionsInHelp(helpOfTheProgram());
  EXPECT_GT(options.size(), 50u);  // the program ran, and its help was understood
  for (const Edition& edition : kEditions) {
    const std::string text = page(edition, "tools.md");
    const std::string head = text.substr(0, text.find("\n## "));
    for (const auto& [command, option] : options) {
      const std::string section = command.empty() ? head : sectionOf(text, command);
      EXPECT_TRUE(option.empty() ? !section.empty() : explains(section, option))
          << edition.folder << ": " << command << " " << option;
    }
  }
}

// Entries that are linked to by a name of their own, whatever the language: `<a id="no-name"></a>`.
std::vector<std::string> entriesOf(const std::string& page) {
  const std::string_view mark = "<a id=\"";
  std::vector<std::string> entries;
  for (std::size_t at = page.find(mark); at != std::string::npos; at = page.find(mark, at + 1)) {
    const std::size_t open = at + mark.size();
    entries.push_back(page.substr(open, page.find("\"></a>", open) - open));
  }
  return entries;
}

TEST(Manual, HasOneEntryForEachFindingWhereTheFindingSays) {
  for (const Edition& edition : kEditions) {
    std::map<std::string, std::vector<std::string>> pagesOf;  // by entry
    for (const std::string& name : filesIn(folderOf(edition), ".md")) {
      for (const std::string& entry : entriesOf(page(edition, name.c_str()))) pagesOf[entry].push_back(name);
    }
    for (const rigs::FindingRow& row : rigs::findingTable()) {
      const std::string name = row.page + std::string(".md");
      EXPECT_EQ(pagesOf[row.id], std::vector<std::string>{name}) << edition.folder << ": " << row.id;
      EXPECT_EQ(rigs::manualEntryOf(row.kind, edition.language),
                std::string("manual/") + edition.folder + "/" + row.page + ".html#" + row.id);
    }
  }
}

TEST(Manual, LeadsToTheEntryOfEachFinding) {
  for (const Edition& edition : kEditions) {
    const std::string text = page(edition, "tools.md");
    for (const rigs::FindingRow& row : rigs::findingTable()) {
      std::string link = "[`";
      link.append(row.id).append("`](").append(row.page).append(".md#").append(row.id).append(")");
      EXPECT_TRUE(contains(text, link)) << edition.folder << ": " << link;
    }
  }
}

TEST(Manual, SaysWhichFindingsAreProblems) {
  for (const Edition& edition : kEditions) {
    const std::string section = sectionOf(page(edition, "tools.md"), "inspect");
    const bool isJapanese = edition.language == Language::Japanese;
    const std::size_t notes = section.find(isJapanese ? "\n注意: " : "\nNotes: ");
    ASSERT_NE(notes, std::string::npos) << edition.folder;
    for (const rigs::FindingRow& row : rigs::findingTable()) {
      const bool isAmongNotes = section.find(std::string("[`") + row.id + "`]") > notes;
      EXPECT_EQ(isAmongNotes, row.weight == rigs::FindingWeight::Note) << edition.folder << ": " << row.id;
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// The languages beside each other

// What a page is made of: its headings' levels, table rows, boxes and pictures in their order.
std::vector<std::string> skeletonOf(const std::string& page, const std::string& language) {
  std::vector<std::string> parts;
  bool isInBox = false;
  for (const std::string& line : linesOf(page)) {
    if (line.starts_with('#')) parts.push_back(line.substr(0, line.find(' ')));
    if (line.starts_with('|')) parts.emplace_back("|");
    if (line.starts_with('>') && !isInBox) parts.emplace_back(">");
    isInBox = line.starts_with('>');
    if (const std::size_t picture = line.find("../pictures/"); picture != std::string::npos) {
      std::string name = line.substr(picture);
      name.replace(name.find("-" + language), 3, "-LANGUAGE");
      parts.push_back(name);
    }
  }
  return parts;
}

TEST(Manual, HasTheSamePagesInBothLanguages) {
  EXPECT_EQ(filesIn(folderOf(kEditions[0]), ".md"), filesIn(folderOf(kEditions[1]), ".md"));
}

TEST(Manual, IsBuiltTheSameInBothLanguages) {
  for (const std::string& name : filesIn(folderOf(kEditions[0]), ".md")) {
    EXPECT_EQ(skeletonOf(page(kEditions[0], name.c_str()), "en"), skeletonOf(page(kEditions[1], name.c_str()), "ja"))
        << name;
  }
}

// The targets of the links and pictures of a page, without the parts behind '#'.
std::set<std::string> targetsOf(const std::string& page) {
  std::set<std::string> targets;
  for (std::size_t at = page.find("]("); at != std::string::npos; at = page.find("](", at + 2)) {
    const std::string target = page.substr(at + 2, page.find_first_of("#)", at) - at - 2);
    if (!target.empty()) targets.insert(target);
  }
  return targets;
}

TEST(Manual, LinksToPagesThatAreThere) {
  for (const Edition& edition : kEditions) {
    for (const std::string& name : filesIn(folderOf(edition), ".md")) {
      for (const std::string& target : targetsOf(page(edition, name.c_str()))) {
        if (target.ends_with(".png")) continue;
        EXPECT_TRUE(fs::exists(folderOf(edition) / target)) << edition.folder << "/" << name << " links to " << target;
      }
    }
  }
}

// The name under which a heading is linked to: small letters, "-" for blanks, other marks of ASCII left out.
std::string anchorOf(const std::string& heading) {
  std::string anchor;
  for (const char c : heading.substr(heading.find(' ') + 1)) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == ' ') anchor += '-';
    if (byte >= 0x80 || std::isalnum(byte) != 0 || c == '-' || c == '_') anchor += static_cast<char>(std::tolower(byte));
  }
  return anchor;
}

std::set<std::string> anchorsOf(const std::string& page) {
  std::set<std::string> anchors;
  for (const std::string& line : linesOf(page)) {
    if (line.starts_with('#')) anchors.insert(anchorOf(line));
  }
  for (const std::string& entry : entriesOf(page)) anchors.insert(entry);
  return anchors;
}

TEST(Manual, HasTheSameEntriesInBothLanguages) {
  for (const std::string& name : filesIn(folderOf(kEditions[0]), ".md")) {
    EXPECT_EQ(entriesOf(page(kEditions[0], name.c_str())), entriesOf(page(kEditions[1], name.c_str()))) << name;
  }
}

TEST(Manual, LinksToHeadingsAndEntriesThatAreThere) {
  std::size_t links = 0;
  for (const Edition& edition : kEditions) {
    for (const std::string& name : filesIn(folderOf(edition), ".md")) {
      const std::string text = page(edition, name.c_str());
      for (std::size_t at = text.find("]("); at != std::string::npos; at = text.find("](", at + 2)) {
        const std::string target = text.substr(at + 2, text.find(')', at) - at - 2);
        const std::size_t mark = target.find('#');
        if (mark == std::string::npos) continue;
        const std::string on = mark == 0 ? name : target.substr(0, mark);
        EXPECT_EQ(anchorsOf(page(edition, on.c_str())).count(target.substr(mark + 1)), 1u)
            << edition.folder << "/" << name << " links to " << target;
        ++links;
      }
    }
  }
  EXPECT_GT(links, 10u);  // the search works
}

TEST(Manual, ShowsPicturesThatAreThere) {
  if (!fs::exists(repository() / "docs" / "manual" / "pictures")) GTEST_SKIP() << "the pictures have not been taken";
  for (const Edition& edition : kEditions) {
    for (const std::string& name : filesIn(folderOf(edition), ".md")) {
      for (const std::string& target : targetsOf(page(edition, name.c_str()))) {
        EXPECT_TRUE(!target.ends_with(".png") || fs::exists(folderOf(edition) / target))
            << edition.folder << "/" << name << ": " << target;
      }
    }
  }
}

}  // namespace
}  // namespace varnel::test
