// Every text of both languages in its place, against a list that was not made of the tables. It changes only when a text is meant to.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/unit/documents.h"
#include "texts/texts.h"

namespace texts {
namespace {

// The byte that makes the host draw a picture is shown as "\x03".
std::string visible(std::string text) {
  for (std::size_t at = 0; (at = text.find('\x03', at)) != std::string::npos;) text.replace(at, 1, "\\x03");
  return text;
}

std::string line(std::size_t index, const char* english, const char* japanese) {
  return std::to_string(index) + " \"" + visible(english) + "\" | \"" + visible(japanese) + "\"\n";
}

// All entries of a table, or only those that have a text.
template <class Table>
std::string table(const std::string& title, const Table& english, const Table& japanese, bool withEmpty) {
  std::string dump = "[" + title + ", " + std::to_string(english.size()) + " entries]\n";
  for (std::size_t i = 0; i < english.size(); ++i) {
    if (withEmpty || *english[i] != '\0' || *japanese[i] != '\0') dump += line(i, english[i], japanese[i]);
  }
  return dump + "\n";
}

template <class Rows>
std::string lists(const std::string& title, const Rows& rows) {
  std::string dump;
  for (std::size_t list = 0; list < rows.size(); ++list) {
    dump += "[" + title + " " + std::to_string(list) + ", " + std::to_string(rows[list].count) + " entries with the null]\n";
    const Choices english = rows[list].in(Language::English);
    const Choices japanese = rows[list].in(Language::Japanese);
    for (std::size_t i = 0; english[i] != nullptr && japanese[i] != nullptr; ++i) dump += line(i, english[i], japanese[i]);
    dump += "\n";
  }
  return dump;
}

std::string everyText() {
  constexpr Language kEnglish = Language::English, kJapanese = Language::Japanese;
  return "index, English | Japanese\n\n" +
         table("labels of the property panel", propertyLabels(kEnglish), propertyLabels(kJapanese), false) +
         lists("list of the property panel", propertyChoices()) +
         table("labels of the renamer", renamerLabels(kEnglish), renamerLabels(kJapanese), false) +
         lists("list of the renamer", renamerChoices()) +
         table("messages of the renamer", renamerMessages(kEnglish), renamerMessages(kJapanese), true) +
         table("refusals of the renamer", renamerRefusals(kEnglish), renamerRefusals(kJapanese), true) +
         table("texts of Layout's panel", layoutTexts(kEnglish), layoutTexts(kJapanese), true);
}

TEST(EveryText, StandsInItsPlace) {
  const std::string texts = everyText();
  const std::string golden = varnel::test::textOf(varnel::test::repository() / "tests/unit/texts.golden");
  if (texts == golden) return;
  const std::filesystem::path made = std::filesystem::temp_directory_path() / "texts.golden";
  std::ofstream(made, std::ios::binary) << texts;
  EXPECT_EQ(varnel::test::linesOf(texts), varnel::test::linesOf(golden)) << "the texts as they are: " << made;
}

}  // namespace
}  // namespace texts
