// Replacement by regular expression, made safe: the one place of the module that uses the standard library's matcher.
//
// That matcher goes one call deeper for each character and tries every way through a pattern, so a long name or a nested
// quantifier would end the host's session or run for years. Here each of its steps is counted and the stack that it takes is
// measured; what cannot be seen that way is bounded before it begins. No host here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <regex>
#include <string>
#include <string_view>

#include "texts/texts.h"

namespace mst {

// Bytes of a name, before and after a replacement. Names are some dozen bytes long; a replacement that is run again and
// again must not fill the memory.
inline constexpr std::size_t kLongestName = 65'536;

// Bytes of a pattern. The library's parser goes deeper with each one: by about 130 bytes of stack, measured.
inline constexpr std::size_t kLongestPattern = 1'000;
// Groups within each other: about 1,000 bytes of stack for each, in the parser and in the matcher together.
inline constexpr int kDeepestGroups = 100;
// States of the library's automaton, roughly: a repetition with a count is as many copies of what it repeats. The matcher
// goes through states that take no character without being seen, some 150 bytes of stack at a time.
inline constexpr std::uint64_t kMostStates = 1'000;
// Choices that take no character, in a pattern that refers back to a group: a reference to a group that took no part fails
// without being seen, so the ways to it are bounded. In other patterns every way ends at a step that is counted.
inline constexpr std::uint64_t kMostChoicesBeforeReference = 10;
// Stack that one match may take where nobody gave more. A program's main thread has 1 MB on Windows, of which the host needs its
// share.
inline constexpr std::size_t kDeepestMatch = 262'144;

// Steps that the matcher may take for a text, and a reserve for all texts together. Everyday patterns that do not fit, as "(.*)_L$"
// without an "_L", are tried at each place to each end: up to three steps for each pair of bytes. A bad pattern wants more by far and
// ends at its first text, within a second however long that is.
struct StepBudget {
  std::int64_t reserve = 2'000'000;
  std::int64_t perText = 20'000;
  std::int64_t perPairOfBytes = 8;
  std::int64_t mostForPairs = 6'000'000;
};

// A pattern that is sound was not applied to a text.
struct CTextRefused : std::regex_error {
  CTextRefused(texts::NameRefusal reason, std::regex_constants::error_type code) : std::regex_error(code), why(reason) {}
  texts::NameRefusal why;
};

// One pattern (ECMAScript grammar) and format ("$1", "$&"), applied to many texts. All matches are replaced.
class CRegexReplacement {
 public:
  CRegexReplacement(std::string pattern, std::string format, StepBudget budget = {});
  ~CRegexReplacement();
  CRegexReplacement(const CRegexReplacement&) = delete;
  CRegexReplacement& operator=(const CRegexReplacement&) = delete;

  // Bytes of stack that one match may take from now on.
  void useStack(std::size_t bytes) { deepest_ = bytes; }

  // Throws std::regex_error for an invalid pattern, or one that passes a limit: error_space (too large), error_complexity, error_stack
  // (too deep); CTextRefused for a text. The pattern is looked at when the first text comes.
  std::string replaced(std::string_view text);

 private:
  struct Matcher;

  std::string pattern_;
  std::string format_;
  StepBudget budget_;
  std::size_t deepest_ = kDeepestMatch;
  std::unique_ptr<Matcher> matcher_;
};

// Throws CTextRefused: for any text that would be too long.
[[noreturn]] void refuseLongName();

}  // namespace mst
