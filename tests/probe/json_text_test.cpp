// What a host tells is put into the file of facts whatever it is made of.
#include "probe/json_text.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace probe {
namespace {

std::string readBack(const std::string& text) { return nlohmann::json::parse(jsonText(text)).get<std::string>(); }

TEST(TextsOfTheFactsFile, AreReadAsTheyWere) {
  for (const std::string text : {"", "plain", "日本 Ж", "\"quoted\" and C:\\rigs", "\x01\t\n\x1f\x7f"}) {
    EXPECT_EQ(readBack(text), text);
  }
}

TEST(TextsOfTheFactsFile, ShowBytesThatAreNoCharacters) {
  EXPECT_EQ(readBack("null \x93\xfa\x96\x7b (1)"), "null \\x93\\xfa\\x96{ (1)");
  EXPECT_EQ(readBack("cut \xe6\x97"), "cut \\xe6\\x97");
}

}  // namespace
}  // namespace probe
