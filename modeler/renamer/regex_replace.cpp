#include "modeler/renamer/regex_replace.h"

#include <algorithm>
#include <iterator>
#include <locale>
#include <utility>
#include <vector>

#include "skelegon/numbers.h"
#include "texts/utf8.h"

namespace mst {
namespace {

namespace error = std::regex_constants;

// ---------------------------------------------------------------------------------------------------------------------
// What the library would make of a pattern

// A part of the automaton.
struct Part {
  std::uint64_t states = 0;
  std::uint64_t choices = 0;  // that take no character
  void add(const Part& other) {
    states += other.states;
    choices += other.choices;
  }
};

struct Count {
  std::uint64_t copies = 1;
  std::uint64_t optional = 0;  // of the copies
};

// Walks a pattern as the library's parser does, but makes nothing. Whatever is no pattern may end the walk early: the parser
// gets no further then either.
class CPatternSize {
 public:
  explicit CPatternSize(std::string_view pattern) : left_(pattern) {
    groups_.emplace_back();
    while (!left_.empty() && take()) {
    }
    while (groups_.size() > 1) closeGroup();  // never closed: the parser made what is in them before it found out
    groups_.front().add(last_);
  }

  Part total() const { return groups_.front(); }
  int depth() const { return depth_; }
  bool refersBack() const { return refersBack_; }
  bool looksAhead() const { return looksAhead_; }

 private:
  char next() {
    const char character = left_.front();
    left_.remove_prefix(1);
    return character;
  }

  // What follows may be repeated; what was before may not any more.
  void begin(Part part) { groups_.back().add(std::exchange(last_, part)); }

  void closeGroup() {
    Part group = groups_.back();
    group.add(last_);
    group.states += 2;
    groups_.pop_back();
    last_ = group;
  }

  bool take() {
    switch (const char character = next(); character) {
      case '\\':
        if (left_.empty()) return false;
        refersBack_ = refersBack_ || skg::isDigit(left_.front());
        next();
        begin({1, 0});
        return true;
      case '[': begin({1, 0}); return skipClass();
      case '(':
        begin({});
        groups_.emplace_back();
        depth_ = std::max(depth_, static_cast<int>(groups_.size()) - 1);
        looksAhead_ = looksAhead_ || left_.substr(0, 2) == "?=" || left_.substr(0, 2) == "?!";
        if (!left_.empty() && left_.front() == '?') next();
        return true;
      case ')':
        if (groups_.size() == 1) return false;
        closeGroup();
        return true;
      case '|':
        begin({2, 1});
        begin({});
        return true;
      case '?': last_.add({2, 1}); return true;
      case '*':
      case '+': last_.add({2, 0}); return true;
      case '{': return repeat();
      default: begin({1, 0}); return true;
    }
  }

  bool skipClass() {
    while (!left_.empty()) {
      const char character = next();
      if (character == ']') return true;
      if (left_.empty()) return false;
      if (character == '\\') next();
      if (character == '[' && (left_.front() == ':' || left_.front() == '.' || left_.front() == '=')) {
        const char kind = next();
        const std::size_t end = left_.find(kind);
        if (end == std::string_view::npos || left_.substr(end + 1, 1) != "]") return false;
        left_.remove_prefix(end + 2);
      }
    }
    return false;
  }

  // A number, or 0; as large as matters.
  std::uint64_t number() {
    std::uint64_t value = 0;
    while (!left_.empty() && skg::isDigit(left_.front()))
      value = std::min(value * 10 + static_cast<unsigned>(next() - '0'), kHuge);
    return value;
  }

  bool repeat() {
    const std::uint64_t least = number();
    std::uint64_t most = least;
    std::uint64_t optional = 0;
    if (!left_.empty() && left_.front() == ',') {
      next();
      most = left_.empty() || left_.front() == '}' ? least + 1 : number();
      optional = most > least ? most - least : 0;
    }
    if (left_.empty() || next() != '}') return false;
    const std::uint64_t copies = std::max<std::uint64_t>({least, most, 1});
    last_ = {std::min((last_.states + 2) * copies, kHuge), std::min(last_.choices * copies + optional, kHuge)};
    return true;
  }

  static constexpr std::uint64_t kHuge = 1'000'000'000;  // no product or sum of such passes 64 bits

  std::string_view left_;
  std::vector<Part> groups_;  // open ones, the whole pattern first
  Part last_;                 // what a repetition would repeat
  int depth_ = 0;
  bool refersBack_ = false;
  bool looksAhead_ = false;
};

// Throws where a limit is passed. Gives what a step of the matcher costs: to look ahead, the library makes a matcher of its
// own, which takes time for each state.
std::int64_t checkedCost(std::string_view pattern) {
  constexpr std::uint64_t kStatesPerStep = 16;
  if (pattern.size() > kLongestPattern) throw std::regex_error(error::error_space);
  const CPatternSize size(pattern);
  if (size.depth() > kDeepestGroups) throw std::regex_error(error::error_stack);
  if (size.total().states > kMostStates) throw std::regex_error(error::error_space);
  if (size.refersBack() && size.total().choices > kMostChoicesBeforeReference) {
    throw std::regex_error(error::error_complexity);
  }
  return size.looksAhead() ? static_cast<std::int64_t>(1 + size.total().states / kStatesPerStep) : 1;
}

// ---------------------------------------------------------------------------------------------------------------------
// The matcher, watched

// The address sanitizer may keep locals elsewhere than on the stack.
#if defined(__GNUC__)
#define VARNEL_REAL_STACK __attribute__((no_sanitize("address")))
#else
#define VARNEL_REAL_STACK
#endif

// Roughly where the stack stands. Not by __builtin_frame_address: this compiler then tells Windows a wrong place for the xmm
// registers that the function saved, and an exception that passes leaves the host with other ones.
VARNEL_REAL_STACK std::uintptr_t stackPointer() {
  volatile std::uintptr_t here = 0;
  here = reinterpret_cast<std::uintptr_t>(&here);
  return here;
}

struct Watch {
  std::int64_t steps = 0;  // that are left
  std::int64_t cost = 1;   // of one
  std::uintptr_t bottom = 0;
  std::size_t deepest = 0;

  void step() {
    steps -= cost;
    if (steps < 0) throw std::regex_error(error::error_complexity);
    const std::uintptr_t now = stackPointer();
    // Wherever the stack grows to.
    if (std::max(now, bottom) - std::min(now, bottom) > deepest) throw std::regex_error(error::error_stack);
  }
};

// A place in a text. The matcher can neither read a character nor compare two places without taking a step.
class CWatchedPlace {
 public:
  using iterator_category = std::bidirectional_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  CWatchedPlace() = default;
  CWatchedPlace(const char* place, Watch& watch) : place_(place), watch_(&watch) {}

  reference operator*() const {
    step();
    return *place_;
  }
  CWatchedPlace& operator++() {
    ++place_;
    return *this;
  }
  CWatchedPlace operator++(int) {
    CWatchedPlace before = *this;
    ++place_;
    return before;
  }
  CWatchedPlace& operator--() {
    --place_;
    return *this;
  }
  CWatchedPlace operator--(int) {
    CWatchedPlace before = *this;
    --place_;
    return before;
  }
  friend bool operator==(const CWatchedPlace& a, const CWatchedPlace& b) {
    a.step();
    return a.place_ == b.place_;
  }

 private:
  void step() const {
    if (watch_ != nullptr) watch_->step();
  }

  const char* place_ = nullptr;
  Watch* watch_ = nullptr;
};

// Takes the result, up to the longest name.
class CBoundedText {
 public:
  using iterator_category = std::output_iterator_tag;
  using value_type = void;
  using difference_type = std::ptrdiff_t;
  using pointer = void;
  using reference = void;

  explicit CBoundedText(std::string& text) : text_(&text) {}
  CBoundedText& operator=(char character) {
    if (text_->size() == kLongestName) refuseLongName();
    text_->push_back(character);
    return *this;
  }
  CBoundedText& operator*() { return *this; }
  CBoundedText& operator++() { return *this; }
  CBoundedText& operator++(int) { return *this; }

 private:
  std::string* text_;
};

}  // namespace

struct CRegexReplacement::Matcher {
  // What counts as a letter must not depend on the locale that somebody set in the host's process.
  explicit Matcher(const std::string& pattern) {
    regex.imbue(std::locale::classic());
    regex.assign(pattern, std::regex::ECMAScript);
  }

  std::regex regex;
  Watch watch;
  std::int64_t reserve = 0;  // of steps, that is left
};

CRegexReplacement::CRegexReplacement(std::string pattern, std::string format, StepBudget budget)
    : pattern_(std::move(pattern)), format_(std::move(format)), budget_(budget) {}

CRegexReplacement::~CRegexReplacement() = default;

std::string CRegexReplacement::replaced(std::string_view text) {
  if (!matcher_) {
    const std::int64_t cost = checkedCost(pattern_);
    matcher_ = std::make_unique<Matcher>(pattern_);
    matcher_->watch.cost = cost;
    matcher_->reserve = budget_.reserve;
  }
  if (text.size() > kLongestName) refuseLongName();
  const auto size = static_cast<std::int64_t>(text.size());
  const std::int64_t own = budget_.perText + std::min(budget_.perPairOfBytes * size * size, budget_.mostForPairs);
  Watch& watch = matcher_->watch;
  watch.steps = matcher_->reserve + own;
  watch.deepest = deepest_;
  watch.bottom = stackPointer();
  std::string result;
  try {
    std::regex_replace(CBoundedText(result), CWatchedPlace(text.data(), watch),
                       CWatchedPlace(text.data() + text.size(), watch), matcher_->regex, format_);
  } catch (const CTextRefused&) {
    throw;
  } catch (const std::regex_error& limit) {
    throw CTextRefused(texts::NameRefusal::TooHard, limit.code());
  }
  matcher_->reserve = std::min(matcher_->reserve, watch.steps);
  if (!texts::isUtf8(result) && texts::isUtf8(text)) throw CTextRefused(texts::NameRefusal::Broken, error::error_ctype);
  return result;
}

void refuseLongName() { throw CTextRefused(texts::NameRefusal::TooLong, error::error_space); }

}  // namespace mst
