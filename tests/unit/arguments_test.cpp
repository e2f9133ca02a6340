#include "modeler/arguments.h"

#include <gtest/gtest.h>

namespace mst {
namespace {

using Words = std::vector<std::string>;

TEST(SplitArguments, SeparatesWordsAtRunsOfBlanks) { EXPECT_EQ(splitArguments("  a  bc d "), (Words{"a", "bc", "d"})); }

TEST(SplitArguments, KeepsAQuotedWordTogether) { EXPECT_EQ(splitArguments("\"a b\" c"), (Words{"a b", "c"})); }

TEST(SplitArguments, TakesAnOpenQuoteToTheEnd) { EXPECT_EQ(splitArguments("a \"b c"), (Words{"a", "b c"})); }

TEST(SplitArguments, KnowsAQuoteOnlyAtTheHeadOfAWord) { EXPECT_EQ(splitArguments("a\"b c\""), (Words{"a\"b", "c\""})); }

TEST(SplitArguments, FindsNothingInNothing) {
  EXPECT_EQ(splitArguments(""), Words{});
  EXPECT_EQ(splitArguments("   "), Words{});
}

}  // namespace
}  // namespace mst
