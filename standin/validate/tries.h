// What a user tries in an open panel that hosts may differ in: wide numbers, menus, stored oddities, another run, another
// language. Parts of the trips; each gives what the user could not do or found wrong.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "standin/panels/person.h"
#include "standin/validate/session.h"

namespace standin::validate {

// With the first of the selected skelegons. The language is that of the session.
std::vector<std::string> tryProperty(Session& session, std::uint32_t language);
// With the open panel, in the advanced mode.
std::vector<std::string> tryRenamer(Session& session, std::uint32_t language, const Panel& panel);

// Collects what a user could not do or found wrong.
class Tries {
 public:
  void does(const Done& done) {
    if (!done) troubles_.push_back(done.why);
  }
  void finds(bool isSo, const std::string& what) {
    if (!isSo) troubles_.push_back("not so: " + what);
  }
  void notes(const std::vector<std::string>& troubles) {
    troubles_.insert(troubles_.end(), troubles.begin(), troubles.end());
  }
  const std::vector<std::string>& troubles() const { return troubles_; }

 private:
  std::vector<std::string> troubles_;
};

constexpr std::uint32_t otherLanguage(std::uint32_t language) { return language == kJapanese ? kEnglish : kJapanese; }

}  // namespace standin::validate
